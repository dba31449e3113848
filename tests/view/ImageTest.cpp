// Pictures in drawings: where their pixels go, what is seen of them, and files that are none.

#include "host/view/paint/Export.h"
#include "host/view/paint/Picking.h"
#include "tests/view/Rendering.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace host::view::test {
using namespace Qt::StringLiterals;

namespace {

/// A folder with a picture of four colours, red green over blue white, and drawings that show it.
class ImageDrawing : public testing::Test
{
protected:
    ImageDrawing()
    {
        QImage image(40, 20, QImage::Format_RGB32);
        for (int y = 0; y < 20; ++y) {
            for (int x = 0; x < 40; ++x)
                image.setPixelColor(x, y, y < 10 ? (x < 20 ? Qt::red : Qt::green) : (x < 20 ? Qt::blue : Qt::white));
        }
        EXPECT_TRUE(image.save(m_folder.filePath(u"four.png"_s)));
        EXPECT_TRUE(image.save(m_folder.filePath(u"four.jpg"_s), "JPG", 100));
        EXPECT_TRUE(image.save(m_folder.filePath(u"four.bmp"_s)));
    }

    /// A picture of 80 by 40 units from 10,30 on, unless `tags` says where.
    std::unique_ptr<drawing::Drawing> drawingOf(const std::string &tags, const std::string &file = "four.png",
                                                const std::string &others = {}, const std::string &objects = {}) const
    {
        const std::string place =
            tags.find("|10 ") == std::string::npos ? "|10 10|20 30|11 2|21 0|12 0|22 2|13 40|23 20" : "|13 40|23 20";
        auto drawing = readDrawing({.entities = "0 IMAGE|5 A1|8 0|340 A2" + place + tags + others,
                                    .objects = "0 IMAGEDEF|5 A2|1 " + file + "|10 40|20 20" + objects});
        drawing->setPath(m_folder.filePath(u"a.dxf"_s));
        return drawing;
    }

