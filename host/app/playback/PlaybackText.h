#pragma once

#include <QCoreApplication>

namespace host::app {

/// A text of recorded sessions in the user's language.
inline QString tr(const char *text)
{
    return QCoreApplication::translate("Playback", text);
}

} // namespace host::app
