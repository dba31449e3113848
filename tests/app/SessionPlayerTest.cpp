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
        {"expression", uR"(lisp (setq x 1) ~ expect-lisp (= x 1))"_s},
        {"number at a prompt", uR"(lisp (setq x (getreal "Size: ")) ~ answer 12.5 ~ expect-lisp (= x 12.5))"_s},
        {"default", uR"(lisp (setq x (getint "Count <3>: ")) ~ enter ~ expect-lisp (null x))"_s},
        {"point", uR"(lisp (setq p (getpoint "From: ")) ~ point 1,2 ~ expect-lisp (equal p '(1.0 2.0 0.0)))"_s},
        {"picked point", uR"(lisp (setq p (getpoint "From: ")) ~ pick 3,4 ~ expect-lisp (equal p '(3.0 4.0 0.0)))"_s},
        {"events", uR"(lisp (setq e (list (grread T 15) (grread) (grread) (grread) (grread)))
                       hover 1,2 ~ pick 3,4 ~ answer ok ~ enter
                       expect-lisp (equal e '((5 (1.0 2.0 0.0)) (3 (3.0 4.0 0.0)) (2 111) (2 107) (2 13))))"_s},
        {"text with blanks",
         uR"(lisp (setq s (getstring T "Text: ")) ~ answer two words ~ expect-lisp (= s "two words"))"_s},
        {"picked entity", uR"(lisp (setq e (entsel)) ~ pickhandle 2B ~ expect-lisp (= (car e) (handent "2B")))"_s},
        {"selection",
         uR"(lisp (setq s (ssget)) ~ select 2A 2C ~ select 2B ~ enter ~ expect-lisp (= (sslength s) 3))"_s},
        {"all", uR"(lisp (setq s (ssget)) ~ select all ~ enter ~ expect-lisp (= (sslength s) 3))"_s},
        {"window takes what is within",
         uR"(lisp (setq s (ssget)) ~ window 11,6 -1,-1 ~ enter ~ expect-lisp (= (sslength s) 1))"_s},
        {"crossing takes what it touches",
         uR"(lisp (setq s (ssget)) ~ crossing -1,-1 11,6 ~ enter ~ expect-lisp (= (sslength s) 2))"_s},
        {"cancelled prompt", uR"(lisp (getpoint "From: ") ~ cancel)"_s},
        {"error that is expected", uR"(lisp (car 5) ~ expect-error bad argument type)"_s},
        {"printed",
         uR"(lisp (princ "earlier") ~ lisp (princ "one\n  two") ~ expect-printed one two ~ expect-modified no)"_s},
        {"dialog", uR"(lisp (setq r (samplebox)) ~ dialog SampleBox ~ expect-title Sample ~ set _dist_size 2.5
             expect _dist_size 2.5 ~ type name zigzag ~ click accept ~ expect-lisp (and r (= entered "zigzag")))"_s},
        {"dialog by base class", uR"(lisp (samplebox) ~ dialog QDialog ~ close)"_s},
        {"message while a click is under way",
         uR"(lisp (setq r (samplebox)) ~ dialog SampleBox ~ click accept ~ message "can`t be empty" Ok
             set name old ~ click accept ~ message Replace No ~ click accept ~ message Replace Yes ~ expect-lisp r)"_s},
        {"message in front of a message",
         uR"(lisp (samplebox) ~ dialog SampleBox ~ click again ~ message Really Yes ~ message sure ok ~ close)"_s},
        {"message long behind the click",
         uR"(lisp (samplebox) ~ dialog SampleBox ~ click later ~ message Really No ~ close)"_s},
        {"looking at a message before it is answered",
         uR"(lisp (samplebox) ~ dialog SampleBox ~ click again ~ screenshot m.png ~ expect-modified no
             message Really No ~ close)"_s},
        {"looking at a dialog and a menu before",
         uR"(lisp (samplebox) ~ screenshot b.png ~ dialog SampleBox ~ click more ~ screenshot n.png ~ menu Second
             close)"_s},
        {"focus after a message",
         uR"(lisp (samplebox) ~ dialog SampleBox ~ focus name ~ focus _dist_size ~ click accept ~ message empty Ok
             expect-focus _dist_size ~ close)"_s},
        {"message closed", uR"(lisp (samplebox) ~ dialog SampleBox ~ click again ~ message Really close ~ close)"_s},
        {"message behind the click",
         uR"(lisp (samplebox) ~ dialog SampleBox ~ click late ~ message Really No ~ close)"_s},
        {"file", uR"(lisp (samplebox) ~ dialog SampleBox ~ click browse ~ file ${OUT}/made.txt ~ click accept
             expect-lisp (wcmatch entered "*/made.txt"))"_s},
        {"file that exists asks back",
         uR"(lisp (samplebox) ~ dialog SampleBox ~ click browse ~ file ${DRAWING} ~ message "already exists" Yes
             expect name ${DRAWING} ~ close)"_s},
        {"file in place of the one that was shown",
         uR"(lisp (samplebox) ~ dialog SampleBox ~ set name ${DRAWING} ~ click browse ~ file ${OUT}/made.txt
             expect name ${OUT}/made.txt ~ click browse ~ file made.txt ~ expect name ${OUT}/made.txt ~ close)"_s},
        {"file cancelled", uR"(lisp (samplebox) ~ dialog SampleBox ~ click browse ~ file cancel ~ close)"_s},
        {"menu",
         uR"(lisp (samplebox) ~ dialog SampleBox ~ click more ~ menu Second ~ expect name Second... ~ close)"_s},
        {"dialog that comes back",
         uR"(lisp (progn (samplebox) (getint "Between: ") (samplebox)) ~ dialog SampleBox ~ close ~ answer 1
             dialog SampleBox ~ close)"_s},
        {"alert", uR"(lisp (alert "Nothing found") ~ message Nothing Ok)"_s},
        {"script", uR"(command SCRIPT ~ answer ${OUT}/two.scr ~ answer 2 ~ expect-count CIRCLE 2 ~ expect-count LINE 3
             expect-printed "Command: line" ~ undo ~ undo ~ expect-modified no)"_s},
        {"script of a program",
         uR"(lisp (command "SCRIPT" "${OUT}/two.scr") ~ answer 2 ~ expect-count CIRCLE 2 ~ undo ~ undo
             expect-lisp (not (command "SCRIPT" "none.scr")) ~ expect-modified no)"_s},
        {"values", uR"(let X (list 1 2) ~ let N 2 ~ expect-lisp (equal '${X} '(1 2)) ~ let TEXT (strcat "a \"b" "\\")
             lisp (setq s (getstring T "Text: ")) ~ answer ${TEXT} ~ expect-lisp (= s "a \"b\\")
             expect-count LINE ${N})"_s},
        {"ended by a condition", uR"(only-if 1 ~ only-if nil ~ lisp (car 5))"_s},
        {"one step", uR"(lisp (entdel (handent "2A")) ~ expect-undo ~ expect-changes 1-LINE ~ save c.dxf
             expect-file-changes c.dxf 1-LINE ~ undo ~ expect-changes "" ~ lisp (setq x 1) ~ expect-unchanged)"_s},
        {"files",
         uR"(write sub/a.txt "one\r\ntwo ü" ~ expect-file sub/a.txt two ü ~ expect-text sub/a.txt "one\r\ntwo ü"
             expect-file ${OUT}/sub/a.txt ~ write b.txt "one\r\ntwo ü" ~ expect-same-file b.txt sub/a.txt
             expect-no-file none.txt)"_s},
        {"not printed", uR"(lisp (princ "one") ~ lisp (princ "two") ~ expect-not-printed one)"_s},
        {"sound", uR"(expect-sound ~ expect-sound ${DRAWING})"_s},
        {"abandoned prompt",
         uR"(lisp (progn (vl-catch-all-apply 'getpoint '("From: ")) (samplebox) (setq b 7)) ~ abandon
             expect-lisp (= b 7))"_s},
        {"abandoned dialog",
         uR"(lisp (setq b (samplebox)) ~ dialog SampleBox ~ click again ~ abandon ~ expect-lisp (null b))"_s},
        {"cancelled at each prompt and window", uR"(lisp (setq times 0) ~ cancel-each
             lisp (progn (setq times (1+ times)) (setq p (getpoint "From: ")) \
             (if (samplebox) (progn (getint "N: ") (entdel (handent "2A")))))
             expect-not-printed Two ~ point 1,2 ~ dialog SampleBox ~ set name new ~ click accept ~ answer 1
             expect-lisp (= times 4) ~ expect-changes 1-LINE ~ undo)"_s},
        {"change, undo, redo",
         uR"(lisp (entdel (handent "2A")) ~ expect-count LINE 1 ~ expect-modified yes ~ undo ~ expect-count line 2
             redo ~ expect-count * 2 ~ undo)"_s},
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
    const PlaybackResult result = play(uR"(lisp (entdel (handent "2A")) ~ save changed.dxf ~ expect-modified no
        screenshot all.png ~ lisp (samplebox) ~ dialog SampleBox ~ screenshot box.png ~ close)"_s);
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
