#include "files/RegularFile.h"

#include "files/WritableFile.h"
#include "tests/files/Sandbox.h"

namespace files::test {

class RegularFileTest : public Sandbox
{
};

TEST_F(RegularFileTest, OnlyRegularFilesUpToTheLimitAreRead)
{
    put("text", "1234");
    mkfifo(path("pipe").c_str(), 0666);
    fs::create_symlink("/dev/zero", path("zero"));
    const struct
    {
        fs::path path;
        std::uintmax_t largest;
        std::string reason;
    } rows[] = {
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
    for (const auto &row : rows) {
        if (row.path.string().starts_with("/sys") && !fs::exists(row.path))
            continue;
        const WholeFile file = readWholeFile(row.path, row.largest);
        EXPECT_EQ(file.reason, row.reason) << row.path;
        EXPECT_EQ(file.bytes, row.reason.empty() ? "1234" : "") << row.path;
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
