#include "host/app/batch/tools/ToolForm.h"

#include "host/app/playback/WidgetFinder.h"
#include "host/app/playback/WidgetValues.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDoubleValidator>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTextEdit>

#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// What a field of this class takes; nothing when it is none.
std::optional<FieldKind> kindOfField(const QWidget &widget)
{
    if (qobject_cast<const QCheckBox *>(&widget))
        return FieldKind::YesNo;
    if (qobject_cast<const QRadioButton *>(&widget))
        return FieldKind::OneOf;
    if (widget.inherits("CKvtColorComboBox") || widget.inherits("CKvQtColorComboBox"))
        return FieldKind::Colour;
    if (qobject_cast<const QComboBox *>(&widget))
        return FieldKind::Choice;
    if (qobject_cast<const QAbstractSpinBox *>(&widget))
        return FieldKind::Number;
    if (const auto *edit = qobject_cast<const QLineEdit *>(&widget))
        return edit->validator() && edit->validator()->inherits("QDoubleValidator") ? FieldKind::Number
                                                                                    : FieldKind::Text;
    if (const auto *edit = qobject_cast<const QTextEdit *>(&widget))
        return edit->isReadOnly() ? std::nullopt : std::optional(FieldKind::Text);
    if (qobject_cast<const QAbstractItemView *>(&widget))
        return FieldKind::Rows;
    return {};
}

/// Parts of other fields, and what belongs to the toolkit or to the box of favourites.
bool isOwn(const QWidget &widget)
{
    const QString name = widget.objectName();
    if (name.isEmpty() || name.startsWith("qt_"_L1) || name.compare("cb_favorits"_L1, Qt::CaseInsensitive) == 0)
        return false;
    for (const QWidget *outer = widget.parentWidget(); outer; outer = outer->parentWidget())
        if (qobject_cast<const QComboBox *>(outer) || qobject_cast<const QAbstractSpinBox *>(outer) ||
            qobject_cast<const QAbstractItemView *>(outer))
            return false;
    return true;
}

const QGroupBox *boxAround(const QWidget &widget)
{
    for (const QWidget *outer = widget.parentWidget(); outer && !outer->isWindow(); outer = outer->parentWidget())
        if (const auto *box = qobject_cast<const QGroupBox *>(outer); box && !box->title().isEmpty())
            return box;
    return nullptr;
}

/// The label that belongs to a field, or the nearest one left of it or above it.
QString labelOf(const QWidget &widget, const QWidget &dialog)
{
    const QRect place(widget.mapTo(&dialog, QPoint()), widget.size());
    QString nearest;
    int best = 60; // pixels that a label may be away
    for (const QLabel *label : dialog.findChildren<QLabel *>()) {
        if (label->buddy() == &widget)
            return plainCaption(label->text());
        const QRect other(label->mapTo(&dialog, QPoint()), label->size());
        const bool isBeside = other.center().y() >= place.top() && other.center().y() <= place.bottom();
        const bool isAbove = other.left() < place.right() && other.right() > place.left();
        const int away = isBeside ? place.left() - other.right() : isAbove ? place.top() - other.bottom() + 20 : best;
        if (label->parentWidget() == widget.parentWidget() && away >= -2 && away < best && !label->text().isEmpty()) {
            best = away;
            nearest = plainCaption(label->text());
        }
    }
    return nearest;
}

QString captionOf(const QWidget &widget, const QWidget &dialog)
{
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        return plainCaption(button->text());
    QString label = labelOf(widget, dialog);
    while (label.endsWith(u':') || label.endsWith(u' '))
        label.chop(1);
    return label;
}

void addLimits(FormField &field, const QWidget &widget)
{
    const auto *edit = qobject_cast<const QLineEdit *>(&widget);
    const QObject *limits = edit ? static_cast<const QObject *>(edit->validator()) : &widget;
    const QVariant least = limits->property(edit ? "bottom" : "minimum");
    const QVariant most = limits->property(edit ? "top" : "maximum");
    const auto isLimit = [](const QVariant &value) { return value.isValid() && std::abs(value.toDouble()) < 1e15; };
    if (isLimit(least))
        field.least = QString::number(least.toDouble(), 'g', 10);
    if (isLimit(most))
        field.most = QString::number(most.toDouble(), 'g', 10);
}

FormField fieldOf(const QWidget &widget, FieldKind kind, const QWidget &dialog)
{
    const QGroupBox *box = boxAround(widget);
    FormField field{.key = widget.objectName().toLower(),
                    .kind = kind,
                    .caption = captionOf(widget, dialog),
                    .group = box ? plainCaption(box->title()) : QString(),
                    .tip = widget.toolTip(),
                    .choices = kind == FieldKind::Choice ? shownItems(widget) : QStringList(),
                    .value = shownValue(widget),
                    .least = {},
                    .most = {}};
    if (kind == FieldKind::Number)
        addLimits(field, widget);
    return field;
}

