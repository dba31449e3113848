#include "host/drawing/records/Symbols.h"
#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace tools_test;
using namespace Qt::StringLiterals;

namespace {

class MakeLinestyleTool : public ToolTest
{
protected:
    /// The dialog confirmed with name NEW for `file`; a question whether to replace is answered with yes.
    static QString confirmed(const QString &file, bool isReplaced = false, const QString &name = u"new"_s)
    {
        return u"command MAKELINESTYLE\ndialog Dlg_QT_MakeLineStyle\nfocus Linetypefile\nset Linetypefile %1\n"
               "key Linetypefile Return\nset name %3\nset description \"a, b\"\nclick acceptButton\n%2"_s.arg(
                   file, isReplaced ? u"message already Yes\n"_s : QString(), name);
    }
    /// Entities made far from the plan: "line x x", "point x" or "text x y text", measured from 100,0 along `turn`, or
    /// whole lists for entmake.
    static QString drawn(const QString &entities)
    {
        QString session;
        for (const QString &entity : entities.split(u"; "_s))
            session += u"lisp (made '(%1))\n"_s.arg(entity);
        return u"lisp (defun at (x y) (list (+ 100.0 (- (* x (cos turn)) (* y (sin turn)))) "
               "(+ (* x (sin turn)) (* y (cos turn))) 0.0))\n"
               "lisp (defun made (one) (entmake (cond ((listp (car one)) (car one)) ((= (car one) 'line) (list '(0 . "
               "\"LINE\") (cons 10 (at (cadr "
               "one) "
               "0)) (cons 11 (at (caddr one) 0)))) ((= (car one) 'point) (list '(0 . \"POINT\") (cons 10 (at (cadr "
               "one) "
               "0)))) (T (list '(0 . \"TEXT\") (cons 10 (at (cadr one) (caddr one))) '(40 . 0.25) (cons 1 (cadddr "
               "one)) "
               "(cons 50 turn))))))\n"_s +
               session;
    }
    /// The pattern picked, and the points where it starts and repeats.
    static QString picked(const QString &start, const QString &end)
    {
        return u"window 90,-20 120,20\nenter\npoint %1\npoint %2\n"_s.arg(start, end);
    }

