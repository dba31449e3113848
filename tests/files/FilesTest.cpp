#include "files/FileReplacement.h"
#include "files/Leftovers.h"
#include "files/RegularFile.h"
#include "files/WritableFile.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <limits>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace files::test {

namespace fs = std::filesystem;

/// A folder for one test.
class Sandbox : public testing::Test
{
protected:
    void SetUp() override
    {
        std::string name = (fs::temp_directory_path() / "filesXXXXXX").string();
        m_folder = mkdtemp(name.data());
    }
    void TearDown() override
    {
        fs::permissions(m_folder, fs::perms::owner_all);
        fs::remove_all(m_folder);
    }

    fs::path path(const std::string &name) const { return m_folder / name; }
    fs::path put(const std::string &name, const std::string &content) const
    {
        FILE *file = std::fopen(path(name).c_str(), "wb");
        std::fwrite(content.data(), 1, content.size(), file);
        std::fclose(file);
        return path(name);
    }
    std::string content(const std::string &name) const
    {
        return readWholeFile(path(name), std::numeric_limits<std::uintmax_t>::max()).bytes;
    }
    size_t fileCount() const
    {
        return static_cast<size_t>(std::distance(fs::directory_iterator(m_folder), fs::directory_iterator()));
    }
    struct stat status(const std::string &name) const
    {
        struct stat result = {};
        EXPECT_EQ(stat(path(name).c_str(), &result), 0);
        return result;
    }

    /// Runs `body` in a process of its own, so that limits and users end with it; what it gives is the exit status.
    template <typename Body>
    static int inChild(Body body)
    {
        const pid_t child = fork();
        if (child == 0)
            _exit(body());
        int status = 0;
        waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    /// The disk is full after so many bytes of a file.
    static void limitFiles(rlim_t bytes)
    {
        signal(SIGXFSZ, SIG_IGN);
        const rlimit limit = {bytes, bytes};
        setrlimit(RLIMIT_FSIZE, &limit);
    }

    fs::path m_folder;
};

using ReplacementTest = Sandbox;
using RegularFileTest = Sandbox;

constexpr char oldContent[] = "old, and longer than the new";

TEST_F(ReplacementTest, WhatPeopleGaveAFileStays)
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

TEST_F(ReplacementTest, LinksOfBothKindsStay)
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

TEST_F(ReplacementTest, AFullDiskIsToldAndLeavesTheOldFile)
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

TEST_F(ReplacementTest, WhereTheFolderTakesNoFileItIsWrittenInPlace)
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

TEST_F(ReplacementTest, AnotherOwnersFileKeepsItsOwner)
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

TEST_F(ReplacementTest, OnlyRegularFilesThatMayBeWrittenAreReplaced)
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

TEST_F(ReplacementTest, WhatIsNotCommittedIsGone)
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

TEST_F(ReplacementTest, WhatAKilledWriterLeftGoesAndAWholeCopyIsTold)
{
    put("plan.dxf", oldContent);
    inChild([&] {
        FileReplacement file(path("plan.dxf"));
        file.write(std::string(500'000, 'x'));
        return raise(SIGKILL);
    });
    put(".plan.dxf.abcdef.whole", "whole");
    put(".plan.dxf.mine42.saving", "of somebody else");
    put(".other.dxf.abcdef.saving", "of another file");
    FileReplacement busy(path("busy.dxf"));
    ASSERT_EQ(fileCount(), 6U);
    EXPECT_EQ(removeLeftovers(path("plan.dxf")), std::vector{path(".plan.dxf.abcdef.whole")});
    EXPECT_EQ(fileCount(), 5U);
    EXPECT_EQ(removeLeftoversIn(m_folder).size(), 1U);
    EXPECT_EQ(fileCount(), 4U) << "a file that is being written was taken away, or one of somebody else";
    EXPECT_TRUE(busy.write("x") && busy.commit());
}

TEST_F(RegularFileTest, OnlyRegularFilesUpToTheLimitAreRead)
{
    put("text", "1234");
    mkfifo(path("pipe").c_str(), 0666);
    fs::create_symlink("/dev/zero", path("zero"));
    const std::tuple<fs::path, std::uintmax_t, std::string> rows[] = {
        {path("text"), 4, ""},
        {path("text"), 3, tooLargeFile},
        {path("pipe"), 100, notRegularFile},
        {path("zero"), 100, notRegularFile},
        {m_folder, 100, notRegularFile},
        {"/proc/self/environ", 100, notRegularFile},
        {"/sys/kernel/mm/transparent_hugepage/enabled", 100, notRegularFile},
        {path("none"), 100, errorText(ENOENT)},
        {path("text") / "below", 100, errorText(ENOTDIR)},
        {{}, 100, errorText(ENOENT)},
    };
    for (const auto &[path, largest, reason] : rows) {
        if (path.string().starts_with("/sys") && !fs::exists(path))
            continue;
        const WholeFile file = readWholeFile(path, largest);
        EXPECT_EQ(file.reason, reason) << path;
        EXPECT_EQ(file.bytes, reason.empty() ? "1234" : "") << path;
    }
}

TEST_F(RegularFileTest, WritingInPlaceTellsWhereTheDiskEnds)
{
    put("text", "1234");
    EXPECT_EQ(inChild([&] {
                  limitFiles(100);
                  WritableFile file(path("text"), WritableFile::Start::AtEnd);
                  const bool isTaken = file.write(std::string(200, 'x'));
                  return isTaken && !file.close() && file.reason() == errorText(EFBIG) ? 0 : 1;
              }),
              0)
        << "what is in the buffer is written when the file is closed";
    WritableFile again(path("text"), WritableFile::Start::Empty);
    EXPECT_TRUE(again.isEmpty() && again.write("new") && again.close());
    EXPECT_EQ(content("text"), "new");
}

} // namespace files::test
