#pragma once

class QWidget;

namespace ortakit {

/// Gives "acceptButton", "ButtonCancel" and "buttonHelp" below `dialog` the shared icons in the variant of the host's
/// style. A button that is not there, and one whose icon the host does not have, stays as it is.
void decorateButtons(const QWidget &dialog);

} // namespace ortakit
