#pragma once

#include <QString>

class QWidget;

namespace ortakit {

/// Lets the user pick one of the hatch patterns that drafting programs have in common from a menu below `button`; empty
/// when the menu is closed without a choice. A host may know more: a name can be typed as well.
QString pickMaskPattern(QWidget *button);

} // namespace ortakit
