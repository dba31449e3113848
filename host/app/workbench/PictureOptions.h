#pragma once

#include "host/view/paint/Export.h"

#include <QString>
#include <QStringList>

namespace host::app {

/// What of a drawing a conversion shows, and how.
struct PictureOptions
{
    QString layout;         ///< a name, "all" or "model"; empty: all of model space
    QString plotStyle;      ///< a file, a built-in table or "none"; empty: what each page says
    view::ExportOptions as; ///< without layouts
    QStringList given;      ///< the options that were given, "--paper"
};

// Each reads the value of one option; the error names what is allowed, and is empty when all is well. That choices and
// numbers are what the option's row allows was checked before.

/// "1:50", "2:1", or one number: millimetres on the sheet to drawing units.
QString setScale(PictureOptions &options, const QString &value);
/// "A3", "ANSI-D", "ARCH-E1", "420x297"; with "-landscape" or "-portrait" behind.
QString setPaper(PictureOptions &options, const QString &value);
/// "2000x1400", pixels.
QString setSize(PictureOptions &options, const QString &value);
QString setResolution(PictureOptions &options, const QString &value);
/// "black" or "white".
QString setPictureGround(PictureOptions &options, const QString &value);
/// "x,y,x,y": two corners.
QString setWindow(PictureOptions &options, const QString &value);
/// "outlines" or "text".
QString setTextForm(PictureOptions &options, const QString &value);

/// Why the options do not go together, or not with a file of this extension (lower case); empty when they do.
QString pictureConflict(const PictureOptions &options, const QString &extension);

} // namespace host::app
