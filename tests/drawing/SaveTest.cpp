#include "host/drawing/file/Save.h"

#include "host/drawing/records/Journal.h"
#include "tests/drawing/DrawingSample.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <csignal>
#include <sys/resource.h>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

/// A drawing with something to save.
std::unique_ptr<Drawing> changed()
{
    auto drawing = sample("AC1015");
    EXPECT_TRUE(drawing->entities().create(fieldsOf("0 POINT|10 0,0,0")));
    return drawing;
}

class SaveTest : public testing::Test
{
protected:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    /// Names of all files, hidden ones too: nothing may be left lying about.
    QStringList files() const { return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden); }

    QTemporaryDir m_folder;
};

TEST_F(SaveTest, WritesAndTakesThePath)
{
    const auto drawing = changed();
    EXPECT_TRUE(save(*drawing, path(u"a.dxf"_s)));
    EXPECT_EQ(contents(path(u"a.dxf"_s)), drawing->toBytes());
    EXPECT_FALSE(drawing->journal().isModified());
    EXPECT_EQ(drawing->path(), path(u"a.dxf"_s));
    drawing->journal().undo();
    EXPECT_TRUE(save(*drawing, path(u"a.dxf"_s)));
    EXPECT_EQ(contents(path(u"a.dxf"_s)), sampleText("AC1015"));
    EXPECT_EQ(files(), QStringList{u"a.dxf"_s});
}

TEST_F(SaveTest, CopiesLeaveTheDrawingAlone)
{
    const auto drawing = changed();
    EXPECT_TRUE(saveCopy(*drawing, path(u"b.dxf"_s)));
    EXPECT_TRUE(drawing->journal().isModified());
    EXPECT_TRUE(drawing->path().isEmpty());
    EXPECT_TRUE(saveSymbolCopy(*drawing, path(u"symbol.dwg"_s)));
    EXPECT_TRUE(Drawing::open(path(u"symbol.dwg"_s)));
}

TEST_F(SaveTest, RefusesTheOtherFormat)
{
    for (const QString &name : {u"a.dwg"_s, u"a.DWG"_s, u"a.Dwg "_s}) {
        const auto drawing = changed();
        const SaveResult result = save(*drawing, path(name));
        EXPECT_TRUE(result.error.contains(u"cannot write DWG"_s)) << result.error.toStdString();
        EXPECT_TRUE(drawing->journal().isModified());
    }
    EXPECT_TRUE(files().isEmpty());
}

void expectFailure(const QString &path, const QString &reason)
{
    const auto drawing = changed();
    const SaveResult result = save(*drawing, path);
    EXPECT_TRUE(result.error.contains(path)) << result.error.toStdString();
    EXPECT_TRUE(result.error.contains(reason)) << result.error.toStdString();
    EXPECT_TRUE(drawing->journal().isModified());
    EXPECT_TRUE(drawing->path().isEmpty());
}

TEST_F(SaveTest, FailuresNameFileAndReason)
{
    expectFailure(path(u"none/a.dxf"_s), u"No such file or directory"_s);
    expectFailure(m_folder.path(), u"Not a regular file"_s);
    expectFailure(u"/dev/full"_s, u"Not a regular file"_s);
}

TEST_F(SaveTest, WhatWouldNotOpenTheSameAgainIsNotSaved)
{
    const std::pair<const char *, QString> rows[] = {
        {"0 EOF", u"could not be opened again"_s},
        {"0 ENDSEC", u"could not be opened"_s},
        {"0 SECTION|2 ENTITIES", u"could not be opened again"_s},
    };
    for (const auto &[fields, reason] : rows) {
        write(path(u"a.dxf"_s), "old");
        const auto drawing = changed();
        drawing->insert(noRecord, drawing->sectionRecord(Section::Entities), RecordKind::Entity, fieldsOf(fields));
        const SaveResult result = save(*drawing, path(u"a.dxf"_s));
        EXPECT_TRUE(result.error.contains(reason)) << fields << ": " << result.error.toStdString();
        EXPECT_EQ(contents(path(u"a.dxf"_s)), "old") << fields;
        EXPECT_EQ(files(), QStringList{u"a.dxf"_s}) << fields;
    }
}

/// A disk that is full half-way, by way of the limit on a file's size.
TEST_F(SaveTest, WithoutRoomTheOldFileStays)
{
    write(path(u"a.dxf"_s), "old");
    struct rlimit before;
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    const struct rlimit small = {1000, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    const auto drawing = changed();
    const SaveResult result = save(*drawing, path(u"a.dxf"_s));
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, oldHandler);
    EXPECT_TRUE(result.error.contains(u"File too large"_s)) << result.error.toStdString();
    EXPECT_EQ(contents(path(u"a.dxf"_s)), "old");
    EXPECT_EQ(files(), QStringList{u"a.dxf"_s});
    EXPECT_TRUE(drawing->journal().isModified());
}

} // namespace
} // namespace host::drawing
