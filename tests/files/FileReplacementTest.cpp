#include "files/FileReplacement.h"

#include "files/Leftovers.h"
#include "files/WritableFile.h"
#include "tests/files/Sandbox.h"

#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/xattr.h>

namespace files::test {

class FileReplacementTest : public Sandbox
{
};

constexpr char oldContent[] = "old, and longer than the new";

TEST_F(FileReplacementTest, WhatPeopleGaveAFileStays)
{
    put("plan.dxf", oldContent);
    chmod(path("plan.dxf").c_str(), 04640);
    const bool hasAttributes = setxattr(path("plan.dxf").c_str(), "user.project", "house", 5, 0) == 0;
    const ino_t before = status("plan.dxf").st_ino;
    EXPECT_EQ(replaceFile(path("plan.dxf"), "new"), "");
    EXPECT_EQ(content("plan.dxf"), "new");
    EXPECT_EQ(status("plan.dxf").st_mode & 07777, 0640U) << "the bit for running as the owner goes";
    EXPECT_NE(status("plan.dxf").st_ino, before) << "the old one was written over";
    char value[8] = {};
    EXPECT_EQ(getxattr(path("plan.dxf").c_str(), "user.project", value, sizeof value), hasAttributes ? 5 : -1);
    EXPECT_EQ(fileCount(), 1U);
}

TEST_F(FileReplacementTest, LinksOfBothKindsStay)
{
    fs::create_directory(path("archive"));
    put("archive/plan.dxf", oldContent);
    fs::create_hard_link(path("archive/plan.dxf"), path("same.dxf"));
    fs::create_symlink("archive/plan.dxf", path("link.dxf"));
    fs::create_symlink("archive/new.dxf", path("dangling.dxf"));
    EXPECT_EQ(replaceFile(path("link.dxf"), "new"), "");
    EXPECT_TRUE(fs::is_symlink(path("link.dxf")));
    EXPECT_EQ(content("archive/plan.dxf"), "new");
    EXPECT_EQ(content("same.dxf"), "new") << "the other name has the old content";
    EXPECT_EQ(replaceFile(path("dangling.dxf"), "made"), "");
    EXPECT_EQ(content("archive/new.dxf"), "made");
    EXPECT_TRUE(fs::is_symlink(path("dangling.dxf")));
    fs::create_symlink("ring.dxf", path("ring.dxf"));
    EXPECT_NE(replaceFile(path("ring.dxf"), "no"), "");
}

TEST_F(FileReplacementTest, AFullDiskIsToldAndLeavesTheOldFile)
{
    put("kept.dxf", oldContent);
    put("linked.dxf", oldContent);
    fs::create_hard_link(path("linked.dxf"), path("other.dxf"));
    const size_t files = fileCount();
    for (const rlim_t room : {0U, 1U, 20U, 4096U, 300'000U}) {
        for (const char *name : {"kept.dxf", "linked.dxf", "new.dxf"}) {
            const std::string bytes(400'000, 'x');
            EXPECT_EQ(inChild([&] {
                          limitFiles(room);
                          return replaceFile(path(name), bytes).empty() ? 1 : 0;
                      }),
                      0)
                << name << ' ' << room;
        }
        EXPECT_EQ(inChild([&] {
                      limitFiles(room);
                      return appendToFile(path("kept.dxf"), std::string(400'000, 'x')).empty() ? 1 : 0;
                  }),
                  0);
    }
    EXPECT_EQ(content("kept.dxf"), oldContent);
    EXPECT_EQ(content("other.dxf"), oldContent);
    EXPECT_EQ(fileCount(), files);
}

TEST_F(FileReplacementTest, WhereTheFolderTakesNoFileItIsWrittenInPlace)
{
    put("plan.dxf", oldContent);
    chmod(path("plan.dxf").c_str(), 0666);
    chmod(m_folder.c_str(), 0555);
    const ino_t before = status("plan.dxf").st_ino;
    EXPECT_EQ(inChild([&] {
                  // Permissions do not bind the superuser.
                  if (geteuid() == 0 && setuid(65534) != 0)
                      return 2;
                  return replaceFile(path("plan.dxf"), "new").empty() && !replaceFile(path("more.dxf"), "x").empty()
                             ? 0
                             : 1;
              }),
              0);
    EXPECT_EQ(content("plan.dxf"), "new");
    EXPECT_EQ(status("plan.dxf").st_ino, before);
}

TEST_F(FileReplacementTest, AnotherOwnersFileKeepsItsOwner)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only the superuser can give files away";
    put("theirs.dxf", oldContent);
    chmod(m_folder.c_str(), 0777);
    ASSERT_EQ(chown(path("theirs.dxf").c_str(), 1234, 4321), 0);
    chmod(path("theirs.dxf").c_str(), 0666);
    EXPECT_EQ(replaceFile(path("theirs.dxf"), "by root"), "");
    EXPECT_EQ(status("theirs.dxf").st_uid, 1234U);
    EXPECT_EQ(
        inChild([&] { return setuid(65534) == 0 && replaceFile(path("theirs.dxf"), "by nobody").empty() ? 0 : 1; }), 0);
    EXPECT_EQ(content("theirs.dxf"), "by nobody");
    EXPECT_EQ(status("theirs.dxf").st_uid, 1234U);
    EXPECT_EQ(status("theirs.dxf").st_gid, 4321U);
}

TEST_F(FileReplacementTest, OnlyRegularFilesThatMayBeWrittenAreReplaced)
{
    mkfifo(path("pipe").c_str(), 0666);
    fs::create_directory(path("folder"));
    EXPECT_EQ(replaceFile(path("pipe"), "x"), notRegularFile);
    EXPECT_EQ(replaceFile(path("folder"), "x"), notRegularFile);
    EXPECT_EQ(replaceFile("/dev/full", "x"), notRegularFile);
    EXPECT_EQ(appendToFile(path("pipe"), "x"), notRegularFile);
    EXPECT_NE(replaceFile(path("missing/plan.dxf"), "x"), "");
    EXPECT_NE(replaceFile({}, "x"), "");
    EXPECT_TRUE(fs::is_fifo(path("pipe")));
}

TEST_F(FileReplacementTest, WhatIsNotCommittedIsGone)
{
    put("plan.dxf", oldContent);
    {
        FileReplacement file(path("plan.dxf"));
        EXPECT_TRUE(file.write("never"));
        EXPECT_FALSE(file.readBack([](std::string_view bytes) { return bytes != "never"; }));
        EXPECT_EQ(fileCount(), 2U);
    }
    EXPECT_EQ(content("plan.dxf"), oldContent);
    EXPECT_EQ(fileCount(), 1U);
}

TEST_F(FileReplacementTest, WhatAKilledWriterLeftGoesAndAWholeCopyIsTold)
{
    put("plan.dxf", oldContent);
    inChild([&] {
        FileReplacement file(path("plan.dxf"));
        file.write(std::string(500'000, 'x'));
        return raise(SIGKILL);
    });
    put(".plan.dxf.abcdef.whole", "whole");
    put(".plan.dxf.mine.saving", "of somebody else");
    put(".other.dxf.abcdef.saving", "of another file");
    FileReplacement busy(path("busy.dxf"));
    ASSERT_EQ(fileCount(), 6U);
    EXPECT_EQ(removeLeftovers(path("plan.dxf")), std::vector{path(".plan.dxf.abcdef.whole")});
    EXPECT_EQ(fileCount(), 5U);
    EXPECT_EQ(removeLeftoversIn(m_folder).size(), 1U);
    EXPECT_EQ(fileCount(), 4U) << "a file that is being written was taken away, or one of somebody else";
    EXPECT_TRUE(busy.write("x") && busy.commit());
}

} // namespace files::test
