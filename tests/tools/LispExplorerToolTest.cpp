#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <QDir>
#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace tools_test;
using namespace Qt::StringLiterals;

namespace {

class LispExplorerTool : public ToolTest
{
protected:
    /// Opens the page of variables of what `program` leaves behind, writes the dump, then plays `rest`.
    RunOutcome dump(const QString &program, const QString &rest) const
    {
        return run.play(u"lisp (progn %1)\ncommand LISPDUMP\ndialog Dlg_QT_LispExplorer\nclick isVariables\n"
                        "click btnExport\nfile %2\nclick text:Close\n%3"_s.arg(program, dumpFile, rest),
                        plan);
    }
    /// The line of the dump that sets `name`; empty when there is none.
    QString assignment(const QString &name) const
    {
        for (const QByteArray &line : ToolRun::readFile(dumpFile).split('\n')) {
            if (line.startsWith(";(setq " + name.toUtf8() + ' '))
                return QString::fromUtf8(line);
        }
        return {};
    }

    QString dumpFile = run.path(u"all.dmp"_s);
};

// Taking the semicolon off gives back the value, whatever characters are in it.
TEST_F(LispExplorerTool, DumpedVariablesCanBeSetAgain)
{
    const struct
    {
        const char *name;
        QString value; ///< as Lisp
    } rows[] = {
        {"V:EMPTY", u"\"\""_s},
        {"V:MARKS", u"\"!a!!\""_s},
        {"V:QUOTES", u"\"a \\\"b\\\" \\\\c\""_s},
        {"V:BREAKS", u"\"a\\nb\\rc\\td\""_s},
        {"V:UMLAUT", u"\"Größe\""_s},
        {"V:THIRD", u"(/ 1.0 3)"_s},
        {"V:POINT", u"(list pi 1e10 (/ 2.0 3))"_s},
        {"V:PAIRS", u"'((1 . 2) (nil) ((3 4 . \"x\")) nil)"_s},
        {"V:LIST", u"'(1 (2.5 . \"x!\\n\") NAME)"_s},
    };
    QString program;
    for (const auto &row : rows)
        program += u"(setq %1 %2)"_s.arg(QString::fromLatin1(row.name), row.value);
    RunOutcome outcome = dump(program, {});
    ASSERT_EQ(outcome.status, 0);

    QString again;
    QString check = u"expect-lisp (and"_s;
    for (const auto &row : rows) {
        const QString line = assignment(QString::fromLatin1(row.name));
        EXPECT_FALSE(line.isEmpty()) << row.name;
        again += line.mid(1) + u'\n';
        check += u" (equal %1 %2)"_s.arg(QString::fromLatin1(row.name), row.value);
    }
    run.writeFile(u"again.lsp"_s, again.toUtf8());
    outcome = run.play(u"lisp (load \"%1\")\n%2)\n"_s.arg(run.path(u"again.lsp"_s), check), plan);
    EXPECT_EQ(outcome.status, 0);
}

TEST_F(LispExplorerTool, TheDumpLoadsAndDoesNothing)
{
    // A function, a file, a selection and an entity have no spelling in Lisp; the list holds all of them.
    const RunOutcome outcome = dump(u"(defun v:own (a) a) (setq v:file (open \"%1\" \"w\") v:entity (entnext) "
                                    "v:selection (ssget \"_X\") v:all (list v:file v:entity v:selection v:own car) "
                                    "v:hostile \"\\\") (setq v:hit 1) ;|\")"_s.arg(run.path(u"x"_s)),
                                    u"lisp (setq v:own nil)\n"
                                    "lisp (setq v:result (vl-catch-all-apply 'load (list \"%1\")))\n"
                                    "expect-lisp (not (vl-catch-all-error-p v:result))\n"
                                    "expect-lisp (null v:own)\nexpect-lisp (null v:hit)\n"_s.arg(dumpFile));
    EXPECT_EQ(outcome.status, 0);
    EXPECT_FALSE(assignment(u"V:OWN"_s).isEmpty());
    EXPECT_FALSE(assignment(u"C:BREAKLINE"_s).isEmpty());
    EXPECT_FALSE(assignment(u"CAR"_s).isEmpty());
}

// What runs while the catalogue is written hides nothing that the user has, and shows nothing of its own.
TEST_F(LispExplorerTool, VariablesAreTheUsersOwn)
{
    const RunOutcome outcome = dump(u"(setq name 1 value 2 text 3 line 4 handle 5 kind 6 fields 7 first 8 second 9 "
                                    "code 10 codes 11 field 12 symbol 13 path 14)"_s,
                                    {});
    ASSERT_EQ(outcome.status, 0);
    QStringList shown;
    for (const QByteArray &line : ToolRun::readFile(dumpFile).split('\n')) {
        static const QRegularExpression number(u"^;\\(setq (\\S+) (\\d+)\\)$"_s);
        if (const auto match = number.match(QString::fromUtf8(line)); match.hasMatch())
            shown.append(match.captured(1) + match.captured(2));
    }
    EXPECT_EQ(shown,
              (QStringList{u"CODE10"_s, u"CODES11"_s, u"FIELD12"_s, u"FIELDS7"_s, u"FIRST8"_s, u"HANDLE5"_s, u"KIND6"_s,
                           u"LINE4"_s, u"NAME1"_s, u"PATH14"_s, u"SECOND9"_s, u"SYMBOL13"_s, u"TEXT3"_s, u"VALUE2"_s}));
}

TEST_F(LispExplorerTool, LoadsAFileIntoTheDrawingsEngine)
{
    QDir().mkpath(run.path(u"my lisp"_s));
    run.writeFile(u"my lisp/good.LSP"_s, "(defun c:mine () (princ \"mine runs\")) (setq v:loaded 1)");
    run.writeFile(u"my lisp/bad.lsp"_s, "(setq v:loaded 2) (car 5)");
    const QString open = u"command LISPEXPLORER\ndialog Dlg_QT_LispExplorer\nset TxDirectory \"%1\"\n"
                         "key TxDirectory Return\nrow List_files %2\nclick Bt_Load\n"
                         "message \"The file has been loaded.\" Ok\n%3click text:Close\n"_s;
    const QString folder = run.path(u"my lisp"_s);
    plays(open.arg(folder, u"good.LSP"_s, QString()) +
          u"expect-lisp (= v:loaded 1)\ncommand MINE\nexpect-printed mine runs\n"_s +
          // The page that was shown last comes back, with the folder and what is loaded by now.
          open.arg(folder, u"bad.lsp"_s, u"click isKora\n"_s) +
          u"expect-printed bad argument type\nexpect-lisp (= v:loaded 2)\n"
          "command LISPEXPLORER\ndialog Dlg_QT_LispExplorer\nexpect-visible tableFunctions yes\n"
          "row tableFunctions C:MINE\nclick isUser\nexpect TxDirectory \"%1\"\nclick text:Close\n"
          "expect-modified no\n"_s.arg(folder));
}

TEST_F(LispExplorerTool, ArgumentsThatAreNoCatalogueAreNoError)
{
    const QString close = u"dialog Dlg_QT_LispExplorer\nexpect-visible tableFunctions %1\nclick text:Close\n"
                          "expect-lisp (null v:result)\n"_s;
    plays(u"lisp (setq v:result (Dlg_LispExplorer))\n"_s + close.arg(u"no"_s) +
          u"lisp (setq v:result (Dlg_LispExplorer nil \"DUMP\"))\n"_s + close.arg(u"no"_s) +
          u"lisp (setq v:result (Dlg_LispExplorer 7 8))\n"_s + close.arg(u"no"_s) +
          u"lisp (setq v:result (Dlg_LispExplorer \"/missing\" \"DUMP\"))\n"
          "message \"No such file\" Ok\n"_s +
          close.arg(u"yes"_s));
}

} // namespace