    QString file = run.path(u"my.lin"_s);
};

TEST_F(MakeLinestyleTool, MeasuresThePattern)
{
    const struct
    {
        const char *what;
        const char *entities;
        const char *end;
        QByteArray pattern;
        QString turn = u"0.0"_s; ///< of the direction
    } rows[] = {
        {"dash and gap", "line 0.0 1.0", "101.5,0", "A,1,-0.5"},
        {"dots", "line 0.0 1.0; point 1.25; point 1.5", "102,0", "A,1,-0.25,0,-0.25,0,-0.5"},
        {"a dot at the end is the first one", "point 2.0; line 0.5 1.0", "102,0", "A,0,-0.5,0.5,-1"},
        {"a gap at the start goes to the end", "line 0.5 1.0", "101.5,0", "A,0.5,-1"},
        {"also with a dash at the end", "line 0.5 1.0; line 1.5 2.0", "102,0", "A,0.5,-0.5,0.5,-0.5"},
        {"overlapping and touching lines", "line 0.0 1.0; line 0.5 1.5; line 1.5 2.0; point 0.7", "103,0", "A,2,-1"},
        {"lines that stick out are cut", "line -1.0 1.0; line 2.0 9.0", "103,0", "A,1,-1,1"},
        {"upwards", "line 0.0 1.0; text 1.5 -0.125 \"UP\"", "100,3",
         "A,1,-2,[\"UP\",Standard,S=0.25,R=0,X=-1.5,Y=-0.125]", u"(/ pi 2)"_s},
        {"two texts in a gap", "line 0.0 1.0; text 1.5 0.0 \"A\"; text 2.5 0.5 \"B,]\"", "104,0",
         "A,1,-1.5,[\"A\",Standard,S=0.25,R=0,X=-1,Y=0],-1.5,[\"B,]\",Standard,S=0.25,R=0,X=-1.5,Y=0.5]"},
        {"a text on a full line", "line 0.0 2.0; text 0.5 0.0 \"X\"", "102,0",
         "A,2,[\"X\",Standard,S=0.25,R=0,X=-1.5,Y=0]"},
        {"a text in the gap that moved", "line 0.5 1.0; text 0.25 0.0 \"X\"", "101,0",
         "A,0.5,-0.5,[\"X\",Standard,S=0.25,R=0,X=-0.25,Y=0]"},
        {"polylines are dashes, also seen from behind",
         "((0 . \"LWPOLYLINE\") (100 . \"AcDbEntity\") (100 . \"AcDbPolyline\") (90 . 3) (70 . 0) (10 100.0 0.0) "
         "(10 100.5 0.0) (10 101.0 0.0)); ((0 . \"LWPOLYLINE\") (100 . \"AcDbEntity\") (100 . \"AcDbPolyline\") (90 . "
         "2) "
         "(70 . 0) (10 -101.5 0.0) (10 -101.75 0.0) (210 0.0 0.0 -1.0)); ((0 . \"POLYLINE\") (66 . 1)); ((0 . "
         "\"VERTEX\") "
         "(10 102.5 0.0 0.0)); ((0 . \"VERTEX\") (10 102.75 0.0 0.0)); ((0 . \"SEQEND\"))",
         "103,0", "A,1,-0.5,0.25,-0.75,0.25,-0.25"},
        {"a paragraph of one line",
         "line 0.0 1.0; ((0 . \"MTEXT\") (10 101.25 0.125 0.0) (40 . 0.25) (71 . 1) (1 . \"AB\"))", "102,0",
         "A,1,-1,[\"AB\",Standard,S=0.25,R=0,X=-0.75,Y=-0.125]"},
    };
    for (const auto &row : rows) {
        QFile::remove(file);
        plays(u"lisp (setq turn %1)\n"_s.arg(row.turn) + drawn(QLatin1StringView(row.entities)) + confirmed(file) +
              picked(u"100,0"_s, QLatin1StringView(row.end)) +
              u"expect-lisp (= (cdr (assoc 3 (tblsearch \"LTYPE\" \"new\"))) \"a, b\")\n"_s);
        EXPECT_EQ(ToolRun::readFile(file), "*NEW,a, b\n" + row.pattern + '\n') << row.what;
        EXPECT_TRUE(isSound(run.result(plan))) << row.what;
    }
}

TEST_F(MakeLinestyleTool, WhatCannotBeMadeIsSaidAndNothingIsWritten)
{
    const QString beside = picked(u"100,0"_s, u"102,0"_s);
    const struct
    {
        QString message;
        const char *entities = "line 0.0 1.0";
        QString answers = picked(u"100,0"_s, u"102,0"_s);
        QString file = u"my.lin"_s;
        QByteArray bytes = {}; ///< of the file; null: there is none
        QString name = u"new"_s;
    } rows[] = {
        {u"The pattern needs a line or a point."_s, "text 0.5 0.0 \"X\""},
        {u"The pattern needs a gap or a text."_s, "line 0.0 2.0"},
        {u"The pattern has no length."_s, "line 0.0 2.0", picked(u"100,0"_s, u"100,0"_s)},
        {u"1 picked, 1 of no use: 1 beside the direction."_s, "line 0.0 2.0", picked(u"100,0"_s, u"100,3"_s)},
        {u"2 picked, 2 of no use: 2 outside the pattern."_s, "line 3.0 4.0; text -0.5 0.0 \"X\""},
        {u"9 picked, 8 of no use: 1 of another kind, 2 in another plane, 1 curved, 2 without letters, 2 of several "
         u"lines or "
         "with formatting."_s,
         "text 0.5 0.0 \"X\"; ((0 . \"CIRCLE\") (10 101.0 0.0 0.0) (40 . 1.0)); ((0 . \"TEXT\") (10 -101.0 0.0 0.0) "
         "(40 . 1.0) "
         "(1 . \"X\") (210 0.0 0.0 -1.0)); ((0 . \"LWPOLYLINE\") (100 . \"AcDbEntity\") (100 . \"AcDbPolyline\") (90 . "
         "2) "
         "(70 . 0) (38 . 100.0) (10 0.0 0.0) (10 0.0 1.0) (210 1.0 0.0 0.0)); ((0 . \"LWPOLYLINE\") (100 . "
         "\"AcDbEntity\") "
         "(100 . \"AcDbPolyline\") (90 . 2) (70 . 0) (10 100.0 0.0) (42 . 1.0) (10 101.0 0.0)); ((0 . \"TEXT\") "
         "(10 101.0 0.0 0.0) (40 . 1.0) (1 . \"  \")); ((0 . \"MTEXT\") (10 101.0 0.0 0.0) (40 . 1.0) (1 . \"\")); "
         "((0 . \"MTEXT\") (10 101.0 0.0 0.0) (40 . 1.0) (1 . \"A\\\\PB\")); ((0 . \"MTEXT\") (10 101.0 0.0 0.0) "
         "(40 . 1.0) (1 . \"{\\\\C1;A}\"))"},
        {u"The shape BOX is in no shape file of the drawing."_s,
         "line 0.0 1.0; ((0 . \"SHAPE\") (10 101.5 0.0 0.0) (40 . 0.5) (2 . \"BOX\"))"},
        {u"A text with quotation marks cannot be in a linetype."_s, "line 0.0 1.0; text 1.1 0.0 \"2\\\"\""},
        {u"Two texts start at the same place."_s, "line 0.0 1.0; text 1.1 0.0 \"A\"; text 1.1 1.0 \"B\""},
        {u"more than the 12 elements"_s, "point 0.1; point 0.2; point 0.3; point 0.4; point 0.5; point 0.6; point 0.7"},
        {u"A linetype cannot be named A,B."_s, "line 0.0 1.0", {}, u"my.lin"_s, {}, u"a,b"_s},
        {u"A linetype cannot be named BYLAYER."_s, "line 0.0 1.0", {}, u"my.lin"_s, {}, u"ByLayer"_s},
        {u"Select lines"_s, "line 0.0 1.0", u"enter\n"_s},
        {u"Select lines"_s, "line 0.0 1.0", u"cancel\n"_s},
        {u"Specify point where the pattern repeats"_s, "line 0.0 1.0",
         u"window 90,-20 120,20\nenter\npoint 100,0\ncancel\n"_s},
        {u"cannot be written"_s, "line 0.0 1.0", beside, u"missing/my.lin"_s},
        {u"does not look like a file of definitions"_s, "line 0.0 1.0", beside, u"letter.lin"_s, "Dear reader,\n"},
        {u"does not look like a file of definitions"_s, "line 0.0 1.0", beside, u"two.lin"_s,
         QByteArray("\xFF\xFE*\0A\0,\0b\0\n\0", 12)},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.message.toStdString());
        if (!row.bytes.isNull())
            run.writeFile(row.file, row.bytes);
        plays(u"lisp (setq turn 0.0)\n"_s + drawn(QLatin1StringView(row.entities)) +
              confirmed(run.path(row.file), false, row.name) + row.answers +
              u"expect-printed %1\nexpect-lisp (null (tblsearch \"LTYPE\" \"NEW\"))\n"_s.arg(row.message));
        EXPECT_EQ(ToolRun::readFile(run.path(row.file)), row.bytes);
        EXPECT_EQ(QFile::exists(run.path(row.file)), !row.bytes.isNull());
    }
}

