#include "host/view/display/RasterFiles.h"

#include "files/qt/Files.h"

#include <QFile>
#include <QImageReader>

#include <array>
#include <cmath>

namespace host::view {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 largestRasterFile = 256 * 1024 * 1024;
constexpr qint64 largestRaster = 16'000'000; ///< pixels
constexpr int longestRasterSide = 16'384;    ///< what painters can still turn
constexpr int smallestLevel = 16;            ///< pixels a side

/// Other forms that Qt may know here are refused: some of them name further files.
bool isKnownForm(const QByteArray &format)
{
    static constexpr std::array<QByteArrayView, 4> known = {"png", "jpeg", "tiff", "bmp"};
    return std::ranges::find(known, QByteArrayView(format)) != known.end();
}

/// The size in which a picture is kept that may have so many pixels.
QSize keptSize(const QSize &own, qint64 pixels)
{
    const double area = static_cast<double>(own.width()) * own.height();
    const double byArea = std::sqrt(static_cast<double>(std::min(pixels, largestRaster)) / area);
    const double bySide = static_cast<double>(longestRasterSide) / std::max(own.width(), own.height());
    const double factor = std::min({1.0, byArea, bySide});
    const auto scaled = [factor](int side) { return std::max(1, static_cast<int>(side * factor)); };
    return factor < 1.0 ? QSize(scaled(own.width()), scaled(own.height())) : own;
}

/// What a look makes of each of the 256 values of a colour.
std::array<uchar, 256> valuesOf(RasterLook look)
{
    const double brightness = (std::clamp(look.brightness, 0, 100) - 50) / 50.0;
    const double contrast = std::clamp(look.contrast, 0, 100) / 50.0;
    const double slope = contrast <= 1.0 ? contrast : 1.0 / std::max(2.0 - contrast, 0.02);
    std::array<uchar, 256> values{};
    for (int i = 0; i < 256; ++i) {
        const double value = (i / 255.0 - 0.5) * slope + 0.5 + brightness;
        values[static_cast<std::size_t>(i)] = static_cast<uchar>(std::lround(std::clamp(value, 0.0, 1.0) * 255.0));
    }
    return values;
}

void applyLook(QImage &image, RasterLook look)
{
    if (look == RasterLook{})
        return;
    image = image.convertToFormat(QImage::Format_ARGB32);
    const std::array<uchar, 256> values = valuesOf(look);
    for (int y = 0; y < image.height(); ++y) {
        auto *pixel = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x, ++pixel) {
            *pixel =
                qRgba(values[static_cast<std::size_t>(qRed(*pixel))], values[static_cast<std::size_t>(qGreen(*pixel))],
                      values[static_cast<std::size_t>(qBlue(*pixel))], qAlpha(*pixel));
        }
    }
}

std::shared_ptr<const RasterPixels> withLevels(QImage image)
{
    auto pixels = std::make_shared<RasterPixels>();
    image = image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    while (!image.isNull()) {
        pixels->levels.push_back(image);
        const QSize half = image.size() / 2;
        if (std::min(half.width(), half.height()) < smallestLevel)
            break;
        image = image.scaled(half, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    return pixels->levels.empty() ? nullptr : pixels;
}

} // namespace

const QImage &RasterPixels::levelFor(QSize wanted) const
{
    std::size_t level = 0;
    while (level + 1 < levels.size() && levels[level + 1].width() >= wanted.width() &&
           levels[level + 1].height() >= wanted.height()) {
        ++level;
    }
    return levels[level];
}

/// Null for what cannot be read. Costs no more than the pixels that are left.
QImage RasterFiles::read(const QString &name)
{
    const QString slashed = QString(name).replace(u'\\', u'/');
    QString path = m_finder(slashed);
    if (path.isEmpty())
        path = m_finder(slashed.section(u'/', -1));
    QFile file;
    if (path.isEmpty() || !files::openRegular(file, path, largestRasterFile).isEmpty())
        return {};
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    // Only then the file is looked into.
    const QSize own = isKnownForm(reader.format()) ? reader.size() : QSize();
    if (own.isEmpty())
        return {};
    // A file that says too much is refused alone: it takes nothing from the others.
    const qint64 said = qint64(own.width()) * own.height();
    const QSize kept = keptSize(own, m_limits->pixelsLeft / 2);
    if (said > m_limits->readLeft || kept.isEmpty())
        return {};
    m_limits->readLeft -= said;
    if (kept != own)
        reader.setScaledSize(kept);
    return reader.read();
}

std::shared_ptr<const RasterPixels> RasterFiles::find(const QString &name, RasterLook look)
{
    const std::scoped_lock lock(m_limits->mutex);
    const QString key = u"%1/%2/%3"_s.arg(look.brightness).arg(look.contrast).arg(name);
    if (const auto known = m_known.constFind(key); known != m_known.constEnd())
        return *known;
    QImage image = read(name);
    m_limits->pixelsLeft -= qint64(image.width()) * image.height();
    applyLook(image, look);
    return *m_known.insert(key, withLevels(std::move(image)));
}

void RasterFiles::forget()
{
    const std::scoped_lock lock(m_limits->mutex);
    m_known.clear();
    m_limits->pixelsLeft = Limits().pixelsLeft;
    m_limits->readLeft = Limits().readLeft;
}

} // namespace host::view
