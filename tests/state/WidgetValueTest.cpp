#include "state/exchange/WidgetValue.h"

#include "tests/state/Gallery.h"
#include "tests/support/ModuleTest.h"

#include <cmath>

namespace {

// What a widget writes otherwise is in the state of the whole gallery.
TEST(WidgetValue, EveryClassWritesItsForm)
{
    const struct
    {
        const char *name;
        QString expected;
        const char *property = nullptr; ///< what is set before, nothing where there is none
        QVariant value = {};
    } rows[] = {
        {"Lb_Text", {}},
        {"Bt_Tool", {}, "checked", true},
        {"Rd_Choice", u"TRUE"_s, "checked", true},
        {"Tx_Edit", {}, "text", u"wait..."_s}, // shortened, and nothing stored
        {"Cb_Fixed", u"two"_s, "currentIndex", 1},
        {"Ls_Names", {}, "currentRow", -1},
        {"Sp_Length", u"2.5"_s, "value", 2.5},
        {"Sp_Length", u"1.23457e+06"_s, "value", 1234567.8},
        {"Sp_Rotation", u"-45"_s, "value", -M_PI / 4},
        {"Sp_Real", u"0.333333"_s, "value", 1.0 / 3},
        {"Sp_Whole", {}, "value", 7},
        {"Tb_Pages", u"2"_s, "currentIndex", 2},
        {"Sl_Other", {}},
    };
    for (const auto &row : rows) {
        Gallery gallery;
        gallery.tool->setCheckable(true);
        auto *widget = gallery.findChild<QWidget *>(QLatin1StringView(row.name));
        if (row.property)
            widget->setProperty(row.property, row.value);
        EXPECT_EQ(writtenValue(*widget), row.expected) << row.name;
    }
    Gallery gallery;
    gallery.color->setColorIndex(137);
    EXPECT_EQ(writtenValue(*gallery.color), u"137"_s);
    gallery.whole->setValue(12);
    EXPECT_EQ(writtenValue(*gallery.whole->findChild<QLineEdit *>()), u"12"_s) << "the editor of a spin box";
    for (const int row : {2, 0, 3})
        gallery.table->selectionModel()->select(gallery.table->model()->index(row, 0),
                                                QItemSelectionModel::Select | QItemSelectionModel::Rows);
    EXPECT_EQ(writtenValue(*gallery.table), u"Door^Wall^^"_s) << "rows top down";
}

TEST(WidgetValue, EveryClassTakesItsForm)
{
    const std::tuple<const char *, QString, const char *, QVariant> rows[] = {
        {"Lb_Text", u"new"_s, "text", u"new"_s},
        {"Lb_Text", u"new"_s, "value", u"new"_s},
        {"Bt_Push", u"new"_s, "text", u"press"_s},
        {"Ck_Flag", u"TRUE"_s, "checked", true},
        {"Ck_Flag", u"false"_s, "checked", true}, // as any other word does
        {"Rd_Choice", u"TRUE"_s, "checked", true},
        {"Tx_Edit", u"new"_s, "text", u"new"_s},
        {"Tx_Edit", u"new"_s, "value", u"new"_s},
        {"Tx_Edit", u"new..."_s, "text", u"new..."_s},
        {"Tx_Edit", u"new..."_s, "value", {}}, // shown but not stored
        {"Cb_Fixed", u"two"_s, "currentText", u"two"_s},
        {"Cb_Fixed", u"three"_s, "currentText", u"one"_s},
        {"Cb_Free", u"three"_s, "currentText", u"three"_s},
        {"cb_Favorits", u"other"_s, "currentText", u"mine"_s},
        {"Sp_Length", u"1.23457e+06"_s, "value", 1234570.0},
        {"Sp_Real", u"-2.25"_s, "value", -2.25},
        {"Sp_Real", u"2,5"_s, "value", 0.0},
        {"Sp_Real", u"nan"_s, "value", 0.0},
        {"Sp_Real", u"inf"_s, "value", 0.0},
        {"Sp_Real", u"1e300"_s, "value", 1e9},
        {"Sp_Whole", u"-7.9"_s, "value", -7},
        {"Sp_Whole", u"1e30"_s, "value", 1000000},
        {"Tb_Pages", u"1"_s, "currentIndex", 1},
        {"Tb_Pages", u"7"_s, "currentIndex", 0},
        {"Sl_Other", u"7"_s, "value", 0},
    };
    for (const auto &[name, value, property, expected] : rows) {
        Gallery gallery;
        auto *widget = gallery.findChild<QWidget *>(QLatin1StringView(name));
        applyValue(*widget, value);
        EXPECT_EQ(widget->property(property), expected) << name << ": " << value.toStdString();
    }
    const std::pair<QString, int> colors[] = {{u"5"_s, 5}, {u"137"_s, 137}, {u"red"_s, 256}, {u"999"_s, 256}};
    for (const auto &[value, expected] : colors) {
        Gallery gallery;
        applyValue(*gallery.color, value);
        EXPECT_EQ(gallery.color->colorIndex(), expected);
    }
    Gallery gallery;
    applyValue(*gallery.angle, u"90"_s);
    EXPECT_NEAR(gallery.angle->value(), M_PI / 2, 1e-6);
    applyValue(*gallery.list, u"changed"_s);
    EXPECT_EQ(gallery.list->item(0)->text() + u'/' + gallery.list->item(1)->text(), u"first/changed"_s);
    applyValue(*gallery.whole->findChild<QLineEdit *>(), u"5"_s);
    EXPECT_EQ(gallery.whole->value(), 0) << "the editor of a spin box is not for values";
}

TEST(WidgetValue, ATableSelectsTheItemsOfTheTexts)
{
    const auto rows = QAbstractItemView::SelectRows;
    const auto items = QAbstractItemView::SelectItems;
    // The cells are row and column of each, in order; the last is what is written back.
    const std::tuple<QAbstractItemView::SelectionBehavior, QString, QString, QString> table[] = {
        {rows, u"Window"_s, u"10 11"_s, u"Window^"_s},
        {rows, u"DOOR"_s, u"00 01 20 21"_s, u"Door^Wall^"_s}, // any case, any column
        {items, u"Door"_s, u"00 21"_s, u"Door^Wall^"_s},
        {items, u"Window^"_s, u"10 11"_s, u"Window^"_s}, // the empty part stands for empty items
        {rows, u"Wall^Wall"_s, u"20 21"_s, u"Wall^"_s},
        {rows, u"Roof"_s, {}, {}},
    };
    for (const auto &[behavior, value, selected, written] : table) {
        Gallery gallery;
        gallery.table->setItem(1, 1, new QTableWidgetItem);
        gallery.table->setSelectionBehavior(behavior);
        gallery.table->selectRow(3);
        applyValue(*gallery.table, value);
        QStringList cells;
        for (const QModelIndex &index : gallery.table->selectionModel()->selectedIndexes())
            cells.append(QString::number(index.row()) + QString::number(index.column()));
        cells.sort();
        EXPECT_EQ(cells.join(u' '), selected) << value.toStdString();
        EXPECT_EQ(writtenValue(*gallery.table), written) << value.toStdString();
    }
}

TEST(WidgetValue, ALongTextIsShownShortenedAndWrittenWhole)
{
    Gallery gallery;
    const QString path = u"/srv/drawings/"_s + QString(300, u'x') + u"/symbol.dwg"_s;
    applyValue(*gallery.edit, path);
    EXPECT_LT(gallery.edit->text().size(), path.size());
    EXPECT_TRUE(gallery.edit->text().startsWith(u"/srv"_s) && gallery.edit->text().endsWith(u"dwg"_s));
    EXPECT_EQ(writtenValue(*gallery.edit), path);
}

} // namespace
