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
    };
    for (const auto &[line, message] : rows) {
        const PlaybackScript script = parsePlayback(u"# first\n\n"_s + line);
        ASSERT_EQ(script.errors.size(), 1) << line.toStdString();
        EXPECT_EQ(script.errors[0].message, message);
        EXPECT_EQ(script.errors[0].line, 3) << line.toStdString();
    }
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
