#include "host/drawing/records/Drawing.h"
#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

using namespace tools_test;
using namespace Qt::StringLiterals;

namespace {

class RemoteText : public ToolTest
{
};

const QString bothKinds = u"lisp (setq f (CreateRtext \"note.txt\" 0.0 2.5 \"\"))\n"
                          "lisp (setq x (CreateRtext \"gone\" (/ pi 2) 1.25 \"$(getvar,dwgname)\"))\n"_s;

TEST_F(RemoteText, IsAnEntityLikeOthers)
{
    plays(u"lisp (setvar \"CLAYER\" \"DOORS\")\nlisp (setvar \"CECOLOR\" \"3\")\n"_s + bothKinds +
          u"expect-count RTEXT 2\n"
          "lisp (setq d (entget f) v (entget x))\n"
          "expect-lisp (equal (mapcar '(lambda (c) (cdr (assoc c d))) '(0 8 62 10 210 50 40 7 70 1)) "
          "'(\"RTEXT\" \"DOORS\" 3 (0.0 0.0 0.0) (0.0 0.0 1.0) 0.0 2.5 \"Standard\" 0 \"note.txt\"))\n"
          "expect-lisp (equal (mapcar '(lambda (c) (cdr (assoc c v))) '(50 40 70 1)) "
          "(list (/ pi 2) 1.25 1 \"$(getvar,dwgname)\") 1e-9)\n"
          // One step each.
          "undo\nexpect-count RTEXT 1\nredo\nexpect-count RTEXT 2\n"
          "command MOVE\nselect last\nenter\npoint 0,0\npoint 4,3\n"
          "expect-lisp (equal (cdr (assoc 10 (entget x))) '(4.0 3.0 0.0) 1e-9)\n"
          "command ROTATE\nselect last\nenter\npoint 4,3\nanswer 90\n"
          "expect-lisp (equal (cdr (assoc 50 (entget x))) pi 1e-9)\n"
          "lisp (entmod (subst '(40 . 3.5) '(40 . 2.5) d))\n"
          "expect-lisp (= 3.5 (cdr (assoc 40 (entget f))))\n"
          "expect-lisp (null (entmod (subst '(7 . \"NONE\") (assoc 7 d) d)))\n"
          // Picked where its value is seen: "plan.dxf", not the expression.
          "lisp (setq p (car (entsel)))\npick 2,2.4\nexpect-lisp (equal p x)\n"
          "lisp (setq p (car (entsel)))\npick -9,2.4\nexpect-lisp (null p)\n"
          "lisp (setq s (ssget \"_X\" '((0 . \"RTEXT\"))))\nexpect-lisp (= 2 (sslength s))\n"_s);
    EXPECT_TRUE(isSound(run.result(plan)));
}

TEST_F(RemoteText, RefusalsAreTold)
{
    plays(u"lisp (CreateRtext \"note.txt\" 0.0 -2.5 \"\")\nexpect-error CREATERTEXT\n"
          "expect-printed \"The height of a remote text must be above 0.\"\n"
          "expect-count RTEXT 0\nexpect-modified no\n"_s);
    const QString old = run.writeFile(u"old.dxf"_s, "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n");
    plays(u"lisp (CreateRtext \"note.txt\" 0.0 2.5 \"\")\nexpect-error CREATERTEXT\n"
          "expect-printed \"RTEXT: a drawing of this version has no such entity\"\nexpect-modified no\n"_s,
          old);
}

// What programs write that have it: the record's groups in their order, and nothing else in the drawing changed.
TEST_F(RemoteText, DrawingsOfOthersTakeItAndChangeByNothingElse)
{
    const QString corpus = qEnvironmentVariable("ORTAKIT_CORPUS");
    if (corpus.isEmpty())
        GTEST_SKIP();
    for (const QString &name : {u"minimal_2007.dxf"_s, u"caret_encoding.dxf"_s, u"images.dxf"_s, u"uncommon.dxf"_s}) {
        SCOPED_TRACE(name.toStdString());
        const QString drawing = corpus + u'/' + name;
        plays(bothKinds, drawing);
        EXPECT_EQ(differences(drawing, run.result(drawing)),
                  (QStringList{u"+CLASS"_s, u"+RTEXT"_s, u"+RTEXT"_s, u"~$HANDSEED"_s}));
        EXPECT_TRUE(isSound(run.result(drawing)));
        const QByteArray bytes = ToolRun::readFile(run.result(drawing));
        // Some files have blanks in front of group codes.
        QByteArray plain = bytes;
        plain.replace("\r", "").replace(" ", "");
        EXPECT_TRUE(plain.contains("\n100\nRText\n10\n0.0\n20\n0.0\n30\n0.0\n210\n0.0\n220\n0.0\n230\n1.0\n50\n90.0\n"
                                   "40\n1.25\n7\nStandard\n70\n1\n1\n$(getvar,dwgname)\n"));
        EXPECT_TRUE(plain.contains("\n0\nCLASS\n1\nRTEXT\n2\nRText\n"));
        // Once there, it is kept as it is.
        const auto read = host::drawing::Drawing::fromBytes(bytes);
        ASSERT_TRUE(read);
        EXPECT_EQ(read.drawing->toBytes(), bytes);
    }
}

// The folder as typed, then three saves: the backup is the drawing before the last one.
TEST_F(RemoteText, BackupsGoWhereTheCommandSays)
{
    QDir().mkpath(run.path(u"kept"_s));
    plays(u"command setBACKUPfolder\nanswer %1\n"
          "expect-printed \"Specify new path for Backup folder [. for none]:\"\n"
          "save a.dxf\n"
          "lisp (entmake '((0 . \"POINT\") (10 1.0 2.0 0.0)))\nsave a.dxf\n"
          "lisp (entmake '((0 . \"POINT\") (10 1.0 3.0 0.0)))\nsave a.dxf\n"_s.arg(run.path(u"kept"_s)));
    EXPECT_EQ(differences(run.path(u"kept/a.bak"_s), run.path(u"out/a.dxf"_s)),
              (QStringList{u"+POINT"_s, u"~$HANDSEED"_s}));
    // Another session still knows it; a run's result that replaces an older one is a save too.
    const QByteArray before = ToolRun::readFile(run.path(u"out/a.dxf"_s));
    QFile::copy(plan, run.path(u"a.dxf"_s));
    plays(u"lisp (entmake '((0 . \"POINT\") (10 1.0 2.0 0.0)))\n"_s, run.path(u"a.dxf"_s));
    EXPECT_EQ(ToolRun::readFile(run.path(u"kept/a.bak"_s)), before);
}

} // namespace
