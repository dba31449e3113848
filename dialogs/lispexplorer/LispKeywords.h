#pragma once

#include <QString>
#include <QStringList>

namespace ortakit {

/// The names of the Lisp dialect's built-in and library functions, a blank behind each, in the order of
/// `resources/datas/lisp-keywords.txt`, which the build compiles in.
QString lispKeywordText();

/// The entries of the text above: what stands between its blanks, the empty entry behind the last blank included. An
/// entry is a regular expression, not a text: "1+" means one or more digits 1.
QStringList lispKeywords();

} // namespace ortakit
