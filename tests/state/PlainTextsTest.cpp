#include "state/widgets/PlainTexts.h"

#include "files/qt/VisibleText.h"
#include "state/tables/WholeTextItem.h"
#include "tests/support/ModuleTest.h"

#include <QDialog>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <QToolTip>

namespace {

/// What the tool tip at this place says; markup as it is written.
QString toolTipAt(QWidget &widget, const QPoint &place)
{
    QHelpEvent help(QEvent::ToolTip, place, widget.mapToGlobal(place));
    QCoreApplication::sendEvent(&widget, &help);
    return QToolTip::text().replace(QChar::Nbsp, u' ');
}

TEST(PlainTexts, WhatCannotBeSeenIsACode)
{
    const std::pair<QString, QString> rows[] = {
        {u"http://a.b/c d\te\u00FC\u05D0"_s, u"http://a.b/c d\te\u00FC\u05D0"_s},
        {u"a\u202Efdp.exe"_s, u"a\\U+202Efdp.exe"_s},
        {u"\u2066\u200F\u061C\u0007\u2028"_s, u"\\U+2066\\U+200F\\U+061C\\U+0007\\U+2028"_s},
        {u"1\r\n2\n\r3"_s, u"1\u21B52\u21B5\u21B53"_s},
    };
    for (const auto &[text, visible] : rows)
        EXPECT_EQ(files::visibleText(text), visible);
}

TEST(PlainTexts, TablesAndToolTipsTakeNothingForMarkup)
{
    QDialog dialog;
    dialog.resize(300, 200);
    QTableWidget table(1, 1, &dialog);
    table.setItem(0, 0, new WholeTextItem(u"<img src='file:///x.png'>\u202E"_s));
    table.setHorizontalHeaderItem(0, new QTableWidgetItem);
    table.horizontalHeaderItem(0)->setToolTip(u"<h1>head</h1>"_s);
    QLabel label(&dialog);
    label.setToolTip(u"<b>path</b>\nline"_s);
    dialog.show();
    showPlainTexts(dialog);
    showPlainTexts(dialog);
    EXPECT_EQ(toolTipAt(*table.viewport(), {5, 5}), u"<p>&lt;img src='file:///x.png'&gt;\\U+202E</p>"_s);
    EXPECT_EQ(toolTipAt(*table.horizontalHeader()->viewport(), {5, 5}), u"<p>&lt;h1&gt;head&lt;/h1&gt;</p>"_s);
    EXPECT_EQ(toolTipAt(label, {1, 1}), u"<p>&lt;b&gt;path&lt;/b&gt;<br>\nline</p>"_s);
    label.setToolTip(u"plain <b"_s);
    EXPECT_EQ(toolTipAt(label, {1, 1}), u"plain <b"_s);
    const auto *delegate = static_cast<const QStyledItemDelegate *>(table.itemDelegate());
    EXPECT_EQ(delegate->displayText(u"a\u202Eb"_s, QLocale()), u"a\\U+202Eb"_s);
    EXPECT_EQ(delegate->displayText(7, QLocale(QLocale::C)), u"7"_s);
    EXPECT_EQ(table.item(0, 0)->text(), u"<img src='file:///x.png'>\u202E"_s) << "the text itself stays";
}

} // namespace
