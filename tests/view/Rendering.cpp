#include "tests/view/Rendering.h"

#include <gtest/gtest.h>

namespace host::view::test {

namespace {

/// "10 5|20 7" as the lines of a file.
QByteArray dxfLines(const std::string &tags)
{
    QByteArray result;
    if (tags.empty())
        return result;
    for (const QByteArray &tag : QByteArray::fromStdString(tags).split('|')) {
        const qsizetype blank = tag.indexOf(' ');
        result += (blank < 0 ? tag : tag.left(blank)) + '\n' + (blank < 0 ? QByteArray() : tag.mid(blank + 1)) + '\n';
    }
    return result;
}

QByteArray dxfSection(const char *name, const std::string &content)
{
    return dxfLines("0 SECTION|2 " + std::string(name)) + dxfLines(content) + dxfLines("0 ENDSEC");
}

} // namespace

std::string blockText(const std::string &name, const std::string &entities)
{
    return "0 BLOCK|8 0|2 " + name + "|70 0|10 0|20 0|30 0|3 " + name + (entities.empty() ? "" : "|" + entities) +
           "|0 ENDBLK|8 0";
}

std::string tableText(const std::string &type, const std::string &entries)
{
    return "0 TABLE|2 " + type + "|70 1|" + entries + "|0 ENDTAB";
}

QByteArray dxfBytes(const DxfText &text)
{
    std::string tables = text.tables;
    if (!text.layers.empty())
        tables += (tables.empty() ? "" : "|") + tableText("LAYER", text.layers);
    QByteArray bytes = dxfSection("HEADER", "9 $ACADVER|1 AC1015" + (text.header.empty() ? "" : "|" + text.header));
    bytes += dxfSection("TABLES", tables);
    bytes += dxfSection("BLOCKS", text.blocks);
    bytes += dxfSection("ENTITIES", text.entities);
    if (!text.objects.empty())
        bytes += dxfSection("OBJECTS", text.objects);
    return bytes + dxfLines("0 EOF");
}

std::unique_ptr<drawing::Drawing> readDrawing(const DxfText &text)
{
    drawing::ReadResult result = drawing::Drawing::fromBytes(dxfBytes(text));
    EXPECT_TRUE(result) << result.error.message().toStdString();
    return std::move(result.drawing);
}

Rendering::Rendering(const DxfText &text, const PaintOptions &options, int block)
{
    const auto drawing = readDrawing(text);
    Scene scene(static_cast<const drawing::Drawing &>(*drawing));
    paint(scene, block, options);
}

Rendering::Rendering(Scene &scene, int block, const PaintOptions &options)
{
    paint(scene, block, options);
}

void Rendering::paint(Scene &scene, int block, const PaintOptions &options)
{
    m_ground = options.ground;
    m_image = QImage(renderingSize, renderingSize, QImage::Format_RGB32);
    m_view = ViewTransform(m_image.size());
    m_view.setHeight({50.0, 50.0}, 100.0);
    QPainter painter(&m_image);
    paintScene(painter, scene, block, m_view, options);
    painter.end();
    m_report = scene.report(block);
}

bool Rendering::isInkPixel(int x, int y) const
{
    return m_image.rect().contains(x, y) &&
           (m_image.pixel(x, y) & 0xffffff) != (groundColor(m_ground).rgb() & 0xffffff);
}

bool Rendering::isInk(double x, double y) const
{
    return color(x, y) != groundColor(m_ground);
}

QColor Rendering::color(double x, double y) const
{
    const QPoint at = m_view.toScreen({x, y}).toPoint();
    const QColor ground = groundColor(m_ground);
    QColor best = ground;
    int strongest = 0;
    for (int dy = -1; dy <= 1; ++dy) {
        for (int dx = -1; dx <= 1; ++dx) {
            if (!m_image.rect().contains(at + QPoint(dx, dy)))
                continue;
            const QColor here = m_image.pixelColor(at + QPoint(dx, dy));
            const int difference = std::abs(here.red() - ground.red()) + std::abs(here.green() - ground.green()) +
                                   std::abs(here.blue() - ground.blue());
            if (difference > strongest) {
                strongest = difference;
                best = here;
            }
        }
    }
    return best;
}

int Rendering::runs(QPointF from, QPointF to) const
{
    int count = 0;
    bool wasInk = false;
    constexpr int steps = 1000;
    for (int i = 0; i <= steps; ++i) {
        const QPointF at = from + (to - from) * (static_cast<double>(i) / steps);
        const QPoint pixel = m_view.toScreen({at.x(), at.y()}).toPoint();
        const bool isInkHere = isInkPixel(pixel.x(), pixel.y());
        count += isInkHere && !wasInk ? 1 : 0;
        wasInk = isInkHere;
    }
    return count;
}

QRectF Rendering::inkBox() const
{
    QRect box;
    for (int y = 0; y < m_image.height(); ++y) {
        for (int x = 0; x < m_image.width(); ++x) {
            if (isInkPixel(x, y))
                box |= QRect(x, y, 1, 1);
        }
    }
    if (box.isNull())
        return {};
    const Vec2 low = m_view.toWorld(QPointF(box.left(), box.bottom() + 1));
    const Vec2 high = m_view.toWorld(QPointF(box.right() + 1, box.top()));
    return {low.x, low.y, high.x - low.x, high.y - low.y};
}

qint64 Rendering::inkPixels() const
{
    qint64 count = 0;
    for (int y = 0; y < m_image.height(); ++y) {
        for (int x = 0; x < m_image.width(); ++x)
            count += isInkPixel(x, y) ? 1 : 0;
    }
    return count;
}

bool isBlank(const QImage &image)
{
    QImage ground = image;
    ground.fill(image.pixelColor(0, 0));
    return image == ground;
}

void expectInk(const Rendering &shown, const char *ink, const char *blank)
{
    for (const bool isWanted : {true, false}) {
        const QString points = QString::fromLatin1(isWanted ? ink : blank);
        for (const QString &point : points.split(u' ', Qt::SkipEmptyParts)) {
            const QStringList xy = point.split(u',');
            EXPECT_EQ(shown.isInk(xy[0].toDouble(), xy[1].toDouble()), isWanted) << "at " << point.toStdString();
        }
    }
}

} // namespace host::view::test
