#include "state/tables/TableRows.h"
#include "state/tables/TableSelection.h"
#include "state/widgets/DialogPicture.h"
#include "state/widgets/DrawingPreview.h"
#include "state/widgets/ElidedPathField.h"
#include "tests/support/ModuleTest.h"

#include <QApplication>
#include <QFocusEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>

namespace {

const QString longPath = u"/srv/drawings/plans/"_s + QString(200, u'x') + u"/symbol.dwg"_s;

void sendFocus(QLineEdit &edit, QEvent::Type type, Qt::FocusReason reason = Qt::OtherFocusReason)
{
    QFocusEvent event(type, reason);
    QCoreApplication::sendEvent(&edit, &event);
}

struct ElidedField : testing::Test
{
    QLineEdit edit;
    std::unique_ptr<ElidedPathField> field;
    int entered = 0;

    ElidedField()
    {
        edit.resize(200, 24);
        field = std::make_unique<ElidedPathField>(&edit);
        QObject::connect(field.get(), &ElidedPathField::pathEntered, &edit, [this] { ++entered; });
    }
};

TEST_F(ElidedField, ShowsALongPathShortenedAndKeepsItWhole)
{
    field->setFullPath(longPath);
    EXPECT_TRUE(edit.text().contains(u'\u2026'));
    EXPECT_EQ(field->fullPath(), longPath);
    sendFocus(edit, QEvent::FocusIn);
    EXPECT_EQ(edit.text(), longPath);
    sendFocus(edit, QEvent::FocusOut);
    EXPECT_TRUE(edit.text().contains(u'\u2026'));
    EXPECT_EQ(field->fullPath(), longPath);
    EXPECT_EQ(entered, 1);
}

TEST_F(ElidedField, TakesWhatWasTypedButNoShortenedText)
{
    field->setFullPath(longPath);
    sendFocus(edit, QEvent::FocusIn);
    edit.setText(u"/tmp/other.dwg"_s);
    sendFocus(edit, QEvent::FocusOut, Qt::PopupFocusReason);
    EXPECT_EQ(field->fullPath(), longPath) << "a context menu is no leaving";
    sendFocus(edit, QEvent::FocusOut);
    EXPECT_EQ(field->fullPath(), u"/tmp/other.dwg"_s);

    edit.setText(u"/tmp/…/third.dwg"_s);
    sendFocus(edit, QEvent::FocusOut);
    EXPECT_EQ(field->fullPath(), u"/tmp/other.dwg"_s);
    EXPECT_EQ(edit.text(), u"/tmp/other.dwg"_s);

    edit.setText(u"/tmp/typed.dwg"_s);
    QMetaObject::invokeMethod(&edit, "returnPressed");
    EXPECT_EQ(field->fullPath(), u"/tmp/typed.dwg"_s);
}

TEST_F(ElidedField, ShortensAnewForAnotherWidth)
{
    edit.show();
    field->setFullPath(longPath);
    const QString narrow = edit.text();
    edit.resize(4000, 24);
    EXPECT_EQ(edit.text(), longPath);
    edit.resize(200, 24);
    EXPECT_EQ(edit.text(), narrow);
    edit.setText(u"being typed"_s);
    edit.resize(300, 24);
    EXPECT_EQ(edit.text(), u"being typed"_s) << "a text that is not the path is left alone";
}

TEST(DrawingPreview, ShowsWhatItCanOnBlack)
{
    DrawingPreview preview;
    preview.resize(60, 40);
    const auto pixel = [&](int x, int y) { return preview.grab().toImage().pixelColor(x, y); };
    EXPECT_EQ(pixel(30, 20), QColor(Qt::black));

    QImage red(10, 10, QImage::Format_RGB32);
    red.fill(Qt::red);
    preview.setImage(red);
    EXPECT_EQ(pixel(30, 20), QColor(Qt::red));
    EXPECT_EQ(pixel(2, 20), QColor(Qt::black)) << "the picture keeps its proportions";
    preview.resize(20, 200);
    EXPECT_EQ(pixel(10, 100), QColor(Qt::red)) << "and is fitted again after resizing";
    EXPECT_EQ(pixel(10, 20), QColor(Qt::black));

    preview.setBlock(u"DOOR"_s);
    EXPECT_EQ(pixel(10, 100).red(), pixel(10, 100).blue()) << "a block without a document, and no red picture";
    preview.setDrawing(u"/no/such/drawing.dwg"_s);
    EXPECT_EQ(preview.block(), QString());
    EXPECT_EQ(pixel(1, 100), QColor(Qt::black));
}

/// Gives the application a dark palette, and the one before back.
struct DarkStyle
{
    QPalette before = QApplication::palette();
    DarkStyle() { set(QPalette(QColor(30, 30, 30))); }
    ~DarkStyle() { set(before); }

