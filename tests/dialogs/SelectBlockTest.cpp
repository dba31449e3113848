#include "dialogs/selectblock/DLG_QT_SelectBlock.h"
#include "platform/kernel/CKvUtils.h"
#include "state/widgets/DrawingPreview.h"
#include "tests/dialogs/DialogTest.h"
#include "tests/dialogs/NameTables.h"
#include "tests/support/Texts.h"

namespace {

/// A drawing file with these blocks: "NAME" or "NAME/flags", with blanks between.
QByteArray drawingWith(const QString &blocks)
{
    QByteArray file = "0 SECTION 2 BLOCKS ";
    for (const QString &block : blocks.split(u' ', Qt::SkipEmptyParts)) {
        file += "0 BLOCK 8 0 2 " + block.section(u'/', 0, 0).toUtf8() + " 70 " +
                block.section(u'/', 1, 1).toUtf8().rightJustified(1, '0') +
                " 10 0 20 0 30 0 0 LINE 8 0 10 0 20 0 11 9 21 9 0 ENDBLK 8 0 ";
    }
    return dxfText(file + "0 ENDSEC 0 EOF");
}

bool isLit(const QImage &picture)
{
    for (int x = 0; x < picture.width(); ++x) {
        if (qGray(picture.pixel(x, picture.height() / 2)) > 100)
            return true;
    }
    return false;
}

class SelectBlock : public DialogTest<DLG_QT_SelectBlock>
{
protected:
    SelectBlock()
    {
        const QString active = host.writeFile(
            u"active.dxf"_s, drawingWith(u"$MODEL_SPACE *U2/1 DOOR10 site/4 door2 SITE|WALL/16 WALL *PAPER_SPACE0"_s));
        OdString error;
        host.document().setDatabase(CKvUtils::readDrawing(active, error));
        library = host.writeFile(u"library.dxf"_s, drawingWith(u"DOOR2 SHELF SITE/4 *U7/1"_s));
    }

    QTableWidget *table() const { return find<QTableWidget>("lstBlocks"); }
    QString rows() const { return tableText("lstBlocks"); }
    QString chosen() const { return selectedTexts(*table()); }
    QString previewed() const { return find<DrawingPreview>("PreviewBlock")->block(); }
    QString count() const { return find<QLabel>("labelCount")->text(); }
    void showWithLibrary(const QString &name = {})
    {
        showWith(u"name=%1\nsource=%2\nshowanonymous=TRUE\n"_s.arg(name, library));
    }

    QString library;
};

TEST_F(SelectBlock, ListsTheActiveDrawingInNaturalOrder)
{
    showWith({});
    EXPECT_EQ(rows(), u"door2|Block DOOR10|Block site|External reference WALL|Block"_s);
    EXPECT_EQ(count(), u"Blocks: 4"_s);
    EXPECT_EQ(enabledOf(u"tx_drawing Bt_selectDrawing acceptButton"_s), u"acceptButton"_s);
    EXPECT_EQ(focusName(), u"filter"_s);
    click("showAnonymous");
    EXPECT_EQ(rows().section(u' ', 0, 0), u"*U2|Anonymous"_s);
    EXPECT_EQ(count(), u"Blocks: 5"_s);
}

TEST_F(SelectBlock, FiltersWhileItIsTyped)
{
    // WALL was chosen before.
    const std::tuple<const char *, QString, QString, QString> filters[] = {
        {"*", u"door2 DOOR10 site WALL"_s, u"Blocks: 4"_s, u"WALL"_s},
        {"a|1", u"DOOR10 WALL"_s, u"Blocks: 2 of 4"_s, u"WALL"_s},
        {"door", u"door2 DOOR10"_s, u"Blocks: 2 of 4"_s, {}},
        {"^d.*2$", u"door2"_s, u"Blocks: 1 of 4"_s, u"door2"_s},
        {"[", {}, u"Blocks: 0 of 4"_s, {}},
    };
    showWith({});
    for (const auto &[filter, shown, counted, selected] : filters) {
        SCOPED_TRACE(filter);
        setText("filter", {});
        table()->selectRow(3);
        setText("filter", QString::fromLatin1(filter));
        QStringList names;
        for (const QString &row : tableRows("lstBlocks"))
            names.append(row.section(u'|', 0, 0));
        EXPECT_EQ(names.join(u' '), shown);
        EXPECT_EQ(count(), counted);
        EXPECT_EQ(chosen(), selected);
        EXPECT_EQ(previewed(), selected);
    }
}

TEST_F(SelectBlock, TheStateSaysBlockAndSource)
{
    showWith(u"name=WALL\n"_s);
    EXPECT_EQ(chosen(), u"WALL"_s);
    EXPECT_EQ(previewed(), u"WALL"_s);
    EXPECT_EQ(focusName(), u"lstBlocks"_s);
    const QPoint second = table()->visualItemRect(table()->item(1, 0)).center();
    QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, second);
    QTest::mouseDClick(table()->viewport(), Qt::LeftButton, {}, second);
    EXPECT_TRUE(isAccepted());
    EXPECT_EQ(missingInState({u"name=DOOR10"_s, u"source=active"_s, u"!action!=OK"_s}), QStringList());

    showWithLibrary(u"shelf"_s);
    EXPECT_EQ(chosen(), u"SHELF"_s);
    EXPECT_EQ(fullText("tx_drawing"), library);
    EXPECT_TRUE(isChecked("otherDrawing"));
    EXPECT_EQ(shownBy("acceptButton"), QStringList());
    EXPECT_TRUE(isAccepted());
    EXPECT_EQ(missingInState({u"name=SHELF"_s, u"source="_s + library, u"!action!=OK"_s}), QStringList());
}

