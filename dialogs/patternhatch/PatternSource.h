#pragma once

#include <QDateTime>
#include <QImage>
#include <QSizeF>
#include <QString>

namespace ortakit {

/// The file that copies of a pattern are made from, as it was at a moment.
struct PatternSource
{
    enum class Kind
    {
        None, ///< a mask has no file
        Drawing,
        Image,
        Block ///< one of the active drawing: its name stands for the path
    };

    Kind kind = Kind::None;
    QString path{};
    QDateTime changed{}; ///< invalid when there is no such file

    static PatternSource of(Kind kind, const QString &path);
    bool operator==(const PatternSource &) const = default;
};

/// The source's own width and height: of a drawing the extents of what it shows, in drawing units, of an image its
/// pixels, read from the file's head. Invalid when the file cannot be read and when one of them is no finite number
/// above zero.
QSizeF ownSize(const PatternSource &source);

/// What the image file at `path` shows, no larger than `bounds`. A null image when the file is of none of the kinds
/// that can be chosen here, is damaged, or would take more memory to decode than Qt's limit for images.
QImage imagePicture(const QString &path, const QSize &bounds);

/// The file dialog's filter for images.
QString imageFilter();

} // namespace ortakit
