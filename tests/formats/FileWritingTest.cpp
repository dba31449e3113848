#include "formats/FileWriting.h"

#include "tests/formats/Folder.h"
#include "tests/support/QtTestPrinters.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace ortakit;
using namespace Qt::StringLiterals;
using formats_test::Folder;

namespace {

TEST(FileWriting, WritingReplacesTheWholeFileOrNothing)
{
    const Folder folder;
    const QString path = folder.writeFile(u"text"_s, QByteArray(100000, 'x'));
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);

    EXPECT_TRUE(replaceFile(path, "new"));
    EXPECT_EQ(Folder::readFile(path), "new");
    EXPECT_FALSE(QFile::permissions(path) & QFile::ReadOther) << "the file's permissions stay";

    EXPECT_EQ(QDir(folder.path({})).entryList(QDir::Files), QStringList{u"text"_s}) << "nothing is left beside it";

    ASSERT_TRUE(QFile::link(path, folder.path(u"link"_s)));
    EXPECT_TRUE(replaceFile(folder.path(u"link"_s), "linked\n"));
    EXPECT_TRUE(QFileInfo(folder.path(u"link"_s)).isSymLink()) << "a link is followed and stays";
    EXPECT_TRUE(appendToFile(path, "two\n"));
    EXPECT_EQ(Folder::readFile(path), "linked\ntwo\n");
}

TEST(FileWriting, WhatCannotBeWrittenIsRefused)
{
    const Folder folder;
    const QString file = folder.writeFile(u"file"_s, "kept");
    const QString pipe = folder.path(u"pipe"_s);
    ASSERT_EQ(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    ASSERT_TRUE(QFile::link(u"/dev/full"_s, folder.path(u"full"_s)));
    for (const QString &path : {QString(), folder.path(u"missing/text"_s), file + u"/text"_s, folder.path({}), pipe,
                                folder.path(u"full"_s), u"/dev/full"_s}) {
        QString error;
        EXPECT_FALSE(replaceFile(path, "new", &error)) << path.toStdString();
        EXPECT_FALSE(error.isEmpty()) << path.toStdString();
        error.clear();
        EXPECT_FALSE(appendToFile(path, "new", &error)) << path.toStdString();
        EXPECT_FALSE(error.isEmpty()) << path.toStdString();
    }
    EXPECT_EQ(Folder::readFile(file), "kept");
    EXPECT_FALSE(QFileInfo(u"/dev/full"_s).isFile());
}

} // namespace
