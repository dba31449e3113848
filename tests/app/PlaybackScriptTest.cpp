#include "host/app/playback/PlaybackScript.h"

#include "tests/support/QtTestPrinters.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace host::app;
using namespace Qt::StringLiterals;

namespace {

TEST(PlaybackScript, ReadsLines)
{
    const std::tuple<const char *, QString, Verb, QStringList> rows[] = {
        {"blanks around", u"   command   BREAKLINE  \t"_s, Verb::Command, {u"BREAKLINE"_s}},
        {"carriage return", u"enter\r"_s, Verb::Enter, {}},
        {"text keeps its quotes inside", u"answer say \"hi\" now"_s, Verb::Answer, {u"say \"hi\" now"_s}},
        {"quoted text", u"answer \" a \\\"b\\\" \\\\n\\n\""_s, Verb::Answer, {u" a \"b\" \\n\n"_s}},
        {"empty text", u"set name \"\""_s, Verb::Set, {u"name"_s, QString()}},
        {"backslashes of a path", u"file C:\\new\\table.dxf"_s, Verb::File, {u"C:\\new\\table.dxf"_s}},
        {"expression keeps all quotes", u"lisp \"a\""_s, Verb::Lisp, {u"\"a\""_s}},
        {"quoted word", u"click \"text:Make symbol\""_s, Verb::Click, {u"text:Make symbol"_s}},
        {"several rows", u"row list \"one row\" two"_s, Verb::Row, {u"list"_s, u"one row"_s, u"two"_s}},
        {"yes", u"check box ON"_s, Verb::Check, {u"box"_s, u"yes"_s}},
        {"no", u"expect-modified off"_s, Verb::ExpectModified, {u"no"_s}},
        {"handle with a point", u"pickhandle 2F 1,2"_s, Verb::PickHandle, {u"2F"_s, u"1,2"_s}},
        {"handle alone", u"pickhandle 2f"_s, Verb::PickHandle, {u"2f"_s}},
        {"goes on", u"lisp (list 1 \\\n  2 \\\n 3)"_s, Verb::Lisp, {u"(list 1 2 3)"_s}},
        {"goes on with nothing", u"lisp (list 1)  \\\n\\\n\n"_s, Verb::Lisp, {u"(list 1)"_s}},
        {"goes on with several backslashes", u"lisp (list 1 \\ \\\n2)"_s, Verb::Lisp, {u"(list 1 2)"_s}},
        {"non-ASCII", u"message \"größer als 3 µm\" Ja"_s, Verb::Message, {u"größer als 3 µm"_s, u"Ja"_s}},
    };
    for (const auto &[name, text, verb, words] : rows) {
        const PlaybackScript script = parsePlayback(text);
        ASSERT_TRUE(script.errors.isEmpty()) << name << ": " << script.errors.first().message.toStdString();
        ASSERT_EQ(script.steps.size(), 1) << name;
        EXPECT_EQ(script.steps[0].verb, verb) << name;
        EXPECT_EQ(script.steps[0].words, words) << name;
    }
}

TEST(PlaybackScript, TellsWhatIsWrongWithALine)
{
    const std::pair<QString, QString> rows[] = {
        {u"clik ok"_s, u"unknown word \"clik\""_s},
        {u"Command LINE"_s, u"unknown word \"Command\""_s},
        {u"command"_s, u"command: something is missing at the end of the line"_s},
        {u"set box"_s, u"set: something is missing at the end of the line"_s},
        {u"enter now"_s, u"enter: too much on the line: \"now\""_s},
        {u"point 10"_s, u"point: \"10\" is no point; write x,y or x,y,z"_s},
        {u"point 10,"_s, u"point: \"10,\" is no point; write x,y or x,y,z"_s},
        {u"point 1,2,3,4"_s, u"point: \"1,2,3,4\" is no point; write x,y or x,y,z"_s},
        {u"point inf,0"_s, u"point: \"inf,0\" is no point; write x,y or x,y,z"_s},
        {u"window 0,0"_s, u"window: something is missing at the end of the line"_s},
        {u"pickhandle XY"_s, u"pickhandle: \"XY\" is no handle"_s},
        {u"pickhandle 0"_s, u"pickhandle: \"0\" is no handle"_s},
        {u"check box maybe"_s, u"check: \"maybe\" is neither yes nor no (on, off)"_s},
        {u"expect-count LINE -1"_s, u"expect-count: \"-1\" is no whole number from 0 up"_s},
        {u"message \"a\" \"b"_s, u"message: a quote is not closed, or text follows right behind it"_s},
        {u"answer \"a\"b"_s, u"answer: a quote is not closed, or text follows right behind it"_s},
        {u"answer \"a\" b"_s, u"answer: too much on the line: \"b\""_s},
        {u"lisp (a \\"_s, u"the line goes on (it ends in a backslash), but the session ends"_s},
        {u"part a"_s, u"part: it has no end"_s},
        {u"end"_s, u"end: no part was begun"_s},
        {u"play a"_s, u"play: there is no part a"_s},
        {u"expect-same-file a"_s, u"expect-same-file: something is missing at the end of the line"_s},
    };
    for (const auto &[line, message] : rows) {
        const PlaybackScript script = parsePlayback(u"# first\n\n"_s + line);
        ASSERT_EQ(script.errors.size(), 1) << line.toStdString();
        EXPECT_EQ(script.errors[0].message, message);
        EXPECT_EQ(script.errors[0].line, 3) << line.toStdString();
    }
}

/// Steps as they are played, a line each.
QString stepsOf(const QList<Step> &steps)
{
    QStringList lines;
    for (const Step &step : steps)
        lines.append(step.source);
    return lines.join(u'|');
}

TEST(PlaybackScript, PutsPartsWhereTheyArePlayed)
{
    const std::pair<QString, QString> rows[] = {
        {u"part a X Y\npoint ${X}\nanswer <${Y}>${Z}\nend\nplay a 1,2 \"b \\\"c\""_s,
         u"point 1,2|answer <b \"c>${Z}"_s},
        {u"part a X REST...\nlisp (f ${REST} ${X})\nend\nplay a 1 \"two\"  three"_s, u"lisp (f \"two\"  three 1)"_s},
        {u"part a LINE\n${LINE}\nenter\nend\nplay a \"\"\nplay a cancel\nplay a #"_s, u"enter|cancel|enter|enter"_s},
        {u"part a X\nplay b ${X}${X}\nend\npart b X\nanswer ${X}\nend\nplay a 7"_s, u"answer 77"_s},
        {u"part a\nend\nplay a"_s, QString()},
        {u"point 1,2 ~ enter  ~  ~ answer \"a ~ \\\" ~ b\" ~ lisp (f \"x ~ y\" '~) \\\n ~ enter"_s,
         u"point 1,2|enter|answer \"a ~ \\\" ~ b\"|lisp (f \"x ~ y\" '~)|enter"_s},
        {u"lisp (f \"\\\\\") ~ enter ~ answer \"\\\\\" ~ cancel"_s,
         u"lisp (f \"\\\\\")|enter|answer \"\\\\\"|cancel"_s},
        {u"part a X ~ answer ${X} ~ enter ~ end ~ play a 1 ~ play a \"2 ~ # x ~ cancel\""_s,
         u"answer 1|enter|answer 2|cancel|enter"_s},
    };
    for (const auto &[text, steps] : rows) {
        const PlaybackScript script = parsePlayback(text);
        EXPECT_TRUE(script.errors.isEmpty()) << script.errors.value(0).message.toStdString();
        EXPECT_EQ(stepsOf(script.steps), steps);
    }
}

TEST(PlaybackScript, TellsWhatIsWrongWithPartsAndWhere)
{
    // The error's line is that of the outermost play.
    const std::tuple<QString, int, QString> rows[] = {
        {u"part a\n\nclik\nend\nenter\nplay a"_s, 6, u"part a, line 3: unknown word \"clik\""_s},
        {u"part a X\npoint ${X}\nend\npart b\nplay a one\nend\nplay b"_s, 7,
         u"part b, line 5, part a, line 2: point: \"one\" is no point; write x,y or x,y,z"_s},
        {u"part a\nplay b\nend\npart b\nplay a\nend\nplay a"_s, 7,
         u"part a, line 2, part b, line 5: play: the part a plays itself"_s},
        {u"part a X Y...\nend\nplay a"_s, 3, u"play: the part a takes X Y..."_s},
        {u"part a\nend\nplay a b"_s, 3, u"play: the part a takes no arguments"_s},
        {u"part a\npart b\nend"_s, 2, u"part: the part before it has no end"_s},
        {u"part a\nend\npart a\nend"_s, 3, u"part: there is a part a already"_s},
        {u"enter\ndrawing new"_s, 2, u"drawing: only the first line says which drawing it is"_s},
    };
    for (const auto &[text, line, message] : rows) {
        const PlaybackScript script = parsePlayback(text);
        ASSERT_FALSE(script.errors.isEmpty()) << message.toStdString();
        EXPECT_EQ(script.errors[0].message, message);
        EXPECT_EQ(script.errors[0].line, line) << message.toStdString();
    }
    QString parts = u"part p0 X\nanswer ${X}\nend\n"_s;
    for (int i = 1; i < 60; ++i)
        parts += u"part p%1 X\nplay p%2 %3\nend\n"_s.arg(QString::number(i), QString::number(i - 1),
                                                         i < 30 ? u"${X}${X}${X}"_s : u"${X}"_s);
    EXPECT_TRUE(parsePlayback(parts + u"play p29 x"_s).errors.value(0).message.endsWith(u"the parts write too much"_s));
    EXPECT_TRUE(parsePlayback(parts + u"play p59 x"_s).errors.value(0).message.endsWith(u"one in the other"_s));
}

TEST(PlaybackScript, PlaysEachCaseBehindTheFirstLines)
{
    const PlaybackScript script =
        parsePlayback(u"drawing a b.dxf\npart p X\ncase ${X}\nend\nlisp 1\ncase one two\nenter\n"
                      "play p three\ncancel\n"_s);
    ASSERT_TRUE(script.errors.isEmpty()) << script.errors[0].message.toStdString();
    EXPECT_EQ(script.drawing, u"a b.dxf"_s);
    const QList<PlaybackCase> cases = casesToPlay(script);
    ASSERT_EQ(cases.size(), 2);
    EXPECT_EQ(cases[0].name + u'=' + stepsOf(cases[0].steps), u"one two=lisp 1|enter"_s);
    EXPECT_EQ(cases[1].name + u'=' + stepsOf(cases[1].steps), u"three=lisp 1|cancel"_s);
    EXPECT_EQ(stepsOf(casesToPlay(parsePlayback(u"enter"_s)).value(0).steps), u"enter"_s);
}

TEST(PlaybackScript, ReportsEveryBadLineAndKeepsNumbersBehindLongOnes)
{
    const PlaybackScript script = parsePlayback(u"nonsense\nlisp (a \\\n b)\nmore nonsense\nenter\n"_s);
    ASSERT_EQ(script.errors.size(), 2);
    EXPECT_EQ(script.errors[1].line, 4);
    ASSERT_EQ(script.steps.size(), 2);
    EXPECT_EQ(script.steps[0].line, 2);
    EXPECT_EQ(script.steps[1].line, 5);
}

TEST(PlaybackScript, RefusesFilesThatAreNoSessions)
{
    const QTemporaryDir folder;
    const auto read = [&](const char *name, const QByteArray &bytes) {
        QFile file(folder.filePath(QString::fromLatin1(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        const PlaybackScript script = readPlayback(file.fileName());
        return script.errors.isEmpty() ? QString() : script.errors[0].message;
    };
    EXPECT_EQ(read("good", "\xef\xbb\xbf# with mark\nenter\n"), QString());
    EXPECT_TRUE(read("latin", "answer gr\xfc\xdf").endsWith(u"is no UTF-8 text"_s));
    EXPECT_TRUE(read("binary", QByteArray("enter\0\n", 7)).endsWith(u"is no UTF-8 text"_s));
    EXPECT_TRUE(read("long", QByteArray(17 * 1024 * 1024, '\n')).endsWith(u"is too long for a session"_s));
    EXPECT_TRUE(readPlayback(folder.filePath(u"none"_s)).errors[0].message.contains(u"cannot read"_s));
    EXPECT_TRUE(readPlayback(folder.path()).errors[0].message.contains(u"cannot read"_s));
}

TEST(PlaybackScript, ManualKnowsEveryWordAndItsExampleIsASession)
{
    QFile file(qEnvironmentVariable("ORTAKIT_SOURCE") + u"/docs/playback.md"_s);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString manual = QString::fromUtf8(file.readAll());
    for (const QString &verb : playbackVerbs())
        EXPECT_TRUE(manual.contains(u'`' + verb + u' ') || manual.contains(u'`' + verb + u'`')) << verb.toStdString();
    const QString example = manual.section(u"```session\n"_s, 1, 1).section(u"```"_s, 0, 0);
    const PlaybackScript script = parsePlayback(example);
    EXPECT_TRUE(script.errors.isEmpty()) << script.errors.value(0).message.toStdString();
    EXPECT_GT(script.steps.size(), 5);
}

} // namespace