TEST_F(SelectBlock, AnotherSourceForgetsTheChoice)
{
    showWith(u"name=door2\n"_s);
    click("otherDrawing");
    EXPECT_EQ(rows(), QString());
    EXPECT_EQ(shownChoosing("Bt_selectDrawing", library).size(), 1) << "the picker alone";
    EXPECT_EQ(rows(), u"DOOR2|Block SHELF|Block SITE|External reference"_s);
    EXPECT_EQ(chosen(), QString());
    EXPECT_EQ(shownEntering("tx_drawing", host.path(u"none.dxf"_s)).size(), 1) << "said at once";
    enterText("tx_drawing", library);
    EXPECT_EQ(focusName(), u"filter"_s);
    table()->selectRow(0);
    // Typed and confirmed by the mnemonic, which leaves the focus in the field.
    const QString other = host.writeFile(u"other.dxf"_s, drawingWith(u"DOOR2 GATE"_s));
    find("tx_drawing")->setFocus();
    setText("tx_drawing", other);
    EXPECT_EQ(shownBy("acceptButton").size(), 1);
    EXPECT_FALSE(isAccepted());
    EXPECT_EQ(rows(), u"DOOR2|Block GATE|Block"_s);
    click("activeDrawing");
    EXPECT_EQ(count(), u"Blocks: 4"_s);
    EXPECT_EQ(chosen(), QString());
}

TEST_F(SelectBlock, SaysWhatIsWrongAndStays)
{
    const QString empty = host.writeFile(u"empty.dxf"_s, drawingWith({}));
    const QString text = host.writeFile(u"text.dxf"_s, "Dear reader,\n");
    // The file that is typed, "active" for the active drawing; what is said, and stands for the number of blocks.
    const std::tuple<QString, QString, const char *, QString> problems[] = {
        {u"active"_s, {}, "You must first select a block.", u"Blocks: 4"_s},
        {{}, {}, "Filename can`t be empty", u"Blocks: 0"_s},
        {host.path({}), {}, "Cannot find the specified file.", u"Cannot find the specified file."_s},
        {text, {}, "The drawing file cannot be read.", u"The drawing file cannot be read."_s},
        {empty, {}, "The drawing has no blocks.", u"Blocks: 0"_s},
        {library, {}, "You must first select a block.", u"Blocks: 4"_s},
        {library, u"SITE"_s, "is an external reference of the other drawing", u"Blocks: 4"_s},
        {library, u"*U7"_s, "is anonymous", u"Blocks: 4"_s},
    };
    for (const auto &[file, name, message, counted] : problems) {
        SCOPED_TRACE(message);
        showWith(u"source=active\nname=\n"_s);
        find<QCheckBox>("showAnonymous")->setChecked(false);
        if (file != u"active"_s) {
            click("otherDrawing");
            find("tx_drawing")->setFocus();
            setText("tx_drawing", file);
            table()->setFocus();
            find<QCheckBox>("showAnonymous")->setChecked(true);
        }
        for (const QTableWidgetItem *item : table()->findItems(name, Qt::MatchExactly))
            table()->selectRow(item->row());
        EXPECT_EQ(count(), counted);
        const QStringList shown = shownBy("acceptButton");
        EXPECT_EQ(shown.size(), 1);
        EXPECT_TRUE(shown.value(0).contains(QLatin1StringView(message))) << shown.join(u'\n').toStdString();
        EXPECT_FALSE(isAccepted());
    }
}

TEST_F(SelectBlock, FilesThatChangeAreReadAgainBeforeTheirBlocksAreTaken)
{
    // The blocks of the changed file; none: it is deleted.
    const std::pair<QString, QString> changes[] = {
        {u"SHELF NEW"_s, {}},
        {u"NEW"_s, u"does not have the block \"SHELF\" any more"_s},
        {{}, u"Cannot find the specified file."_s},
    };
    for (const auto &[blocks, message] : changes) {
        host.writeFile(u"library.dxf"_s, drawingWith(u"SHELF DOOR2 OTHER"_s));
        showWithLibrary(u"SHELF"_s);
        click("activeDrawing");
        click("otherDrawing");
        table()->selectRow(2);
        ASSERT_EQ(chosen(), u"SHELF"_s);
        if (blocks.isEmpty())
            QFile::remove(library);
        else
            host.writeFile(u"library.dxf"_s, drawingWith(blocks));
        EXPECT_TRUE(shownBy("acceptButton").join(u' ').contains(message)) << message.toStdString();
        EXPECT_EQ(isAccepted(), message.isEmpty()) << message.toStdString();
    }
}

TEST_F(SelectBlock, ManyBlocksAreReadOnceAndFiltered)
{
    QString names;
    for (int i = 20000; i > 0; --i)
        names += u"PART%1 "_s.arg(i);
    library = host.writeFile(u"many.dxf"_s, drawingWith(names));
    showWithLibrary();
    EXPECT_EQ(table()->rowCount(), 20000);
    EXPECT_EQ(table()->item(9, 0)->text(), u"PART10"_s);
    QTest::keyClicks(find("filter"), u"part19999"_s);
    EXPECT_EQ(chosen(), u"PART19999"_s);
    setText("filter", {});
    QFile::remove(library);
    for (int row = 0; row < 20; ++row) {
        table()->selectRow(row);
        EXPECT_TRUE(isLit(find("PreviewBlock")->grab().toImage()));
    }
}

} // namespace
