// Bytes of files, which the cases' own text cannot say.

#include "files/TemporaryFolder.h"
#include "tests/lisp/LispBench.h"

#include <filesystem>
#include <fstream>
#include <sys/wait.h>
#include <unistd.h>

using namespace host::lisp;
using namespace host::lisp::test;

namespace fs = std::filesystem;

namespace {

/// A folder of its own for each test, whose path is in the Lisp variable `dir`.
class Files : public testing::Test
{
protected:
    void SetUp() override
    {
        m_folder = files::unusedPath(files::temporaryFolder(), "lisp-files-", {});
        fs::create_directories(m_folder);
        bench.interpreter.setVariable("dir", Value::string(m_folder.string() + "/"));
        bench("(defun at (name) (strcat dir name))");
    }
    void TearDown() override { fs::remove_all(m_folder); }

    void put(const std::string &name, const std::string &bytes)
    {
        std::ofstream(m_folder / name, std::ios::binary) << bytes;
    }
    std::string get(const std::string &name)
    {
        std::ifstream stream(m_folder / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    Bench bench;
    fs::path m_folder;
};

} // namespace

TEST_F(Files, EncodingsAndLineEnds)
{
    put("utf8.txt", "ä€\r\nzwei\n\ndrei");
    put("bom.txt", "\xEF\xBB\xBFä\n");
    put("ansi.txt", "\xE4\x80\n");
    put("empty.txt", "");
    put("ansi.lsp", "(setq word \"\xE4\")");
    put("wide.lsp", std::string("\xFF\xFE(\0+\0 \0"
                                "1\0 \0"
                                "2\0)\0",
                                16));
    bench("(defun lines (name / f l r) (setq f (open (at name) \"r\")) (while (setq l (read-line f)) "
          "(setq r (cons l r))) (close f) (reverse r))");
    bench.check({
        {"(lines \"utf8.txt\")", "(\"ä€\" \"zwei\" \"\" \"drei\")"},
        {"(mapcar 'lines '(\"bom.txt\" \"ansi.txt\" \"empty.txt\"))", "((\"ä\") (\"ä€\") nil)"},
        {"(setq f (open (at \"new.txt\") \"w\" \"utf8-bom\")) (write-line \"ö\" f) (close f)", "nil"},
        {"(load (at \"ansi.lsp\"))", "\"ä\""},
        {"(load (at \"wide.lsp\"))", "3"},
    });
    EXPECT_EQ(get("new.txt"), "\xEF\xBB\xBFö\n");
}

// Text of any encoding, with any mixture of line ends, comes out of a program as it went in.
TEST_F(Files, BytesAreReadAndWrittenBackAsTheyAre)
{
    const std::string mixed("\xEF\xBB\xBF"
                            "a\r\n\xE4\x80\xFF\n\nä\0\r\r\nend\r\n",
                            22);
    put("mixed.txt", mixed);
    bench("(setq from (open (at \"mixed.txt\") \"r\" \"bytes\") to (open (at \"copy.txt\") \"w\"))"
          "(while (setq line (read-line from)) (write-line (strcat (substr line 1 1) (substr line 2)) to))"
          "(close from) (close to)");
    EXPECT_EQ(get("copy.txt"), mixed);
    bench.check(
        {{"(setq f (open (at \"mixed.txt\") \"r\" \"Bytes\")) (read-char f) (read-char f) (read-char f)", "13"}});
}

TEST_F(Files, LoadingCountsLines)
{
    put("bad.lsp", "\xEF\xBB\xBF(setq part 1)\r\n\r\n(car 5)\r\n");
    put("good.lsp", "1");
    put("outer.lsp", "(load (strcat dir \"good\"))\n\n(car 7)\n");
    for (const char *name : {"bad.lsp", "outer.lsp"}) {
        const Outcome outcome = bench.interpreter.loadFile((m_folder / name).string());
        EXPECT_EQ(outcome.error->line, 3);
        EXPECT_EQ(fs::path(outcome.error->file).filename(), name) << "right after it has loaded another one, too";
    }
    EXPECT_EQ(bench.interpreter.loadFile(m_folder.string()).error->message().substr(0, 11), "LOAD failed");
}

TEST_F(Files, TheTemporaryFolderIsItsMakers)
{
    bench("(setq own (vl-filename-directory (vl-filename-mktemp)) f (open (strcat own \"/a\") \"w\")) (close f)");
    const fs::path own = files::temporaryFolder();
    EXPECT_EQ(bench("own"), '"' + own.string() + '"');
    EXPECT_EQ(fs::status(own).permissions(), fs::perms::owner_all);
    if (const pid_t child = fork(); child == 0)
        std::exit(0);
    else
        waitpid(child, nullptr, 0);
    EXPECT_TRUE(fs::exists(own / "a")) << "it outlasts a child that ends";
}
