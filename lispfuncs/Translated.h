#pragma once

#include <QCoreApplication>

namespace ortakit {

/// A text of the Lisp functions in the user's language.
inline QString translated(const char *text)
{
    return QCoreApplication::translate("LispExtension", text);
}

} // namespace ortakit
