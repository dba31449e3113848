#pragma once

#include <QMap>
#include <QStringList>

class QWidget;

namespace ortakit::test {

// What the user reads of a window now: labels, buttons and titles of groups that are visible.

/// Texts of labels and buttons that have less room than they need, with what they lack. Labels that wrap find room.
QStringList cutTexts(const QWidget &window);

/// Texts with a mnemonic, or without: titles, buttons, and labels that lead to a field.
QStringList textsWithMnemonics(const QWidget &window);

/// The letters that several of these are reached by, with the texts.
QMap<QChar, QStringList> sharedMnemonics(const QWidget &window);

} // namespace ortakit::test
