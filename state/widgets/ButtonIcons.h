#pragma once

#include <QLatin1String>
#include <QString>

class QAbstractButton;
class QWidget;

namespace ortakit {

/// The button below `dialog` with this object name, in any case; null when there is none.
QAbstractButton *findButton(const QWidget &dialog, QLatin1String name);

/// Gives "acceptButton" or "okButton", "ButtonCancel" or "cancelButton", and "buttonHelp" below `dialog` the shared
/// icons in the variant of the host's style. A button that is not there, and one whose icon the host does not have,
/// stays as it is.
void decorateButtons(const QWidget &dialog);

/// Gives `button` the shared icon `icon` ("help") in the same way. Null is allowed.
void decorateButton(QAbstractButton *button, const QString &icon);

} // namespace ortakit
