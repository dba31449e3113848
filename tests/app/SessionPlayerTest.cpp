#include "host/app/playback/SessionPlayer.h"

#include "tests/app/AppFixture.h"
#include "tests/app/SampleBox.h"
#include "tests/support/QtTestPrinters.h"

#include <QApplication>
#include <QFileInfo>
#include <QImage>

#include <gtest/gtest.h>

using namespace host::app;
using namespace host::app::test;
using namespace Qt::StringLiterals;

namespace {

struct SessionPlayerTest : testing::Test, HostFixture
{
    PlaybackOptions options()
    {
        PlaybackOptions options;
        options.outFolder = folder.path();
        options.timeLimit = std::chrono::seconds(20);
        options.audit = [](const QString &file) {
            const bool isDrawing = host::drawing::Drawing::open(file).drawing != nullptr;
            return isDrawing ? QString() : u"complaint about "_s + QFileInfo(file).fileName();
        };
        return options;
    }
    PlaybackResult play(const QString &text) { return runSession(text, *document, options()); }

    /// What a failed session must leave behind.
    void expectCleanedUp(const char *name)
    {
        EXPECT_EQ(SampleBox::count(), 0) << name;
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << name;
        EXPECT_FALSE(document->isBusy()) << name;
        EXPECT_TRUE(document->run(u"(= 1 1)"_s).ok) << name;
    }
};

TEST_F(SessionPlayerTest, PlaysWhatHappens)
{
    const std::pair<const char *, QString> rows[] = {
        {"expression", u"lisp (setq x 1)\nexpect-lisp (= x 1)"_s},
        {"number at a prompt", u"lisp (setq x (getreal \"Size: \"))\nanswer 12.5\nexpect-lisp (= x 12.5)"_s},
        {"default", u"lisp (setq x (getint \"Count <3>: \"))\nenter\nexpect-lisp (null x)"_s},
        {"point", u"lisp (setq p (getpoint \"From: \"))\npoint 1,2\nexpect-lisp (equal p '(1.0 2.0 0.0))"_s},
        {"picked point", u"lisp (setq p (getpoint \"From: \"))\npick 3,4\nexpect-lisp (equal p '(3.0 4.0 0.0))"_s},
        {"text with blanks",
         u"lisp (setq s (getstring T \"Text: \"))\nanswer two words\nexpect-lisp (= s \"two words\")"_s},
        {"picked entity", u"lisp (setq e (entsel))\npickhandle 2B\nexpect-lisp (= (car e) (handent \"2B\"))"_s},
        {"selection", u"lisp (setq s (ssget))\nselect 2A 2C\nselect 2B\nenter\nexpect-lisp (= (sslength s) 3)"_s},
        {"all", u"lisp (setq s (ssget))\nselect all\nenter\nexpect-lisp (= (sslength s) 3)"_s},
        {"window takes what is within",
         u"lisp (setq s (ssget))\nwindow 11,6 -1,-1\nenter\nexpect-lisp (= (sslength s) 1)"_s},
        {"crossing takes what it touches",
         u"lisp (setq s (ssget))\ncrossing -1,-1 11,6\nenter\nexpect-lisp (= (sslength s) 2)"_s},
        {"cancelled prompt", u"lisp (getpoint \"From: \")\ncancel"_s},
        {"error that is expected", u"lisp (car 5)\nexpect-error bad argument type"_s},
        {"printed",
         u"lisp (princ \"earlier\")\nlisp (princ \"one\\n  two\")\nexpect-printed one two\nexpect-modified no"_s},
        {"dialog", u"lisp (setq r (samplebox))\ndialog SampleBox\n expect-title Sample\n set _dist_size 2.5\n"
                   "expect _dist_size 2.5\n type name zigzag\n click accept\n"
                   "expect-lisp (and r (= entered \"zigzag\"))"_s},
        {"dialog by base class", u"lisp (samplebox)\ndialog QDialog\nclose"_s},
        {"message while a click is under way",
         u"lisp (setq r (samplebox))\ndialog SampleBox\nclick accept\nmessage \"can`t be empty\" Ok\n"
         "set name old\nclick accept\nmessage Replace No\nclick accept\nmessage Replace Yes\nexpect-lisp r"_s},
        {"message in front of a message",
         u"lisp (samplebox)\ndialog SampleBox\nclick again\nmessage Really Yes\nmessage sure ok\nclose"_s},
        {"message long behind the click",
         u"lisp (samplebox)\ndialog SampleBox\nclick later\nmessage Really No\nclose"_s},
        {"looking at a message before it is answered",
         u"lisp (samplebox)\ndialog SampleBox\nclick again\nscreenshot m.png\nexpect-modified no\n"
         "message Really No\nclose"_s},
        {"looking at a dialog and a menu before",
         u"lisp (samplebox)\nscreenshot b.png\ndialog SampleBox\nclick more\nscreenshot n.png\nmenu Second\nclose"_s},
        {"focus after a message", u"lisp (samplebox)\ndialog SampleBox\nfocus name\nfocus _dist_size\nclick accept\n"
                                  "message empty Ok\nexpect-focus _dist_size\nclose"_s},
        {"message closed", u"lisp (samplebox)\ndialog SampleBox\nclick again\nmessage Really close\nclose"_s},
        {"message behind the click", u"lisp (samplebox)\ndialog SampleBox\nclick late\nmessage Really No\nclose"_s},
        {"file", u"lisp (samplebox)\ndialog SampleBox\nclick browse\nfile ${OUT}/made.txt\nclick accept\n"
                 "expect-lisp (wcmatch entered \"*/made.txt\")"_s},
        {"file that exists asks back",
         u"lisp (samplebox)\ndialog SampleBox\nclick browse\nfile ${DRAWING}\nmessage \"already exists\" Yes\n"
         "expect name ${DRAWING}\nclose"_s},
        {"file in place of the one that was shown",
         u"lisp (samplebox)\ndialog SampleBox\nset name ${DRAWING}\nclick browse\nfile ${OUT}/made.txt\n"
         "expect name ${OUT}/made.txt\nclick browse\nfile made.txt\nexpect name ${OUT}/made.txt\nclose"_s},
        {"file cancelled", u"lisp (samplebox)\ndialog SampleBox\nclick browse\nfile cancel\nclose"_s},
        {"menu", u"lisp (samplebox)\ndialog SampleBox\nclick more\nmenu Second\nexpect name Second...\nclose"_s},
        {"dialog that comes back",
         u"lisp (progn (samplebox) (getint \"Between: \") (samplebox))\ndialog SampleBox\nclose\nanswer 1\n"
         "dialog SampleBox\nclose"_s},
        {"alert", u"lisp (alert \"Nothing found\")\nmessage Nothing Ok"_s},
        {"script", u"command SCRIPT\nanswer ${OUT}/two.scr\nanswer 2\nexpect-count CIRCLE 2\nexpect-count LINE 3\n"
                   "expect-printed \"Command: line\"\nundo\nundo\nexpect-modified no"_s},
        {"script of a program",
         u"lisp (command \"SCRIPT\" \"${OUT}/two.scr\")\nanswer 2\nexpect-count CIRCLE 2\nundo\nundo\n"
         "expect-lisp (not (command \"SCRIPT\" \"none.scr\"))\nexpect-modified no"_s},
        {"values",
         u"let X (list 1 2)\nlet TEXT (strcat \"a \\\"b\" \"\\\\\")\nlet N 2\nexpect-lisp (equal '${X} '(1 2))\n"
         "lisp (setq s (getstring T \"Text: \"))\nanswer ${TEXT}\nexpect-lisp (= s \"a \\\"b\\\\\")\nexpect-count LINE ${N}"_s},
        {"ended by a condition", u"only-if 1\nonly-if nil\nlisp (car 5)"_s},
        {"one step", u"lisp (entdel (handent \"2A\"))\nexpect-undo\nexpect-changes 1-LINE\nsave "
                     u"c.dxf\nexpect-file-changes c.dxf 1-LINE\nundo\nexpect-changes \"\"\nlisp "
                     "(setq x 1)\nexpect-unchanged"_s},
        {"files",
         u"write sub/a.txt \"one\\r\\ntwo ü\"\nexpect-file sub/a.txt two ü\nexpect-text sub/a.txt \"one\\r\\ntwo ü\"\n"
         "expect-file ${OUT}/sub/a.txt\nwrite b.txt \"one\\r\\ntwo ü\"\nexpect-same-file b.txt sub/a.txt\n"
         "expect-no-file none.txt"_s},
        {"not printed", u"lisp (princ \"one\")\nlisp (princ \"two\")\nexpect-not-printed one"_s},
        {"sound", u"expect-sound\nexpect-sound ${DRAWING}"_s},
        {"abandoned prompt", u"lisp (progn (vl-catch-all-apply 'getpoint '(\"From: \")) (samplebox) (setq b 7))\n"
                             "abandon\nexpect-lisp (= b 7)"_s},
        {"abandoned dialog",
         u"lisp (setq b (samplebox))\ndialog SampleBox\nclick again\nabandon\nexpect-lisp (null b)"_s},
        {"cancelled at each prompt and window",
         u"lisp (setq times 0)\ncancel-each\nlisp (progn (setq times (1+ times)) (setq p (getpoint \"From: \")) (if "
         "(samplebox) (progn (getint \"N: \") (entdel (handent \"2A\")))))\nexpect-not-printed Two\npoint 1,2\n"
         "dialog SampleBox\nset name new\nclick accept\nanswer 1\nexpect-lisp (= times 4)\n"
         "expect-changes 1-LINE\nundo"_s},
        {"change, undo, redo",
         u"lisp (entdel (handent \"2A\"))\nexpect-count LINE 1\nexpect-modified yes\nundo\nexpect-count line 2\n"
         "redo\nexpect-count * 2\nundo"_s},
    };
    write(u"two.scr"_s, "line 0,0 5,5 \ncircle 1,1\n");
    for (const auto &[name, steps] : rows) {
        const PlaybackResult result = play(steps);
        EXPECT_TRUE(result.ok) << name << ": " << result.message.toStdString() << '\n' << result.printed.toStdString();
        expectCleanedUp(name);
    }
}

TEST_F(SessionPlayerTest, FailsOnWhatItDoesNotExpect)
{
    // What is wrong, the session, the line where it fails, and a part of the message.
    const std::tuple<const char *, QString, int, QString> rows[] = {
        {"bad line", u"\nnonsense"_s, 2, u"unknown word \"nonsense\""_s},
        {"unknown variable", u"enter\nanswer ${NOBODY}"_s, 2, u"${NOBODY} is not known"_s},
        {"nothing is open", u"answer 5"_s, 1, u"no prompt and no dialog is open"_s},
        {"left over when the run ended", u"lisp (getint \"N: \")\nanswer 1\nanswer 2"_s, 3,
         u"no prompt and no dialog is open"_s},
        {"left over dialog line", u"lisp (samplebox)\ndialog SampleBox\nclose\nset name x"_s, 4,
         u"no prompt and no dialog is open"_s},
        {"prompt nobody answers", u"lisp (getint \"How many: \")"_s, 1,
         u"the session ends while the prompt \"How many:\" is open"_s},
        {"dialog nobody answers", u"lisp (samplebox)"_s, 1,
         u"the session ends while dialog host::app::test::SampleBox \"Sample\" is open"_s},
        {"dialog instead of a prompt", u"lisp (samplebox)\nanswer 5"_s, 2,
         u"dialog host::app::test::SampleBox \"Sample\" is open"_s},
        {"prompt instead of a dialog", u"lisp (getint \"How many: \")\ndialog SampleBox"_s, 2,
         u"the prompt \"How many:\" is open"_s},
        {"other dialog", u"lisp (samplebox)\ndialog OtherBox"_s, 2, u"dialog host::app::test::SampleBox"_s},
        {"unexpected message", u"lisp (samplebox)\ndialog SampleBox\nclick accept\nset name x"_s, 4,
         u"dialog QMessageBox saying \"Filename can`t be empty\" is open"_s},
        {"other message", u"lisp (samplebox)\ndialog SampleBox\nclick accept\nmessage Replace Yes"_s, 4,
         u"saying \"Filename can`t be empty\""_s},
        {"button that is not there", u"lisp (samplebox)\ndialog SampleBox\nclick accept\nmessage empty Maybe"_s, 4,
         u"has no button \"Maybe\""_s},
        {"message that does not come", u"lisp (samplebox)\ndialog SampleBox\nmessage empty Ok"_s, 3,
         u"dialog host::app::test::SampleBox \"Sample\" is still open"_s},
        {"nested messages left open", u"lisp (samplebox)\ndialog SampleBox\nclick again\nmessage Really Yes"_s, 4,
         u"the session ends while dialog QMessageBox \"Inner\" saying \"Are you sure?\" is open"_s},
        {"dialog that will not close", u"lisp (stubbornbox)\ndialog SampleBox"_s, 2, u"the session ends while"_s},
        {"file that the dialog does not take",
         u"lisp (samplebox)\ndialog SampleBox\nclick browse\nfile ${OUT}/a\"b.txt"_s, 4, u" took \""_s},
        {"script with an error", u"command SCRIPT\nanswer ${OUT}/error.scr\nexpect-count LINE 2"_s, 1,
         u"the run ended with \"bad argument type"_s},
        {"script that nobody answers", u"command SCRIPT\nanswer ${OUT}/asks.scr"_s, 2,
         u"the session ends while the prompt \"Specify center point"_s},
        {"other focus", u"lisp (samplebox)\ndialog SampleBox\nfocus name\nexpect-focus _dist_size"_s, 4,
         u"name has the keyboard"_s},
        {"menu entry that is off", u"lisp (samplebox)\ndialog SampleBox\nclick more\nmenu Off"_s, 4,
         u"the menu's entry \"Off\" is disabled"_s},
        {"menu nobody answers", u"lisp (samplebox)\ndialog SampleBox\nclick more"_s, 3, u"the session ends while"_s},
        {"widget that is not there", u"lisp (samplebox)\ndialog SampleBox\nset size 1"_s, 3,
         u"has no widget \"size\"; it has name, _dist_size"_s},
        {"value that is refused", u"lisp (samplebox)\ndialog SampleBox\nset _dist_size 1000"_s, 3,
         u"_dist_size does not take \"1000\""_s},
        {"other value", u"lisp (samplebox)\ndialog SampleBox\nexpect _dist_size 3"_s, 3, u"it shows \"0.00\""_s},
        {"error", u"lisp (car 5)"_s, 1, u"the run ended with \"bad argument type"_s},
        {"other error", u"lisp (car 5)\nexpect-error division"_s, 2, u"the error is \"bad argument type"_s},
        {"error that does not come", u"lisp (car nil)\nexpect-error bad"_s, 2, u"ended without an error"_s},
        {"unknown command", u"command NOSUCHTHING"_s, 1, u"Unknown command \"NOSUCHTHING\""_s},
        {"nil", u"expect-lisp (= 1 2)"_s, 1, u"it is nil"_s},
        {"count", u"expect-count LINE 3"_s, 1, u"there are 2"_s},
        {"unchanged", u"expect-modified yes"_s, 1, u"the drawing is unchanged"_s},
        {"printed before", u"lisp (princ \"one\")\nlisp (princ \"two\")\nexpect-printed one"_s, 3,
         u"what was printed is \"two\""_s},
        {"no such entity", u"lisp (entsel)\npickhandle FFF"_s, 2, u"no entity with the handle FFF"_s},
        {"nothing to undo", u"undo"_s, 1, u"there is nothing to undo"_s},
        {"cases", u"case a\nenter"_s, 1, u"the session has cases"_s},
        {"value of an error", u"let X (car 5)"_s, 1, u"the run ended with \"bad argument type"_s},
        {"value of the wrong kind", u"let N 1.5\nexpect-count LINE ${N}"_s, 2, u"\"1.5\" is no whole number"_s},
        {"value that comes later", u"answer ${X}\nlet X 1"_s, 1, u"${X} is not known"_s},
        {"line of a part", u"part a X\nexpect-count LINE ${X}\nend\n\nplay a 7"_s, 5,
         u"line 5, part a, line 2 (expect-count LINE 7): there are 2"_s},
        {"nothing changed", u"lisp 1\nexpect-undo"_s, 2, u"the run changed nothing"_s},
        {"two steps",
         u"lisp (foreach h '(\"2A\" \"2C\") (command \"_.UNDO\" \"_Begin\") (entdel (handent h)) (command \"_.UNDO\" \"_End\"))\nexpect-undo"_s,
         2, u"undone, the drawing differs from what it was: 1-LINE"_s},
        {"no run", u"expect-undo"_s, 1, u"there was no run before it"_s},
        {"changed", u"lisp (entdel (handent \"2A\"))\nexpect-unchanged"_s, 2, u"differs from what it was: 1"_s},
        {"other changes", u"lisp (entdel (handent \"2A\"))\nexpect-changes 1-CIRCLE"_s, 2,
         u"the changes are \"1-LINE\""_s},
        {"unsound", u"write a.dxf nonsense\nexpect-sound a.dxf"_s, 2, u"complaint about a.dxf"_s},
        {"printed", u"lisp (princ \"one\")\nexpect-not-printed one"_s, 2, u"what was printed is \"one\""_s},
        {"no file", u"expect-file none.txt"_s, 1, u"cannot read"_s},
        {"file without the text", u"write a.txt one\nexpect-file a.txt two"_s, 2, u"its text is \"one\""_s},
        {"other text", u"write a.txt one\nexpect-text a.txt on"_s, 2, u"the file's text is \"one\""_s},
        {"file", u"write a.txt one\nexpect-no-file a.txt"_s, 2, u"the file is there"_s},
        {"other file", u"write a.txt one\nwrite b.txt ore\nexpect-same-file a.txt b.txt"_s, 3,
         u"differ at byte 1: \"ne\" and \"re\""_s},
        {"nothing to cancel", u"cancel-each\nundo"_s, 1, u"it stands in front of a command or lisp"_s},
        {"changed where it was cancelled",
         u"cancel-each\nlisp (progn (getint \"One: \") (entdel (handent \"2A\")) (getint \"Two: \"))\nanswer 1\nanswer 2"_s,
         2, u"cancelled at the prompt \"Two:\", the drawing differs from what it was: 1"_s},
        {"error where it was cancelled",
         u"cancel-each\nlisp (if (vl-catch-all-error-p (vl-catch-all-apply 'getint '(\"One: \"))) (car 5))\nanswer 1"_s,
         2, u"cancelled at the prompt \"One:\", the run ended with \"bad argument type"_s},
    };
    write(u"error.scr"_s, "(car 5)\n");
    write(u"asks.scr"_s, "circle\n");
    for (const auto &[name, steps, line, message] : rows) {
        const PlaybackResult result = play(steps);
        EXPECT_FALSE(result.ok) << name;
        EXPECT_EQ(result.line, line) << name << ": " << result.message.toStdString();
        EXPECT_TRUE(result.message.contains(message)) << name << ": " << result.message.toStdString();
        expectCleanedUp(name);
    }
}

TEST_F(SessionPlayerTest, NeverOutlastsItsTimeLimit)
{
    PlaybackOptions brief = options();
    brief.timeLimit = std::chrono::milliseconds(400);
    for (const char *endless : {"lisp (while T)", "lisp (while T (vl-catch-all-apply 'car '(5)))",
                                "lisp (while T (samplebox))\ndialog SampleBox\nclose"}) {
        EXPECT_FALSE(runSession(QString::fromLatin1(endless), *document, brief).ok) << endless;
        expectCleanedUp(endless);
    }
}

TEST_F(SessionPlayerTest, WritesDrawingsAndPictures)
{
    const PlaybackResult result = play(u"lisp (entdel (handent \"2A\"))\nsave changed.dxf\nexpect-modified no\n"
                                       "screenshot all.png\nlisp (samplebox)\ndialog SampleBox\n"
                                       "screenshot box.png\nclose"_s);
    ASSERT_TRUE(result.ok) << result.message.toStdString();
    EXPECT_EQ(result.files, QStringList({path(u"changed.dxf"_s), path(u"all.png"_s), path(u"box.png"_s)}));
    EXPECT_FALSE(QImage(path(u"all.png"_s)).isNull());
    EXPECT_LT(QImage(path(u"box.png"_s)).width(), QImage(path(u"all.png"_s)).width());
    const host::kernel::OpenOutcome again = session.documents().open(path(u"small.dxf"_s));
    ASSERT_TRUE(again) << again.error.toStdString();
    EXPECT_TRUE(runSession(u"expect-count LINE 2"_s, *again.document, options()).ok);
}

TEST_F(SessionPlayerTest, SaysWhenAFileCannotBeWritten)
{
    PlaybackOptions none;
    EXPECT_TRUE(runSession(u"screenshot a.png"_s, *document, none).message.contains(u"no folder was given"_s));
    none.outFolder = path(u"missing"_s);
    EXPECT_TRUE(runSession(u"save a.dxf"_s, *document, none).message.contains(u"missing"_s));
    EXPECT_TRUE(runSession(u"screenshot a.png"_s, *document, none).message.contains(u"missing"_s));
    EXPECT_TRUE(play(u"save a.dwg"_s).message.contains(u"a.dwg"_s));
}

} // namespace
