#include "files/TemporaryFolder.h"
#include "tests/lisp/LispBench.h"

#include <filesystem>
#include <fstream>
#include <sys/stat.h>
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
    void check(const std::vector<Row> &rows)
    {
        for (const Row &row : rows)
            EXPECT_EQ(bench(row.source), row.expected) << row.source;
    }

    Bench bench;
    fs::path m_folder;
};

} // namespace

TEST_F(Files, WriteThenRead)
{
    check({
        {"(setq f (open (at \"a.txt\") \"w\")) (write-line \"Zeile ä\" f) (princ \"x\" f) (prin1 \"y\" f) "
         "(write-char 10 f) (print 5 f) (close f)",
         "nil"},
        {"(setq f (open (at \"a.txt\") \"a\")) (write-line \"end\" f) (close f)", "nil"},
        {"(setq f (open (at \"a.txt\") \"r\")) (list (read-line f) (read-char f) (read-line f) (read-line f))",
         "(\"Zeile ä\" 120 \"\\\"y\\\"\" \"\")"},
        {"(list (read-line f) (read-line f) (read-char f))", "(\"5 end\" nil nil)"},
        {"(vl-catch-all-error-p (vl-catch-all-apply 'write-line (list \"no\" f)))", "T"},
        {"(close f)", "nil"},
    });
    EXPECT_EQ(get("a.txt"), "Zeile ä\nx\"y\"\n\n5 end\n");
}

TEST_F(Files, WrongUseOfFiles)
{
    ASSERT_EQ(::mkfifo((m_folder / "pipe").c_str(), 0600), 0);
    check({
        {R"((list (open (at "none.txt") "r") (open (at "no/such/folder.txt") "w") (open dir "r")))", "(nil nil nil)"},
        {R"((list (open (at "pipe") "w") (open (at "pipe") "a") (open (at "pipe") "r") (open dir "w")))",
         "(nil nil nil nil)"},
        {R"((list (vl-file-copy (at "a.txt") (at "pipe") T) (vl-file-copy (at "pipe") (at "c.txt"))))", "(nil nil)"},
        {"(open (at \"a\") \"x\")", "! bad argument value: \"x\" in (OPEN), argument 2"},
        {"(read-line 5)", "! bad argument type: streamp 5 in (READ-LINE), argument 1"},
        {"(princ 1 \"a\")", "! bad argument type: streamp \"a\" in (PRINC), argument 2"},
        {"(vl-string-search \"streamp\" (vl-catch-all-error-message (vl-catch-all-apply '(lambda ( / f) "
         "(setq f (open (at \"b\") \"w\")) (close f) (close f)) nil)))",
         "19"},
        {"(type (open (at \"b\") \"w\"))", "FILE"},
    });
}

