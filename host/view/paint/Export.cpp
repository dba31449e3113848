#include "host/view/paint/Export.h"

#include "files/qt/Files.h"
#include "host/view/paint/ScenePainter.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QPdfWriter>
#include <QSvgGenerator>

namespace host::view {

using namespace Qt::StringLiterals;

namespace {

constexpr int largestSide = 16'000;
constexpr int pdfDotsPerInch = 1200;
constexpr double millimetresPerInch = 25.4;
constexpr double svgPixelsPerMillimetre = 96.0 / millimetresPerInch;

QString message(const char *text)
{
    return QCoreApplication::translate("host::view::Export", text);
}

QSize boundedSize(const QSize &size)
{
    return {std::clamp(size.width(), 1, largestSide), std::clamp(size.height(), 1, largestSide)};
}

QString writeFile(const QString &path, const QByteArray &bytes)
{
    const QString reason = files::replaceFile(path, bytes);
    return reason.isEmpty() ? QString() : message("Cannot write %1: %2").arg(QDir::toNativeSeparators(path), reason);
}

/// A scene with the space that the options name, and the view that they ask for.
class Picture
{
public:
    Picture(const drawing::Drawing &drawing, const ExportOptions &options)
        : m_scene(drawing, options.surroundings), m_options(options),
          m_block(options.space.isEmpty() ? Scene::modelSpace : m_scene.block(options.space))
    {
    }

    bool exists() const { return m_scene.exists(m_block); }

    /// `fixedScale` in painter units a drawing unit; 0: fitted.
    PaintResult paint(QPainter &painter, const QSizeF &size, double fixedScale, PaintOptions paintOptions)
    {
        ViewTransform view(size);
        const Box box = m_options.window ? *m_options.window : m_scene.extents(m_block, Seen::Plotted);
        view.fit(box);
        if (fixedScale > 0.0)
            view.setView(view.center(), fixedScale);
        paintOptions.ground = m_options.ground;
        paintOptions.plottedOnly = true;
        return paintScene(painter, m_scene, m_block, view, paintOptions);
    }

    ExportResult result(const PaintResult &painted, const QString &path, const QByteArray &bytes)
    {
        RenderReport report = m_scene.report(m_block);
        report.isCutShort |= painted.isCutShort;
        return {.error = writeFile(path, bytes), .report = report};
    }

private:
    Scene m_scene;
    const ExportOptions &m_options;
    int m_block;
};

ExportResult missingBlock(const ExportOptions &options)
{
    return {.error = message("There is no block named %1").arg(options.space), .report = {}};
}

ExportResult cannotPaint(const QString &path)
{
    return {.error = message("Cannot make a picture of this size for %1").arg(QDir::toNativeSeparators(path)),
            .report = {}};
}

QImage paintImage(Picture &picture, const QSize &size, PaintResult *painted = nullptr)
{
    QImage image(boundedSize(size), QImage::Format_RGB32);
    if (image.isNull())
        return image;
    QPainter painter(&image);
    const PaintResult result = picture.paint(painter, image.size(), 0.0, {.antialias = true});
    if (painted)
        *painted = result;
    return image;
}

} // namespace

ExportResult exportPng(const drawing::Drawing &drawing, const QString &path, const ExportOptions &options)
{
    Picture picture(drawing, options);
    if (!picture.exists())
        return missingBlock(options);
    PaintResult painted;
    const QImage image = paintImage(picture, options.pixels, &painted);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (image.isNull() || !image.save(&buffer, "PNG"))
        return cannotPaint(path);
    return picture.result(painted, path, buffer.data());
}

ExportResult exportSvg(const drawing::Drawing &drawing, const QString &path, const ExportOptions &options)
{
    Picture picture(drawing, options);
    if (!picture.exists())
        return missingBlock(options);
    const QSize size = boundedSize(options.pixels);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(96);
    generator.setSize(size);
    generator.setViewBox(QRect(QPoint(0, 0), size));
    QPainter painter;
    if (!painter.begin(&generator))
        return cannotPaint(path);
    const PaintResult painted = picture.paint(
        painter, size, 0.0,
        {.antialias = true, .pixelsPerMillimetre = options.withLineweights ? svgPixelsPerMillimetre : 0.0});
    painter.end();
    return picture.result(painted, path, buffer.data());
}

ExportResult exportPdf(const drawing::Drawing &drawing, const QString &path, const ExportOptions &options)
{
    Picture picture(drawing, options);
    if (!picture.exists())
        return missingBlock(options);
    const QSizeF sheet(std::clamp(options.sheet.width(), 10.0, 5000.0),
                       std::clamp(options.sheet.height(), 10.0, 5000.0));
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(pdfDotsPerInch);
    writer.setPageSize(QPageSize(sheet, QPageSize::Millimeter, {}, QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF(0.0, 0.0, 0.0, 0.0));
    QPainter painter;
    if (!painter.begin(&writer))
        return cannotPaint(path);
    const double dotsPerMillimetre = pdfDotsPerInch / millimetresPerInch;
    const PaintResult painted =
        picture.paint(painter, QSizeF(writer.width(), writer.height()), options.millimetresPerUnit * dotsPerMillimetre,
                      {.fillGround = options.ground == Ground::Black,
                       .antialias = true,
                       .pixelsPerMillimetre = options.withLineweights ? dotsPerMillimetre : 0.0});
    painter.end();
    return picture.result(painted, path, buffer.data());
}

QImage picture(const drawing::Drawing &drawing, const QSize &size, Ground ground)
{
    const ExportOptions options{.ground = ground};
    Picture shown(drawing, options);
    return paintImage(shown, size);
}

QImage picture(const QString &path, const QSize &size, Ground ground)
{
    const drawing::ReadResult read = drawing::Drawing::open(path);
    return read ? picture(*read.drawing, size, ground) : QImage();
}

QSizeF drawnSize(const QString &path)
{
    const drawing::ReadResult read = drawing::Drawing::open(path);
    if (!read)
        return {};
    Scene scene(static_cast<const drawing::Drawing &>(*read.drawing));
    const Box box = scene.extents(Scene::modelSpace, Seen::Plotted);
    return box.isEmpty() ? QSizeF() : QSizeF(box.high.x - box.low.x, box.high.y - box.low.y);
}

QImage blockPicture(const drawing::Drawing &drawing, const QString &block, const QSize &size, Ground ground)
{
    const ExportOptions options{.space = block, .ground = ground};
    Picture shown(drawing, options);
    return shown.exists() ? paintImage(shown, size) : QImage();
}

} // namespace host::view
