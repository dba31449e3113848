#include "dialogs/patternhatch/DLG_QT_PatternHatch.h"
#include "platform/widgets/CKvQtUnitSpinBox.h"
#include "tests/dialogs/DialogTest.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QSettings>
#include <QStackedWidget>
#include <QtMath>

using namespace ortakit::test;
using namespace Qt::StringLiterals;

namespace {

class PatternHatch : public DialogTest<DLG_QT_PatternHatch>
{
protected:
    PatternHatch() { QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, host.path(u"settings"_s)); }

    double value(const char *box) const { return find<QDoubleSpinBox>(box)->value(); }
    void setValue(const char *box, double value) { find<QDoubleSpinBox>(box)->setValue(value); }
    QString label(const char *name) const { return find<QLabel>(name)->property("value").toString(); }
    QString page() const { return find<QStackedWidget>("Types")->currentWidget()->objectName(); }
    QString favourite() const { return find<QComboBox>("Cb_Favorits")->currentText(); }
    void enter(const QString &mode, const QString &lines)
    {
        dialog->setMode(mode);
        showWith(lines);
    }
    /// What the dialog itself wrote when it closed.
    QString writtenState() const { return QString::fromUtf8(FakeHost::readFile(stateFile)).remove(QChar(0xFEFF)); }
    QString writtenAction() const { return writtenState().section(u'\n', 1, 1); }

    /// A drawing 8 wide and 4 high, with a reference to another file where one is named.
    QString writeDrawing(const QString &name, const QByteArray &reference = {}) const
    {
        QByteArray blocks;
        if (!reference.isEmpty())
            blocks = "0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n8\n0\n2\nREF\n70\n4\n10\n0\n20\n0\n3\nREF\n1\n" + reference +
                     "\n0\nENDBLK\n8\n0\n0\nENDSEC\n";
        return host.writeFile(name, blocks + "0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n0\n10\n1\n20\n1\n11\n9\n21\n5\n"
                                             "0\nENDSEC\n0\nEOF\n");
    }
    QString writeImage(const QString &name, const QSize &size) const
    {
        QImage pixels(size, QImage::Format_RGB32);
        pixels.fill(Qt::red);
        EXPECT_TRUE(pixels.save(host.path(name)));
        return host.path(name);
    }

    const QString block = writeDrawing(u"door.dwg"_s);
    const QString image = writeImage(u"brick.png"_s, {30, 90});
};

TEST_F(PatternHatch, ConfirmingWritesEveryValue)
{
    enter(u"NEW"_s, u"pattern_mask=TRUE\npatternname=BRICK\nscalefactor=FALSE\naspectratio=FALSE\nwidth=2.5\nheight=4\n"
                    "offsetx=-0.25\noffsety=1\npositionx=10\npositiony=-20\nrotation=90\ntypeobjectgroup=TRUE\n"
                    "notexceedlimits=TRUE\ntolerance=0.05\nqtentities=2\n"_s);
    EXPECT_EQ(page(), u"pageMask"_s);
    EXPECT_NEAR(value("Rotation"), M_PI_2, 1e-9);
    click("acceptButton");
    EXPECT_TRUE(isAccepted());
    QStringList lines = writtenState().split(u'\n', Qt::SkipEmptyParts);
    lines.removeIf([](const QString &line) { return line.startsWith(u"qt_spinbox_lineedit"_s); });
    EXPECT_EQ(lines, (QStringList{u"pattern_block=FALSE"_s,
                                  u"!action!=OK"_s,
                                  u"pattern_image=FALSE"_s,
                                  u"pattern_xref=FALSE"_s,
                                  u"pattern_mask=TRUE"_s,
                                  u"patternname=BRICK"_s,
                                  u"scalefactor=FALSE"_s,
                                  u"aspectratio=FALSE"_s,
                                  u"width=2.5"_s,
                                  u"height=4"_s,
                                  u"offsetx=-0.25"_s,
                                  u"offsety=1"_s,
                                  u"positionx=10"_s,
                                  u"positiony=-20"_s,
                                  u"rotation=90"_s,
                                  u"typeobjectblock=FALSE"_s,
                                  u"typeobjectgroup=TRUE"_s,
                                  u"trimtolimits=FALSE"_s,
                                  u"notexceedlimits=TRUE"_s,
                                  u"tolerance=0.05"_s}));
}

