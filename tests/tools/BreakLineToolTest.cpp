#include "host/drawing/records/Entities.h"
#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace tools_test;
using namespace host::drawing;
using namespace Qt::StringLiterals;

namespace {

class BreakLineTool : public ToolTest
{
protected:
    /// The dialog confirmed with the zigzag symbol, then what the drawing is asked.
    static QString confirmed(const QString &size, const QString &offset, const QString &answers,
                             const QString &symbol = ToolRun::sample(u"zigzag.dxf"_s))
    {
        return u"command BREAKLINE\n"
               "dialog Dlg_QT_Breakline\n"
               "set LbTitleblock %1\nkey LbTitleblock Return\n"
               "set _dist_size %2\nset _dist_offset %3\nfocus acceptButton\nclick acceptButton\n%4"_s.arg(
                   symbol, size, offset, answers);
    }
};

const QStringList brokenWithNewSymbol = {u"+APPID"_s, u"+BLOCK"_s, u"+BLOCK_RECORD"_s, u"+ENDBLK"_s, u"+INSERT"_s};

TEST_F(BreakLineTool, GapIsTheSymbolAndItsOffsetsOrTheDistanceOfThePoints)
{
    const struct
    {
        const char *what;
        QString size;
        QString offset;
        QString answers;
        QString check; ///< true of the list of (from to) along the pipe
    } rows[] = {
        {"same point", u"2"_s, u"0.25"_s, u"point 8,1.5\nanswer Same\n"_s, u"((0.0 6.75) (9.25 24.0))"_s},
        {"points farther apart", u"2"_s, u"0.25"_s, u"point 6,1.5\npoint 10,1.5\n"_s, u"((0.0 6.0) (10.0 24.0))"_s},
        {"points nearer together", u"2"_s, u"0.5"_s, u"point 7.9,1.5\npoint 8.1,1.5\n"_s, u"((0.0 6.5) (9.5 24.0))"_s},
        {"points beside the line", u"2"_s, u"0"_s, u"point 8,2.5\npoint 8,0\n"_s, u"((0.0 7.0) (9.0 24.0))"_s},
        {"at the start", u"2"_s, u"0"_s, u"point 0.5,1.5\nanswer S\n"_s, u"((1.5 24.0))"_s},
        {"at the end", u"2"_s, u"0"_s, u"point 23.5,1.5\nanswer Same\n"_s, u"((0.0 22.5))"_s},
    };
    // The pieces of the pipe that runs along the bottom, in order.
    const QString pieces = u"lisp (setq pieces (mapcar 'entget (kora_selection_to_list (ssget \"_X\" '((0 . \"LINE\") "
                           "(-4 . \"*,=,*\") (10 0.0 1.5 0.0) (-4 . \"*,=,*\") (11 0.0 1.5 0.0))))))\n"
                           "expect-lisp (equal '%1 (vl-sort (mapcar '(lambda (data) "
                           "(list (cadr (assoc 10 data)) (cadr (assoc 11 data)))) pieces) "
                           "'(lambda (a b) (< (car a) (car b)))) 1e-9)\n"_s;
    for (const auto &row : rows) {
        plays(confirmed(row.size, row.offset, u"pick 12,1.5\n"_s + row.answers) + pieces.arg(row.check));
    }
}

TEST_F(BreakLineTool, WhatCannotBeBrokenIsSaidAndNothingChanges)
{
    const struct
    {
        const char *what;
        QString size;
        QString answers;
        QString message;
    } rows[] = {
        {"beside the end", u"2"_s, u"pick 8,1.5\npoint 30,1.5\nanswer Same\n"_s, u"The break lies outside the line."_s},
        {"too short", u"60"_s, u"pick 8,1.5\npoint 12,1.5\nanswer Same\n"_s,
         u"The line is too short for this break."_s},
        {"no size", u"0"_s, u"pick 8,1.5\npoint 12,1.5\nanswer Same\n"_s, u"The size must be greater than zero."_s},
        {"no line", u"2"_s, u"pick 4,6\nenter\n"_s, u"That is not a line."_s},
        {"cancelled at the line", u"2"_s, u"cancel\n"_s, u"Select line to break"_s},
        {"cancelled at a point", u"2"_s, u"pick 8,1.5\npoint 8,1.5\ncancel\n"_s, u"Specify second break point"_s},
    };
    for (const auto &row : rows) {
        plays(confirmed(row.size, u"0"_s, row.answers) + u"expect-printed %1\nexpect-modified no\n"_s.arg(row.message));
    }
}

TEST_F(BreakLineTool, NothingStaysOfWhatWasNotDrawnAndEachSymbolHasABlock)
{
    QDir(run.path({})).mkpath(u"other"_s);
    const QString other = run.path(u"other/zigzag.dxf"_s);
    const QString empty = run.writeFile(u"empty.dxf"_s, "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n");
    ASSERT_TRUE(QFile::copy(ToolRun::sample(u"sheets/a3.dxf"_s), other));
    const QString oddName = run.path(u"a=b,c.dxf"_s);
    ASSERT_TRUE(QFile::copy(other, oddName));
    const QString blocks = u"lisp (setq blocks (vl-remove-if-not '(lambda (n) (wcmatch n \"BREAKLINE_*\")) "
                           "(kora_table_names \"BLOCK\")))\n"_s;
    const QString at = u"pick 8,1.5\npoint 8,1.5\nanswer Same\n"_s;
    const struct
    {
        const char *what;
        QString session;
        const char *check;
    } rows[] = {
        {"a locked layer",
         u"lisp (entmod (kora_with_field (entget (tblobjname \"LAYER\" \"PIPES\")) 70 4))\n"_s +
             confirmed(u"2"_s, u"0"_s, u"pick 8,1.5\nenter\nexpect-printed \"That line is on a locked layer.\"\n"_s),
         "(null blocks)"},
        {"no length",
         u"lisp (entmake '((0 . \"LINE\") (8 . \"0\") (10 30.0 30.0 0.0) (11 30.0 30.0 0.0)))\n"_s +
             confirmed(u"2"_s, u"0"_s, u"pick 30,30\nenter\nexpect-printed \"That line has no length.\"\n"_s),
         "(null blocks)"},
        {"an empty symbol",
         confirmed(u"2"_s, u"0"_s, at + u"expect-printed \"The symbol drawing is empty.\"\nexpect-modified no\n"_s,
                   empty),
         "(null blocks)"},
        {"another symbol of the same file name, and the first again",
         confirmed(u"2"_s, u"0"_s, at) +
             confirmed(u"2"_s, u"0"_s, u"pick 16,1.5\npoint 16,1.5\nanswer Same\n"_s, other) +
             confirmed(u"2"_s, u"0"_s, u"pick 4,1.5\npoint 4,1.5\nanswer Same\n"_s),
         "(and (= 2 (length blocks)) (equal '(\"BREAKLINE_zigzag\" \"BREAKLINE_zigzag_2\" \"BREAKLINE_zigzag\") "
         "(mapcar "
         "'(lambda (i) (kora_field (entget i) 2)) (kora_space_inserts))))"},
        {"attributes, which are not asked for, in a file of a name that no block can have",
         confirmed(u"2"_s, u"0"_s, at, oddName),
         "(and (equal blocks '(\"BREAKLINE_a_b_c\")) (= 2 (length (kora_attributes (car (kora_space_inserts))))))"},
        {"in a tilted coordinate system",
         u"lisp (command \"_.UCS\" \"_X\" 90.0)\n"_s +
             confirmed(u"2"_s, u"0"_s, u"pickhandle 32\npoint 8,0,-1.5\nanswer Same\n"_s),
         "(equal '((8.0 1.5 0.0) (0.0 0.0 1.0)) (mapcar '(lambda (c) (kora_field (entget (car (kora_space_inserts))) "
         "c)) '(10 210)) "
         "1e-9)"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        plays(row.session + blocks + u"expect-lisp %1\n"_s.arg(QLatin1StringView(row.check)));
        EXPECT_TRUE(isSound(run.result(plan)));
    }
}

TEST_F(BreakLineTool, SelectingNothingForANewSymbolComesBackToTheDialog)
{
    plays(u"command BREAKLINE\ndialog Dlg_QT_Breakline\ntype name empty\n"
          "click SelectEntities\nenter\ndialog Dlg_QT_Breakline\nclick ButtonCancel\n"
          "expect-printed No symbol was made\nexpect-modified no\n"_s);
    EXPECT_FALSE(QFile::exists(run.path(u"home/Ortakit/BreakLine/empty.dwg"_s)));
}

TEST_F(BreakLineTool, ANewUserFindsSymbolsAndTitleBlocks)
{
    plays(u"command BREAKLINE\ndialog Dlg_QT_Breakline\nclick acceptButton\npick 8,1.5\npoint 8,1.5\nanswer Same\n"
          "expect-lisp (equal '(8.0 1.5 0.0) (kora_field (entget (car (kora_space_inserts))) 10) 1e-9)\n"
          "command MULTIVIEWSETUP\ndialog Dlg_QT_MultiViewSetup\nrow lstBlocks metric-a3.dxf\nclick InsertTitle\n"
          "enter\nenter\nenter\nenter\nenter\ndialog Dlg_QT_MultiViewSetup\nclick ButtonCancel\n"
          "expect-lisp (equal '((0.0 0.0 0.0) (420.0 297.0 0.0)) (kora_block_box \"metric-a3\") 1e-9)\n"_s);
    int count = 0;
    for (const QString &folder : {u"home/Ortakit/BreakLine"_s, u"home/Template"_s}) {
        for (const QFileInfo &starter : QDir(run.path(folder)).entryInfoList(QDir::Files)) {
            EXPECT_TRUE(isSound(starter.filePath())) << starter.fileName().toStdString();
            ++count;
        }
    }
    EXPECT_EQ(count, 13);
}

TEST_F(BreakLineTool, IsOneUndoStep)
{
    plays(confirmed(u"2"_s, u"0"_s, u"pick 8,1.5\npoint 8,1.5\nanswer Same\n"_s) +
          u"expect-modified yes\nundo\nexpect-modified no\nexpect-count INSERT 0\n"
          "redo\nexpect-count INSERT 1\n"_s);
    EXPECT_EQ(differences(plan, run.result(plan)).filter(u"INSERT"_s), QStringList{u"+INSERT"_s});
}

/// The longest line of a drawing's model space among those with a handle; without a length when there is none.
struct LongestLine
{
    QString handle;
    Vec3 middle;
    double length = 0;
};

LongestLine longestLine(const QString &path)
{
    LongestLine longest;
    const ReadResult file = Drawing::open(path);
    if (!file)
        return longest;
    for (const RecordId id : file.drawing->entities().inSpace(Space::Model)) {
        if (!file.drawing->isType(id, "LINE"))
            continue;
        if (file.drawing->handle(id).isNull())
            continue;
        const TagList tags = file.drawing->tags(id);
        const Vec3 from = tags.point(10);
        const Vec3 to = tags.point(11);
        const double length = std::hypot(to.x - from.x, to.y - from.y, to.z - from.z);
        if (length > longest.length)
            longest = {file.drawing->handle(id).toString(), (from + to) * 0.5, length};
    }
    return longest;
}

// Drawings of other programs: broken, they differ by what the tool did and stay as readable as they were.
TEST_F(BreakLineTool, BreaksLinesInDrawingsMadeElsewhere)
{
    const QString corpus = qEnvironmentVariable("ORTAKIT_CORPUS");
    if (corpus.isEmpty())
        GTEST_SKIP() << "ORTAKIT_CORPUS names no folder of drawings";
    int broken = 0;
    for (const QFileInfo &file : QDir(corpus).entryInfoList({u"*.dxf"_s})) {
        const QString drawing = file.filePath();
        const LongestLine line = longestLine(drawing);
        if (line.length == 0 || !isSound(drawing))
            continue;
        const QString at =
            u"%1,%2,%3"_s.arg(line.middle.x, 0, 'f', 9).arg(line.middle.y, 0, 'f', 9).arg(line.middle.z, 0, 'f', 9);
        const RunOutcome outcome = run.play(confirmed(QString::number(line.length / 4, 'f', 4), u"0"_s,
                                                      u"pickhandle %1\npoint %2\nanswer Same\n"_s.arg(line.handle, at)),
                                            drawing);
        ASSERT_EQ(outcome.status, 0) << file.fileName().toStdString() << outcome.output.toStdString();
        EXPECT_TRUE(isSound(run.result(drawing))) << file.fileName().toStdString();
        QStringList expected = brokenWithNewSymbol + QStringList(6, u"+LINE"_s) + QStringList{u"~LINE"_s};
        QStringList found = differences(drawing, run.result(drawing));
        found.removeAll(u"~$HANDSEED"_s);
        expected.sort();
        EXPECT_EQ(found, expected) << file.fileName().toStdString();
        ++broken;
    }
    EXPECT_GE(broken, 3);
}

} // namespace