TEST_F(MakeLinestyleTool, OnlyTheDefinitionChangesInTheFile)
{
    const QByteArray definition = "*NEW,a, b\nA,1,-0.5\n";
    const QByteArray windows = "*NEW,a, b\r\nA,1,-0.5\r\n";
    const struct
    {
        const char *what;
        QByteArray before;
        QByteArray after;
        bool isReplaced;
    } rows[] = {
        {"empty", "", definition, false},
        {"behind the others", "*A,x\nA,2,-1\n", "*A,x\nA,2,-1\n" + definition, false},
        {"no line feed at the end", "*A,x\nA,2,-1", "*A,x\nA,2,-1\n" + definition, false},
        {"the only one", "*New,x\nA,2,-1\n", definition, true},
        {"between others, with comments",
         "*A,x\nA,2\n\n;; new\n*nEW,old\n;; its own\nA,3,-1\n\n;; last\n*NEWER,z\nA,4,-1\n\n",
         "*A,x\nA,2\n\n;; new\n" + definition + "\n;; last\n*NEWER,z\nA,4,-1\n\n", true},
        {"Windows lines", "*A,x\r\nA,2\r\n*NEW\r\nA,3,-1\r\n*Z,z\r\nA,4,-1",
         "*A,x\r\nA,2\r\n" + windows + "*Z,z\r\nA,4,-1", true},
        {"Windows lines, behind the others", "*A,x\r\nA,2,-1\r\n", "*A,x\r\nA,2,-1\r\n" + windows, false},
        {"letters of a code page and odd line ends",
         "*W\xC4NDE,\xE4\x80\xFF\tx \nA,1,-1\r\n\n*NEW,\xFC\nA,1\n\xA0\xC3*\n",
         "*W\xC4NDE,\xE4\x80\xFF\tx \nA,1,-1\r\n\n" + definition, true},
        {"a byte-order mark", "\xEF\xBB\xBF*NEW,x\nA,9,-1\n*B,\xC3\xA4\nA,1,-1\n",
         "\xEF\xBB\xBF" + definition + "*B,\xC3\xA4\nA,1,-1\n", true},
    };
    for (const auto &row : rows) {
        run.writeFile(u"my.lin"_s, row.before);
        QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner);
        plays(u"lisp (setq turn 0.0)\n"_s + drawn(u"line 0.0 1.0"_s) + confirmed(file, row.isReplaced) +
              picked(u"100,0"_s, u"101.5,0"_s));
        EXPECT_EQ(ToolRun::readFile(file), row.after) << row.what;
        EXPECT_FALSE(QFile::permissions(file) & QFile::ReadOther) << "the file's permissions stay";
        EXPECT_EQ(QDir(run.path({})).entryList({u"my*"_s}), QStringList{u"my.lin"_s}) << "nothing is left beside it";
    }
}

