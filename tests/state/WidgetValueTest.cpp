#include "state/WidgetValue.h"

#include "tests/state/Gallery.h"
#include "tests/support/QtTestPrinters.h"

#include <QElapsedTimer>

#include <cmath>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using ortakit::applyValue;
using ortakit::writtenIndex;
using ortakit::writtenValue;

namespace {

using Step = std::function<void(Gallery &)>;
using Pick = std::function<QWidget *(Gallery &)>;
using Read = std::function<QVariant(Gallery &)>;

struct WriteRow
{
    const char *name;
    Pick widget;
    Step prepare;
    QString expected;
};

TEST(WidgetValue, EveryClassWritesItsForm)
{
    const Step nothing = [](Gallery &) {};
    const WriteRow rows[] = {
        {"label", [](Gallery &g) { return g.label; }, nothing, {}},
        {"push button", [](Gallery &g) { return g.push; }, nothing, {}},
        {"checked tool button",
         [](Gallery &g) { return g.tool; },
         [](Gallery &g) { g.tool->setCheckable(true), g.tool->setChecked(true); },
         {}},
        {"unchecked box", [](Gallery &g) { return g.check; }, nothing, u"FALSE"_s},
        {"checked box", [](Gallery &g) { return g.check; }, [](Gallery &g) { g.check->setChecked(true); }, u"TRUE"_s},
        {"radio button", [](Gallery &g) { return g.radio; }, [](Gallery &g) { g.radio->setChecked(true); }, u"TRUE"_s},
        {"line edit", [](Gallery &g) { return g.edit; }, nothing, u"typed"_s},
        {"shortened line edit", [](Gallery &g) { return g.edit; },
         [](Gallery &g) { g.edit->setText(u"C:/a…/b"_s), g.edit->setProperty("value", u"C:/abc/b"_s); }, u"C:/abc/b"_s},
        {"line edit with dots and nothing stored",
         [](Gallery &g) { return g.edit; },
         [](Gallery &g) { g.edit->setText(u"wait..."_s); },
         {}},
        {"editor of a spin box", [](Gallery &g) { return g.whole->findChild<QLineEdit *>(); },
         [](Gallery &g) { g.whole->setValue(12); }, u"12"_s},
        {"colour box", [](Gallery &g) { return g.color; }, [](Gallery &g) { g.color->setColorIndex(137); }, u"137"_s},
        {"combo box", [](Gallery &g) { return g.combo; }, [](Gallery &g) { g.combo->setCurrentIndex(1); }, u"two"_s},
        {"box of favourites", [](Gallery &g) { return g.favourites; }, nothing, u"mine"_s},
        {"font box", [](Gallery &g) { return g.font; }, nothing, u"Nowhere Sans"_s},
        {"list", [](Gallery &g) { return g.list; }, nothing, u"second"_s},
        {"list without current item", [](Gallery &g) { return g.list; }, [](Gallery &g) { g.list->clear(); }, {}},
        {"length", [](Gallery &g) { return g.length; }, [](Gallery &g) { g.length->setValue(2.5); }, u"2.5"_s},
        {"long length", [](Gallery &g) { return g.length; }, [](Gallery &g) { g.length->setValue(1234567.8); },
         u"1.23457e+06"_s},
        {"angle", [](Gallery &g) { return g.angle; }, [](Gallery &g) { g.angle->setUnitValue(M_PI / 2); }, u"90"_s},
        {"rotation", [](Gallery &g) { return g.rotation; }, [](Gallery &g) { g.rotation->setUnitValue(-M_PI / 4); },
         u"-45"_s},
        {"third", [](Gallery &g) { return g.real; }, [](Gallery &g) { g.real->setValue(1.0 / 3); }, u"0.333333"_s},
        {"whole number", [](Gallery &g) { return g.whole; }, [](Gallery &g) { g.whole->setValue(7); }, {}},
        {"tabs", [](Gallery &g) { return g.tabs; }, [](Gallery &g) { g.tabs->setCurrentIndex(2); }, u"2"_s},
        {"tabs without pages", [](Gallery &g) { return g.tabs; }, [](Gallery &g) { g.tabs->clear(); }, u"-1"_s},
        {"table without selection", [](Gallery &g) { return g.table; }, nothing, {}},
        {"rows of a table, top down", [](Gallery &g) { return g.table; },
         [](Gallery &g) {
             for (const int row : {2, 0, 3})
                 g.table->selectionModel()->select(g.table->model()->index(row, 0),
                                                   QItemSelectionModel::Select | QItemSelectionModel::Rows);
         },
         u"Door^Wall^^"_s},
        {"other widget", [](Gallery &g) { return g.slider; }, nothing, {}},
    };
    for (const WriteRow &row : rows) {
        Gallery gallery;
        row.prepare(gallery);
        EXPECT_EQ(writtenValue(*row.widget(gallery)), row.expected) << row.name;
    }
}

struct ApplyRow
{
    const char *name;
    Pick widget;
    QString value;
    Read read;
    QVariant expected;
};

TEST(WidgetValue, EveryClassTakesItsForm)
{
    const Pick check = [](Gallery &g) { return g.check; };
    const Read checked = [](Gallery &g) { return g.check->isChecked(); };
    const Pick whole = [](Gallery &g) { return g.whole; };
    const Read wholeValue = [](Gallery &g) { return g.whole->value(); };
    const Pick real = [](Gallery &g) { return g.real; };
    const Read realValue = [](Gallery &g) { return g.real->value(); };
    const Pick combo = [](Gallery &g) { return g.combo; };
    const Read comboText = [](Gallery &g) { return g.combo->currentText(); };
    const Pick color = [](Gallery &g) { return g.color; };
    const Read colorIndex = [](Gallery &g) { return g.color->colorIndex(); };
    const ApplyRow rows[] = {
        {"label", [](Gallery &g) { return g.label; }, u"new"_s,
         [](Gallery &g) { return g.label->text() + u'/' + g.label->property("value").toString(); }, u"new/new"_s},
        {"push button", [](Gallery &g) { return g.push; }, u"new"_s, [](Gallery &g) { return g.push->text(); },
         u"press"_s},
        {"TRUE", check, u"TRUE"_s, checked, true},
        {"false in small letters checks", check, u"false"_s, checked, true},
        {"any other word checks", check, u"0"_s, checked, true},
        {"radio button", [](Gallery &g) { return g.radio; }, u"TRUE"_s, [](Gallery &g) { return g.radio->isChecked(); },
         true},
        {"short text", [](Gallery &g) { return g.edit; }, u"new"_s,
         [](Gallery &g) { return g.edit->text() + u'/' + g.edit->property("value").toString(); }, u"new/new"_s},
        {"text with dots is shown but not stored", [](Gallery &g) { return g.edit; }, u"new..."_s,
         [](Gallery &g) { return g.edit->text() + u'/' + g.edit->property("value").toString(); }, u"new.../"_s},
        {"editor of a spin box", [](Gallery &g) { return g.whole->findChild<QLineEdit *>(); }, u"5"_s, wholeValue, 0},
        {"colour", color, u"5"_s, colorIndex, 5},
        {"colour that was not offered", color, u"137"_s, colorIndex, 137},
        {"no colour", color, u"red"_s, colorIndex, 256},
        {"colour out of range", color, u"999"_s, colorIndex, 256},
        {"combo box", combo, u"two"_s, comboText, u"two"_s},
        {"combo box without the item", combo, u"three"_s, comboText, u"one"_s},
        {"editable combo box", [](Gallery &g) { return g.free; }, u"three"_s,
         [](Gallery &g) { return g.free->currentText(); }, u"three"_s},
        {"box of favourites", [](Gallery &g) { return g.favourites; }, u"other"_s,
         [](Gallery &g) { return g.favourites->currentText(); }, u"mine"_s},
        {"list", [](Gallery &g) { return g.list; }, u"changed"_s,
         [](Gallery &g) { return g.list->item(0)->text() + u'/' + g.list->item(1)->text(); }, u"first/changed"_s},
        {"length", [](Gallery &g) { return g.length; }, u"1.23457e+06"_s, [](Gallery &g) { return g.length->value(); },
         1234570.0},
        {"angle", [](Gallery &g) { return g.angle; }, u"90"_s,
         [](Gallery &g) { return qRound(g.angle->value() * 1e6); }, qRound(M_PI / 2 * 1e6)},
        {"real", real, u"-2.25"_s, realValue, -2.25},
        {"no number", real, u"2,5"_s, realValue, 0.0},
        {"not a number", real, u"nan"_s, realValue, 0.0},
        {"infinity", real, u"inf"_s, realValue, 0.0},
        {"beyond the range", real, u"1e300"_s, realValue, 1e9},
        {"whole number, cut", whole, u"-7.9"_s, wholeValue, -7},
        {"whole number, far out", whole, u"1e30"_s, wholeValue, 1000000},
        {"tabs", [](Gallery &g) { return g.tabs; }, u"1"_s, [](Gallery &g) { return g.tabs->currentIndex(); }, 1},
        {"tab that is not there", [](Gallery &g) { return g.tabs; }, u"7"_s,
         [](Gallery &g) { return g.tabs->currentIndex(); }, 0},
        {"other widget", [](Gallery &g) { return g.slider; }, u"7"_s, [](Gallery &g) { return g.slider->value(); }, 0},
    };
    for (const ApplyRow &row : rows) {
        Gallery gallery;
        applyValue(*row.widget(gallery), row.value);
        EXPECT_EQ(row.read(gallery), row.expected) << row.name << ": " << row.read(gallery).toString().toStdString();
    }
}

struct SelectRow
{
    const char *name;
    QAbstractItemView::SelectionBehavior behavior;
    QString value;
    QString selectedCells; ///< row and column of each, in order
    QString writtenBack;
};

TEST(WidgetValue, ATableSelectsTheItemsOfTheTexts)
{
    const auto rows = QAbstractItemView::SelectRows;
    const auto items = QAbstractItemView::SelectItems;
    const SelectRow table[] = {
        {"one row", rows, u"Window"_s, u"10 11"_s, u"Window^"_s},
        {"any case, any column", rows, u"DOOR"_s, u"00 01 20 21"_s, u"Door^Wall^"_s},
        {"single items", items, u"Door"_s, u"00 21"_s, u"Door^Wall^"_s},
        {"the empty part stands for empty items", items, u"Window^"_s, u"10 11"_s, u"Window^"_s},
        {"a text twice", rows, u"Wall^Wall"_s, u"20 21"_s, u"Wall^"_s},
        {"no such item clears the selection", rows, u"Roof"_s, {}, {}},
    };
    for (const SelectRow &row : table) {
        Gallery gallery;
        gallery.table->setItem(1, 1, new QTableWidgetItem);
        gallery.table->setSelectionBehavior(row.behavior);
        gallery.table->selectRow(3);
        applyValue(*gallery.table, row.value);
        QStringList cells;
        for (const QModelIndex &index : gallery.table->selectionModel()->selectedIndexes())
            cells.append(QString::number(index.row()) + QString::number(index.column()));
        cells.sort();
        EXPECT_EQ(cells.join(u' '), row.selectedCells) << row.name;
        EXPECT_EQ(writtenValue(*gallery.table), row.writtenBack) << row.name;
    }
}

TEST(WidgetValue, ALargeTableIsQuick)
{
    constexpr int count = 20'000;
    QTableWidget table(count, 2);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    QString everyOther;
    for (int row = 0; row < count; ++row) {
        table.setItem(row, 0, new QTableWidgetItem(u"block %1"_s.arg(row)));
        if (row % 2)
            everyOther += u"block %1^"_s.arg(row);
    }
    QElapsedTimer clock;
    clock.start();
    applyValue(table, everyOther);
    EXPECT_EQ(writtenValue(table), everyOther);
    std::printf("10,000 of 20,000 rows selected and written in %lld ms\n", clock.elapsed());
    EXPECT_LT(clock.elapsed(), 10'000);
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

TEST(WidgetValue, OnlyComboBoxesWriteAnIndex)
{
    Gallery gallery;
    gallery.combo->setCurrentIndex(1);
    EXPECT_EQ(writtenIndex(*gallery.combo), u"1"_s);
    EXPECT_EQ(writtenIndex(*gallery.color), u"0"_s);
    gallery.combo->clear();
    EXPECT_EQ(writtenIndex(*gallery.combo), u"-1"_s);
    EXPECT_EQ(writtenIndex(*gallery.tabs), QString());
}

} // namespace
