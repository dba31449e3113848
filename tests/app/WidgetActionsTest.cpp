#include "host/app/playback/WidgetActions.h"

#include "host/app/playback/RowActions.h"
#include "host/app/playback/WidgetFinder.h"
#include "host/app/playback/WidgetValues.h"
#include "platform/widgets/CKvQtUnitSpinBox.h"
#include "tests/support/QtTestPrinters.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTabWidget>
#include <QTableWidget>

#include <gtest/gtest.h>

using namespace host::app;
using namespace Qt::StringLiterals;

namespace {

/// A dialog with one widget of each class that tool dialogs use.
struct WidgetActionsTest : testing::Test
{
    WidgetActionsTest()
    {
        add<QLineEdit>(u"name"_s);
        add<QLineEdit>(u"digits"_s)->setValidator(new QIntValidator(0, 99, &dialog));
        add<QLineEdit>(u"fixed"_s)->setReadOnly(true);
        add<QDoubleSpinBox>(u"size"_s)->setRange(0.5, 100.0);
        auto *angle = add<CKvQtUnitSpinBox>(u"angle"_s);
        angle->setUnitType(CKvQtUnitSpinBox::Angle);
        angle->setRange(-10, 10);
        add<QCheckBox>(u"box"_s)->setText(u"&Keep it"_s);
        add<QRadioButton>(u"first"_s)->setChecked(true);
        add<QRadioButton>(u"second"_s);
        add<QComboBox>(u"combo"_s)->addItems({u"one"_s, u"two"_s, u"three"_s});
        auto *editable = add<QComboBox>(u"editable"_s);
        editable->setEditable(true);
        editable->addItem(u"old"_s);
        add<QPlainTextEdit>(u"notes"_s);
        add<QSlider>(u"slider"_s)->setMaximum(9);
        auto *list = add<QListWidget>(u"list"_s);
        list->addItems({u"a"_s, u"b"_s, u"c"_s});
        list->setSelectionMode(QAbstractItemView::ExtendedSelection);
        auto *table = add<QTableWidget>(u"table"_s);
        table->setColumnCount(2);
        for (int row = 0; row < 2; ++row) {
            table->insertRow(row);
            table->setItem(row, 0, new QTableWidgetItem(u"r%1"_s.arg(row)));
            table->setItem(row, 1, new QTableWidgetItem(u"v%1"_s.arg(row)));
        }
        auto *tabs = add<QTabWidget>(u"tabs"_s);
        tabs->addTab(new QLabel(u"page"_s), u"&General"_s);
        auto *inside = new QLineEdit;
        inside->setObjectName(u"inside"_s);
        tabs->addTab(inside, u"More"_s);
        add<QGroupBox>(u"group"_s)->setCheckable(true);
        add<QPushButton>(u"off"_s)->setEnabled(false);
        layout.addRow(&buttons);
        dialog.resize(500, 900);
        dialog.show();
    }

    template <typename Widget>
    Widget *add(const QString &name)
    {
        auto *widget = new Widget;
        widget->setObjectName(name);
        layout.addRow(name, widget);
        return widget;
    }
    QWidget &widget(const QString &name)
    {
        const FoundWidget found = findWidget(dialog, name);
        EXPECT_TRUE(found) << found.error.toStdString();
        return *found.widget;
    }

