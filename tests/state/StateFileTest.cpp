#include "state/StateFile.h"

#include "tests/support/FakeHost.h"
#include "tests/support/QtTestPrinters.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using ortakit::readStateFile;
using ortakit::writeStateFile;
using ortakit::test::FakeHost;

namespace {

struct ReadRow
{
    const char *name;
    QByteArray bytes;
    QStringList expected;
};

TEST(StateFile, ReadsTheLinesOfWhatAnEditorOrProgramWrote)
{
    const ReadRow rows[] = {
        {"empty", "", {}},
        {"only a byte-order mark", "\xEF\xBB\xBF", {}},
        {"with a byte-order mark",
         "\xEF\xBB\xBF"
         "a=1\nb=2\n",
         {u"a=1"_s, u"b=2"_s}},
        {"without", "a=1\nb=2\n", {u"a=1"_s, u"b=2"_s}},
        {"no line feed at the end", "a=1\nb=2", {u"a=1"_s, u"b=2"_s}},
        {"carriage returns", "a=1\r\nb=2\r\n", {u"a=1"_s, u"b=2"_s}},
        {"empty lines are lines", "a=1\n\nb=2\n", {u"a=1"_s, QString(), u"b=2"_s}},
        {"UTF-16, low byte first",
         QByteArray("\xFF\xFE"
                    "a\0=\0\xE4\0\n\0",
                    10),
         {u"a=ä"_s}},
        {"UTF-16, high byte first",
         QByteArray("\xFE\xFF"
                    "\0a\0=\0\xE4",
                    8),
         {u"a=ä"_s}},
        {"UTF-16 cut in a character",
         QByteArray("\xFF\xFE"
                    "a\0=\0x",
                    7),
         {u"a="_s}},
        {"another encoding", "a=\xE4\nb=2\n", {u"a=\uFFFD"_s, u"b=2"_s}},
        {"a null character", QByteArray("a=\0x\nb=2", 8), {u"a=\0x"_s, u"b=2"_s}},
    };
    const FakeHost host;
    for (const ReadRow &row : rows) {
        const auto lines = readStateFile(host.writeFile(u"state"_s, row.bytes));
        ASSERT_TRUE(lines) << row.name;
        EXPECT_EQ(*lines, row.expected) << row.name;
    }
}

TEST(StateFile, WhatIsNoStateFileIsNotRead)
{
    const FakeHost host;
    const QString pipe = host.path(u"pipe"_s);
    ASSERT_EQ(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    QFile huge(host.path(u"huge"_s));
    ASSERT_TRUE(huge.open(QIODevice::WriteOnly) && huge.resize(qint64(40) * 1024 * 1024 * 1024));
    for (const QString &path : {QString(), host.path(u"missing"_s), host.path(u"."_s), u"/dev/zero"_s, pipe,
                                huge.fileName(), host.path(u"missing/state"_s)})
        EXPECT_FALSE(readStateFile(path)) << path.toStdString();
}

TEST(StateFile, WritingReplacesTheWholeFileOrNothing)
{
    const FakeHost host;
    const QString path = host.writeFile(u"state"_s, QByteArray(100000, 'x'));
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);

    EXPECT_TRUE(writeStateFile(path, u"größe=1\n"_s));
    EXPECT_EQ(FakeHost::readFile(path), "\xEF\xBB\xBFgr\xC3\xB6\xC3\x9F"
                                        "e=1\n");
    EXPECT_FALSE(QFile::permissions(path) & QFile::ReadOther) << "the file's permissions stay";

    EXPECT_TRUE(writeStateFile(path, {}));
    EXPECT_EQ(FakeHost::readFile(path), QByteArray());
    EXPECT_EQ(QDir(host.path({})).entryList(QDir::Files), QStringList{u"state"_s}) << "nothing is left beside it";
}

TEST(StateFile, ALinkIsFollowedAndStays)
{
    const FakeHost host;
    const QString target = host.writeFile(u"target"_s, "old");
    ASSERT_TRUE(QFile::link(target, host.path(u"link"_s)));
    EXPECT_TRUE(writeStateFile(host.path(u"link"_s), u"a=1\n"_s));
    EXPECT_TRUE(QFileInfo(host.path(u"link"_s)).isSymLink());
    EXPECT_EQ(FakeHost::readFile(target), "\xEF\xBB\xBF"
                                          "a=1\n");
}

TEST(StateFile, WhatCannotBeWrittenIsRefused)
{
    const FakeHost host;
    const QString file = host.writeFile(u"file"_s, "kept");
    const QString pipe = host.path(u"pipe"_s);
    ASSERT_EQ(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    ASSERT_TRUE(QFile::link(u"/dev/full"_s, host.path(u"full"_s)));
    for (const QString &path : {QString(), host.path(u"missing/state"_s), file + u"/state"_s, host.path({}), pipe,
                                host.path(u"full"_s), u"/dev/full"_s})
        EXPECT_FALSE(writeStateFile(path, u"a=1\n"_s)) << path.toStdString();
    EXPECT_EQ(FakeHost::readFile(file), "kept");
    EXPECT_FALSE(QFileInfo(u"/dev/full"_s).isFile());
}

} // namespace
