#include "host/view/paint/Export.h"

#include "files/qt/Files.h"
#include "host/view/paint/PagePainter.h"
#include "host/view/paint/SvgClips.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QPdfWriter>
#include <QSvgGenerator>

namespace host::view {

using namespace Qt::StringLiterals;

namespace {

constexpr int pdfDotsPerInch = 1200;
constexpr double pngDotsPerInch = 150.0;
constexpr double svgDotsPerInch = 254.0;
constexpr double svgPictureDotsPerInch = 96.0;
constexpr double smallestSheet = 10.0;
constexpr double largestSheet = 5000.0;

QString message(const char *text)
{
    return QCoreApplication::translate("host::view::Export", text);
}

QString firstOf(const QStringList &layouts)
{
    return layouts.isEmpty() ? QString() : layouts.first();
}

void writeFile(ExportResult &result, const QString &path, const QByteArray &bytes)
{
    const QString reason = files::replaceFile(path, bytes);
    if (!reason.isEmpty())
        result.error = message("Cannot write %1: %2").arg(QDir::toNativeSeparators(path), reason);
}

ExportResult failed(const QString &path, const QString &reason = {})
{
    const QString file = QDir::toNativeSeparators(path);
    return {.error = reason.isEmpty() ? message("Cannot make a picture of this size for %1").arg(file)
                                      : u"%1: %2"_s.arg(file, reason)};
}

QImage paintImage(PagePainter &pages, const Page &page, const Frame &frame, ExportResult &result)
{
    QImage image(frame.size, QImage::Format_RGB32);
    if (image.isNull())
        return image;
    QPainter painter(&image);
    pages.paint(painter, page, frame, {}, result);
    painter.end();
    if (page.isSheet) {
        image.setDotsPerMeterX(qRound(frame.unitsPerMillimetre * 1000.0));
        image.setDotsPerMeterY(qRound(frame.unitsPerMillimetre * 1000.0));
    }
    return image;
}

/// A picture by itself, null where there is no such block.
QImage pictureOf(const drawing::Drawing &drawing, const ExportOptions &options)
{
    PagePainter pages(drawing, options);
    QString error;
    ExportResult ignored;
    const auto page = pages.page({}, false, error);
    const auto frame = page ? pages.frame(*page, pngDotsPerInch, error) : std::nullopt;
    return frame ? paintImage(pages, *page, *frame, ignored) : QImage();
}

void setSheet(QPdfWriter &writer, const QSizeF &size)
{
    const QSizeF sheet(std::clamp(size.width(), smallestSheet, largestSheet),
                       std::clamp(size.height(), smallestSheet, largestSheet));
    writer.setPageSize(QPageSize(sheet, QPageSize::Millimeter, {}, QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF(0.0, 0.0, 0.0, 0.0));
}

} // namespace

class Exporter::Private
{
public:
    PagePainter pages;
};

Exporter::Exporter(const drawing::Drawing &drawing, const ExportOptions &options) : d(new Private{{drawing, options}})
{
}

Exporter::~Exporter() = default;

ExportResult Exporter::png(const QString &path, const QStringList &layouts)
{
    QString error;
    const auto page = d->pages.page(firstOf(layouts), false, error);
    const auto frame = page ? d->pages.frame(*page, pngDotsPerInch, error) : std::nullopt;
    if (!frame)
        return failed(path, error);
    ExportResult result;
    const QImage image = paintImage(d->pages, *page, *frame, result);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (image.isNull() || !image.save(&buffer, "PNG"))
        return failed(path);
    writeFile(result, path, buffer.data());
    return result;
}

ExportResult Exporter::svg(const QString &path, const QStringList &layouts)
{
    QString error;
    const auto page = d->pages.page(firstOf(layouts), false, error);
    const auto frame = page ? d->pages.frame(*page, svgDotsPerInch, error) : std::nullopt;
    if (!frame)
        return failed(path, error);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(
        qRound(page->isSheet ? frame->unitsPerMillimetre * drawing::millimetresPerInch : svgPictureDotsPerInch));
    generator.setSize(frame->size);
    generator.setViewBox(QRect(QPoint(0, 0), frame->size));
    QPainter painter;
    if (!painter.begin(&generator))
        return failed(path);
    ExportResult result;
    SvgClips clips;
    d->pages.paint(painter, *page, *frame, {.clips = &clips}, result);
    painter.end();
    writeFile(result, path, clips.applied(buffer.data()));
    return result;
}

ExportResult Exporter::pdf(const QString &path, const QStringList &layouts)
{
    std::vector<Page> planned;
    for (const QString &layout : layouts.isEmpty() ? QStringList{QString()} : layouts) {
        QString error;
        const auto page = d->pages.page(layout, true, error);
        if (!page)
            return failed(path, error);
        planned.push_back(*page);
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(pdfDotsPerInch);
    setSheet(writer, planned.front().plan.size);
    QPainter painter;
    if (!painter.begin(&writer))
        return failed(path);
    ExportResult result;
    for (const Page &page : planned) {
        if (!result.pages.empty()) {
            setSheet(writer, page.plan.size);
            writer.newPage();
        }
        const Frame frame{.size = {writer.width(), writer.height()},
                          .unitsPerMillimetre = pdfDotsPerInch / drawing::millimetresPerInch};
        d->pages.paint(painter, page, frame, {.fillGround = d->pages.options().ground == Ground::Black}, result);
    }
    painter.end();
    writeFile(result, path, buffer.data());
    return result;
}

ExportResult exportPng(const drawing::Drawing &drawing, const QString &path, const ExportOptions &options)
{
    return Exporter(drawing, options).png(path, options.layouts);
}

ExportResult exportSvg(const drawing::Drawing &drawing, const QString &path, const ExportOptions &options)
{
    return Exporter(drawing, options).svg(path, options.layouts);
}

ExportResult exportPdf(const drawing::Drawing &drawing, const QString &path, const ExportOptions &options)
{
    return Exporter(drawing, options).pdf(path, options.layouts);
}

QImage picture(const drawing::Drawing &drawing, const QSize &size, Ground ground)
{
    return pictureOf(drawing, {.ground = ground, .pixels = size, .withLineweights = false});
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
    return pictureOf(drawing, {.space = block, .ground = ground, .pixels = size, .withLineweights = false});
}

} // namespace host::view