    QDialog dialog;
    QFormLayout layout{&dialog};
    QDialogButtonBox buttons{QDialogButtonBox::Ok | QDialogButtonBox::Cancel};
};

TEST_F(WidgetActionsTest, SetsByClass)
{
    // A widget, what is set, and what it shows then or the refusal.
    const std::tuple<QString, QString, QString> rows[] = {
        {u"name"_s, u"größe"_s, u"größe"_s},
        {u"NAME"_s, QString(), QString()},
        {u"digits"_s, u"42"_s, u"42"_s},
        {u"digits"_s, u"4x"_s, u"digits does not take \"4x\"; it shows \"42\""_s},
        {u"fixed"_s, u"x"_s, u"fixed cannot be written to"_s},
        {u"size"_s, u"2.5"_s, u"2.50"_s},
        {u"size"_s, u"101"_s, u"size does not take \"101\""_s},
        {u"size"_s, u"abc"_s, u"size does not take \"abc\""_s},
        {u"angle"_s, u"90"_s, u"90"_s},
        {u"box"_s, u"yes"_s, u"yes"_s},
        {u"box"_s, u"no"_s, u"no"_s},
        {u"second"_s, u"on"_s, u"yes"_s},
        {u"second"_s, u"off"_s, u"second stays as it is; another button of its group must be checked"_s},
        {u"combo"_s, u"two"_s, u"two"_s},
        {u"combo"_s, u"#2"_s, u"three"_s},
        {u"combo"_s, u"four"_s, u"combo has no item \"four\"; it has one; two; three"_s},
        {u"editable"_s, u"new"_s, u"new"_s},
        {u"notes"_s, u"two\nlines"_s, u"two\nlines"_s},
        {u"slider"_s, u"7"_s, u"7"_s},
        {u"slider"_s, u"10"_s, u"slider does not take \"10\""_s},
        {u"list"_s, u"b"_s, u"b"_s},
        {u"list"_s, u"z"_s, u"list has no row \"z\""_s},
        {u"table"_s, u"v1"_s, QString()},
        {u"inside"_s, u"x"_s, u"inside is not visible"_s},
        {u"tabs"_s, u"More"_s, u"More"_s},
        {u"inside"_s, u"x"_s, u"x"_s},
        {u"tabs"_s, u"Less"_s, u"tabs has no tab \"Less\""_s},
        {u"group"_s, u"no"_s, u"no"_s},
        {u"off"_s, u"yes"_s, u"off is disabled"_s},
        {u"button:Ok"_s, u"x"_s, u"QPushButton has no value to set"_s},
    };
    for (const auto &[name, value, expected] : rows) {
        const QString error = setValue(widget(name), value);
        const QString shown = error.isEmpty() ? shownValue(widget(name)) : error;
        EXPECT_EQ(shown, expected) << name.toStdString() << " = " << value.toStdString();
    }
}

TEST_F(WidgetActionsTest, WorksAsAHandWould)
{
    int edits = 0;
    int finished = 0;
    int activated = 0;
    auto &name = static_cast<QLineEdit &>(widget(u"name"_s));
    QObject::connect(&name, &QLineEdit::textEdited, [&] { ++edits; });
    QObject::connect(&name, &QLineEdit::editingFinished, [&] { ++finished; });
    QObject::connect(static_cast<QComboBox *>(&widget(u"combo"_s)), &QComboBox::activated, [&] { ++activated; });
    EXPECT_EQ(setValue(name, u"ab"_s), QString());
    EXPECT_EQ(finished, 1);
    EXPECT_EQ(typeText(name, u"Cd"_s), QString());
    EXPECT_EQ(pressKey(name, u"Backspace"_s), QString());
    EXPECT_EQ(name.text(), u"abC"_s);
    EXPECT_GE(edits, 4);
    EXPECT_EQ(pressKey(name, u"Hyper+Nothing"_s), u"\"Hyper+Nothing\" is no key"_s);
    EXPECT_EQ(setValue(widget(u"combo"_s), u"two"_s), QString());
    EXPECT_EQ(activated, 1);
}

TEST_F(WidgetActionsTest, SelectsAndWritesRows)
{
    EXPECT_EQ(selectRows(widget(u"list"_s), {u"a"_s, u"#2"_s}), QString());
    EXPECT_EQ(shownValue(widget(u"list"_s)), u"a^c"_s);
    EXPECT_EQ(selectRows(widget(u"list"_s), {u"b"_s}), QString());
    EXPECT_EQ(shownValue(widget(u"list"_s)), u"b"_s);
    EXPECT_EQ(selectRows(widget(u"name"_s), {u"b"_s}), u"name is no list, table or tree"_s);
    EXPECT_EQ(setCell(widget(u"table"_s), 1, 1, u"new"_s), QString());
    EXPECT_EQ(setCell(widget(u"table"_s), 2, 0, u"new"_s), u"table has no cell 2, 0"_s);
    EXPECT_EQ(shownItems(widget(u"table"_s)), QStringList({u"r0;v0"_s, u"r1;new"_s}));
    auto &table = static_cast<QTableWidget &>(widget(u"table"_s));
    table.horizontalHeader()->setMinimumSectionSize(0);
    table.setColumnWidth(0, 0);
    EXPECT_EQ(selectRows(table, {u"r1"_s}), QString()) << "where the row can be seen";
    EXPECT_EQ(table.currentRow(), 1);
    auto &list = static_cast<QListWidget &>(widget(u"list"_s));
    EXPECT_EQ(checkRow(list, u"a"_s, true), QString());
    EXPECT_EQ(list.item(0)->checkState(), Qt::Checked);
    list.item(1)->setFlags(Qt::ItemIsEnabled);
    EXPECT_EQ(checkRow(list, u"b"_s, true), u"row \"b\" of list cannot be checked"_s);
    int opened = 0;
    QObject::connect(&list, &QListWidget::itemDoubleClicked, [&] { ++opened; });
    EXPECT_EQ(doubleClick(list, u"c"_s), QString());
    EXPECT_EQ(opened, 1);
}

TEST_F(WidgetActionsTest, FindsWidgetsByWhatIsKnownOfThem)
{
    EXPECT_EQ(findWidget(dialog, u"text:Keep it"_s).widget, &widget(u"box"_s));
    EXPECT_EQ(findWidget(dialog, u"class:QLineEdit#2"_s).widget, &widget(u"digits"_s));
    EXPECT_EQ(findWidget(dialog, u"class:QAbstractButton"_s).widget, &widget(u"box"_s));
    EXPECT_EQ(findWidget(dialog, u"button:Cancel"_s).widget, buttons.button(QDialogButtonBox::Cancel));
    for (const char *unknown : {"nothing", "text:", "class:QDial", "button:Apply", "button:"})
        EXPECT_FALSE(findWidget(dialog, QString::fromLatin1(unknown))) << unknown;
    EXPECT_TRUE(findWidget(dialog, u"nothing"_s).error.contains(u"it has name, digits, fixed"_s));
}

TEST_F(WidgetActionsTest, ComparesWhatIsShown)
{
    EXPECT_EQ(setValue(widget(u"size"_s), u"2.5"_s), QString());
    EXPECT_TRUE(showsValue(widget(u"size"_s), u"2.5"_s));
    EXPECT_FALSE(showsValue(widget(u"size"_s), u"2.51"_s));
    auto &name = static_cast<QLineEdit &>(widget(u"name"_s));
    name.setText(u"/a…/b"_s);
    name.setProperty("value", u"/a/long/b"_s);
    EXPECT_TRUE(showsValue(name, u"/a/long/b"_s));
    name.setText(u"/c"_s);
    EXPECT_FALSE(showsValue(name, u"/a/long/b"_s)) << "a full text that no longer belongs to what is shown";
}

} // namespace
