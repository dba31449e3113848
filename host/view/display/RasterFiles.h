#pragma once

#include "host/drawing/references/NamedFiles.h"

#include <QHash>
#include <QImage>

#include <memory>
#include <mutex>
#include <vector>

namespace host::view {

/// The pixels of a picture, and smaller versions of it for being seen from afar.
struct RasterPixels
{
    std::vector<QImage> levels{}; ///< at least one; each has half the width and height of the one in front

    /// The smallest level that has at least as many pixels each way, or the first.
    const QImage &levelFor(QSize wanted) const;
};

/// How a drawing wants a picture changed: 0 to 100 each, 50 leaves it as it is.
struct RasterLook
{
    int brightness = 50;
    int contrast = 50;

    bool operator==(const RasterLook &) const = default;
};

/// The pictures that a drawing names, each read when it is asked for and kept.
///
/// Files in PNG, JPEG, TIFF and BMP form are read, as far as Qt's readers on this machine know them; what a file is, is
/// told from its content. Larger ones than 16 million pixels are kept smaller, and all of a drawing together take no
/// more than 64 million; the more there are, the smaller are the last. A file that another system's path names is found
/// by its name alone. May be asked from several threads.
class RasterFiles
{
public:
    explicit RasterFiles(drawing::FileFinder finder) : m_finder(std::move(finder)), m_limits(std::make_shared<Limits>())
    {
    }
    /// Of a drawing that is seen in another: what both keep counts together.
    RasterFiles(drawing::FileFinder finder, const RasterFiles &ofHost)
        : m_finder(std::move(finder)), m_limits(ofHost.m_limits)
    {
    }

    /// Null when there is no such file, none that may be read, or none that is a picture; that is kept in mind as well.
    std::shared_ptr<const RasterPixels> find(const QString &name, RasterLook look = {});
    /// Files are read anew the next time. What was handed out stays.
    void forget();

private:
    struct Limits
    {
        std::mutex mutex{};
        qint64 pixelsLeft = 64'000'000;  ///< that may be kept
        qint64 readLeft = 1'000'000'000; ///< that files may say they have
    };

    QImage read(const QString &name);

    drawing::FileFinder m_finder;
    std::shared_ptr<Limits> m_limits;
    QHash<QString, std::shared_ptr<const RasterPixels>> m_known; ///< by name and look
};

} // namespace host::view
