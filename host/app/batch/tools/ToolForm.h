#pragma once

#include "host/app/batch/tools/ToolTable.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>

class QWidget;

namespace host::app {

/// What a field of a form takes.
enum class FieldKind
{
    YesNo,
    OneOf, ///< yes or no, of which one of a group is yes
    Choice,
    Number,
    Text,
    Colour,
    Rows ///< of a list or table
};

/// A field of a tool's dialog as the dialog opens with it.
struct FormField
{
    QString key; ///< object name in lower case
    FieldKind kind;
    QString caption; ///< what stands on it or beside it, without mnemonic
    QString group;   ///< the title of the box that it is in; may be empty
    QString tip;
    QStringList choices; ///< of Choice
    QString value;       ///< what it shows; yes or no of the first two kinds
    QString least;       ///< of Number; empty: no limit
    QString most;
};

struct ToolForm
{
    QList<FormField> fields;
    QStringList buttons; ///< names in lower case
    QString problem;     ///< why there is no form, empty when there is
};

/// The form of a dialog that is open. What it keeps for itself, such as its box of favourites, is left out.
ToolForm readForm(const QWidget &dialog, const ToolRow &tool);

/// Why the value cannot be one of the field, empty when it can. What depends on the drawing is not looked at.
QString checkField(const FormField &field, const QString &value, const ToolRow &tool);

/// Yes or no in any of its spellings; nothing for another word.
std::optional<bool> yesOrNoOf(const QString &word);

/// What is told of the keys: each with what it is, what it takes and what it is without being set.
QList<std::pair<QString, QString>> formRows(const ToolForm &form, const ToolRow &tool);

} // namespace host::app
