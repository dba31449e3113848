#pragma once

#include "host/app/uses/Use.h"

namespace host::app {

// What --help, manual pages and documents make of the rows of the table, before it is set in either form.

/// A paragraph of a description.
struct Paragraph
{
    QString text;
    bool isAsIs = false; ///< lines that stand as they are
};

/// The paragraphs of a text of the table, in the user's language.
QList<Paragraph> paragraphsOf(const char *text);

/// "--out DIR".
QString optionWord(const OptionRow &row);
/// What is told of an option, with its range and what holds without it.
QString optionText(const OptionRow &row);

/// What the program's status says, in one paragraph.
QString exitStatusText();

} // namespace host::app
