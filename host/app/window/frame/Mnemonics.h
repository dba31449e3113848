#pragma once

#include <QStringList>

namespace host::app {

/// The captions of one menu with a mnemonic each, no letter twice: the first letter of a word where it is free, else
/// any letter, else none. Captions that have a mnemonic keep it, the first one of those that have the same.
QStringList withMnemonics(QStringList captions);

} // namespace host::app
