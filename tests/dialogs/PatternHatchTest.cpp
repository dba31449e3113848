#include "dialogs/patternhatch/DLG_QT_PatternHatch.h"
#include "platform/widgets/CKvQtUnitSpinBox.h"
#include "state/widgets/DrawingPreview.h"
#include "tests/dialogs/DialogTest.h"
#include "tests/support/Texts.h"

#include <QMenu>
#include <QtMath>

namespace {

class PatternHatch : public DialogTest<DLG_QT_PatternHatch>
{
protected:
    double value(const char *box) const { return find<QDoubleSpinBox>(box)->value(); }
    QSizeF shownSize() const { return {value("Width"), value("Height")}; }
    void setValue(const char *box, double value) { find<QDoubleSpinBox>(box)->setValue(value); }
    void enter(const QString &mode, const QString &lines)
    {
        dialog->setMode(mode);
        showWith(lines);
    }
    /// What the dialog itself wrote when it closed.
    QString writtenState() const { return QString::fromUtf8(FakeHost::readFile(stateFile)).remove(QChar(0xFEFF)); }
    QString writtenAction() const { return writtenState().section(u'\n', 1, 1); }

    /// A copy of a drawing beside this test: a door 8 wide and 4 high, something flat, or what has itself as a
    /// reference.
    QString drawing(const QString &name) const
    {
        return host.writeFile(name + u".dwg"_s, testText(qPrintable(u"dialogs/patternhatch/%1.dxf"_s.arg(name))));
    }
    QString writeImage(const QString &name, const QSize &size) const
    {
        QImage pixels(size, QImage::Format_RGB32);
        pixels.fill(Qt::red);
        EXPECT_TRUE(pixels.save(host.path(name)));
        return host.path(name);
    }

