#pragma once

#include <QString>

class QWidget;

namespace ortakit {

/// How the drawing picker looks and starts. What is empty has the default that is said.
struct DrawingPickerOptions
{
    QString title;  ///< "Specify a drawing"
    QString filter; ///< "Drawing files (*.dwg)"
    /// A folder, or a file in one, whose name is then proposed; the host's default folder when there is no such folder.
    QString start;
};

/// Lets the user choose an existing drawing file; empty when cancelled. A drawing that leads back to itself or to the
/// active drawing is refused with a warning, and the result is empty as well.
///
/// The dialog has the object name "drawingDialog". It is the system's own unless Qt::AA_DontUseNativeDialogs is set.
QString pickDrawing(QWidget *parent, const DrawingPickerOptions &options = {});

/// Whether the drawing file at `path`, followed through the drawings that it refers to, leads back to itself or to
/// the drawing file at `host`, which is empty for a drawing without a file; also when both are the same file. At most
/// 1,000 drawings are opened.
bool leadsBack(const QString &path, const QString &host);

} // namespace ortakit
