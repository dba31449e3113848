// Real drawings of several programs, from the folder that ORTAKIT_CORPUS names. With ORTAKIT_RENDERINGS naming a folder
// the pictures are left there to be looked at.

#include "host/view/paint/Export.h"
#include "host/view/paint/Picking.h"
#include "tests/view/Rendering.h"

#include <QDir>

#include <gtest/gtest.h>
#include <iostream>

namespace host::view::test {
namespace {

using namespace Qt::StringLiterals;

void checkDrawing(const QFileInfo &file)
{
    const drawing::ReadResult read = drawing::Drawing::open(file.filePath());
    if (!read) {
        std::cout << file.fileName().toStdString() << ": not a drawing, " << read.error.message().toStdString() << "\n";
        EXPECT_TRUE(picture(file.filePath(), {100, 75}).isNull());
        return;
    }
    const QImage image = picture(*read.drawing, {1000, 750}, Ground::Black);
    ASSERT_FALSE(image.isNull());
    Scene scene(*read.drawing);
    const RenderReport report = scene.report(Scene::modelSpace);
    std::cout << file.fileName().toStdString() << ": " << report.summary().toStdString() << "\n";
    EXPECT_EQ(isBlank(image), report.drawn == 0 && report.simplified.isEmpty());
    const QString folder = qEnvironmentVariable("ORTAKIT_RENDERINGS");
    if (!folder.isEmpty()) {
        ASSERT_TRUE(image.save(QDir(folder).filePath(file.completeBaseName() + u".png"_s)));
        const QString sheet = QDir(folder).filePath(file.completeBaseName() + u"-sheet.png"_s);
        EXPECT_TRUE(exportPng(*read.drawing, sheet, {.space = u"*Paper_Space"_s, .pixels = QSize(1000, 750)}));
    }
    // Everything that has a place is found where it is.
    const Box all = scene.extents(Scene::modelSpace);
    if (all.isEmpty())
        return;
    const Vec2 margin{1.0, 1.0};
    EXPECT_FALSE(pickRectangle(scene, 0, all.low.xy() - margin, all.high.xy() + margin, PickMode::Window).empty());
}

TEST(Corpus, EveryDrawingIsDrawn)
{
    const QString folder = qEnvironmentVariable("ORTAKIT_CORPUS");
    if (folder.isEmpty())
        GTEST_SKIP() << "ORTAKIT_CORPUS does not name a folder of drawings";
    const QFileInfoList files = QDir(folder).entryInfoList({u"*.dxf"_s}, QDir::Files);
    ASSERT_FALSE(files.isEmpty()) << folder.toStdString();
    for (const QFileInfo &file : files) {
        SCOPED_TRACE(file.fileName().toStdString());
        checkDrawing(file);
    }
}

} // namespace
} // namespace host::view::test