TEST_F(PatternHatch, ChecksStopAtTheFirstThatFails)
{
    const QString source = u"warning \"\" \"Specify Pattern \" OK"_s;
    const QString scale = u"warning \"\" \"Scale must be higher than zero. \" OK"_s;
    const QString tolerance = u"warning \"\" \"The tolerance value is less than minimum. The value is reset to minimum "
                              "(0.01). \" OK"_s;
    const struct
    {
        const char *what;
        QString lines;
        QString message; ///< none: accepted
    } rows[] = {
        {"block without a file", u"pattern_block=TRUE\nlbtitleimage=x.png\nwidth=0\n"_s, source},
        {"image without a file", u"pattern_image=TRUE\nlbtitleblock=door\ntolerance=0\n"_s, source},
        {"reference without a file", u"pattern_xref=TRUE\nlbtitleblock=door\n"_s, source},
        {"mask without a name", u"pattern_mask=TRUE\n"_s, {}},
        {"no width, and a wrong tolerance", u"pattern_mask=TRUE\nwidth=0\ntolerance=0.001\n"_s, scale},
        {"no height", u"pattern_block=TRUE\nlbtitleblock=door\nheight=0\n"_s, scale},
        {"tolerance just below", u"pattern_mask=TRUE\ntolerance=0.009\n"_s, tolerance},
        {"tolerance at the limit", u"pattern_mask=TRUE\ntolerance=0.01\n"_s, {}},
    };
    for (const auto &row : rows) {
        for (const char *button : {"acceptButton", "Btn_Preview"}) {
            SetUp();
            enter(u"NEW"_s, row.lines);
            const QString before = writtenState();
            ModalAnswers answers;
            answers.press(QMessageBox::Ok);
            click(button);
            EXPECT_EQ(answers.shown(), row.message.isEmpty() ? QStringList() : QStringList{row.message}) << row.what;
            EXPECT_EQ(isAccepted(), row.message.isEmpty()) << row.what;
            EXPECT_EQ(writtenState() == before, !row.message.isEmpty()) << row.what;
            if (row.message == tolerance) {
                EXPECT_EQ(value("tolerance"), 0.009); // refused, whatever the message says
            }
        }
    }
}

TEST_F(PatternHatch, ButtonsCloseWithTheirActions)
{
    const struct
    {
        const char *button;
        QString action;
    } rows[] = {
        {"acceptButton", u"OK"_s},
        {"Btn_Preview", u"PREVIEW"_s},
        {"Btn_ExtractFromEntity", u"GET_ENTITY"_s},
        {"Btn_SelectEntities", u"GET_ENTITIES"_s},
        {"Btn_SelectPoints", u"GET_POINTS"_s},
        {"Btn_DeleteEntities", u"DELETE"_s},
        {"Btn_ShowBoundaries", u"SHOW"_s},
        {"Btn_ExtractHatch", u"GET_FROMHATCH"_s},
        {"selOrigin", u"GET_ORIGIN"_s},
        {"selRotation", u"GET_ROTATION"_s},
    };
    for (const auto &row : rows) {
        enter(u"NEW"_s, u"pattern_mask=TRUE\nqtentities=1\n"_s);
        click(row.button);
        EXPECT_TRUE(isAccepted()) << row.button;
        EXPECT_EQ(dialog->state().action(), row.action);
        EXPECT_EQ(writtenAction(), u"!action!="_s + row.action);
    }
    enter(u"NEW"_s, u"pattern_mask=TRUE\n"_s);
    click("ButtonCancel");
    EXPECT_EQ(dialog->result(), int(QDialog::Rejected));
    EXPECT_EQ(writtenState(), u"pattern_mask=TRUE\n"_s);
}