    QTemporaryDir m_folder;
};

struct ColourAt
{
    double x = 0.0;
    double y = 0.0;
    QColor colour;
};

TEST_F(ImageDrawing, PixelsGoWhereTheRecordSays)
{
    const QColor ground(Qt::black);
    const std::tuple<const char *, std::string, std::vector<ColourAt>> rows[] = {
        {"upright", "", {{30, 60, Qt::red}, {70, 60, Qt::green}, {30, 40, Qt::blue}, {70, 40, Qt::white}}},
        {"turned", "|10 70|20 10|11 0|21 2|12 -2|22 0", {{40, 30, Qt::red}, {40, 70, Qt::green}, {60, 30, Qt::blue}}},
        {"mirrored", "|10 90|20 30|11 -2|21 0|12 0|22 2", {{70, 60, Qt::red}, {30, 60, Qt::green}}},
        {"skewed", "|10 10|20 30|11 1|21 0|12 2|22 2", {{45, 60, Qt::red}, {65, 60, Qt::green}, {15, 60, ground}}},
        {"window", "|71 1|91 2|14 9.5|24 4.5|14 29.5|24 14.5", {{40, 55, Qt::red}, {20, 55, ground}, {60, 65, ground}}},
        {"polygon",
         "|71 2|91 3|14 -0.5|24 19.5|14 39.5|24 19.5|14 39.5|24 -0.5",
         {{70, 40, Qt::white}, {30, 60, ground}}},
        {"clip switched off", "|280 0|71 1|91 2|14 9.5|24 4.5|14 29.5|24 14.5", {{20, 55, Qt::red}}},
        {"inverted clip", "|290 1|71 1|91 2|14 9.5|24 4.5|14 29.5|24 14.5", {{40, 55, ground}, {20, 55, Qt::red}}},
        {"not shown", "|70 0", {{30, 60, ground}}},
        {"faded", "|283 50", {{30, 60, QColor(128, 0, 0)}}},
        {"bright", "|281 100", {{30, 60, Qt::white}, {30, 40, Qt::white}}},
        {"without contrast", "|282 0", {{30, 60, QColor(128, 128, 128)}}},
    };
    for (const auto &[name, tags, colours] : rows) {
        SCOPED_TRACE(name);
        const auto drawing = drawingOf(tags);
        Scene scene(*drawing);
        const Rendering shown(scene, Scene::modelSpace);
        for (const ColourAt &at : colours) {
            const QColor found = shown.color(at.x, at.y);
            EXPECT_LE(std::abs(found.red() - at.colour.red()) + std::abs(found.green() - at.colour.green()) +
                          std::abs(found.blue() - at.colour.blue()),
                      4)
                << at.x << "," << at.y << ": " << found.name().toStdString();
        }
        EXPECT_EQ(scene.report(Scene::modelSpace).drawn, 1);
    }
}

TEST_F(ImageDrawing, FilesAreFoundByTheirNameAndReadAgain)
{
    for (const char *file : {"four.jpg", "four.bmp", ".\\four.png", "Z:\\else\\where\\four.png", "/no/such/four.png"}) {
        const auto drawing = drawingOf("", file);
        Scene scene(*drawing);
        EXPECT_GE(Rendering(scene, Scene::modelSpace).color(30, 40).blue(), 250) << file;
        EXPECT_EQ(scene.report(Scene::modelSpace).drawn, 1) << file;
    }
    const auto drawing = drawingOf("");
    Scene scene(*drawing);
    EXPECT_EQ(Rendering(scene, Scene::modelSpace).color(30, 60), QColor(Qt::red));
    QImage other(2, 2, QImage::Format_RGB32);
    other.fill(Qt::yellow);
    ASSERT_TRUE(other.save(m_folder.filePath(u"four.png"_s)));
    EXPECT_EQ(Rendering(scene, Scene::modelSpace).color(30, 60), QColor(Qt::red)) << "until it is asked for";
    scene.regenerate();
    EXPECT_EQ(Rendering(scene, Scene::modelSpace).color(30, 60), QColor(Qt::yellow));
}

/// The head of a PNG file of 65535 by 65535 pixels, of which a thousand bytes are there.
QByteArray claimedPng()
{
    return QByteArray::fromHex("89504e470d0a1a0a0000000d494844520000ffff0000ffff080200000039674e0700000011494441"
                               "54789c63601805a360140c77000003e80001b3a6d346");
}

TEST_F(ImageDrawing, WhatIsNoPictureIsAFrameWithItsName)
{
    QFile huge(m_folder.filePath(u"huge.png"_s));
    ASSERT_TRUE(huge.open(QIODevice::WriteOnly));
    huge.write(claimedPng());
    huge.close();
    QFile vector(m_folder.filePath(u"vector.svg"_s));
    ASSERT_TRUE(vector.open(QIODevice::WriteOnly));
    vector.write("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'><image href='four.png'/></svg>");
    vector.close();
    for (const char *file : {"gone.png", "huge.png", "vector.svg", "/dev/zero", "", "..\\..\\..\\four.png"}) {
        SCOPED_TRACE(file);
        const auto drawing = drawingOf("", file, {}, "|0 RASTERVARIABLES|5 A3|70 0");
        Scene scene(*drawing);
        const Rendering shown(scene, Scene::modelSpace);
        EXPECT_TRUE(shown.isInk(50, 30) && shown.isInk(10, 50)) << "the frame";
        const bool isFound = QByteArray(file) == "..\\..\\..\\four.png";
        EXPECT_EQ(shown.runs({12, 50}, {88, 50}) > 2, !isFound && QByteArray(file).size() > 0) << "the name";
        EXPECT_EQ(scene.report(Scene::modelSpace).missing().contains(u"IMAGE"), !isFound);
    }
    const auto both = drawingOf("|10 10|20 80|11 0.1|21 0|12 0|22 0.1", "huge.png",
                                "|0 IMAGE|5 A4|8 0|340 A5|10 10|20 30|11 2|21 0|12 0|22 2|13 40|23 20",
                                "|0 IMAGEDEF|5 A5|1 four.png|10 40|20 20");
    Scene scene(*both);
    EXPECT_EQ(Rendering(scene, Scene::modelSpace).color(30, 60), QColor(Qt::red)) << "what follows a huge one";
}

TEST_F(ImageDrawing, FramesAreSeenAsTheDrawingSays)
{
    for (const bool isSeen : {false, true}) {
        auto drawing =
            readDrawing({.entities = "0 IMAGE|5 A1|8 0|62 2|340 A2|10 10|20 30|11 2|21 0|12 0|22 2|13 40|23 20",
                         .objects = "0 DICTIONARY|5 C1|3 ACAD_IMAGE_VARS|350 A3|0 RASTERVARIABLES|5 A3|70 " +
                                    std::to_string(isSeen) + "|0 IMAGEDEF|5 A2|1 four.png|10 40|20 20"});
        drawing->setPath(m_folder.filePath(u"a.dxf"_s));
        Scene scene(*drawing);
        const Rendering shown(scene, Scene::modelSpace);
        EXPECT_EQ(shown.image().pixelColor(20, 90) == QColor(Qt::yellow), isSeen);
    }
}

TEST_F(ImageDrawing, IsCoveredPickedAndExported)
{
    const auto drawing =
        drawingOf("", "four.png",
                  "|0 WIPEOUT|8 0|10 15|20 35|11 10|21 0|12 0|22 10|13 1|23 1|71 1|91 2|14 -0.5|24 -0.5"
                  "|14 0.5|24 0.5|0 LINE|8 0|62 2|10 0|20 60|11 100|21 60");
    Scene scene(*drawing);
    const Rendering shown(scene, Scene::modelSpace);
    EXPECT_EQ(shown.color(20, 40), QColor(Qt::black)) << "a mask above it";
    EXPECT_EQ(shown.color(80, 60), QColor(Qt::yellow)) << "a line above it";
    EXPECT_TRUE(isValid(pickAt(scene, Scene::modelSpace, {70, 45}, 1.0))) << "within";
    EXPECT_TRUE(isValid(pickAt(scene, Scene::modelSpace, {90, 45}, 1.0))) << "at its edge";
    EXPECT_FALSE(isValid(pickAt(scene, Scene::modelSpace, {95, 45}, 1.0)));
    EXPECT_NEAR(scene.extents(Scene::modelSpace).high.y, 70.0, 1e-9);
    for (const auto &[file, write] : {std::pair(u"a.svg"_s, &exportSvg), std::pair(u"a.pdf"_s, &exportPdf)}) {
        const QString path = m_folder.filePath(file);
        EXPECT_TRUE(write(*drawing, path, {}).error.isEmpty());
        QFile written(path);
        ASSERT_TRUE(written.open(QIODevice::ReadOnly));
        const QByteArray bytes = written.readAll();
        EXPECT_TRUE(bytes.contains("<image") || bytes.contains("/Subtype /Image")) << file.toStdString();
    }
}

TEST_F(ImageDrawing, StrangeNumbersEnd)
{
    std::string clip = "|71 2|91 200000";
    for (std::int64_t i = 0; i < 200'000; ++i)
        clip += "|14 " + std::to_string(i * 7919 % 40) + "|24 " + std::to_string(i * 4729 % 20);
    for (const std::string &tags :
         {std::string("|10 10|20 30|11 2|21 0|12 4|22 0"), std::string("|10 10|20 30|11 0|21 0|12 0|22 0"),
          std::string("|10 1e300|20 0|11 1e300|21 0|12 0|22 1"), std::string("|10 nan|20 0|11 1|21 0|12 0|22 1"),
          std::string("|10 -1e12|20 -1e12|11 1e12|21 0|12 0|22 1e12"), clip}) {
        const auto drawing = drawingOf(tags);
        Scene scene(*drawing);
        const Rendering shown(scene, Scene::modelSpace);
        pickAt(scene, Scene::modelSpace, {50, 50}, 1.0);
    }
    for (const double scale : {1e-9, 1e5, 1e9}) {
        const auto drawing = drawingOf("");
        Scene scene(*drawing);
        QImage image(100, 100, QImage::Format_RGB32);
        ViewTransform view(image.size());
        view.setView({30.0, 60.0}, scale);
        QPainter painter(&image);
        paintScene(painter, scene, Scene::modelSpace, view);
        painter.end();
        EXPECT_TRUE(scale < 1.0 || image.pixelColor(50, 50) == QColor(Qt::red)) << scale;
    }
}

} // namespace
} // namespace host::view::test
