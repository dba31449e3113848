#pragma once

#include "host/kernel/files/TrustedFolders.h"

class QWidget;

namespace host::app {

/// Asks in a message box of the window, which shows the program's whole path.
kernel::TrustedFolders::Question trustQuestion(QWidget &window);

} // namespace host::app
