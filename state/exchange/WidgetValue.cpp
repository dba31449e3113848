#include "state/exchange/WidgetValue.h"

#include "platform/widgets/CKvQtColorComboBox.h"
#include "platform/widgets/CKvQtUnitSpinBox.h"
#include "state/tables/TableSelection.h"
#include "state/widgets/FullText.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QToolButton>
#include <QtMath>

#include <limits>

namespace ortakit {

namespace {

QString realText(double value)
{
    return QString::number(value, 'g', 6);
}

double realValue(const QString &text)
{
    const double value = text.toDouble();
    return qIsFinite(value) ? value : 0;
}

template <class Widget>
QString writeNothing(const Widget &)
{
    return {};
}

template <class Widget>
void applyNothing(Widget &, const QString &)
{
}

void applyLabel(QLabel &label, const QString &value)
{
    label.setText(value);
    if (!isElided(value))
        storeFullText(label, value);
}

QString writeButton(const QAbstractButton &button)
{
    return button.isChecked() ? QStringLiteral("TRUE") : QStringLiteral("FALSE");
}

void applyButton(QAbstractButton &button, const QString &value)
{
    button.setChecked(value != QStringLiteral("FALSE"));
}

QString writeLineEdit(const QLineEdit &edit)
{
    const QString text = edit.text();
    return isElided(text) ? storedFullText(edit) : text;
}

void applyLineEdit(QLineEdit &edit, const QString &value)
{
    // The editor inside a spin box: the box itself is set.
    if (edit.objectName() == QStringLiteral("qt_spinbox_lineedit"))
        return;
    showElided(edit, value);
    if (!isElided(value))
        storeFullText(edit, value);
}

QString writeColor(const CKvQtColorComboBox &box)
{
    return QString::number(box.colorIndex());
}

void applyColor(CKvQtColorComboBox &box, const QString &value)
{
    bool isNumber = false;
    const int color = value.toInt(&isNumber);
    if (isNumber)
        box.setColorIndex(color);
    else
        box.setCurrentText(value);
}

QString writeComboBox(const QComboBox &box)
{
    return box.currentText();
}

void applyComboBox(QComboBox &box, const QString &value)
{
    // The box of favourites says what was chosen last, not what the state is.
    if (box.objectName().compare(QStringLiteral("cb_favorits"), Qt::CaseInsensitive) != 0)
        box.setCurrentText(value);
}

QString writeList(const QListWidget &list)
{
    const QListWidgetItem *item = list.currentItem();
    return item ? item->text() : QString();
}

void applyList(QListWidget &list, const QString &value)
{
    if (QListWidgetItem *item = list.currentItem())
        item->setText(value);
}

QString writeUnits(const CKvQtUnitSpinBox &box)
{
    return realText(box.isAngle() ? qRadiansToDegrees(box.value()) : box.value());
}

void applyUnits(CKvQtUnitSpinBox &box, const QString &value)
{
    if (box.isAngle())
        box.setUnitValue(qDegreesToRadians(realValue(value)));
    else
        box.setValue(realValue(value));
}

QString writeReal(const QDoubleSpinBox &box)
{
    return realText(box.value());
}

void applyReal(QDoubleSpinBox &box, const QString &value)
{
    box.setValue(realValue(value));
}

void applyWhole(QSpinBox &box, const QString &value)
{
    constexpr double largest = std::numeric_limits<int>::max();
    box.setValue(int(std::clamp(realValue(value), -largest, largest)));
}

QString writeTab(const QTabWidget &tabs)
{
    return QString::number(tabs.currentIndex());
}

void applyTab(QTabWidget &tabs, const QString &value)
{
    tabs.setCurrentIndex(value.toInt());
}

struct Row
{
    bool (*matches)(const QWidget &widget);
    QString (*write)(const QWidget &widget);
    void (*apply)(QWidget &widget, const QString &value);
};

template <class Widget, auto Write, auto Apply>
constexpr Row row()
{
    return {
        [](const QWidget &widget) { return qobject_cast<const Widget *>(&widget) != nullptr; },
        [](const QWidget &widget) { return Write(static_cast<const Widget &>(widget)); },
        [](QWidget &widget, const QString &value) { Apply(static_cast<Widget &>(widget), value); },
    };
}

// The order is part of the contract: a derived class is handled as its base where the base comes first. So a font
// combo box is a combo box.
constexpr Row rows[] = {
    row<QLabel, writeNothing<QLabel>, applyLabel>(),
    row<QToolButton, writeNothing<QToolButton>, applyNothing<QToolButton>>(),
    row<QPushButton, writeNothing<QPushButton>, applyNothing<QPushButton>>(),
    row<QCheckBox, writeButton, applyButton>(),
    row<QLineEdit, writeLineEdit, applyLineEdit>(),
    row<QRadioButton, writeButton, applyButton>(),
    row<CKvQtColorComboBox, writeColor, applyColor>(),
    row<QComboBox, writeComboBox, applyComboBox>(),
    row<QListWidget, writeList, applyList>(),
    row<CKvQtUnitSpinBox, writeUnits, applyUnits>(),
    row<QDoubleSpinBox, writeReal, applyReal>(),
    row<QSpinBox, writeNothing<QSpinBox>, applyWhole>(),
    row<QTabWidget, writeTab, applyTab>(),
    row<QTableWidget, selectedRowTexts, selectByTexts>(),
};

const Row *rowFor(const QWidget &widget)
{
    for (const Row &candidate : rows) {
        if (candidate.matches(widget))
            return &candidate;
    }
    return nullptr;
}

} // namespace

QString writtenValue(const QWidget &widget)
{
    const Row *found = rowFor(widget);
    return found ? found->write(widget) : QString();
}

QString writtenIndex(const QWidget &widget)
{
    const auto *box = qobject_cast<const QComboBox *>(&widget);
    return box ? QString::number(box->currentIndex()) : QString();
}

void applyValue(QWidget &widget, const QString &value)
{
    if (const Row *found = rowFor(widget))
        found->apply(widget, value);
}

} // namespace ortakit