TEST_F(Files, EncodingsAndLineEnds)
{
    put("utf8.txt", "ä€\r\nzwei\n\ndrei");
    put("bom.txt", "\xEF\xBB\xBFä\n");
    put("ansi.txt", "\xE4\x80\n");
    put("empty.txt", "");
    bench("(defun lines (name / f l r) (setq f (open (at name) \"r\")) (while (setq l (read-line f)) "
          "(setq r (cons l r))) (close f) (reverse r))");
    check({
        {"(lines \"utf8.txt\")", "(\"ä€\" \"zwei\" \"\" \"drei\")"},
        {"(lines \"bom.txt\")", "(\"ä\")"},
        {"(lines \"ansi.txt\")", "(\"ä€\")"},
        {"(lines \"empty.txt\")", "nil"},
        {"(setq f (open (at \"new.txt\") \"w\" \"utf8-bom\")) (write-line \"ö\" f) (close f)", "nil"},
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
    check({{"(setq f (open (at \"mixed.txt\") \"r\" \"Bytes\")) (read-char f) (read-char f) (read-char f)", "13"}});
}

TEST_F(Files, ForgottenFilesAreClosed)
{
    bench("(write-line \"kept\" (open (at \"a.txt\") \"w\"))");
    EXPECT_EQ(get("a.txt"), "kept\n");
}

TEST_F(Files, Loading)
{
    put("good.lsp", "\xEF\xBB\xBF(setq loaded \"ä\")\r\n(defun twice (x)\r\n  (* 2 x))\r\n'done\r\n");
    put("ansi.lsp", "(setq word \"\xE4\")");
    put("bad.lsp", "(setq part 1)\n\n(car 5)\n");
    put("open.lsp", "(setq x\n");
    put("outer.lsp", "(load (strcat dir \"good\"))\n\n(car 7)\n");
    check({
        {"(load (at \"good\"))", "DONE"},
        {"(list loaded (twice 4))", "(\"ä\" 8)"},
        {"(load (at \"ansi.lsp\"))", "\"ä\""},
        {"(load (at \"none\") 'missing)", "MISSING"},
        {"(load (at \"none\") '(lambda () 5))", "(LAMBDA nil 5)"},
        {"(load (at \"none\") (function (lambda () 5)))", "5"},
        {"(load \"none\")", "! LOAD failed: \"none\" in (LOAD)"},
        {"(load (at \"open.lsp\"))", "! malformed list on input in (LOAD)"},
        {"(autoload (at \"good\") '(\"GATE\")) (vl-catch-all-error-message (vl-catch-all-apply 'c:gate nil))",
         "\"no function definition: C:GATE\""},
    });
    Outcome outcome = bench.interpreter.loadFile((m_folder / "bad.lsp").string());
    EXPECT_EQ(outcome.error->line, 3);
    EXPECT_EQ(fs::path(outcome.error->file).filename(), "bad.lsp");
    // Lines of a file still count right after it has loaded another one.
    outcome = bench.interpreter.loadFile((m_folder / "outer.lsp").string());
    EXPECT_EQ(fs::path(outcome.error->file).filename(), "outer.lsp");
    EXPECT_EQ(outcome.error->line, 3);
    EXPECT_EQ(bench.interpreter.loadFile(m_folder.string()).error->message().substr(0, 11), "LOAD failed");
}

TEST_F(Files, AutoloadRunsTheCommand)
{
    put("gate.lsp", "(defun c:gate () 'opened)");
    check({{"(autoload (at \"gate\") '(\"GATE\")) (list (c:gate) (c:gate))", "(OPENED OPENED)"}});
}

TEST_F(Files, FilesOnDisk)
{
    put("a.txt", "12345");
    put("B.TXT", "");
    put("c.lsp", "");
    fs::create_directory(m_folder / "sub");
    check({
        {"(list (vl-file-size (at \"a.txt\")) (vl-file-size (at \"sub\")) (vl-file-size (at \"none\")))", "(5 0 nil)"},
        {"(list (vl-file-directory-p dir) (vl-file-directory-p (at \"a.txt\")))", "(T nil)"},
        {"(vl-directory-files dir \"*.txt\" 1)", "(\"B.TXT\" \"a.txt\")"},
        {"(vl-directory-files dir nil -1)", "(\".\" \"..\" \"sub\")"},
        {"(vl-directory-files dir \"?.*\" 1)", "(\"B.TXT\" \"a.txt\" \"c.lsp\")"},
        {"(vl-directory-files (at \"none\"))", "nil"},
        {"(defun copy (from to append) (vl-file-copy (at from) (at to) append))", "COPY"},
        {R"((list (copy "a.txt" "d.txt" nil) (copy "a.txt" "d.txt" nil) (copy "a.txt" "d.txt" T)))", "(5 nil 5)"},
        {R"((list (copy "a.txt" "a.txt" T) (vl-file-copy (at "none") (at "e.txt")) (vl-file-size (at "d.txt"))))",
         "(nil nil 10)"},
        {"(list (vl-file-rename (at \"d.txt\") (at \"e.txt\")) (vl-file-rename (at \"e.txt\") (at \"a.txt\")))",
         "(T nil)"},
        {"(list (vl-file-delete (at \"e.txt\")) (vl-file-delete (at \"e.txt\")) (vl-file-delete (at \"sub\")))",
         "(T nil nil)"},
        {"(list (vl-mkdir (at \"new\")) (vl-mkdir (at \"new\")))", "(T nil)"},
        {"(length (vl-file-systime (at \"a.txt\")))", "8"},
        {R"((list (vl-file-systime (at "none")) (= (findfile (at "a.txt")) (at "a.txt")) (findfile (at "none"))))",
         "(nil T nil)"},
        {"(list (findfile \"\") (open \"\" \"r\") (vl-file-size \"\"))", "(nil nil nil)"},
    });
}

TEST_F(Files, Names)
{
    check({
        {"(vl-filename-base \"c:\\\\tools\\\\plan.v2.lsp\")", "\"plan.v2\""},
        {R"((mapcar 'vl-filename-directory '("c:\\tools\\plan.lsp" "plan.lsp" "/plan.lsp")))",
         R"(("c:\\tools" "" "/"))"},
        {"(list (vl-filename-extension \"a/b.lsp\") (vl-filename-extension \"a.b/c\") (vl-filename-extension \".x\"))",
         "(\".lsp\" nil nil)"},
        {"(fnsplitl \"a/b.c\")", "(\"a/\" \"b\" \".c\")"},
    });
}

TEST_F(Files, TemporaryNames)
{
    check({
        {"(defun parts (path) (list (vl-filename-directory path) (substr (vl-filename-base path) 1 1)"
         " (vl-filename-extension path) (> (strlen (vl-filename-base path)) 10) (findfile path)))",
         "PARTS"},
        {"(equal (parts (vl-filename-mktemp \"t.tmp\" dir)) (list (vl-string-right-trim \"/\" dir) \"t\" \".tmp\" T "
         "nil))",
         "T"},
        {"(equal (parts (vl-filename-mktemp (at \"t.tmp\"))) (parts (vl-filename-mktemp (at \"t\") nil \".tmp\")))",
         "T"},
        {"(= (vl-filename-mktemp (at \"t.tmp\")) (vl-filename-mktemp (at \"t.tmp\")))", "nil"},
        {"(setq own (vl-filename-directory (vl-filename-mktemp)) f (open (strcat own \"/a\") \"w\")) (close f)", "nil"},
        {"(= own (vl-filename-directory (vl-filename-mktemp \"b.tmp\")) (vl-filename-directory (vl-filename-mktemp)))",
         "T"},
    });
    const fs::path own = files::temporaryFolder();
    EXPECT_EQ(bench("own"), '"' + own.string() + '"');
    EXPECT_EQ(fs::status(own).permissions(), fs::perms::owner_all);
    // The folder is its maker's: it outlasts a child that ends.
    if (const pid_t child = fork(); child == 0)
        std::exit(0);
    else
        waitpid(child, nullptr, 0);
    EXPECT_TRUE(fs::exists(own / "a"));
}

TEST_F(Files, EnvironmentStaysInTheEngine)
{
    check({
        {R"((list (getenv "LISP_TEST_UNSET") (setenv "LISP_TEST_UNSET" "x") (getenv "LISP_TEST_UNSET")))",
         R"((nil "x" "x"))"},
    });
    EXPECT_EQ(std::getenv("LISP_TEST_UNSET"), nullptr);
    Bench other;
    EXPECT_EQ(other("(getenv \"LISP_TEST_UNSET\")"), "nil");
}
