#include "dialogs/patternhatch/PatternSource.h"

#include "files/qt/Files.h"
#include "platform/kernel/CKvUtils.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

namespace ortakit {

namespace {

/// Drawings that are images to Qt as well (SVG) can be as costly as their author likes.
bool isChoosable(const QImageReader &reader)
{
    static const QList<QByteArray> formats = {"bmp", "gif", "jpeg", "jpg", "png", "tiff", "tif"};
    return formats.contains(reader.format());
}

/// An image file that is open, named after its contents, whatever the file is called.
struct OpenImage
{
    explicit OpenImage(const QString &path)
    {
        constexpr qint64 largestImage = 1024 * 1024 * 1024;
        if (files::openRegular(file, path, largestImage).isEmpty())
            reader.setDevice(&file);
        reader.setDecideFormatFromContent(true);
    }

    QFile file;
    QImageReader reader;
};

QSizeF imageSize(const QString &path)
{
    OpenImage image(path);
    return isChoosable(image.reader) ? QSizeF(image.reader.size()) : QSizeF();
}

bool isUsable(double length)
{
    return qIsFinite(length) && length > 0;
}

} // namespace

PatternSource PatternSource::of(Kind kind, const QString &path)
{
    const QFileInfo file(path);
    return {kind, path, file.isFile() ? file.lastModified() : QDateTime()};
}

QSizeF ownSize(const PatternSource &source)
{
    if (source.kind == PatternSource::Kind::None || !source.changed.isValid())
        return {};
    const QSizeF size =
        source.kind == PatternSource::Kind::Image ? imageSize(source.path) : CKvUtils::drawingSize(source.path);
    return isUsable(size.width()) && isUsable(size.height()) ? size : QSizeF();
}

QImage imagePicture(const QString &path, const QSize &bounds)
{
    OpenImage image(path);
    QImageReader &reader = image.reader;
    if (!isChoosable(reader))
        return {};
    // Scaled while it is decoded where the format can do that.
    const QSize size = reader.size();
    if (size.width() > bounds.width() || size.height() > bounds.height())
        reader.setScaledSize(size.scaled(bounds, Qt::KeepAspectRatio).expandedTo({1, 1}));
    return reader.read();
}

QString imageFilter()
{
    static constexpr const char *pieces[] = {
        QT_TRANSLATE_NOOP("DLG_QT_PatternHatch",
                          "All supported Image file (*.bmp *.gif *.jpg *.jpeg *.png *.tif *.tiff *.ecw);;"),
        QT_TRANSLATE_NOOP("DLG_QT_PatternHatch", "Windows Bitmap (*.bmp);;"),
        QT_TRANSLATE_NOOP("DLG_QT_PatternHatch", "Graphics Interchange Format (*.gif);;"),
        QT_TRANSLATE_NOOP("DLG_QT_PatternHatch", "JPEG File Interchange Format (*.jpg *.jpeg);;"),
        QT_TRANSLATE_NOOP("DLG_QT_PatternHatch", "Portable Netkword Graphics (*.png);;"),
        QT_TRANSLATE_NOOP("DLG_QT_PatternHatch", "Tagged Image File Format (*.tif *.tiff);;"),
        QT_TRANSLATE_NOOP("DLG_QT_PatternHatch", "Enhanced Compression Wavelet (*.ecw)"),
    };
    QString filter;
    for (const char *piece : pieces)
        filter += QCoreApplication::translate("DLG_QT_PatternHatch", piece);
    return filter;
}

} // namespace ortakit
