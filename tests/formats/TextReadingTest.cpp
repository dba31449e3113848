#include "formats/TextReading.h"

#include "tests/formats/Folder.h"
#include "tests/support/QtTestPrinters.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace ortakit;
using namespace Qt::StringLiterals;
using formats_test::Folder;

namespace {

TEST(TextReading, ReadsTheLinesOfWhatAnEditorOrProgramWrote)
{
    const struct
    {
        const char *name;
        QByteArray bytes;
        QString expected; ///< each line with "|" behind it
    } rows[] = {
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
    for (const auto &row : rows) {
        const TextReading file = readTextFile(folder.writeFile(u"text"_s, row.bytes));
        ASSERT_TRUE(file) << row.name;
        QString lines;
        for (LineReader reader(file.text); reader.next();)
            lines += reader.string() + u'|';
        EXPECT_EQ(lines, row.expected) << row.name;
    }
}

TEST(TextReading, WhatIsNoTextFileIsRefusedWithAReason)
{
    const Folder folder;
    const QString pipe = folder.path(u"pipe"_s);
    ASSERT_EQ(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    QFile huge(folder.path(u"huge"_s));
    ASSERT_TRUE(huge.open(QIODevice::WriteOnly) && huge.resize(qint64(40) * 1024 * 1024 * 1024));
    for (const QString &path : {QString(), folder.path(u"missing"_s), folder.path(u"."_s), u"/dev/zero"_s, pipe,
                                huge.fileName(), folder.path(u"missing/text"_s)})
        EXPECT_FALSE(readTextFile(path).error.isEmpty()) << path.toStdString();
}

} // namespace