TEST_F(PatternHatch, PickersCloseWithTheFile)
{
    const QString xref = writeDrawing(u"site.dwg"_s);
    const QString circular = writeDrawing(u"loop.dwg"_s, "loop.dwg");
    const QString drawings = u"\"Specify a drawing\" \"%1\" \"Drawing files (*.dwg)\""_s.arg(QFileInfo(block).path());
    const QString images =
        u"\"Select image for pattern\" \"%1\" "
        "\"All supported Image file (*.bmp *.gif *.jpg *.jpeg *.png *.tif *.tiff *.ecw)|Windows Bitmap (*.bmp)|"
        "Graphics Interchange Format (*.gif)|JPEG File Interchange Format (*.jpg *.jpeg)|"
        "Portable Netkword Graphics (*.png)|Tagged Image File Format (*.tif *.tiff)|"
        "Enhanced Compression Wavelet (*.ecw)\""_s.arg(QFileInfo(block).path());
    const struct
    {
        const char *radio;
        const char *button;
        const char *label;
        QString picker;
        QString file;
        QString action; ///< none: stays open
    } rows[] = {
        {"pattern_block", "Bt_selectBlock", "LbTitleblock", drawings, block, u"GET_BLOCK="_s + block},
        {"pattern_block", "Bt_selectBlock", "LbTitleblock", drawings, circular, u"GET_BLOCK="_s + circular},
        {"pattern_block", "Bt_selectBlock", "LbTitleblock", drawings, {}, {}},
        {"pattern_image", "Bt_selectImage", "LbTitleimage", images, image, u"GET_IMAGE="_s + image},
        {"pattern_image", "Bt_selectImage", "LbTitleimage", images, {}, {}},
        {"pattern_xref", "Bt_selectBlock_2", "LbTitleXref", drawings, xref, u"GET_XREF="_s + xref},
        {"pattern_xref", "Bt_selectBlock_2", "LbTitleXref", drawings, circular, {}},
    };
    for (const auto &row : rows) {
        SetUp();
        enter(u"NEW"_s, u"qtentities=0\n"_s);
        click(row.radio);
        ModalAnswers answers;
        answers.choose(row.file);
        answers.press(QMessageBox::Ok);
        click(row.button);
        EXPECT_EQ(answers.shown().value(0), u"choose "_s + row.picker) << row.button;
        EXPECT_EQ(isAccepted(), !row.action.isEmpty()) << row.button << row.file.toStdString();
        EXPECT_EQ(dialog->state().action(), row.action);
        if (row.action.isEmpty()) {
            EXPECT_EQ(writtenState(), u"qtentities=0\n"_s);
            EXPECT_EQ(label(row.label), QString());
        } else {
            EXPECT_EQ(writtenAction(), u"!action!"_s + row.action);
            EXPECT_EQ(label(row.label), row.file);
            EXPECT_EQ(find(row.label)->toolTip(), row.file);
        }
        if (row.file == circular && row.action.isEmpty()) {
            EXPECT_EQ(answers.shown().value(1), u"warning \"\" \"Error: Xref contains circular reference\" OK"_s);
        }
    }
}

TEST_F(PatternHatch, ChosenFilesBringTheirSize)
{
    const QString flat = host.writeFile(
        u"flat.dwg"_s, "0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n0\n10\n0\n20\n0\n11\n5\n21\n0\n0\nENDSEC\n0\nEOF\n");
    const struct
    {
        const char *what;
        QString lines;
        const char *button;
        QString file;
        double width;
        double height;
    } rows[] = {
        {"a drawing's extents", u"width=3\nheight=3\n"_s, "Bt_selectBlock", block, 8, 4},
        {"as factors", u"scalefactor=TRUE\nwidth=3\nheight=2\n"_s, "Bt_selectBlock", block, 1, 1},
        {"an image's proportions", u"width=2\nheight=2\npattern_image=TRUE\n"_s, "Bt_selectImage", image, 2, 6},
        {"a drawing without height", u"width=3\nheight=2\n"_s, "Bt_selectBlock", flat, 3, 2},
        {"no drawing", u"width=3\nheight=2\n"_s, "Bt_selectBlock", image, 3, 2},
        {"no image", u"width=3\nheight=2\npattern_image=TRUE\n"_s, "Bt_selectImage", block, 3, 2},
    };
    for (const auto &row : rows) {
        SetUp();
        enter(u"NEW"_s, row.lines);
        ModalAnswers answers;
        answers.choose(row.file);
        click(row.button);
        EXPECT_TRUE(isAccepted()) << row.what;
        EXPECT_EQ(value("Width"), row.width) << row.what;
        EXPECT_EQ(value("Height"), row.height) << row.what;
    }
}

