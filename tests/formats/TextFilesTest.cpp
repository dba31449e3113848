#include "formats/FileWriting.h"
#include "formats/TextReading.h"
#include "tests/formats/Folder.h"

namespace {

TEST(TextReading, ReadsTheLinesOfWhatAnEditorOrProgramWrote)
{
    // expected: each line with "|" behind it
    const std::tuple<const char *, QByteArray, QString> rows[] = {
        {"empty", "", {}},
        {"only a byte-order mark", "\xEF\xBB\xBF", {}},
        {"a byte-order mark", "\xEF\xBB\xBFx=1\nb=2\n", u"x=1|b=2|"_s},
        {"no line feed at the end", "a=1\nb=2", u"a=1|b=2|"_s},
        {"carriage returns", "a=1\r\nb=2\r\n", u"a=1|b=2|"_s},
        {"a carriage return at the end", "a=1\nb=2\r", u"a=1|b=2|"_s},
        {"byte-order marks within", "\xEF\xBB\xBF\xEF\xBB\xBFx=1\n\xEF\xBB\xBFy", u"\uFEFFx=1|\uFEFFy|"_s},
        {"empty lines are lines", "a=1\n\nb=2\n", u"a=1||b=2|"_s},
        {"UTF-16, low byte first", QByteArray("\xFF\xFEx\0=\0\xE4\0\n\0", 10), u"x=ä|"_s},
        {"UTF-16, high byte first", QByteArray("\xFE\xFF\0a\0=\0\xE4", 8), u"a=ä|"_s},
        {"UTF-16 cut in a character", QByteArray("\xFF\xFEx\0=\0x", 7), u"x=|"_s},
        {"another encoding", "a=\xE4\nb=2\n", u"a=\uFFFD|b=2|"_s},
        {"a null character", QByteArray("a=\0x\nb=2", 8), u"a=\0x|b=2|"_s},
    };
    const Folder folder;
    for (const auto &[name, bytes, expected] : rows) {
        const TextReading file = readTextFile(folder.writeFile(u"text"_s, bytes));
        ASSERT_TRUE(file) << name;
        QString lines;
        for (LineReader reader(file.text); reader.next();)
            lines += reader.string() + u'|';
        EXPECT_EQ(lines, expected) << name;
    }
}

TEST(TextReading, WhatIsNoTextFileIsRefusedWithAReason)
{
    const Folder folder;
    for (const QString &path : {QString(), folder.path(u"missing"_s), folder.path(u"."_s), u"/dev/zero"_s})
        EXPECT_FALSE(readTextFile(path).error.isEmpty()) << path.toStdString();
    EXPECT_FALSE(readTextFile(folder.writeFile(u"text"_s, "12345"), 4).error.isEmpty());
}

// What becomes of links, permissions and full disks is in the tests of files/.
TEST(FileWriting, ReplacesAndAppendsOrSaysWhyNot)
{
    const Folder folder;
    const QString path = folder.writeFile(u"text"_s, QByteArray(100, 'x'));
    EXPECT_TRUE(replaceFile(path, "new\n") && appendToFile(path, "two\n"));
    EXPECT_EQ(Folder::readFile(path), "new\ntwo\n");
    for (const auto &write : {replaceFile, appendToFile}) {
        for (const QString &refused : {QString(), folder.path(u"missing/text"_s), folder.path({}), u"/dev/full"_s}) {
            QString error;
            EXPECT_FALSE(write(refused, "new", &error)) << refused.toStdString();
            EXPECT_FALSE(error.isEmpty()) << refused.toStdString();
        }
    }
}

} // namespace
