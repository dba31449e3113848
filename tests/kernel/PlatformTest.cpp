#include "host/kernel/platform/Services.h"
#include "host/view/display/AciColor.h"
#include "platform/kernel/CKvMessageBox.h"
#include "platform/kernel/CKvUtils.h"
#include "platform/kernel/OdResBuf.h"
#include "platform/rx/OdRxWin32Module.h"
#include "platform/widgets/CKvQtColorComboBox.h"
#include "tests/kernel/Bench.h"
#include "tests/support/Texts.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTimer>

#include <gtest/gtest.h>

using ortakit::test::dxfText;

namespace {

TEST(OdResBufTest, otherKindsReadAsZero)
{
    const OdResBufPtr real = OdResBuf::newReal(40, -2.9);
    EXPECT_EQ(real->getInteger(), -2);
    EXPECT_EQ(real->getString(), QString());
    EXPECT_EQ(real->getPoint3d(), OdGePoint3d());
    EXPECT_EQ(OdResBuf::newReal(40, 1e300)->getInteger(), 0);
    EXPECT_EQ(OdResBuf::newReal(40, qQNaN())->getInteger(), 0);
    EXPECT_EQ(OdResBuf::newInteger(70, 5)->getDouble(), 5.0);
    EXPECT_EQ(OdResBuf::newString(1, QStringLiteral("7"))->getInteger(), 0);
}

TEST(OdResBufTest, aLongChainIsFreedWithoutRecursion)
{
    OdResBufPtr first = OdResBuf::newRb(OdResBuf::kRtNil);
    OdResBuf *last = first.get();
    for (int i = 0; i < 300'000; ++i)
        last = last->setNext(OdResBuf::newRb(OdResBuf::kRtNil));
    EXPECT_EQ(first->takeNext()->restype(), OdResBuf::kRtNil);
    EXPECT_EQ(first->next(), nullptr);
}

TEST(Allocator, refusesAboveTheLimit)
{
    const std::size_t before = host::kernel::setAllocationLimit(100);
    void *small = odrxAlloc(100);
    EXPECT_NE(small, nullptr);
    EXPECT_EQ(odrxAlloc(101), nullptr);
    odrxFree(small);
    odrxFree(nullptr);
    host::kernel::setAllocationLimit(before);
}

TEST(ModuleFileName, ofUnknownHandles)
{
    int something = 0;
    EXPECT_EQ(odrxModuleFileName(nullptr, 260), QString());
    EXPECT_EQ(odrxModuleFileName(&something, 260), QString());
}

/// Presses the named button of the message box that opens next, or closes the box when there is no name.
void answerNextBox(const char *button)
{
    QTimer::singleShot(0, [button] {
        QWidget *box = QApplication::activeModalWidget();
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->objectName(), QStringLiteral("messageBox"));
        if (!*button)
            return static_cast<QDialog *>(box)->reject();
        auto *found = box->findChild<QAbstractButton *>(QString::fromLatin1(button));
        ASSERT_NE(found, nullptr);
        found->click();
    });
}

TEST(MessageBox, answers)
{
    struct Row
    {
        const char *press;
        QMessageBox::StandardButton expected;
    };
    for (const Row &row :
         {Row{"yesButton", QMessageBox::Yes}, Row{"noButton", QMessageBox::No}, Row{"", QMessageBox::No}}) {
        answerNextBox(row.press);
        EXPECT_EQ(CKvMessageBox::question(nullptr, QString(), QStringLiteral("<>/\\?")), row.expected) << row.press;
    }
    for (const char *press : {"okButton", ""}) {
        answerNextBox(press);
        EXPECT_EQ(CKvMessageBox::information(nullptr, QString(), QStringLiteral("done")), QMessageBox::Ok);
    }
}

TEST(ColorComboBox, numbersAreTheTexts)
{
    CKvQtColorComboBox box;
    box.setColorIndex(3);
    EXPECT_EQ(box.currentText(), QStringLiteral("3"));
    box.setCurrentText(QStringLiteral("256"));
    EXPECT_EQ(box.colorIndex(), 256);
    const int count = box.count();
    box.setColorIndex(137);
    EXPECT_EQ(box.colorIndex(), 137);
    EXPECT_EQ(box.count(), count + 1);
    box.setColorIndex(137);
    box.setColorIndex(257);
    box.setColorIndex(-1);
    EXPECT_EQ(box.count(), count + 1);
    EXPECT_EQ(box.colorIndex(), 137);
}

/// What is painted: the name, not the number.
class ShownColor final : public CKvQtColorComboBox
{
public:
    QString shown() const
    {
        QStyleOptionComboBox option;
        initStyleOption(&option);
        EXPECT_FALSE(option.currentIcon.isNull());
        return option.currentText;
    }
};

TEST(ColorComboBox, namesAreShown)
{
    ShownColor box;
    for (const auto &[index, name] :
         {std::pair{256, "ByLayer"}, {0, "ByBlock"}, {1, "Red"}, {7, "White"}, {42, "Color 42"}}) {
        box.setColorIndex(index);
        EXPECT_EQ(box.shown(), QString::fromLatin1(name));
    }
}

TEST(ColorComboBox, swatchesAreAsTheWindowDraws)
{
    const auto colorOf = [](int index) {
        return CKvQtColorComboBox::colorSwatch(index).pixmap(16).toImage().pixelColor(8, 8);
    };
    using host::view::Ground;
    for (const auto &[ground, seven] : {std::pair{Ground::White, Qt::black}, {Ground::Black, Qt::white}}) {
        host::view::setShownGround(ground);
        for (const int index : {7, 0, 256})
            EXPECT_EQ(colorOf(index), QColor(seven)) << index;
        EXPECT_EQ(colorOf(1), QColor(Qt::red));
    }
}

TEST(Utils, iconsThatAreMissingAreNull)
{
    EXPECT_TRUE(CKvUtils::icon(QStringLiteral(":/images/none"), QStringLiteral("nosuch")).isNull());
}

TEST(Utils, darkStyleFollowsThePalette)
{
    const QPalette before = QApplication::palette();
    QPalette palette = before;
    for (const auto &[colour, isDark] : {std::pair{Qt::black, true}, {Qt::white, false}}) {
        palette.setColor(QPalette::Window, colour);
        QApplication::setPalette(palette);
        EXPECT_EQ(CKvUtils::isDarkStyle(), isDark);
    }
    QApplication::setPalette(before);
}

QByteArray fileWithReferences()
{
    const auto block = [](const QByteArray &name, int flags, const QByteArray &path) {
        return dxfText("0 BLOCK 8 0 2 " + name + " 70 " + QByteArray::number(flags) + " 10 0 20 0 30 0 3 " + name) +
               "1\n" + path + '\n' + dxfText("0 ENDBLK 8 0");
    };
    return dxfText("0 SECTION 2 BLOCKS") + block("PLAIN", 0, "") + block("SITE", 4, "..\\site\\plan.dwg") +
           block("OVER", 12, "/drawings/over.dwg") +
           dxfText("0 ENDSEC 0 SECTION 2 ENTITIES 0 CIRCLE 8 0 10 5 20 5 40 4 0 ENDSEC 0 EOF");
}

TEST_F(Bench, drawingsReferTo)
{
    EXPECT_EQ(CKvUtils::externalReferences(write("host.dxf", fileWithReferences())),
              QStringList({QStringLiteral("..\\site\\plan.dwg"), QStringLiteral("/drawings/over.dwg")}));
    EXPECT_EQ(CKvUtils::externalReferences(path("none.dxf")), QStringList());
}

TEST_F(Bench, blocksGoFromFilesIntoTheDrawing)
{
    const QString file = write("library.dxf", fileWithReferences());
    OdString error = QStringLiteral("none");
    const OdDbDatabasePtr library = CKvUtils::readDrawing(file, error);
    ASSERT_TRUE(library);
    EXPECT_EQ(error, QString());
    EXPECT_EQ(library->getFilename(), file);
    ASSERT_TRUE(QFile::remove(file)) << "it was read";
    QStringList names;
    for (const CKvBlock &block : CKvUtils::blocks(library.get()))
        names.append(block.name + (block.isExternal ? QStringLiteral("!") : QString()));
    EXPECT_EQ(names, QStringList({QStringLiteral("PLAIN"), QStringLiteral("SITE!"), QStringLiteral("OVER!")}));

    OdDbDatabase *own = document().database();
    EXPECT_TRUE(CKvUtils::blocks(own).isEmpty()) << "spaces are none";
    EXPECT_TRUE(CKvUtils::copyBlock(library.get(), QStringLiteral("plain"), own).isDone);
    EXPECT_EQ(lisp("(cdr (assoc 2 (tblsearch \"BLOCK\" \"PLAIN\")))"), "\"PLAIN\"");
    EXPECT_FALSE(CKvUtils::copyBlock(library.get(), QStringLiteral("none"), own).isDone);
    EXPECT_FALSE(CKvUtils::copyBlock(nullptr, QStringLiteral("PLAIN"), own).isDone);
    EXPECT_FALSE(CKvUtils::copyBlock(own, QStringLiteral("PLAIN"), library.get()).isDone);
    EXPECT_FALSE(CKvUtils::readDrawing(file, error));
    EXPECT_TRUE(error.contains(QStringLiteral("library.dxf")));
}

TEST_F(Bench, drawingsHaveTheSizeOfWhatTheyShow)
{
    const struct
    {
        const char *what;
        QByteArray content;
        QSizeF size;
    } rows[] = {
        {"a circle of radius 4", fileWithReferences(), {8, 8}},
        {"nothing in it", dxfText("0 SECTION 2 ENTITIES 0 ENDSEC 0 EOF"), {}},
        {"a line on a layer that is off",
         dxfText(R"(
            0 SECTION 2 TABLES 0 TABLE 2 LAYER 0 LAYER 2 HIDDEN 70 0 62 -7 6 CONTINUOUS 0 ENDTAB 0 ENDSEC
            0 SECTION 2 ENTITIES 0 LINE 8 HIDDEN 10 0 20 0 11 5 21 5 0 ENDSEC 0 EOF)"),
         {}},
        {"no drawing", "\x89PNG", {}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(CKvUtils::drawingSize(write("drawing.dxf", row.content)), row.size) << row.what;
    EXPECT_FALSE(CKvUtils::drawingSize(path("none.dxf")).isValid());
}

TEST_F(Bench, picturesOfDrawingsAndTheirBlocks)
{
    const QString file = write("host.dxf", fileWithReferences());
    ASSERT_TRUE(session.documents().open(file));
    lisp("(entmake '((0 . \"BLOCK\") (2 . \"Ring\") (70 . 0) (10 0.0 0.0 0.0)))"
         "(entmake '((0 . \"CIRCLE\") (8 . \"0\") (10 0.0 0.0 0.0) (40 . 4.0)))(entmake '((0 . \"ENDBLK\")))");
    OdDbDatabase *database = document().database();
    for (const QImage &picture : {CKvUtils::drawingPicture(file, {64, 48}, Qt::black),
                                  CKvUtils::blockPicture(database, QStringLiteral("RING"), {64, 48}, Qt::black)}) {
        ASSERT_EQ(picture.size(), QSize(64, 48));
        QImage ground = picture;
        ground.fill(Qt::black);
        EXPECT_EQ(picture.pixelColor(0, 0), QColor(Qt::black));
        EXPECT_NE(picture, ground) << "a circle";
    }
    EXPECT_TRUE(CKvUtils::drawingPicture(path("none.dxf"), {64, 48}, Qt::black).isNull());
    EXPECT_TRUE(CKvUtils::blockPicture(database, QStringLiteral("none"), {64, 48}, Qt::black).isNull());
    EXPECT_TRUE(CKvUtils::blockPicture(nullptr, QStringLiteral("Ring"), {64, 48}, Qt::black).isNull());
}

} // namespace
