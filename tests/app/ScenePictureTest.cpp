// What the canvas shows of a drawing that is too large to be painted at once.

#include "host/app/window/canvas/ScenePicture.h"

#include "host/drawing/records/Entities.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <gtest/gtest.h>

namespace host::app::test {
namespace {

using namespace Qt::StringLiterals;

/// Lines of several colours all over a square of 1000 by 1000 units.
std::unique_ptr<drawing::Drawing> manyLines(int count)
{
    QByteArray text = "0\nSECTION\n2\nENTITIES\n";
    for (int i = 0; i < count; ++i) {
        const double x = i * 37 % 1000;
        const double y = i * 61 % 997;
        const auto number = [](double value) { return QByteArray::number(value); };
        text += "0\nLINE\n8\n0\n62\n" + number(1 + i % 6) + "\n10\n" + number(x) + "\n20\n" + number(y) + "\n11\n" +
                number(x + 7) + "\n21\n" + number(y + i % 9) + "\n";
    }
    return drawing::Drawing::fromBytes(text + "0\nENDSEC\n0\nEOF\n").drawing;
}

class ScenePictureTest : public testing::Test
{
protected:
    ScenePictureTest()
    {
        m_look.view = view::ViewTransform(QSizeF(m_screen.size()));
        m_look.view.setView({500, 500}, 0.5);
        show();
        rest();
    }

    void show()
    {
        QPainter painter(&m_screen);
        m_picture.paint(painter, m_look);
    }
    void rest()
    {
        QElapsedTimer time;
        for (time.start(); m_picture.isProvisional() && time.elapsed() < 60'000; show())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        EXPECT_FALSE(m_picture.isProvisional());
    }
    /// Pixels in which the screen differs from a picture painted in one go.
    int differences()
    {
        QImage whole(m_screen.size(), m_screen.format());
        QPainter painter(&whole);
        view::paintScene(painter, m_scene, view::Scene::modelSpace, m_look.view);
        painter.end();
        int count = 0;
        for (int y = 0; y < whole.height(); ++y)
            for (int x = 0; x < whole.width(); ++x)
                count += whole.pixel(x, y) != m_screen.pixel(x, y) ? 1 : 0;
        return count;
    }

    std::unique_ptr<drawing::Drawing> m_drawing = manyLines(20'000);
    view::Scene m_scene{*m_drawing};
    ScenePicture m_picture{m_scene};
    SceneLook m_look;
    QImage m_screen{600, 500, QImage::Format_RGB32};
};

TEST_F(ScenePictureTest, AViewIsPutRightWhileTheHandRests)
{
    EXPECT_EQ(differences(), 0);
    m_look.view.zoomAt({200, 100}, 1.5);
    show();
    EXPECT_TRUE(m_picture.isProvisional());
    EXPECT_GT(differences(), 100);
    rest();
    EXPECT_EQ(differences(), 0);
}

/// The edges that come into view are painted at once. A line that the edge cut off may bend by a pixel there.
TEST_F(ScenePictureTest, AMovedPictureIsWholeAtOnce)
{
    for (const QPointF by : {QPointF(9, 0), QPointF(-4, 7), QPointF(0, -11)}) {
        m_look.view.pan(by);
        show();
        EXPECT_FALSE(m_picture.isProvisional());
        EXPECT_LT(differences(), 60);
    }
}

TEST_F(ScenePictureTest, EditsAndMarksArePaintedAtOnce)
{
    const drawing::RecordId line = m_drawing->entities().all()[1234];
    drawing::FieldList fields = m_drawing->fields(line);
    drawing::setField(fields, 11, drawing::Vec3{520, 540, 0});
    m_drawing->setFields(line, fields);
    show();
    EXPECT_FALSE(m_picture.isProvisional());
    EXPECT_EQ(differences(), 0);
    m_picture.setHighlighted({line});
    show();
    EXPECT_FALSE(m_picture.isProvisional());
    EXPECT_GT(differences(), 0);
    m_picture.setHighlighted({});
    m_drawing->setErased(line, true);
    show();
    EXPECT_EQ(differences(), 0);
}

/// A slice of a picture under way must not go on with records that an edit has changed.
TEST_F(ScenePictureTest, AnEditWhileThePictureIsPutRight)
{
    m_look.view.zoomAt({200, 100}, 0.8);
    show();
    EXPECT_TRUE(m_picture.isProvisional());
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const std::vector<drawing::RecordId> all = m_drawing->entities().all();
    for (std::size_t i = 0; i < all.size(); i += 3)
        m_drawing->setErased(all[i], true);
    m_scene.prepare(view::Scene::modelSpace);
    QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    show();
    rest();
    EXPECT_EQ(differences(), 0);
}

} // namespace
} // namespace host::app::test