TEST_F(PatternHatch, LockedSizesKeepTheProportions)
{
    const QString locked = u"aspectratio=TRUE\n"_s;
    const QString ofBlock = u"pattern_block=TRUE\nlbtitleblock=%1\n"_s.arg(block);
    const struct
    {
        const char *what;
        QString lines;
        const char *change; ///< box that is set to 6, or what is clicked
        double width;
        double height;
    } rows[] = {
        {"width of a drawing", locked + ofBlock, "Width", 6, 3},
        {"height of a drawing", locked + ofBlock, "Height", 12, 6},
        {"width of an image", locked + u"pattern_image=TRUE\nlbtitleimage=%1\n"_s.arg(image), "Width", 6, 18},
        {"factors", locked + ofBlock + u"scalefactor=TRUE\n"_s, "Width", 6, 6},
        {"not locked", ofBlock + u"width=5\nheight=5\n"_s, "Width", 6, 5},
        // Nothing says what the proportions of these are, so they stay as they stand.
        {"a block of the drawing", locked + u"lbtitleblock=Door\nwidth=2\nheight=1\n"_s, "Height", 12, 6},
        {"a mask", locked + u"pattern_mask=TRUE\nwidth=1\nheight=2\n"_s, "Width", 6, 12},
        {"locking", ofBlock + u"width=4\nheight=7\n"_s, "aspectRatio", 4, 2},
        {"to factors", locked + ofBlock + u"width=4\nheight=2\n"_s, "ScaleFactor", 4, 4},
        {"another type", locked + ofBlock + u"width=4\nheight=2\nlbtitleimage=%1\n"_s.arg(image), "pattern_image", 4,
         12},
        {"when shown", locked + ofBlock + u"width=4\nheight=9\n"_s, nullptr, 4, 2},
        {"when shown, not locked", ofBlock + u"width=4\nheight=9\n"_s, nullptr, 4, 9},
    };
    for (const auto &row : rows) {
        SetUp();
        enter(u"NEW"_s, row.lines);
        if (row.change && dialog->findChild<QAbstractButton *>(QLatin1String(row.change)))
            click(row.change);
        else if (row.change)
            setValue(row.change, 6);
        EXPECT_EQ(value("Width"), row.width) << row.what;
        EXPECT_EQ(value("Height"), row.height) << row.what;
    }
}

TEST_F(PatternHatch, ModesSayWhetherTheStateCountsAgain)
{
    const struct
    {
        QString mode;
        bool applies;
    } rows[] = {
        {u"NEW"_s, true}, {u"BOUNDARIES"_s, false}, {u"EDIT"_s, true}, {{}, false}, {u"EXTRACTENTITY"_s, true},
    };
    enter(u"BOUNDARIES"_s, u"pattern_mask=TRUE\noffsetx=1\n"_s);
    EXPECT_EQ(value("OffsetX"), 1) << "the first time counts in every mode";
    for (const auto &row : rows) {
        setValue("OffsetX", 7);
        setText("patternName", u"typed"_s);
        enter(row.mode, u"offsetx=2\npatternname=HEX\nqtentities=5\n"_s);
        EXPECT_EQ(value("OffsetX"), row.applies ? 2 : 7) << row.mode.toStdString();
        EXPECT_EQ(text("patternName"), row.applies ? u"HEX"_s : u"typed"_s) << row.mode.toStdString();
        EXPECT_TRUE(isEnabled("Btn_ShowBoundaries")) << "the boundary is known in every mode";
    }
}

TEST_F(PatternHatch, ButtonsFollowBoundaryAndSource)
{
    const struct
    {
        QString lines;
        bool showsBoundary;
        bool previews;
        bool confirms;
    } rows[] = {
        {u"pattern_block=TRUE\n"_s, false, false, true},
        {u"pattern_mask=TRUE\n"_s, false, true, true},
        {u"lbtitleblock=Door\nqtentities=0\n"_s, false, false, false},
        {u"lbtitleblock=Door\nqtentities=3\n"_s, true, true, true},
        {u"lbtitleblock=\nqtentities=3\n"_s, true, false, true},
        {u"lbtitleblock=Door\nqtentities=many\n"_s, false, false, false},
    };
    for (const auto &row : rows) {
        SetUp();
        enter(u"NEW"_s, row.lines);
        EXPECT_EQ(isEnabled("Btn_DeleteEntities"), row.showsBoundary) << row.lines.toStdString();
        EXPECT_EQ(isEnabled("Btn_ShowBoundaries"), row.showsBoundary) << row.lines.toStdString();
        EXPECT_EQ(isEnabled("Btn_Preview"), row.previews) << row.lines.toStdString();
        EXPECT_EQ(isEnabled("acceptButton"), row.confirms) << row.lines.toStdString();
    }
}

// Drawings and patterns may be called after their sizes.
TEST_F(PatternHatch, NamesAreNotTakenForValues)
{
    enter(u"NEW"_s, u"lbtitleblock=/blocks/door width=900,height=2100.dwg\npatternname=rotation=5\nwidth=3\nheight=4\n"
                    "rotation=45\n"_s);
    EXPECT_EQ(value("Width"), 3);
    EXPECT_EQ(value("Height"), 4);
    EXPECT_NEAR(value("Rotation"), M_PI_4, 1e-9);
}

