#pragma once

#include "platform/Export.h"
#include "platform/rx/OdString.h"

#include <QIcon>
#include <QImage>
#include <QSizeF>
#include <QStringList>

class OdDbDatabase;

/// Small services of the host.
class KV_EXPORT CKvUtils
{
public:
    /// An icon by resource folder and name without extension (":/images/shared", "ok"), in the variant that suits the
    /// host's style. A null icon when there is none.
    static QIcon icon(const QString &folder, const QString &name);
    /// Whether the host's style is dark now.
    static bool isDarkStyle();
    /// The drawing file at `path` fitted into an image of `size` pixels, on black or white, whichever `background` is
    /// nearer to. A null image when the file cannot be read as a drawing.
    static QImage drawingPicture(const OdString &path, const QSize &size, const QColor &background);
    /// The block `name` of an open drawing in the same way. A null image when the drawing has no block of that name.
    static QImage blockPicture(OdDbDatabase *database, const OdString &name, const QSize &size,
                               const QColor &background);
    /// Width and height of what can be seen of the model space of the drawing file at `path`, in its units. Invalid
    /// when the file cannot be read as a drawing and when there is nothing to see.
    static QSizeF drawingSize(const OdString &path);
    /// The drawings that the drawing file at `path` refers to, as the file has them; empty for an unreadable file.
    static QStringList externalReferences(const OdString &path);
};
