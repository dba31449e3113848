#include "dialogs/redefinepaths/Dlg_QT_RedefinePaths.h"
#include "state/tables/TableSelection.h"
#include "tests/dialogs/DialogTest.h"

namespace {

const QStringList fiveEntries{u"Xref^Anna^D:/maps/anna.dwg"_s, u"IMAGE^bob^C:\\b/ob.png"_s,
                              u"TextStyle^Arial^arial.ttf"_s, u"RemoteText^note^/n/note.txt"_s, u"Other^Anna^x"_s};

class RedefinePaths : public DialogTest<Dlg_QT_RedefinePaths>
{
protected:
    QTableWidget *table() const { return find<QTableWidget>("lstFiles"); }
    /// The names in the table.
    QString names() const
    {
        QStringList names;
        for (const QString &row : tableRows("lstFiles"))
            names.append(row.section(u'|', 1, 1));
        return names.join(u' ');
    }
    QString pathAt(int row) const { return table()->item(row, 2)->text(); }
    void showEntries(const QString &state, const QStringList &entries = fiveEntries)
    {
        dialog->setEntries(entries);
        showWith(state);
    }
    void showAll(const QStringList &entries = fiveEntries)
    {
        showEntries(u"modes=Xrefs^Images^Styles^Rtext\n"_s, entries);
    }
    void replaceWith(const QString &found, const QString &replacement)
    {
        setText("txsearch", found);
        setText("txreplace", replacement);
        click("btReplace");
    }
};

TEST_F(RedefinePaths, TypesAreCheckedByTheirWordsOnce)
{
    const std::pair<QString, QString> rows[] = {
        {{}, {}},
        {u"modes=the Images and Rtext\n"_s, u"bob note"_s},
        {u"modes=xrefs^Image\n"_s, {}},
        {u"modes=Xrefs^Images^Styles^Rtext\n"_s, u"Anna bob Arial note"_s},
        {u"tystyles=TRUE\n"_s, u"Arial"_s},
        {u"tystyles=FALSE\nmodes=Styles\n"_s, u"Arial"_s},
    };
    for (const auto &[state, shown] : rows) {
        SetUp();
        showEntries(state);
        EXPECT_EQ(names(), shown) << state.toStdString();
        EXPECT_FALSE(isEnabled("groupSearch"));
    }
    find<QAbstractButton>("tyStyles")->setChecked(false);
    showEntries(u"modes=Xrefs^Styles\n"_s);
    EXPECT_EQ(names(), QString()) << "what the user chose stays";
}

TEST_F(RedefinePaths, FilterFindsNames)
{
    showAll();
    const std::pair<const char *, QString> rows[] = {
        {"^A", u"Anna Arial"_s},        {"o", u"bob note"_s}, {"*", u"Anna bob Arial note"_s}, {"(", {}},
        {"", u"Anna bob Arial note"_s},
    };
    for (const auto &[filter, shown] : rows) {
        setText("filter", QString::fromLatin1(filter));
        EXPECT_EQ(names(), shown) << filter;
    }
    click("tyXref");
    EXPECT_EQ(names(), u"bob Arial note"_s);
    const int before = table()->columnWidth(2);
    dialog->resize(dialog->width() + 300, dialog->height());
    EXPECT_GT(table()->columnWidth(2), before + 250) << "a larger dialog has more place for paths";
}

TEST_F(RedefinePaths, ShownRowsGoBackWithBackslashes)
{
    showAll();
    EXPECT_EQ(pathAt(0), u"D:\\maps\\anna.dwg"_s);
    EXPECT_EQ(table()->item(0, 2)->toolTip(), pathAt(0));
    click("tyRtext");
    setText("filter", u"[^l]$"_s);
    click("acceptButton");
    EXPECT_TRUE(isAccepted());
    EXPECT_EQ(dialog->entries(), (QStringList{u"Xref^Anna^D:\\maps\\anna.dwg"_s, u"IMAGE^bob^C:\\b\\ob.png"_s}));
    showEntries({}, {u"Xref^bob^y"_s});
    EXPECT_EQ(tableRows("lstFiles"), QStringList{u"Xref|bob|y"_s}) << "each call starts from its arguments";
}

TEST_F(RedefinePaths, ReplacesInThePathsOfTheSelectedRows)
{
    showAll({u"Xref^a^a.dwg"_s, u"Xref^b^C:/a/A/a.dwg"_s, u"Xref^c^a.dwg"_s});
    find("groupSearch")->setEnabled(true); // as no user can
    EXPECT_TRUE(shownBy("btReplace").value(0).contains(u"Select the rows of table for search."_s));
    table()->selectAll();
    table()->item(2, 0)->setSelected(false); // and so its row is not selected whole
    EXPECT_TRUE(isEnabled("groupSearch"));
    replaceWith({}, u"D:\\Maps\\"_s);
    EXPECT_EQ(pathAt(0), u"D:\\Maps\\a.dwg"_s);
    EXPECT_EQ(pathAt(1), u"D:\\Maps\\C:\\a\\A\\a.dwg"_s);
    EXPECT_EQ(pathAt(2), u"a.dwg"_s);
    replaceWith(u"a"_s, u"/"_s);
    EXPECT_EQ(pathAt(1), u"D:\\M/ps\\C:\\/\\A\\/.dwg"_s) << "what the user types is left as it is";
    EXPECT_EQ(table()->item(1, 2)->toolTip(), pathAt(1));
    click("acceptButton");
    EXPECT_EQ(dialog->entries().value(0), u"Xref^a^D:\\M/ps\\/.dwg"_s);
}

TEST_F(RedefinePaths, FindAndReplaceWaitsForAWholeRow)
{
    showAll();
    table()->item(0, 1)->setSelected(true);
    EXPECT_FALSE(isEnabled("groupSearch"));
    click("selectAll");
    EXPECT_TRUE(isEnabled("groupSearch"));
    EXPECT_EQ(table()->selectedItems().size(), 12);
    setText("filter", u"n"_s);
    EXPECT_FALSE(isEnabled("groupSearch")) << "the rows are new";
    EXPECT_FALSE(isChecked("selectAll"));
    click("selectAll");
    click("selectAll");
    EXPECT_EQ(table()->selectedItems().size(), 0);
    EXPECT_FALSE(isEnabled("groupSearch"));
}

TEST_F(RedefinePaths, TheKeyboardLeadsFromTheFilterToTheRows)
{
    showAll();
    EXPECT_EQ(focusName(), u"filter"_s);
    QTest::keyClicks(find("filter"), u"^A"_s);
    QTest::keyClick(find("filter"), Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(focusName(), u"lstFiles"_s);
    EXPECT_EQ(table()->selectedItems().size(), 3) << "its first row";
    table()->selectRow(1);
    find("txsearch")->setFocus();
    QTest::keyClicks(find("txsearch"), u"arial"_s);
    QTest::keyClicks(find("txreplace"), u"times"_s);
    QTest::keyClick(find("txreplace"), Qt::Key_Enter);
    EXPECT_EQ(pathAt(1), u"times.ttf"_s);
    table()->setFocus();
    EXPECT_EQ(table()->currentRow(), 1) << "what is selected stays";
    QTest::keyClick(table(), Qt::Key_Return);
    EXPECT_TRUE(isAccepted());
}

TEST_F(RedefinePaths, AClickOnAHeaderSortsAscending)
{
    showAll();
    for (int click = 0; click < 2; ++click) {
        clickHeader("lstFiles", 1);
        EXPECT_EQ(names(), u"Anna Arial bob note"_s);
        EXPECT_EQ(ortakit::wholeSelectedRows(*table()), QList<int>{0}) << "as the table has the focus now";
    }
    click("acceptButton");
    EXPECT_EQ(dialog->entries().value(1), u"TextStyle^Arial^arial.ttf"_s);
}

// Each letter of the expression shows the rows anew.
TEST_F(RedefinePaths, AHopelessFilterShowsNothingAndDoesNotHang)
{
    QStringList entries;
    for (int number = 0; number < 100000; ++number)
        entries.append(u"Xref^%1!^x"_s.arg(QString(40, u'a') + QString::number(number)));
    showAll(entries);
    EXPECT_EQ(table()->rowCount(), 100000);
    setText("filter", u"^(\\w+\\s?)*$"_s);
    EXPECT_EQ(table()->rowCount(), 0);
}

} // namespace
