#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>

class QIODevice;

namespace ortakit {

/// Dimension style files (".dim"): named dimension styles as text, to be carried from one drawing to another.
///
/// A file is a sequence of sections. A line whose first word contains "DIMENSION_STYLE_NAME" opens one, the rest of it
/// is the style's name; a line that contains "END_OF_STYLE" closes it. Lines outside of sections count for nothing.
/// Within a section each line is judged by the first of these that it contains, in any place, in this order:
///
/// | contains | is |
/// |---|---|
/// | "END_OF_STYLE" | the end |
/// | "DIMTXSTY" | the name of the text style; of this kind on import only, a plain variable on export |
/// | "DIMTXT_" | a part of the text style's definition |
/// | "DIMLT ", "DIMEX1LT ", "DIMEX2LT " | variable, linetype, N: a linetype's definition of N characters follows on the
/// | | next line, and what is left of the line that it ends in means nothing |
/// | anything else | a variable and its value; what has no blank is not shown, as the definitions of arrow blocks |
///
/// Text is UTF-8. N counts characters as a text stream does, in units of UTF-16 and with line ends as the file has
/// them. A count that is no number, or is negative, is 0; one that goes beyond the file ends with it.
///
/// A section that is not closed ends with the file. Names are equal when they are in upper case. A file that cannot be
/// read gives nothing. Everything here takes time and memory in proportion to the file, copies also to what they write.

/// What is copied of a dimension style's text style.
enum class TextStyleCopy
{
    NameOnly,
    /// Its definition as well.
    Full
};

/// What a file holds of one style.
struct StyleVariables
{
    /// One for each variable, as its line stands, of a linetype the variable and the linetype's name. In file order,
    /// of several sections with the name one behind the other.
    QStringList entries;
    /// Whether the section names a text style that the drawing has; on import only.
    bool usesExistingTextStyle = false;
    /// False when the last section was not closed before the end of the file.
    bool isClosed = true;
};

/// What was copied.
struct StyleCopy
{
    QByteArray text;
    /// Empty when all was copied; otherwise what the user may be told, and `text` is empty.
    QString error;
    /// False when a section that was not closed was among them; its copy is closed.
    bool isClosed = true;

    explicit operator bool() const { return error.isEmpty(); }
};

/// The names of all sections in file order, duplicates included: on export whole, on import only their first word.
QStringList listStyleNames(const QString &path);
QStringList listStyleNamesFirstWord(const QString &path);

/// The variables of the style with this whole name; definitions of text styles are left out.
StyleVariables readStyleVariables(const QString &path, const QString &name);

/// The variables of all styles whose name begins with this word, without the name of their text style, which is
/// looked up among `textStyles`, the exact names of those that the drawing has.
StyleVariables readStyleVariablesForImport(const QString &path, const QString &name, const QStringList &textStyles);

/// Appends every section with this whole name to `output`, line by line with "\r\n" behind each, otherwise as it is;
/// without the definition of the text style where only its name is wanted. `output` is open for writing. False when
/// the source cannot be read or `output` does not take all.
bool copyStyle(const QString &path, const QString &name, QIODevice &output, TextStyleCopy textStyle);

/// What copyStyle() writes for each of `names` in turn, with one reading of the file. Sections that are not closed can
/// hold one another, so the copy may be larger than the file; one that no reader would take (see largestTextFile) is
/// refused.
StyleCopy copyStyles(const QString &path, const QStringList &names, TextStyleCopy textStyle);

/// `entries` as rows of variable and value, as both dialogs show them: without the very first entry and without those
/// that have no blank.
QList<QStringList> variableRows(const QStringList &entries);

/// `path` with ".dim" behind it, unless it ends so already, in lower case.
QString withDimensionStyleExtension(const QString &path);

} // namespace ortakit
