#pragma once

#include "host/view/paint/Export.h"

#include <QString>
#include <QStringList>

#include <functional>

class QWidget;

namespace host::kernel {
class Document;
}

namespace host::app {

// What came of each says a sentence that names the file when it could not be written. A file is written whole or not at
// all.

/// The whole drawing as a picture: PNG, SVG or PDF by the extension of `path`. `surroundings` is what expressions in
/// the drawing may ask for.
view::ExportResult writeDrawingPicture(const drawing::Drawing &drawing, const QString &path,
                                       const drawing::MacroSurroundings &surroundings);
/// Told of a drawing that is seen through an external reference, with what of its file could not be read.
using IncompleteTold = std::function<void(const QString &path, const drawing::ReadingNotes &notes)>;
/// The same for an open document, which knows more system variables, as it is now, saved or not. Without `told` the
/// document prints what its references lack, once.
view::ExportResult writeDrawingPicture(kernel::Document &document, const QString &path, IncompleteTold told = {});

/// The same with the sheets of layouts: any number in a PDF, one or none in the other formats.
view::ExportResult writePages(view::Exporter &exporter, const QString &path, const QStringList &layouts);

/// What the widget looks like now, as PNG; empty when it was written.
QString writeWidgetPicture(QWidget &widget, const QString &path);

/// The extensions that writeDrawingPicture() takes, lower case, without dots: png, svg, pdf.
QStringList pictureExtensions();

} // namespace host::app
