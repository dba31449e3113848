#include "state/tables/TableOrder.h"
#include "state/tables/TableReplacing.h"
#include "state/tables/TableRows.h"
#include "state/tables/TableSelection.h"
#include "tests/support/ModuleTest.h"

#include <QElapsedTimer>
#include <QHeaderView>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>

namespace {

/// The rows of a table, their cells with "," between; "*" behind what is selected, "-" for no item.
QString shownCells(const QTableWidget &table)
{
    QStringList rows;
    for (int row = 0; row < table.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < table.columnCount(); ++column) {
            const QTableWidgetItem *item = table.item(row, column);
            cells.append(item ? item->text() + (item->isSelected() ? u"*"_s : QString()) : u"-"_s);
        }
        rows.append(cells.join(u','));
    }
    return rows.join(u' ');
}

struct Tables : testing::Test
{
    QTableWidget table;

    Tables()
    {
        setTableHeaders(table, u"Letter;Number"_s);
        setTableRows(table, {{u"b"_s, u"1"_s}, {u"C"_s, u"2"_s}, {u"a"_s, u"3"_s}, {u"c"_s, u"4"_s}});
        delete table.takeItem(2, 1);
        table.setCurrentCell(1, 1, QItemSelectionModel::NoUpdate);
        table.item(1, 1)->setSelected(true);
        table.item(3, 0)->setSelected(true);
        table.item(3, 1)->setSelected(true);
    }
};

TEST_F(Tables, SortWithWhatIsSelected)
{
    sortTableRows(table, 0, {});
    EXPECT_EQ(shownCells(table), u"a,- b,1 C,2* c*,4*"_s);
    EXPECT_EQ(table.currentItem()->text(), u"2"_s);
    EXPECT_TRUE(table.horizontalHeader()->isSortIndicatorShown());
    EXPECT_EQ(table.horizontalHeader()->sortIndicatorSection(), 0);
    for (int click = 0; click < 2; ++click) {
        sortTableRows(table, 1, {});
        EXPECT_EQ(shownCells(table), u"a,- b,1 C,2* c*,4*"_s)
            << "always ascending; a missing item is empty, and stays missing";
    }
}

TEST_F(Tables, LoseRowsInOneStep)
{
    const QSignalSpy changes(&table, &QTableWidget::cellChanged);
    removeTableRows(table, {2, 0});
    EXPECT_EQ(shownCells(table), u"C,2* c*,4*"_s);
    EXPECT_EQ(table.currentRow(), 0);
    removeTableRows(table, {0});
    EXPECT_EQ(shownCells(table), u"c*,4*"_s);
    EXPECT_FALSE(table.currentIndex().isValid());
    removeTableRows(table, {0});
    EXPECT_EQ(table.rowCount(), 0);
    EXPECT_EQ(changes.size(), 0);
}

TEST_F(Tables, OfManyRowsAreSortedWithTheirGaps)
{
    QList<QStringList> rows;
    for (int row = 0; row < 3000; ++row)
        rows.append({QString::number(9000 - row), QString::number(row % 2)});
    setTableRows(table, rows);
    delete table.takeItem(7, 0);
    table.selectRow(2999);
    ASSERT_TRUE(sortTableRows(table, 0, {}));
    EXPECT_FALSE(table.item(0, 0));
    for (int row = 1; row < 3000; ++row)
        ASSERT_EQ(table.item(row, 0)->text(), QString::number(6000 + row + (row > 2992 ? 1 : 0))) << row;
    EXPECT_EQ(rowsWithSelection(table), QList<int>{1});
    // Equal texts keep the order that the other column gave them.
    ASSERT_TRUE(sortTableRows(table, 1, {}));
    EXPECT_EQ(table.item(0, 0)->text() + table.item(1, 0)->text() + table.item(1, 1)->text(), u"600260040"_s);
}

TEST_F(Tables, OfManySeparateSelectedRowsAreArranged)
{
    constexpr int many = 40000;
    QList<QStringList> rows;
    QList<int> odd;
    for (int row = 0; row < many; ++row) {
        rows.append({QString::number(many - row), QString::number(row)});
        if (row % 2)
            odd.append(row);
    }
    setTableRows(table, rows);
    selectRows(table, odd);
    sortTableRows(table, 0, {});
    EXPECT_EQ(rowsWithSelection(table).size(), many / 2);
    removeTableRows(table, rowsWithSelection(table));
    EXPECT_EQ(table.rowCount(), many / 2);
}

TEST_F(Tables, ReplaceTextsQuietly)
{
    const QSignalSpy changes(&table, &QTableWidget::cellChanged);
    const auto twice = [](const QString &text) { return text + text; };
    EXPECT_TRUE(replaceTexts(&table, itemsInColumn(table, {3, 2, 0}, 1), twice));
    EXPECT_EQ(shownCells(table), u"b,11 C,2* a,- c*,44*"_s);
    EXPECT_EQ(changes.size(), 0);
    EXPECT_TRUE(replaceTexts(&table, {}, twice));
}

TEST_F(Tables, ACancelledReplacementChangesNothing)
{
    const QString before = shownCells(table);
    test::ModalAnswers answers;
    answers.drive([](QWidget *progress) { progress->findChild<QPushButton *>()->click(); });
    // The same cell again and again: each step is to take its time.
    QList<QTableWidgetItem *> items(100000, table.item(0, 0));
    QElapsedTimer clock;
    clock.start();
    EXPECT_FALSE(replaceTexts(&table, items, [&clock](const QString &text) {
        while (clock.elapsed() < 550)
            continue;
        return text + u'x';
    }));
    EXPECT_TRUE(answers.isDone());
    EXPECT_EQ(shownCells(table), before);
}

} // namespace
