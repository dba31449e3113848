#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <QDir>

using namespace tools_test;
using namespace Qt::StringLiterals;

namespace {

class SelectBlockTool : public ToolTest
{
protected:
    /// The command with this block confirmed, then its answers.
    static QString chosen(const QString &name, const QString &source, const QString &answers)
    {
        return u"lisp (kora_writestate (kora_statefile \"selectblock\") '((\"name\" . \"%1\") (\"source\" . \"%2\")"
               " (\"showanonymous\" . \"TRUE\")))\n"
               "command SELECTBLOCK\ndialog DLG_QT_SelectBlock\nclick acceptButton\n%3"_s.arg(name, source, answers);
    }

    const QString library = ToolRun::sample(u"library.dxf"_s);
    const QString once = u"point 7,7\nenter\nenter\nenter\nenter\n"_s;
};

TEST_F(SelectBlockTool, WhatTheDrawingHasStaysAndIsNamed)
{
    const struct
    {
        const char *what;
        const char *before; ///< in the drawing
        const char *printed;
        const char *after;
    } rows[] = {
        {"nothing of it", "nil", "", "(= 4 (length (kora_block_entities \"WORKPLACE\")))"},
        {"a nested block",
         "(progn (entmake '((0 . \"BLOCK\") (2 . \"lamp\") (70 . 0) (10 0.0 0.0 0.0)))"
         " (entmake '((0 . \"POINT\") (8 . \"0\") (10 1.0 1.0 0.0))) (entmake '((0 . \"ENDBLK\"))))",
         "The drawing has its own, which stays as it is: block lamp.", "(= 1 (length (kora_block_entities \"LAMP\")))"},
        {"another look of layer, linetype and style",
         "(and (entmake '((0 . \"LTYPE\") (2 . \"LampLine\") (70 . 0) (3 . \"x\") (72 . 65) (73 . 2) (40 . 3.0)"
         " (49 . 2.0) (74 . 0) (49 . -1.0) (74 . 0)))"
         " (entmake '((0 . \"LAYER\") (2 . \"LAMPS\") (70 . 0) (62 . 6) (6 . \"Continuous\")))"
         " (entmake '((0 . \"STYLE\") (2 . \"LABELS\") (70 . 0) (40 . 0.0) (41 . 1.0) (50 . 0.0) (71 . 0) (42 . 0.2)"
         " (3 . \"txt\") (4 . \"\"))))",
         "stays as it is: text style LABELS, layer LAMPS.", "(= 6 (kora_field (tblsearch \"LAYER\" \"LAMPS\") 62))"},
        {"the same look", "(entmake '((0 . \"LAYER\") (2 . \"LABELS\") (70 . 4) (62 . 5) (6 . \"CONTINUOUS\")))", "",
         "(= 4 (logand 4 (kora_field (tblsearch \"LAYER\" \"LABELS\") 70)))"},
        {"the block itself",
         "(progn (entmake '((0 . \"BLOCK\") (2 . \"Workplace\") (70 . 2) (10 0.0 0.0 0.0)))"
         " (entmake '((0 . \"ATTDEF\") (8 . \"0\") (10 0.0 0.0 0.0) (40 . 0.2) (1 . \"own\") (2 . \"N\") (3 . \"My\")"
         " (70 . 0))) (entmake '((0 . \"ENDBLK\"))))",
         "stays as it is: block Workplace.", "(not (tblsearch \"BLOCK\" \"DESK\"))"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        QDir(run.path(u"out"_s)).removeRecursively();
        plays(u"lisp %1\n"_s.arg(QLatin1StringView(row.before)) + chosen(u"WORKPLACE"_s, library, once) +
              (*row.printed ? u"expect-printed %1\n"_s.arg(QLatin1StringView(row.printed)) : QString()) +
              u"expect-count INSERT 1\nexpect-lisp %1\nundo\nexpect-count INSERT 0\n"
              "expect-lisp (not (tblsearch \"BLOCK\" \"SOFA2\"))\nredo\n"_s.arg(QLatin1StringView(row.after)));
        EXPECT_TRUE(isSound(run.result(plan)));
    }
}

TEST_F(SelectBlockTool, InsertsAsOftenAsItIsAskedTo)
{
    const QString last =
        u"expect-lisp (equal (mapcar '(lambda (code) (kora_field (entget (entlast)) code)) '(10 41 50)) "
        "'(%1) 1e-9)\n"_s;
    const struct
    {
        const char *what;
        const char *before;
        QString answers;
        int inserted;
        QString placed; ///< point, scale and angle of the last one
        bool isModified = true;
    } rows[] = {
        {"no point at all", "nil", u"enter\n"_s, 0, {}, false},
        {"Esc in place of a point", "nil", u"cancel\n"_s, 0, {}, false},
        {"scale and angle stay", "nil",
         u"point 1,2\nanswer 2.5\nanswer 30\npoint 3,4\nanswer 0\nenter\nenter\nenter\n"_s, 2,
         u"(3.0 4.0 0.0) 2.5 %1"_s.arg(M_PI / 6, 0, 'g', 17)},
        {"Esc later keeps what is there", "nil", u"point 1,2\nenter\nenter\npoint 3,4\ncancel\n"_s, 1,
         u"(1.0 2.0 0.0) 1.0 0.0"_s},
        {"angles in other units", "(progn (setvar \"AUNITS\" 2) (setvar \"AUPREC\" 0))",
         u"point 1,2\nenter\nanswer 100\nenter\n"_s, 1, u"(1.0 2.0 0.0) 1.0 %1"_s.arg(M_PI / 2, 0, 'g', 17)},
        {"a mirrored one", "nil", u"point 1,2\nanswer -1\nenter\nenter\n"_s, 1, u"(1.0 2.0 0.0) -1.0 0.0"_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        QDir(run.path(u"out"_s)).removeRecursively();
        plays(u"lisp %1\n"_s.arg(QLatin1StringView(row.before)) + chosen(u"DESK"_s, library, row.answers) +
              u"expect-count INSERT %1\n"_s.arg(row.inserted) +
              (row.placed.isEmpty() ? QString() : last.arg(row.placed)) +
              (row.isModified ? QString() : u"expect-modified no\n"_s));
        EXPECT_TRUE(!row.isModified || isSound(run.result(plan)));
    }
}

TEST_F(SelectBlockTool, AttributesAreAskedForOrHaveTheirDefaults)
{
    const QString value = u"expect-lisp (= (kora_field (entget (entnext (entlast))) 1) \"%1\")\n"_s;
    plays(chosen(u"WORKPLACE"_s, library, u"point 7,7\nenter\nenter\nanswer 12 b\nenter\n"_s) + value.arg(u"12 b"_s) +
          u"lisp (setvar \"ATTREQ\" 0)\n"_s +
          chosen(u"WORKPLACE"_s, u"active"_s, u"point 9,7\nenter\nenter\nenter\n"_s) + value.arg(u"1"_s));
    EXPECT_TRUE(isSound(run.result(plan)));
}

// A name that INSERT would take for something else.
TEST_F(SelectBlockTool, AnonymousBlocksOfTheDrawingAreInsertedAsTheyAre)
{
    plays(u"lisp (entmake '((0 . \"BLOCK\") (2 . \"*U\") (70 . 1) (10 0.0 0.0 0.0)))\n"
          "lisp (entmake '((0 . \"LINE\") (8 . \"0\") (10 0.0 0.0 0.0) (11 1.0 0.0 0.0)))\n"
          "lisp (setq name (entmake '((0 . \"ENDBLK\"))))\n"_s +
          chosen(u"*U0"_s, u"active"_s, u"point 1,2\nanswer 3\nanswer 90\nenter\n"_s) +
          u"expect-count INSERT 1\nexpect-lisp (= (kora_field (entget (entlast)) 2) \"*U0\")\n"
          "expect-lisp (equal (kora_field (entget (entlast)) 50) (/ pi 2) 1e-9)\n"_s);
    EXPECT_TRUE(isSound(run.result(plan)));
}

TEST_F(SelectBlockTool, ImportsSayWhatIsMissing)
{
    const QString text = run.writeFile(u"text.dxf"_s, "Dear reader,\n");
    const struct
    {
        QString file;
        const char *block;
        QString printed;
    } rows[] = {
        {library, "GATE", u"There is no block \"GATE\" in %1."_s.arg(library)},
        {library, "*Model_Space", u"There is no block"_s},
        {run.path(u"none.dxf"_s), "DESK", u"none.dxf"_s},
        {text, "DESK", u"text.dxf"_s},
        {plan, "DESK", u"There is no block"_s},
    };
    QString session;
    for (const auto &row : rows)
        session +=
            u"lisp (command \"ORTAKIT_IMPORTBLOCK\" \"%1\" \"%2\")\nexpect-printed %3\nexpect-modified no\n"_s.arg(
                row.file, QLatin1StringView(row.block), row.printed);
    plays(session);
}

// Blocks that other programs have made, all of a drawing one after the other.
TEST_F(SelectBlockTool, BlocksOfOtherProgramsAreSoundAfterwards)
{
    const QString corpus = qEnvironmentVariable("ORTAKIT_CORPUS");
    if (corpus.isEmpty())
        GTEST_SKIP() << "ORTAKIT_CORPUS names no folder of drawings";
    for (const QFileInfo &file : QDir(corpus).entryInfoList({u"*.dxf"_s}, QDir::Files, QDir::Size | QDir::Reversed)) {
        if (file.size() > 3'000'000)
            continue;
        SCOPED_TRACE(file.fileName().toStdString());
        QDir(run.path(u"out"_s)).removeRecursively();
        const RunOutcome outcome = run.play(
            u"lisp (setq names nil)\n"
            "lisp (while (setq block (tblnext \"BLOCK\" (null names))) (setq names (cons (cdr (assoc 2 block)) "
            "names)))\nlisp (setq h (open \"%1\" \"w\"))\n"
            "lisp (foreach name names (write-line name h))\nlisp (close h)\n"_s.arg(run.path(u"names"_s)),
            file.filePath());
        if (outcome.status != 0)
            continue; // no drawing
        plays(u"lisp (setq h (open \"%1\" \"r\"))\n"
              "lisp (while (setq name (read-line h)) (command \"ORTAKIT_IMPORTBLOCK\" \"%2\" name))\n"
              "lisp (close h)\nlisp (entmake '((0 . \"POINT\") (10 0.0 0.0 0.0)))\n"_s.arg(run.path(u"names"_s),
                                                                                           file.filePath()));
        EXPECT_TRUE(isSound(run.result(plan)));
    }
}

} // namespace
