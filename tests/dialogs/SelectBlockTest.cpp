#include "dialogs/selectblock/DLG_QT_SelectBlock.h"
#include "platform/kernel/CKvUtils.h"
#include "state/DrawingPreview.h"
#include "tests/dialogs/DialogTest.h"
#include "tests/dialogs/NameTables.h"

#include <QElapsedTimer>
#include <QFile>

using namespace ortakit::test;
using namespace Qt::StringLiterals;

namespace {

/// A drawing file with these blocks: "NAME" or "NAME/flags", with blanks between.
QByteArray drawingWith(const QString &blocks)
{
    QByteArray file = "0\nSECTION\n2\nBLOCKS\n";
    for (const QString &block : blocks.split(u' ', Qt::SkipEmptyParts)) {
        file += "0\nBLOCK\n8\n0\n2\n" + block.section(u'/', 0, 0).toUtf8() + "\n70\n" +
                block.section(u'/', 1, 1).toUtf8().rightJustified(1, '0') +
                "\n10\n0\n20\n0\n30\n0\n0\nLINE\n8\n0\n10\n0\n20\n0\n11\n9\n21\n9\n0\nENDBLK\n8\n0\n";
    }
    return file + "0\nENDSEC\n0\nEOF\n";
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
    QString rows() const { return tableRows("lstBlocks").join(u' '); }
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
    const struct
    {
        const char *filter;
        QString shown;
        QString count;
        QString chosen; ///< WALL was chosen before
    } filters[] = {
        {"", u"door2 DOOR10 site WALL"_s, u"Blocks: 4"_s, u"WALL"_s},
        {"*", u"door2 DOOR10 site WALL"_s, u"Blocks: 4"_s, u"WALL"_s},
        {"a|1", u"DOOR10 WALL"_s, u"Blocks: 2 of 4"_s, u"WALL"_s},
        {"door", u"door2 DOOR10"_s, u"Blocks: 2 of 4"_s, {}},
        {"^d.*2$", u"door2"_s, u"Blocks: 1 of 4"_s, u"door2"_s},
        {"nothing", {}, u"Blocks: 0 of 4"_s, {}},
        {"[", {}, u"Blocks: 0 of 4"_s, {}},
    };
    showWith({});
    for (const auto &row : filters) {
        SCOPED_TRACE(row.filter);
        setText("filter", {});
        choose(*table(), {});
        table()->selectRow(3);
        setText("filter", QString::fromLatin1(row.filter));
        QStringList names;
        for (const QString &shown : tableRows("lstBlocks"))
            names.append(shown.section(u'|', 0, 0));
        EXPECT_EQ(names.join(u' '), row.shown);
        EXPECT_EQ(count(), row.count);
        EXPECT_EQ(chosen(), row.chosen);
        EXPECT_EQ(previewed(), row.chosen);
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
    {
        ModalAnswers user; // Return says at once what is wrong
        enterText("tx_drawing", host.path(u"none.dxf"_s));
        EXPECT_EQ(user.shown().size(), 1);
    }
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
    const QString none = host.path(u"none.dxf"_s);
    const QString text = host.writeFile(u"text.dxf"_s, "Dear reader,\n");
    const QString empty = host.writeFile(u"empty.dxf"_s, drawingWith({}));
    const struct
    {
        QString file; ///< typed; "active" for the active drawing
        QString name;
        const char *message;
        QString count;
    } problems[] = {
        {u"active"_s, {}, "You must first select a block.", u"Blocks: 4"_s},
        {{}, {}, "Filename can`t be empty", u"Blocks: 0"_s},
        {none, {}, "Cannot find the specified file.", u"Cannot find the specified file."_s},
        {host.path({}), {}, "Cannot find the specified file.", u"Cannot find the specified file."_s},
        {text, {}, "The drawing file cannot be read.", u"The drawing file cannot be read."_s},
        {empty, {}, "The drawing has no blocks.", u"Blocks: 0"_s},
        {library, {}, "You must first select a block.", u"Blocks: 4"_s},
        {library, u"SITE"_s, "is an external reference of the other drawing", u"Blocks: 4"_s},
        {library, u"*U7"_s, "is anonymous", u"Blocks: 4"_s},
    };
    for (const auto &row : problems) {
        SCOPED_TRACE(row.message);
        showWith(u"source=active\nname=\n"_s);
        find<QCheckBox>("showAnonymous")->setChecked(false);
        if (row.file != u"active"_s) {
            click("otherDrawing");
            find("tx_drawing")->setFocus();
            setText("tx_drawing", row.file);
            table()->setFocus();
            find<QCheckBox>("showAnonymous")->setChecked(true);
        }
        for (int at = 0; at < table()->rowCount(); ++at) {
            if (table()->item(at, 0)->text() == row.name)
                table()->selectRow(at);
        }
        EXPECT_EQ(count(), row.count);
        const QStringList shown = shownBy("acceptButton");
        EXPECT_EQ(shown.size(), 1);
        EXPECT_TRUE(shown.value(0).contains(QLatin1StringView(row.message))) << shown.join(u'\n').toStdString();
        EXPECT_FALSE(isAccepted());
    }
}

TEST_F(SelectBlock, FilesThatChangeAreReadAgainBeforeTheirBlocksAreTaken)
{
    const struct
    {
        QString blocks; ///< of the changed file; none: it is deleted
        const char *message;
    } changes[] = {
        {u"SHELF NEW"_s, nullptr},
        {u"NEW"_s, "does not have the block \"SHELF\" any more"},
        {{}, "Cannot find the specified file."},
    };
    for (const auto &change : changes) {
        SCOPED_TRACE(change.message ? change.message : "still there");
        host.writeFile(u"library.dxf"_s, drawingWith(u"SHELF DOOR2 OTHER"_s));
        showWithLibrary(u"SHELF"_s);
        click("activeDrawing");
        click("otherDrawing");
        table()->selectRow(2);
        ASSERT_EQ(chosen(), u"SHELF"_s);
        if (change.blocks.isEmpty())
            QFile::remove(library);
        else
            host.writeFile(u"library.dxf"_s, drawingWith(change.blocks));
        const QStringList shown = shownBy("acceptButton");
        EXPECT_EQ(isAccepted(), !change.message);
        EXPECT_TRUE(shown.join(u' ').contains(QLatin1StringView(change.message)));
    }
}

TEST_F(SelectBlock, ManyBlocksAreReadOnceAndFilteredQuickly)
{
    QString names;
    for (int i = 20000; i > 0; --i)
        names += u"PART%1 "_s.arg(i);
    library = host.writeFile(u"many.dxf"_s, drawingWith(names));
    QElapsedTimer timer;
    timer.start();
    showWithLibrary();
    std::cout << "20,000 blocks shown after " << timer.restart() << " ms\n";
    EXPECT_EQ(table()->rowCount(), 20000);
    EXPECT_EQ(table()->item(9, 0)->text(), u"PART10"_s);
    for (const QChar c : u"part19999"_s)
        QTest::keyClick(find("filter"), char(c.unicode()));
    std::cout << "nine letters typed in " << timer.restart() << " ms\n";
    EXPECT_EQ(chosen(), u"PART19999"_s);
    setText("filter", {});
    QFile::remove(library);
    timer.restart();
    for (int row = 0; row < 20; ++row) {
        table()->selectRow(row);
        EXPECT_TRUE(isLit(find("PreviewBlock")->grab().toImage()));
    }
    std::cout << "20 previews in " << timer.elapsed() << " ms\n";
}

} // namespace
