#include "state/RowMover.h"

#include "state/TableRows.h"
#include "state/TableSelection.h"
#include "tests/support/QtTestPrinters.h"

#include <QDropEvent>
#include <QElapsedTimer>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using ortakit::RowMove;

namespace {

struct RowMoverTest : testing::Test
{
    QTableWidget table;
    QPushButton toTop, up, down, toBottom;
    RowMover mover{&table, {&toTop, &up, &down, &toBottom}};

    RowMoverTest()
    {
        table.setSelectionBehavior(QAbstractItemView::SelectRows);
        table.resize(300, 400);
        table.show();
    }

    /// Fills the table with a row a letter, the capital ones selected, from the last to the first.
    void fill(const QString &letters)
    {
        ortakit::setTableHeaders(table, u"Letter;Copy"_s);
        QList<QStringList> rows;
        for (const QChar letter : letters)
            rows.append({letter, letter});
        ortakit::setTableRows(table, rows);
        for (int row = table.rowCount() - 1; row >= 0; --row) {
            if (letters[row].isUpper())
                table.selectionModel()->select(table.model()->index(row, 0),
                                               QItemSelectionModel::Select | QItemSelectionModel::Rows);
        }
    }
    /// The letters, "*" behind what is selected.
    QString shown() const
    {
        QString text;
        for (int row = 0; row < table.rowCount(); ++row) {
            EXPECT_EQ(table.item(row, 0)->text(), table.item(row, 1)->text());
            text += table.item(row, 0)->text() + (table.item(row, 0)->isSelected() ? u"*"_s : QString());
        }
        return text;
    }
    /// Those of the four buttons that are enabled.
    QString enabled() const
    {
        return QString(toTop.isEnabled() ? u"T"_s : QString()) + (up.isEnabled() ? u"U"_s : QString()) +
               (down.isEnabled() ? u"D"_s : QString()) + (toBottom.isEnabled() ? u"B"_s : QString());
    }
    /// Drops what is selected, as at the end of a drag that began in the table; `part` is of the height of the row.
    void dropAt(int row, double part)
    {
        const double y = row < table.rowCount() ? table.rowViewportPosition(row) + table.rowHeight(row) * part
                                                : table.viewport()->height() - 2;
        const QMimeData data;
        QDropEvent drop(QPointF(5, y), Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        // Given to the filter: without a drag that is under way, the application passes on no drop.
        EXPECT_TRUE(mover.eventFilter(table.viewport(), &drop));
        EXPECT_NE(drop.dropAction(), Qt::MoveAction) << "the table would remove the rows";
    }
};

TEST_F(RowMoverTest, MovesTheSelectedRowsByButtonAndKey)
{
    const struct
    {
        const char *rows;
        const char *enabled;
        const char *toTop;
        const char *up;
        const char *down;
        const char *toBottom;
    } cases[] = {
        {"abCd", "TUDB", "C*abd", "aC*bd", "abdC*", "abdC*"},
        {"Abcd", "DB", "A*bcd", "A*bcd", "bA*cd", "bcdA*"},
        {"aBcDe", "TUDB", "B*D*ace", "B*aD*ce", "acB*eD*", "aceB*D*"},
        {"ABcDe", "TUDB", "A*B*D*ce", "A*B*D*ce", "cA*B*eD*", "ceA*B*D*"}, // what is at the top already waits
        {"abCD", "TU", "C*D*ab", "aC*D*b", "abC*D*", "abC*D*"},
        {"ABC", "", "A*B*C*", "A*B*C*", "A*B*C*", "A*B*C*"},
        {"abc", "", "abc", "abc", "abc", "abc"},
        {"", "", "", "", "", ""},
    };
    for (const auto &row : cases) {
        const struct
        {
            QPushButton *button;
            Qt::Key key;
            const char *expected;
        } moves[] = {{&toTop, Qt::Key_Home, row.toTop},
                     {&up, Qt::Key_Up, row.up},
                     {&down, Qt::Key_Down, row.down},
                     {&toBottom, Qt::Key_End, row.toBottom}};
        for (const auto &move : moves) {
            fill(QString::fromLatin1(row.rows));
            EXPECT_EQ(enabled(), QString::fromLatin1(row.enabled)) << row.rows;
            const QSignalSpy arranged(&mover, &RowMover::arranged);
            const bool wasEnabled = move.button->isEnabled();
            move.button->click();
            EXPECT_EQ(shown(), QString::fromLatin1(move.expected)) << row.rows << " to " << move.expected;
            EXPECT_EQ(arranged.size(), wasEnabled ? 1 : 0);
            fill(QString::fromLatin1(row.rows));
            QTest::keyClick(&table, move.key, Qt::AltModifier);
            EXPECT_EQ(shown(), QString::fromLatin1(move.expected)) << row.rows << " by key to " << move.expected;
        }
    }
}

TEST_F(RowMoverTest, DroppedRowsStandTogetherWhereTheyWereDropped)
{
    const struct
    {
        const char *rows;
        int target;
        double part; ///< of the height of the target row
        const char *expected;
    } cases[] = {
        {"abCd", 0, 0.2, "C*abd"},    {"abCd", 0, 0.8, "aC*bd"},    {"aBcDe", 4, 0.8, "aceB*D*"},
        {"aBcDe", 2, 0.2, "aB*D*ce"}, {"aBcDe", 1, 0.2, "aB*D*ce"}, {"aBcDe", 3, 0.2, "acB*D*e"},
        {"aBcDe", 9, 0, "aceB*D*"}, // on the free place below the rows
        {"ABc", 0, 0.2, "A*B*c"},
    };
    for (const auto &row : cases) {
        fill(QString::fromLatin1(row.rows));
        dropAt(row.target, row.part);
        EXPECT_EQ(shown(), QString::fromLatin1(row.expected)) << row.rows << " at " << row.target;
    }
}

TEST_F(RowMoverTest, AButtonThatGoesGreyGivesTheFocusToTheTable)
{
    QWidget window;
    table.setParent(&window);
    up.setParent(&window);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    fill(u"aB"_s);
    up.setFocus();
    up.click();
    EXPECT_TRUE(table.hasFocus());
    table.setParent(nullptr);
    up.setParent(nullptr);
}

TEST_F(RowMoverTest, ManyScatteredRowsMoveAtOnce)
{
    constexpr int count = 20000;
    fill(QString(count, u'b'));
    QList<int> odd;
    for (int row = 1; row < count; row += 2)
        odd.append(row);
    ortakit::selectRows(table, odd);
    for (const int row : odd)
        table.item(row, 0)->setText(u"A"_s);
    QElapsedTimer clock;
    clock.start();
    toBottom.click();
    EXPECT_LT(clock.elapsed(), 5000);
    EXPECT_EQ(table.item(count / 2 - 1, 0)->text() + table.item(count / 2, 0)->text(), u"bA"_s);
    EXPECT_EQ(ortakit::rowsWithSelection(table).size(), count / 2);
}

} // namespace