    const QString block = drawing(u"door"_s);
    const QString image = writeImage(u"brick.png"_s, {30, 90});
};

TEST_F(PatternHatch, ChecksStopAtTheFirstThatFails)
{
    const QString source = u"warning \"\" \"Specify Pattern \" OK"_s;
    const QString scale = u"warning \"\" \"Scale must be higher than zero. \" OK"_s;
    const QString tolerance = u"warning \"\" \"The tolerance value is less than minimum. The value is reset to minimum "
                              "(0.01). \" OK"_s;
    const std::pair<QString, QStringList> rows[] = {
        {u"pattern_block=TRUE\nlbtitleimage=x.png\nwidth=0\n"_s, {source}},
        {u"pattern_image=TRUE\nlbtitleblock=door\ntolerance=0\n"_s, {source}},
        {u"pattern_xref=TRUE\nlbtitleblock=door\n"_s, {source}},
        {u"pattern_mask=TRUE\nwidth=0\ntolerance=0.001\n"_s, {scale}},
        {u"pattern_mask=TRUE\nheight=0\n"_s, {scale}},
        {u"pattern_mask=TRUE\ntolerance=0.009\n"_s, {tolerance}},
        {u"pattern_mask=TRUE\ntolerance=0.01\n"_s, {}},
    };
    for (const auto &[lines, message] : rows) {
        for (const char *button : {"acceptButton", "Btn_Preview"}) {
            SetUp();
            enter(u"NEW"_s, lines);
            EXPECT_EQ(shownBy(button), message) << lines.toStdString();
            EXPECT_EQ(isAccepted(), message.isEmpty()) << lines.toStdString();
            EXPECT_EQ(writtenState() == lines, !message.isEmpty()) << lines.toStdString();
            if (message == QStringList{tolerance}) {
                EXPECT_EQ(value("tolerance"), 0.009); // refused, whatever the message says
            }
        }
    }
}

TEST_F(PatternHatch, ButtonsCloseWithTheirActions)
{
    const std::pair<const char *, QString> rows[] = {
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
    for (const auto &[button, action] : rows) {
        enter(u"NEW"_s, u"pattern_mask=TRUE\nqtentities=1\n"_s);
        click(button);
        EXPECT_TRUE(isAccepted()) << button;
        EXPECT_EQ(writtenAction(), u"!action!="_s + action);
    }
    enter(u"NEW"_s, u"pattern_mask=TRUE\n"_s);
    click("ButtonCancel");
    EXPECT_FALSE(isAccepted());
    EXPECT_EQ(writtenState(), u"pattern_mask=TRUE\n"_s);
}

TEST_F(PatternHatch, PickersCloseWithTheFile)
{
    const QString circular = drawing(u"loop"_s);
    const QString drawings = u"Specify a drawing"_s;
    const QString images = u"Select image for pattern"_s;
    // What is chosen; no action: stays open.
    const std::tuple<const char *, const char *, const char *, QString, QString, QString> rows[] = {
        {"pattern_block", "Bt_selectBlock", "LbTitleblock", drawings, circular, u"GET_BLOCK="_s + circular},
        {"pattern_image", "Bt_selectImage", "LbTitleimage", images, image, u"GET_IMAGE="_s + image},
        {"pattern_image", "Bt_selectImage", "LbTitleimage", images, {}, {}},
        {"pattern_xref", "Bt_selectBlock_2", "LbTitleXref", drawings, block, u"GET_XREF="_s + block},
        {"pattern_xref", "Bt_selectBlock_2", "LbTitleXref", drawings, circular, {}},
    };
    for (const auto &[radio, button, label, title, file, action] : rows) {
        SetUp();
        enter(u"NEW"_s, u"qtentities=0\n"_s);
        click(radio);
        const QStringList shown = shownChoosing(button, file);
        EXPECT_TRUE(shown[0].startsWith(u"choose \"%1\" \"%2\""_s.arg(title, QFileInfo(block).path())));
        EXPECT_EQ(shown.value(1).contains(u"circular"_s), action.isEmpty() && file == circular);
        EXPECT_EQ(isAccepted(), !action.isEmpty()) << button << file.toStdString();
        EXPECT_EQ(dialog->state().action(), action);
        EXPECT_EQ(writtenAction(), action.isEmpty() ? QString() : u"!action!"_s + action);
        EXPECT_EQ(fullText(label), action.isEmpty() ? QString() : file);
    }
}

TEST_F(PatternHatch, ChosenFilesBringTheirSize)
{
    const std::tuple<const char *, QString, QString, QSizeF> rows[] = {
        {"a drawing's extents", u"width=3\nheight=3\n"_s, block, {8, 4}},
        {"as factors", u"scalefactor=TRUE\nwidth=3\nheight=2\n"_s, block, {1, 1}},
        {"an image's proportions", u"width=2\nheight=2\npattern_image=TRUE\n"_s, image, {2, 6}},
        {"a drawing without height", u"width=3\nheight=2\n"_s, drawing(u"flat"_s), {3, 2}},
        {"no drawing", u"width=3\nheight=2\n"_s, image, {3, 2}},
        {"no image", u"width=3\nheight=2\npattern_image=TRUE\n"_s, block, {3, 2}},
    };
    for (const auto &[what, lines, file, size] : rows) {
        SetUp();
        enter(u"NEW"_s, lines);
        shownChoosing(isChecked("pattern_image") ? "Bt_selectImage" : "Bt_selectBlock", file);
        EXPECT_TRUE(isAccepted()) << what;
        EXPECT_EQ(shownSize(), size) << what;
    }
}

TEST_F(PatternHatch, LockedSizesKeepTheProportions)
{
    const QString locked = u"aspectratio=TRUE\n"_s;
    const QString ofBlock = u"pattern_block=TRUE\nlbtitleblock=%1\n"_s.arg(block);
    // The third is the box that is set to 6, or what is clicked.
    const std::tuple<const char *, QString, const char *, QSizeF> rows[] = {
        {"width of a drawing", locked + ofBlock, "Width", {6, 3}},
        {"width of an image", locked + u"pattern_image=TRUE\nlbtitleimage=%1\n"_s.arg(image), "Width", {6, 18}},
        {"factors", locked + ofBlock + u"scalefactor=TRUE\n"_s, "Width", {6, 6}},
        {"not locked", ofBlock + u"width=5\nheight=5\n"_s, "Width", {6, 5}},
        // Nothing says what the proportions of these are, so they stay as they stand.
        {"a block of the drawing", locked + u"lbtitleblock=Door\nwidth=2\nheight=1\n"_s, "Height", {12, 6}},
        {"a mask", locked + u"pattern_mask=TRUE\nwidth=1\nheight=2\n"_s, "Width", {6, 12}},
        {"locking", ofBlock + u"width=4\nheight=7\n"_s, "aspectRatio", {4, 2}},
        {"to factors", locked + ofBlock + u"width=4\nheight=2\n"_s, "ScaleFactor", {4, 4}},
        {"another type",
         locked + ofBlock + u"width=4\nheight=2\nlbtitleimage=%1\n"_s.arg(image),
         "pattern_image",
         {4, 12}},
        {"when shown", locked + ofBlock + u"width=4\nheight=9\n"_s, nullptr, {4, 2}},
        {"when shown, not locked", ofBlock + u"width=4\nheight=9\n"_s, nullptr, {4, 9}},
    };
    for (const auto &[what, lines, change, size] : rows) {
        SetUp();
        enter(u"NEW"_s, lines);
        if (change && dialog->findChild<QAbstractButton *>(QLatin1String(change)))
            click(change);
        else if (change)
            setValue(change, 6);
        EXPECT_EQ(shownSize(), size) << what;
    }
}

TEST_F(PatternHatch, ModesSayWhetherTheStateCountsAgain)
{
    const std::pair<QString, bool> rows[] = {
        {u"NEW"_s, true}, {u"BOUNDARIES"_s, false}, {u"EDIT"_s, true}, {{}, false}, {u"EXTRACTENTITY"_s, true},
    };
    enter(u"BOUNDARIES"_s, u"pattern_mask=TRUE\noffsetx=1\n"_s);
    EXPECT_EQ(value("OffsetX"), 1) << "the first time counts in every mode";
    for (const auto &[mode, applies] : rows) {
        setValue("OffsetX", 7);
        setText("patternName", u"typed"_s);
        enter(mode, u"offsetx=2\npatternname=HEX\nqtentities=5\n"_s);
        EXPECT_EQ(value("OffsetX"), applies ? 2 : 7) << mode.toStdString();
        EXPECT_EQ(text("patternName"), applies ? u"HEX"_s : u"typed"_s) << mode.toStdString();
        EXPECT_TRUE(isEnabled("Btn_ShowBoundaries")) << "the boundary is known in every mode";
    }
}

TEST_F(PatternHatch, ButtonsFollowBoundaryAndSource)
{
    const QString all = u"Btn_DeleteEntities Btn_ShowBoundaries Btn_Preview acceptButton"_s;
    const std::pair<QString, QString> rows[] = {
        {u"pattern_block=TRUE\n"_s, u"acceptButton"_s},
        {u"pattern_mask=TRUE\n"_s, u"Btn_Preview acceptButton"_s},
        {u"lbtitleblock=Door\nqtentities=0\n"_s, {}},
        {u"lbtitleblock=Door\nqtentities=3\n"_s, all},
        {u"lbtitleblock=\nqtentities=3\n"_s, u"Btn_DeleteEntities Btn_ShowBoundaries acceptButton"_s},
        {u"lbtitleblock=Door\nqtentities=many\n"_s, {}},
    };
    for (const auto &[lines, enabled] : rows) {
        SetUp();
        enter(u"NEW"_s, lines);
        EXPECT_EQ(enabledOf(all), enabled) << lines.toStdString();
    }
}

// Drawings and patterns may be called after their sizes.
TEST_F(PatternHatch, NamesAreNotTakenForValues)
{
    enter(u"NEW"_s, uR"(lbtitleblock=/blocks/door width=900,height=2100.dwg
patternname=rotation=5
width=3
height=4
rotation=45
)"_s);
    EXPECT_EQ(shownSize(), QSizeF(3, 4));
    EXPECT_NEAR(value("Rotation"), M_PI_4, 1e-9);
}

TEST_F(PatternHatch, LongNamesAreShownShortAndKeptWhole)
{
    const QString folder = u"/"_s + QString(300, u'f');
    const QString name(200, u'P');
    enter(u"NEW"_s, u"pattern_xref=TRUE\nlbtitlexref=%1/a...b.dwg\npatternname=%2\n"_s.arg(folder, name));
    EXPECT_LT(find<QLabel>("LbTitleXref")->text().size(), 100);
    EXPECT_EQ(fullText("LbTitleXref"), folder + u"/a...b.dwg"_s);
    click("pattern_mask");
    click("acceptButton");
    EXPECT_TRUE(writtenState().contains(u"\npatternname="_s + name + u'\n'));
}

TEST_F(PatternHatch, FavouritesKeepValuesAndFileAndLeaveTheBoundary)
{
    enter(u"NEW"_s, uR"(lbtitleblock=%1
aspectratio=TRUE
width=6
rotation=30
qtentities=2
)"_s.arg(block));
    auto *box = find<QComboBox>("Cb_Favorits");
    saveFavourite("Cb_Favorits", "Btn_SaveFav", u"Door pattern"_s);
    enter(u"NEW"_s, uR"(pattern_mask=TRUE
lbtitleblock=other.dwg
aspectratio=FALSE
width=1
height=9
rotation=0
)"_s);
    pickFavourite("Cb_Favorits", u"Door pattern"_s);
    EXPECT_TRUE(find("Pageblock")->isVisible());
    EXPECT_EQ(fullText("LbTitleblock"), block);
    EXPECT_EQ(shownSize(), QSizeF(6, 3));
    EXPECT_NEAR(value("Rotation"), M_PI / 6, 1e-6);
    EXPECT_TRUE(isEnabled("Btn_ShowBoundaries"));

    click("Btn_ShowBoundaries");
    EXPECT_TRUE(writtenState().contains(u"lbtitleblock=%1\n"_s.arg(block))) << "for the program, which chose another";

    // The name stays over the pickings, and goes when the dialog is something else now.
    enter(u"BOUNDARIES"_s, {});
    EXPECT_EQ(box->currentText(), u"Door pattern"_s);
    for (const char *option : {"TypeObjectGroup", "trimtolimits", "notexceedlimits"}) {
        box->setEditText(u"Door pattern"_s);
        click(option);
        EXPECT_EQ(box->currentText(), QString()) << option;
    }
    box->setEditText(u"being typed"_s);
    click("TypeObjectBlock");
    EXPECT_EQ(box->currentText(), u"being typed"_s);
}

TEST_F(PatternHatch, ABlockOfTheDrawingIsShownByItsName)
{
    for (const auto &[type, name] : {std::pair(u"pattern_block"_s, u"DOOR"_s), {u"pattern_xref"_s, QString()}}) {
        enter(u"EXTRACTENTITY"_s, u"%1=TRUE\nlbtitleblock=DOOR\n"_s.arg(type));
        EXPECT_EQ(find<DrawingPreview>("PreviewBlock")->block(), name);
    }
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

TEST_F(PatternHatch, ImagesThatCannotBeShown)
{
    // A PNG that says it has 65,535 times 65,535 pixels, and has few of them.
    const QByteArray huge = QByteArray::fromHex("89504e470d0a1a0a0000000d494844520000ffff0000ffff0806000000b605d9"
                                                "500000000c49444154789c6360a03d00000064000186643c35");
    const QByteArray drawing = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"/>";
    for (const QByteArray &content : {QByteArray(), FakeHost::readFile(image).first(40), huge, drawing}) {
        const QString path = host.writeFile(u"odd.png"_s, content);
        EXPECT_TRUE(ortakit::imagePicture(path, {100, 100}).isNull()) << content.toStdString();
    }
    EXPECT_EQ(ortakit::imagePicture(image, {100, 45}).size(), QSize(15, 45));
}

} // namespace
