#pragma once

#include <QList>
#include <QStringList>

namespace ortakit {

/// What is wrong with the name that a sheet would get.
enum class SheetNameProblem
{
    None,
    Empty,
    TooLong,  ///< more than 255 characters
    Reserved, ///< "Model", in any case, is no sheet
    Repeated, ///< a sheet before it has the same name, in any case
};

struct SheetName
{
    QString text;
    SheetNameProblem problem = SheetNameProblem::None;
};

/// What becomes of a name that another sheet has.
enum class EqualNames
{
    Refuse,
    Number, ///< Plan, Plan (2), Plan (3): the lowest number that makes a new name
};

/// The names that `sheets` get in the drawing that they are merged into, in their order: `prefix` and the sheet's own
/// name. A sheet is a layout, or a drawing file ("D:\plans\ground.dwg"), whose own name is that of the file without
/// folder and extension; characters that a name cannot have become "_" in it. Takes time in proportion to the sheets.
QList<SheetName> mergedSheetNames(const QStringList &sheets, const QString &prefix, EqualNames equalNames);

/// Whether `sheet` names a drawing file.
bool isDrawingFile(const QString &sheet);

/// Whether `text` has only characters that a name can have: none of < > / \ " : ; ? * | , = ` and no control character.
bool canBeInName(const QString &text);

} // namespace ortakit