// What MAKESHAPE wrote comes into a linetype and into the drawing. Of two shape files the one with the shape is taken.
TEST_F(MakeLinestyleTool, TakesShapes)
{
    QDir(run.path({})).mkdir(u"home"_s);
    run.writeFile(u"home/other.shp"_s, "*1,2,ROUND\n010,0\n");
    plays(
        u"lisp (setq turn 0.0)\nlisp (foreach file '(\"other\" \"my.shx\") (entmake (list '(0 . \"STYLE\") "
        "'(100 . \"AcDbSymbolTableRecord\") '(100 . \"AcDbTextStyleTableRecord\") '(2 . \"\") '(70 . 1) (cons 3 file))))\n"_s +
        drawn(u"((0 . \"LINE\") (10 200.0 0.0 0.0) (11 200.0 5.0 0.0)); line 0.0 1.0; ((0 . \"SHAPE\") "
              "(10 101.5 0.25 0.0) (40 . 0.5) (2 . \"Box\") (50 . 0.5))"_s) +
        u"command MAKESHAPE\ndialog Dlg_QT_MakeShape\nset shapeFile %1\nset name box\nclick acceptButton\n"
        "window 199,-1 201,6\nenter\npoint 200,0\n"_s.arg(run.path(u"home/my.shp"_s)) +
        confirmed(file) + picked(u"100,0"_s, u"102,0"_s) +
        u"expect-printed Linetype \"NEW\" loaded.\n"
        "expect-lisp (= 1 (cdr (assoc 75 (member '(74 . 4) (entget (tblobjname \"LTYPE\" \"NEW\"))))))\n"_s);
    EXPECT_EQ(ToolRun::readFile(file), "*NEW,a, b\nA,1,-1,[Box,my.shx,S=0.5,R=28.6479,X=-0.5,Y=0.25]\n");
    EXPECT_TRUE(isSound(run.result(plan)));
}

// A linetype of that name that the drawing has is replaced; one undo brings the old one back.
TEST_F(MakeLinestyleTool, IsOneUndoStep)
{
    const QString length = u"expect-lisp (equal (cdr (assoc 40 (tblsearch \"LTYPE\" \"NEW\"))) %1 1e-9)\n"_s;
    plays(u"lisp (setq turn 0.0)\n"_s + drawn(u"line 0.0 1.0; text 1.1 0.0 \"X\""_s) + confirmed(file) +
          picked(u"100,0"_s, u"102,0"_s) + length.arg(2.0) + confirmed(file, true) + picked(u"100,0"_s, u"103,0"_s) +
          length.arg(3.0) + u"undo\n"_s + length.arg(2.0) +
          u"undo\nexpect-lisp (null (tblsearch \"LTYPE\" \"NEW\"))\nredo\n"_s + length.arg(2.0));
}

} // namespace
