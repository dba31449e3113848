#include "state/tables/RowMover.h"

#include "state/tables/TableRows.h"
#include "state/tables/TableSelection.h"
#include "tests/support/ModuleTest.h"

#include <QDropEvent>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>

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
    // The buttons that are enabled, and the rows after: to the top, up, down, to the bottom.
    const std::tuple<QString, QString, QStringList> cases[] = {
        {u"abCd"_s, u"TUDB"_s, {u"C*abd"_s, u"aC*bd"_s, u"abdC*"_s, u"abdC*"_s}},
        {u"Abcd"_s, u"DB"_s, {u"A*bcd"_s, u"A*bcd"_s, u"bA*cd"_s, u"bcdA*"_s}},
        {u"aBcDe"_s, u"TUDB"_s, {u"B*D*ace"_s, u"B*aD*ce"_s, u"acB*eD*"_s, u"aceB*D*"_s}},
        {u"ABcDe"_s,
         u"TUDB"_s,
         {u"A*B*D*ce"_s, u"A*B*D*ce"_s, u"cA*B*eD*"_s, u"ceA*B*D*"_s}}, // what is at the top already waits
        {u"abCD"_s, u"TU"_s, {u"C*D*ab"_s, u"aC*D*b"_s, u"abC*D*"_s, u"abC*D*"_s}},
        {u"ABC"_s, u""_s, {u"A*B*C*"_s, u"A*B*C*"_s, u"A*B*C*"_s, u"A*B*C*"_s}},
        {u"abc"_s, u""_s, {u"abc"_s, u"abc"_s, u"abc"_s, u"abc"_s}},
        {u""_s, u""_s, {u""_s, u""_s, u""_s, u""_s}},
    };
    const std::pair<QPushButton *, Qt::Key> moves[] = {
        {&toTop, Qt::Key_Home}, {&up, Qt::Key_Up}, {&down, Qt::Key_Down}, {&toBottom, Qt::Key_End}};
    for (const auto &[rows, buttons, after] : cases) {
        for (int move = 0; move < 4; ++move) {
            const auto [button, key] = moves[move];
            const std::string what = qPrintable(rows + u" to "_s + after[move]);
            fill(rows);
            EXPECT_EQ(enabled(), buttons) << what;
            const QSignalSpy arranged(&mover, &RowMover::arranged);
            const bool wasEnabled = button->isEnabled();
            button->click();
            EXPECT_EQ(shown(), after[move]) << what;
            EXPECT_EQ(arranged.size(), wasEnabled ? 1 : 0) << what;
            fill(rows);
            QTest::keyClick(&table, key, Qt::AltModifier);
            EXPECT_EQ(shown(), after[move]) << what << " by key";
        }
    }
}

TEST_F(RowMoverTest, DroppedRowsStandTogetherWhereTheyWereDropped)
{
    // The target row, and where in its height.
    const std::tuple<QString, int, double, QString> cases[] = {
        {u"abCd"_s, 0, 0.2, u"C*abd"_s},    {u"abCd"_s, 0, 0.8, u"aC*bd"_s},
        {u"aBcDe"_s, 2, 0.2, u"aB*D*ce"_s}, {u"aBcDe"_s, 1, 0.2, u"aB*D*ce"_s},
        {u"aBcDe"_s, 3, 0.2, u"acB*D*e"_s}, {u"aBcDe"_s, 9, 0, u"aceB*D*"_s}, // on the free place below the rows
    };
    for (const auto &[rows, target, part, after] : cases) {
        fill(rows);
        dropAt(target, part);
        EXPECT_EQ(shown(), after) << qPrintable(rows) << " at " << target;
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
    toBottom.click();
    EXPECT_EQ(table.item(count / 2 - 1, 0)->text() + table.item(count / 2, 0)->text(), u"bA"_s);
    EXPECT_EQ(ortakit::rowsWithSelection(table).size(), count / 2);
}

} // namespace