QString kindHelp(const FormField &field, const ToolRow &tool)
{
    switch (field.kind) {
    case FieldKind::YesNo:
        return QCoreApplication::translate("Uses", "yes or no");
    case FieldKind::OneOf:
        return QCoreApplication::translate("Uses", "yes or no, one of its group");
    case FieldKind::Choice:
        if (tool.dependsOnDrawing(field.key) || field.choices.isEmpty() || field.choices.size() > 20)
            return QCoreApplication::translate("Uses", "one of a list");
        return QCoreApplication::translate("Uses", "one of: %1").arg(field.choices.join("; "_L1));
    case FieldKind::Number:
        if (!field.least.isEmpty() && !field.most.isEmpty())
            return QCoreApplication::translate("Uses", "a number from %1 to %2").arg(field.least, field.most);
        if (!field.least.isEmpty())
            return QCoreApplication::translate("Uses", "a number, %1 or more").arg(field.least);
        return QCoreApplication::translate("Uses", "a number");
    case FieldKind::Colour:
        return QCoreApplication::translate("Uses", "a colour's number, 0 to 256");
    case FieldKind::Rows:
        return QCoreApplication::translate("Uses", "rows by the texts of their first column with ^ between; * for all");
    case FieldKind::Text:
        break;
    }
    return tool.hasPath(field.key) ? QCoreApplication::translate("Uses", "a file or folder")
                                   : QCoreApplication::translate("Uses", "a text");
}

QString fieldHelp(const FormField &field, const ToolRow &tool)
{
    QString about = field.caption;
    if (!field.group.isEmpty() && field.group != field.caption)
        about = about.isEmpty() ? field.group : u"%1: %2"_s.arg(field.group, about);
    if (!field.tip.isEmpty() && field.tip != field.caption)
        about += (about.isEmpty() ? QString() : u". "_s) + field.tip.simplified();
    QString help = about.isEmpty() ? kindHelp(field, tool) : u"%1; %2"_s.arg(about, kindHelp(field, tool));
    // What is in the drawing, or on this machine, is no default.
    const bool hasDefault = field.kind != FieldKind::Rows && !field.value.isEmpty() &&
                            !tool.dependsOnDrawing(field.key) && !field.value.contains(u'/');
    return hasDefault ? help + QCoreApplication::translate("Uses", " (default: %1)").arg(field.value.simplified())
                      : help;
}

/// Colours have whole numbers: half of one is refused before a drawing is opened.
bool isColour(const QString &value)
{
    bool isWhole = false;
    const int number = value.toInt(&isWhole);
    return isWhole && number >= 0 && number <= 256;
}

bool isWithin(const FormField &field, double number)
{
    return std::isfinite(number) && (field.least.isEmpty() || number >= field.least.toDouble()) &&
           (field.most.isEmpty() || number <= field.most.toDouble());
}

} // namespace

std::optional<bool> yesOrNoOf(const QString &word)
{
    static const QStringList yes = {u"yes"_s, u"on"_s, u"true"_s, u"1"_s};
    static const QStringList no = {u"no"_s, u"off"_s, u"false"_s, u"0"_s};
    if (yes.contains(word.toLower()))
        return true;
    return no.contains(word.toLower()) ? std::optional(false) : std::nullopt;
}

ToolForm readForm(const QWidget &dialog, const ToolRow &tool)
{
    ToolForm form;
    for (const QWidget *widget : dialog.findChildren<QWidget *>()) {
        if (!isOwn(*widget))
            continue;
        if (const auto kind = kindOfField(*widget))
            form.fields.append(fieldOf(*widget, *kind, dialog));
        else if (qobject_cast<const QAbstractButton *>(widget))
            form.buttons.append(widget->objectName().toLower());
    }
    form.buttons.removeAll(QString::fromLatin1(tool.accept).toLower());
    return form;
}

QString checkField(const FormField &field, const QString &value, const ToolRow &tool)
{
    const bool isYesNo = field.kind == FieldKind::YesNo || field.kind == FieldKind::OneOf;
    const bool isKnown = field.kind == FieldKind::Choice && !tool.dependsOnDrawing(field.key);
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    const bool isWrong = (isYesNo && !yesOrNoOf(value)) ||
                         (isKnown && !field.choices.isEmpty() && !field.choices.contains(value)) ||
                         (field.kind == FieldKind::Number && (!isNumber || !isWithin(field, number))) ||
                         (field.kind == FieldKind::Colour && !isColour(value));
    return isWrong ? QCoreApplication::translate("Uses", "%1 is %2, not \"%3\"")
                         .arg(field.key, kindHelp(field, tool), value)
                   : QString();
}

QList<std::pair<QString, QString>> formRows(const ToolForm &form, const ToolRow &tool)
{
    QList<std::pair<QString, QString>> rows;
    for (const FormField &field : form.fields)
        rows.append({field.key, fieldHelp(field, tool)});
    return rows;
}

} // namespace host::app
