#pragma once

#include "platform/Export.h"
#include "platform/db/OdDbDatabase.h"
#include "platform/kernel/OdResBuf.h"
#include "platform/rx/OdString.h"

#include <QIcon>
#include <QImage>
#include <QList>
#include <QSizeF>
#include <QStringList>

/// A block of a drawing as a user chooses from them.
struct CKvBlock
{
    OdString name;
    bool isAnonymous = false; ///< made by a program, with a name such as *U12 that means nothing
    bool isExternal = false;  ///< stands for another drawing file
};

/// What came of copying a block from one drawing into another.
struct CKvBlockCopy
{
    /// A definition that the drawing had before and that stands for another one of the same name.
    struct Kept
    {
        OdString table; ///< "BLOCK", "LAYER", "LTYPE", "STYLE", "DIMSTYLE"
        OdString name;
    };

    bool isDone = false;
    QList<Kept> kept;
    int leftOut = 0; ///< entities that the drawing's version cannot hold
};

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
    /// The block `name` of a drawing in the same way. A null image when the drawing has no block of that name.
    static QImage blockPicture(OdDbDatabase *database, const OdString &name, const QSize &size,
                               const QColor &background);
    /// Width and height of what can be seen of the model space of the drawing file at `path`, in its units. Invalid
    /// when the file cannot be read as a drawing and when there is nothing to see.
    static QSizeF drawingSize(const OdString &path);
    /// The drawings that the drawing file at `path` refers to, as the file has them; empty for an unreadable file.
    static QStringList externalReferences(const OdString &path);
    /// The drawing file at `path` as it is now, read to look at and to copy from while the user works in another one;
    /// its memory goes with the last pointer. Null, with the reason in `error` as a sentence, when the file cannot be
    /// read as a drawing.
    static OdDbDatabasePtr readDrawing(const OdString &path, OdString &error);
    /// The blocks of a drawing in no particular order, without its spaces and layouts and without what belongs to
    /// its external references.
    static QList<CKvBlock> blocks(OdDbDatabase *database);
    /// Copies the block `name` of `source` into `target` with all that it needs: blocks in it, layers, linetypes and
    /// styles. What `target` has under the same name stays, the block itself included. Not done when there is no such
    /// block.
    static CKvBlockCopy copyBlock(OdDbDatabase *source, const OdString &name, OdDbDatabase *target);
    /// The data of the extension record `name` (any case) in the named-object dictionary of the drawing file at `path`,
    /// which need not be open, as OdDbXrecord::rbChain() gives it. Null when the drawing has no such record or one
    /// without data, and when the file cannot be read as a drawing: the reason is in `error` then, which is empty
    /// otherwise. Many files are read one after the other, so a host
    /// should not read more of them than it has to.
    static OdResBufPtr drawingRecord(const OdString &path, const OdString &name, OdString *error = nullptr);
    /// Gives that record this data, or makes it. The file is replaced whole or not at all, and nothing else in it
    /// changes. False, with the reason in `error`, when it is not a drawing or cannot be written, its version has no
    /// room for such records, or the name stands for something else. Not for drawings that are open.
    static bool setDrawingRecord(const OdString &path, const OdString &name, const OdResBuf *chain,
                                 OdString *error = nullptr);
};