    static void set(const QPalette &palette)
    {
        QApplication::setPalette(palette);
        QCoreApplication::processEvents(); // windows are told through their event queue
    }
};

TEST(DialogPicture, FollowsTheStyle)
{
    QLabel label;
    QWidget plain;
    plain.resize(40, 40);
    const DialogPicture onLabel(&label, u":/images/sample.svg"_s);
    const DialogPicture onPlain(&plain, u":/images/sample.svg"_s);
    const DialogPicture lightOnly(new QLabel(&plain), u":/images/lightonly.svg"_s);
    label.show();
    plain.show();
    const auto labelColor = [&] { return label.pixmap(Qt::ReturnByValue).toImage().pixelColor(5, 5); };
    const auto plainColor = [&] { return plain.grab().toImage().pixelColor(20, 20); };
    EXPECT_EQ(labelColor(), QColor(Qt::red));
    EXPECT_EQ(plainColor(), QColor(Qt::red));
    {
        const DarkStyle dark;
        EXPECT_EQ(labelColor(), QColor(Qt::blue));
        EXPECT_EQ(plainColor(), QColor(Qt::blue));
        EXPECT_EQ(lightOnly.shownPicture(), u":/images/lightonly.svg"_s);
    }
    EXPECT_EQ(labelColor(), QColor(Qt::red));
    EXPECT_EQ(label.pixmap(Qt::ReturnByValue).size(), QSize(20, 10));
}

TEST(TableRows, AreReplacedQuietlyAndKeepTheOrderOfASortedTable)
{
    QTableWidget table;
    setTableHeaders(table, u"Name;Description"_s);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.sortByColumn(0, Qt::AscendingOrder);
    table.setSortingEnabled(true);
    const QSignalSpy changes(&table, &QTableWidget::cellChanged);
    const QSignalSpy selections(&table, &QTableWidget::itemSelectionChanged);

    setTableRows(table, {{u"b"_s, u"2"_s, u"too much"_s}, {u"a"_s}});
    ASSERT_EQ(table.rowCount(), 2);
    EXPECT_EQ(table.item(0, 0)->text() + table.item(0, 1)->text() + table.item(1, 1)->text(), u"a2"_s);
    EXPECT_EQ(selections.size(), 0);

    table.selectRow(1);
    setTableRows(table, {});
    EXPECT_EQ(table.rowCount(), 0);
    EXPECT_EQ(changes.size(), 0);
    EXPECT_EQ(selections.size(), 2) << "by the row that was selected, and by its going";
}

TEST(TableSelection, TellsWholeRowsInTheOrderOfTheirSelection)
{
    QTableWidget table;
    setTableHeaders(table, u"A;B;C"_s);
    setTableRows(table, {{u"1"_s}, {u"2"_s}, {u"3"_s}, {u"4"_s}});
    delete table.takeItem(3, 2);
    const auto select = [&table](int row, int first, int last) {
        table.setRangeSelected({row, first, row, last}, true);
    };
    select(2, 0, 2);
    select(1, 0, 0);
    select(3, 0, 1); // its third cell has no item
    select(0, 2, 2);
    select(0, 0, 1);
    EXPECT_EQ(wholeSelectedRows(table), (QList<int>{2, 3, 0}));
    EXPECT_EQ(rowsWithSelection(table), (QList<int>{0, 1, 2, 3}));
    EXPECT_EQ(selectedCellCount(table), 9);
    EXPECT_EQ(selectedItemCount(table), 9);
    table.setRangeSelected({3, 2, 3, 2}, true);
    EXPECT_EQ(selectedItemCount(table), 9) << "no item";
}

TEST(TableSelection, NewSelectionsAreTold)
{
    QTableWidget table;
    makeNewSelectionsQuick(table);
    setTableHeaders(table, u"A;B"_s);
    setTableRows(table, QList<QStringList>(20'000, {u"1"_s, u"2"_s}));
    QList<int> everyOther;
    for (int row = 0; row < table.rowCount(); row += 2)
        everyOther.append(row);
    selectRows(table, everyOther);
    const QSignalSpy selections(&table, &QTableWidget::itemSelectionChanged);
    table.selectAll();
    EXPECT_EQ(selectedCellCount(table), 40'000);
    EXPECT_GE(selections.size(), 1);
    table.setRangeSelected({1, 0, 1, 1}, false);
    EXPECT_EQ(selectedCellCount(table), 39'998);
    table.selectRow(3);
    EXPECT_EQ(rowsWithSelection(table), QList<int>{3});
}

} // namespace
