#pragma once

#include <functional>

class QLineEdit;

namespace ortakit {

/// From now on the Return key in `field` does `action`, and does not press the dialog's default button.
void setReturnAction(QLineEdit &field, std::function<void()> action);

} // namespace ortakit
