// Files that drawings name: where they are found, and in which letter case.

#include "host/drawing/references/NamedFiles.h"

#include "tests/drawing/DrawingSample.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <filesystem>

namespace host::drawing {
using namespace Qt::StringLiterals;

namespace {

/// A drawing in plans/, a library whose files may be read, and a folder whose may not.
class NamedFilesTest : public testing::Test
{
protected:
    NamedFilesTest()
    {
        for (const char *name :
             {"plans/plan.dwg", "plans/logo.png", "plans/LOGO.png", "plans/Bilder/a.png", "plans/bilder/b.png",
              "plans/BILDER/c.png", "plans/Bilder/c.png", "plans/m\u00f6bel 100%.dwg", "plans/Sub/x.png/inner",
              "Library/Door.DWG", "Library/plan.dwg", "Library/Plan.DWG", "Library/logo.PNG", "Else/Secret.dwg"})
            write(QString::fromUtf8(name));
        QFile::link(m_folder.filePath(u"Else"_s), m_folder.filePath(u"plans/Out"_s));
        drawing->setPath(m_folder.filePath(u"plans/host.dwg"_s));
        find = namedFiles(*drawing, {.folders = {m_folder.filePath(u"Library"_s)},
                                     .files = {},
                                     .refused = [this](const QString &path, const QString &) { refused = path; }});
    }
    void write(const QString &name) const
    {
        const QString path = m_folder.filePath(name);
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    /// As if the folder had last changed so many hours before the test began.
    void leaveAlone(const QString &folder, int hours = 1) const
    {
        std::filesystem::last_write_time(m_folder.filePath(folder).toStdString(), m_begin - std::chrono::hours(hours));
    }
    /// What a name finds, below the folder of all; empty when nothing.
    QString found(const QString &name)
    {
        const QString top = QFileInfo(m_folder.path()).canonicalFilePath() + u'/';
        refused.clear();
        const QString path = find(QString(name).replace(u"TOP/"_s, top));
        refused.remove(top);
        return QString(path).remove(top);
    }

    const std::filesystem::file_time_type m_begin = std::filesystem::file_time_type::clock::now();
    QTemporaryDir m_folder;
    std::unique_ptr<Drawing> drawing = sample("AC1015");
    FileFinder find;
    QString refused;
};

TEST_F(NamedFilesTest, LettersCaseDoesNotCountWhereOneFileIsMeant)
{
    const std::tuple<const char *, const char *, const char *> rows[] = {
        // the name, what it finds, what is there and may not be read
        {"PLAN.DWG", "plans/plan.dwg", ""},
        {"Plan.DWG", "Library/Plan.DWG", ""}, // the exact name goes first, wherever it is
        {"..\\LIBRARY\\DOOR.dwg", "Library/Door.DWG", ""},
        {"TOP/library/door.dwg", "Library/Door.DWG", ""},
        {"door.dwg", "Library/Door.DWG", ""},
        {"logo.png", "plans/logo.png", ""},
        {"Logo.png", "", ""}, // two are there, and the library's is further away
        {"bilder/A.PNG", "plans/Bilder/a.png", ""},
        {"BILDER/b.png", "plans/bilder/b.png", ""},
        {"bilder\\c.png", "", ""},
        {"./x/../PLAN.dwg", "plans/plan.dwg", ""},
        {"M\u00d6BEL 100%.DWG", "plans/m\u00f6bel 100%.dwg", ""},
        {"mo\u0308bel 100%.dwg", "plans/m\u00f6bel 100%.dwg", ""}, // taken to pieces
        {"SUB/X.PNG", "", ""},                                     // a folder
        {"plan.dw", "", ""},
        {"../else/SECRET.dwg", "", "Else/Secret.dwg"},
        {"out/secret.DWG", "", "Else/Secret.dwg"},
        {"TOP/ELSE/Secret.dwg", "", "Else/Secret.dwg"},
        {"C:\\work\\PLAN.DWG", "", ""},
        {"", "", ""},
        {"..", "", ""},
    };
    for (const auto &[name, path, kept] : rows) {
        SCOPED_TRACE(name);
        EXPECT_EQ(found(QString::fromUtf8(name)), QString::fromUtf8(path));
        EXPECT_EQ(refused, QString::fromUtf8(kept));
    }
}

TEST_F(NamedFilesTest, WhatAppearsLaterIsFound)
{
    EXPECT_EQ(found(u"LATER.dwg"_s), u""_s);
    write(u"plans/later.dwg"_s);
    EXPECT_EQ(found(u"LATER.dwg"_s), u"plans/later.dwg"_s) << "in a folder that just changed";
    leaveAlone(u"plans"_s);
    EXPECT_EQ(found(u"LAST.dwg"_s), u""_s) << "of a folder that was left alone";
    write(u"plans/last.dwg"_s);
    EXPECT_EQ(found(u"LAST.dwg"_s), u"plans/last.dwg"_s);
    QFile::remove(m_folder.filePath(u"plans/later.dwg"_s));
    EXPECT_EQ(found(u"LATER.dwg"_s), u""_s);
}

TEST_F(NamedFilesTest, FoldersAreListedAgainWhenTheirTimeIsAnotherOne)
{
    leaveAlone(u"Library"_s, 2);
    EXPECT_EQ(found(u"FIRST.dwg"_s), u""_s);
    write(u"Library/first.dwg"_s);
    leaveAlone(u"Library"_s, 2);
    EXPECT_EQ(found(u"FIRST.dwg"_s), u""_s) << "nothing says that it is there";
    leaveAlone(u"Library"_s, 1);
    EXPECT_EQ(found(u"FIRST.dwg"_s), u"Library/first.dwg"_s);
}

TEST_F(NamedFilesTest, NamesOfAnyLengthAreTaken)
{
    for (const QString &name : {u"a/"_s.repeated(1'000'000), u"../"_s.repeated(1000) + u"x"_s, u"A"_s.repeated(4096)})
        EXPECT_EQ(found(name), u""_s);
}

} // namespace
} // namespace host::drawing
