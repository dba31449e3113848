#pragma once

#include "platform/kernel/CKvUtils.h"

#include <functional>

class QWidget;

namespace ortakit {

/// Whether a drawing is refused that leads back to itself or to the active drawing: as a reference it could not be
/// loaded, copied in as a block it does no harm.
enum class CircularReferences
{
    Refuse,
    Allow
};

/// How the drawing picker looks and starts. What is empty has the default that is said.
struct DrawingPickerOptions
{
    QString title = {};  ///< "Specify a drawing"
    QString filter = {}; ///< "Drawing files (*.dwg)", and in any case one for DXF files if it has none
    /// A folder, or a file in one, whose name is then proposed; the host's default folder when there is no such folder.
    QString start = {};
    CircularReferences circularReferences = CircularReferences::Refuse;
};

/// Lets the user choose an existing drawing file; empty when cancelled, and after the warning about a circular
/// reference.
///
/// The dialog has the object name "drawingDialog". It is the system's own unless Qt::AA_DontUseNativeDialogs is set.
QString pickDrawing(QWidget *parent, const DrawingPickerOptions &options = {});

/// Whether the drawing file at `path`, followed through the drawings that it refers to, leads back to itself or to
/// the drawing file at `host`, which is empty for a drawing without a file; also when both are the same file. At most
/// 1,000 drawings are opened. `referencesOf` gives the paths that a drawing file has for its references.
bool leadsBack(const QString &path, const QString &host,
               const std::function<QStringList(const QString &)> &referencesOf = CKvUtils::externalReferences);

} // namespace ortakit
