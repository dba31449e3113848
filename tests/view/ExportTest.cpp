#include "host/view/paint/Export.h"

#include "tests/view/Rendering.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace host::view::test {
namespace {

using namespace Qt::StringLiterals;

const DxfText exportedText{
    .entities = "0 LINE|8 0|10 10|20 10|11 90|21 90|0 3DSOLID|8 0|0 TEXT|8 0|10 10|20 50|40 5|1 Hello",
    .blocks = blockText("CROSS", "0 LINE|8 0|62 1|10 0|20 5|11 10|21 5|0 LINE|8 0|62 1|10 5|20 0|11 5|21 10")};

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class ExportTest : public testing::Test
{
protected:
    QTemporaryDir m_folder;
    std::unique_ptr<drawing::Drawing> m_drawing = readDrawing(exportedText);
    QString path(const QString &name) const { return m_folder.filePath(name); }
};

TEST_F(ExportTest, Png)
{
    const ExportResult result = exportPng(*m_drawing, path(u"a.png"_s), {.pixels = QSize(320, 240)});
    ASSERT_TRUE(result) << result.error.toStdString();
    const QImage image(path(u"a.png"_s));
    EXPECT_EQ(image.size(), QSize(320, 240));
    EXPECT_EQ(image.pixelColor(0, 0), QColor(255, 255, 255));
    EXPECT_FALSE(isBlank(image));
    EXPECT_EQ(result.report.skipped, (QMap<QString, qint64>{{u"3DSOLID"_s, 1}}));
}

TEST_F(ExportTest, SvgIsWellFormedAndHasLines)
{
    const ExportResult result = exportSvg(*m_drawing, path(u"a.svg"_s));
    ASSERT_TRUE(result) << result.error.toStdString();
    QXmlStreamReader xml(readAll(path(u"a.svg"_s)));
    int shapes = 0;
    while (!xml.atEnd()) {
        xml.readNext();
        shapes += xml.isStartElement() && (xml.name() == u"path" || xml.name() == u"polyline") ? 1 : 0;
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    EXPECT_GE(shapes, 2);
}

TEST_F(ExportTest, PdfHasTheSheetItWasAskedFor)
{
    const ExportResult result = exportPdf(*m_drawing, path(u"a.pdf"_s), {.sheet = {.paper = QSizeF(420.0, 297.0)}});
    ASSERT_TRUE(result) << result.error.toStdString();
    const QByteArray bytes = readAll(path(u"a.pdf"_s));
    EXPECT_TRUE(bytes.startsWith("%PDF-"));
    EXPECT_TRUE(bytes.contains("MediaBox [0 0 1191.0")) << "420 millimetres in whole points";
}

TEST_F(ExportTest, FailureKeepsTheOldFileAndSaysWhy)
{
    const QString inNoFolder = path(u"no/such/folder/a"_s);
    EXPECT_TRUE(exportPng(*m_drawing, inNoFolder).error.contains(QDir::toNativeSeparators(inNoFolder)));
    EXPECT_FALSE(exportSvg(*m_drawing, inNoFolder));
    EXPECT_FALSE(exportPdf(*m_drawing, inNoFolder));
    QFile old(path(u"old.png"_s));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();
    const ExportResult result = exportPng(*m_drawing, path(u"old.png"_s), {.space = u"NOSUCH"_s});
    EXPECT_TRUE(result.error.contains(u"NOSUCH"_s));
    EXPECT_EQ(readAll(path(u"old.png"_s)), "old");
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files).size(), 1) << "nothing half-written is left beside";
}

TEST_F(ExportTest, PicturesOfDrawingsAndBlocks)
{
    const QImage whole = picture(*m_drawing, {80, 60});
    EXPECT_EQ(whole.size(), QSize(80, 60));
    EXPECT_EQ(whole.pixelColor(0, 0), QColor(0, 0, 0));
    EXPECT_FALSE(isBlank(whole));
    const QImage cross = blockPicture(*m_drawing, u"cross"_s, {60, 60});
    EXPECT_EQ(cross.pixelColor(10, 10), QColor(0, 0, 0));
    EXPECT_GT(cross.pixelColor(30, 10).red() + cross.pixelColor(29, 10).red(), 200);
    EXPECT_TRUE(blockPicture(*m_drawing, u"NOSUCH"_s, {60, 60}).isNull());

    QFile file(path(u"symbol.dxf"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(dxfBytes(exportedText));
    file.close();
    EXPECT_EQ(picture(file.fileName(), {80, 60}), whole);
    EXPECT_TRUE(picture(path(u"gone.dxf"_s), {80, 60}).isNull());
    EXPECT_TRUE(picture(m_folder.path(), {80, 60}).isNull());
    EXPECT_TRUE(isBlank(picture(*readDrawing({}), {80, 60}))) << "an empty drawing is a ground alone";
    EXPECT_FALSE(picture(*m_drawing, {0, -7}).isNull()) << "impossible sizes are put right";
}

} // namespace
} // namespace host::view::test