TEST_F(PatternHatch, LongNamesAreShownShortAndKeptWhole)
{
    const QString folder = u"/"_s + QString(300, u'f');
    const QString name(200, u'P');
    enter(u"NEW"_s, u"pattern_xref=TRUE\nlbtitlexref=%1/a...b.dwg\npatternname=%2\n"_s.arg(folder, name));
    const auto *shown = find<QLabel>("LbTitleXref");
    EXPECT_LT(shown->text().size(), 100);
    EXPECT_LE(shown->sizeHint().width(), shown->width());
    EXPECT_EQ(shown->toolTip(), folder + u"/a...b.dwg"_s);
    EXPECT_EQ(label("LbTitleXref"), folder + u"/a...b.dwg"_s);
    click("pattern_mask");
    click("acceptButton");
    EXPECT_TRUE(writtenState().contains(u"\npatternname="_s + name + u'\n'));
}

TEST_F(PatternHatch, FavouritesKeepValuesAndLeaveFileAndBoundary)
{
    enter(
        u"NEW"_s,
        u"lbtitleblock=%1\naspectratio=TRUE\nwidth=6\nrotation=30\nnotexceedlimits=TRUE\nqtentities=2\n"_s.arg(block));
    find<QComboBox>("Cb_Favorits")->setEditText(u"Door pattern"_s);
    click("Btn_SaveFav");
    EXPECT_EQ(favourite(), QString());

    enter(u"NEW"_s, u"pattern_mask=TRUE\naspectratio=FALSE\nwidth=1\nheight=9\nrotation=0\ntrimtolimits=TRUE\n"_s);
    auto *box = find<QComboBox>("Cb_Favorits");
    box->setCurrentIndex(0);
    emit box->textActivated(u"Door pattern"_s);
    EXPECT_EQ(page(), u"Pageblock"_s);
    EXPECT_EQ(label("LbTitleblock"), block);
    EXPECT_EQ(value("Width"), 6);
    EXPECT_EQ(value("Height"), 3);
    EXPECT_NEAR(value("Rotation"), M_PI / 6, 1e-6);
    EXPECT_TRUE(isChecked("notexceedlimits"));
    EXPECT_TRUE(isEnabled("Btn_ShowBoundaries"));

    // The name stays over the pickings, and goes when the dialog is something else now.
    enter(u"BOUNDARIES"_s, {});
    EXPECT_EQ(favourite(), u"Door pattern"_s);
    EXPECT_TRUE(isEnabled("Btn_ShowBoundaries"));
    for (const char *option : {"TypeObjectGroup", "trimtolimits", "notexceedlimits"}) {
        box->setEditText(u"Door pattern"_s);
        click(option);
        EXPECT_EQ(favourite(), QString()) << option;
    }
    box->setEditText(u"being typed"_s);
    click("TypeObjectBlock");
    EXPECT_EQ(favourite(), u"being typed"_s);

    ModalAnswers answers;
    answers.drive([](QWidget *list) {
        list->findChild<QListWidget *>(u"ListFavorits"_s)->selectAll();
        list->findChild<QAbstractButton *>(u"BtnRemove"_s)->click();
        list->findChild<QAbstractButton *>(u"acceptButton"_s)->click();
    });
    click("Btn_Erase");
    EXPECT_EQ(box->count(), 0);
    EXPECT_FALSE(isEnabled("Btn_Erase"));
}

TEST_F(PatternHatch, MaskPatternsComeFromAMenu)
{
    enter(u"NEW"_s, u"pattern_mask=TRUE\n"_s);
    EXPECT_EQ(focusName(), u"patternName"_s);
    QTimer::singleShot(0, [] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        menu->setActiveAction(menu->actions().at(1));
        QTest::keyClick(menu, Qt::Key_Return);
    });
    click("SelectPattern");
    EXPECT_EQ(text("patternName"), u"ANSI31"_s);
    EXPECT_TRUE(dialog->isVisible());
}

/// A PNG that says it has 65,535 times 65,535 pixels, and has few of them.
QByteArray hugePng()
{
    return QByteArray::fromHex("89504e470d0a1a0a0000000d494844520000ffff0000ffff0806000000b605d9"
                               "500000000c49444154789c6360a03d00000064000186643c35");
}

TEST_F(PatternHatch, ImagesThatCannotBeShown)
{
    const struct
    {
        const char *what;
        QByteArray content;
    } rows[] = {
        {"empty", {}},
        {"cut off", FakeHost::readFile(image).first(40)},
        {"16 GiB when decoded", hugePng()},
        {"a drawing of another kind", "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"/>"},
    };
    for (const auto &row : rows) {
        const QString path = host.writeFile(u"odd.png"_s, row.content);
        EXPECT_TRUE(ortakit::imagePicture(path, {100, 100}).isNull()) << row.what;
    }
    EXPECT_EQ(ortakit::imagePicture(image, {100, 45}).size(), QSize(15, 45));
    EXPECT_EQ(ortakit::imagePicture(image, {100, 100}).size(), QSize(30, 90));
}

} // namespace
