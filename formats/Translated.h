#pragma once

#include <QCoreApplication>

namespace ortakit {

/// A text of the module in the user's language. Its texts share one context, as hosts' translations expect.
inline QString translated(const char *text)
{
    return QCoreApplication::translate("LispExtension", text);
}

} // namespace ortakit
