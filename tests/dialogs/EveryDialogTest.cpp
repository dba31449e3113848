// What a user may expect of each dialog, whatever it is for.

#include "dialogs/breakline/Dlg_QT_Breakline.h"
#include "dialogs/convertnotes/DLG_QT_ConvertNotes.h"
#include "dialogs/dimensionstyle/Dlg_QT_ExchangedDimensionStyle.h"
#include "dialogs/dimensionstyle/Dlg_QT_ImportDimensionStyle.h"
#include "dialogs/drawordercolor/Dlg_QT_DrawOderColor.h"
#include "dialogs/editalias/Dlg_QT_EditAlias.h"
#include "dialogs/edittextcase/Dlg_QT_EditTextCase.h"
#include "dialogs/exportinfo/Dlg_QT_ExportInfo.h"
#include "dialogs/exportsettings/Dlg_QT_ExportSettings.h"
#include "dialogs/getblockinfo/Dlg_QT_GetBlockInfo.h"
#include "dialogs/importblockattributes/Dlg_QT_ImportBlockAttributes.h"
#include "dialogs/lispexplorer/Dlg_QT_LispExplorer.h"
#include "dialogs/makelinestyle/Dlg_QT_MakeLineStyle.h"
#include "dialogs/makeshape/Dlg_QT_MakeShape.h"
#include "dialogs/mergesheets/Dlg_QT_MergeSheets.h"
#include "dialogs/multiviewsetup/Dlg_QT_MultiViewSetup.h"
#include "dialogs/numbertext/Dlg_QT_numbertext.h"
#include "dialogs/patternhatch/DLG_QT_PatternHatch.h"
#include "dialogs/redefinepaths/Dlg_QT_RedefinePaths.h"
#include "dialogs/replaceblock/Dlg_QT_ReplaceBlock.h"
#include "dialogs/replaceblocktoxref/Dlg_QT_ReplaceBlockToXref.h"
#include "dialogs/selectblock/DLG_QT_SelectBlock.h"
#include "dialogs/showlinks/Dlg_QT_ShowLinks.h"
#include "dialogs/textframe/Dlg_QT_TextFrame.h"
#include "dialogs/textmask/Dlg_QT_TextMask.h"
#include "dialogs/tracktime/Dlg_QT_TrackTime.h"
#include "platform/widgets/CKvQtColorComboBox.h"
#include "tests/support/ModuleTest.h"
#include "tests/support/ShownTexts.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <QTranslator>

namespace {

struct DialogRow
{
    const char *name;
    ToolDialog *(*create)(QWidget *parent);
    const char *helpTopic;
    /// Letters that several texts of its first page have as their mnemonic: pressed, they lead from one to the next.
    QLatin1StringView sharedLetters;
    /// A line in the file of a later call; empty for a dialog that has none, or nothing in it to set.
    QByteArrayView later;
    /// The line that is written then; empty when it is the same one.
    QByteArrayView written;
};

template <class Dialog>
constexpr DialogRow dialogRow(const char *name, const char *helpTopic, const char *sharedLetters = "",
                              const char *later = "", const char *written = "")
{
    return {name,      [](QWidget *parent) -> ToolDialog * { return new Dialog(parent); },
            helpTopic, QLatin1StringView(sharedLetters),
            later,     written};
}

constexpr DialogRow dialogRows[] = {
    dialogRow<Dlg_QT_Breakline>("Breakline", "9101", "", "_dist_size=2", "_dist_size=1"),
    dialogRow<Dlg_QT_LispExplorer>("LispExplorer", "9111"),
    dialogRow<Dlg_QT_EditAlias>("EditAlias", "0"),
    dialogRow<Dlg_QT_MakeLineStyle>("MakeLineStyle", "9110", "", "description=Dots"),
    dialogRow<Dlg_QT_MakeShape>("MakeShape", "9132", "", "resolution=16"),
    dialogRow<Dlg_QT_ReplaceBlock>("ReplaceBlock", "9105", "", "attsync=TRUE", "attsync=FALSE"),
    dialogRow<Dlg_QT_ReplaceBlockToXref>("ReplaceBlockToXref", "9106", "", "purgeitems=TRUE", "purgeitems=FALSE"),
    dialogRow<Dlg_QT_ExchangedDimensionStyle>("ExchangedDimensionStyle", "9121", "", "rbfulltext=TRUE"),
    dialogRow<Dlg_QT_ImportDimensionStyle>("ImportDimensionStyle", "9122", "", "txexport=/d.dim"),
    dialogRow<DLG_QT_PatternHatch>("PatternHatch", "9102", "aden", "tolerance=0.5", "tolerance=0.01"),
    dialogRow<Dlg_QT_TextFrame>("TextFrame", "9113", "c", "offset=2"), // "&Circle" and the "&Color:" of a hatch
    // "C&reate Viewports" and "&Remove entities", "L&imits" and "&Insert Title Block"
    dialogRow<Dlg_QT_MultiViewSetup>("MultiViewSetup", "9145", "ri", "titlex=2", "titlex=0.0"),
    dialogRow<Dlg_QT_numbertext>("NumberText", "9112", "v", "tx_init=7"), // "Initial &value:" and "O&verwrite"
    dialogRow<Dlg_QT_TextMask>("TextMask", "9115", "", "offset=2"),
    dialogRow<Dlg_QT_EditTextCase>("EditTextCase", "9117", "", "radiobutton4=TRUE"),
    dialogRow<DLG_QT_ConvertNotes>("ConvertNotes", "9104", "", "select_alfa=TRUE"),
    dialogRow<Dlg_QT_ExportSettings>("ExportSettings", "9134"),
    dialogRow<Dlg_QT_ExportInfo>("ExportInfo", "9133", "", "lineedit_2=ann@example.com"),
    dialogRow<Dlg_QT_ShowLinks>("ShowLinks", "0", "", "txsearch=http"),
    dialogRow<Dlg_QT_RedefinePaths>("RedefinePaths", "9107", "efr", "filter=A.*"),
    dialogRow<Dlg_QT_GetBlockInfo>("GetBlockInfo", "9109", "", "nestedcheckbox=TRUE"),
    dialogRow<Dlg_QT_ImportBlockAttributes>("ImportBlockAttributes", "9108", "", "txreplace=b"),
    dialogRow<DLG_QT_SelectBlock>("SelectBlock", "9102"),
    dialogRow<Dlg_QT_DrawOderColor>("DrawOderColor", "9127", "", "newcolor=3"),
    dialogRow<Dlg_QT_MergeSheets>("MergeSheets", "9136", "", "prefix=A-"),
    dialogRow<Dlg_QT_TrackTime>("TrackTime", "0"),
};

void PrintTo(const DialogRow &row, std::ostream *out)
{
    *out << row.name;
}

/// A dialog as the user sees it.
class ShownDialog
{
protected:
    void show(const DialogRow &row)
    {
        host.setMainWindow(&window);
        dialog.reset(row.create(&window));
        dialog->show();
        // Icons come with the showing and change what the layout has to fit.
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
        QCoreApplication::processEvents();
    }

    template <class Widget>
    QList<Widget *> visible() const
    {
        QList<Widget *> widgets = dialog->findChildren<Widget *>();
        widgets.removeIf([](const Widget *widget) { return !widget->isVisible(); });
        return widgets;
    }

    FakeHost host;
    QWidget window;
    std::unique_ptr<ToolDialog> dialog;
};

class EveryDialog : public testing::TestWithParam<DialogRow>, protected ShownDialog
{
protected:
    EveryDialog() { show(GetParam()); }
};

// By its button, and with F1 wherever the user is.
TEST_P(EveryDialog, HelpOpensItsTopic)
{
    const auto topic = [this] { return host.help().requests.takeFirst().section(u' ', 1, 1).toStdString(); };
    QList<QAbstractButton *> buttons = visible<QAbstractButton>();
    buttons.removeIf([](const QAbstractButton *button) { return button->text() != u"Help"_s; });
    ASSERT_EQ(buttons.size(), 1);
    EXPECT_FALSE(buttons[0]->icon().isNull());
    buttons[0]->click();
    EXPECT_EQ(topic(), GetParam().helpTopic);
    QList<QWidget *> places = visible<QWidget>();
    places.removeIf(
        [](const QWidget *widget) { return !widget->isEnabled() || !(widget->focusPolicy() & Qt::TabFocus); });
    ASSERT_FALSE(places.isEmpty());
    for (QWidget *place : std::as_const(places)) {
        place->setFocus();
        QTest::keyClick(dialog->focusWidget(), Qt::Key_F1);
        ASSERT_EQ(host.help().requests.size(), 1) << place->objectName().toStdString();
        EXPECT_EQ(topic(), GetParam().helpTopic) << place->objectName().toStdString();
    }
}

TEST_P(EveryDialog, EscapeCloses)
{
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(dialog->result(), int(QDialog::Rejected));
}

TEST_P(EveryDialog, NamesAndMnemonicsDoNotClash)
{
    QSet<QString> names;
    for (const QWidget *widget : dialog->findChildren<QWidget *>()) {
        const QString name = widget->objectName().toLower();
        EXPECT_FALSE(names.contains(name) && !name.startsWith(u"qt_"_s)) << name.toStdString();
        if (!name.isEmpty())
            names.insert(name);
    }
    const QMap<QChar, QStringList> shared = ortakit::test::sharedMnemonics(*dialog);
    for (auto letter = shared.cbegin(); letter != shared.cend(); ++letter)
        EXPECT_TRUE(GetParam().sharedLetters.contains(letter.key())) << letter->join(u", "_s).toStdString();
    EXPECT_EQ(shared.size(), GetParam().sharedLetters.size());
}

// A label, button or option that is narrower than its text needs is cut off.
TEST_P(EveryDialog, NoTextIsCutOff)
{
    EXPECT_THAT(ortakit::test::cutTexts(*dialog), testing::IsEmpty());
}

// The Tab key leads from the first widget through every one that takes the focus.
TEST_P(EveryDialog, EveryWidgetIsReachedByTab)
{
    QSet<QWidget *> reached;
    for (int step = 0; step < 200; ++step) {
        if (QWidget *widget = dialog->focusWidget())
            reached.insert(widget);
        QTest::keyClick(dialog->focusWidget() ? dialog->focusWidget() : dialog.get(), Qt::Key_Tab);
    }
    QList<QWidget *> expected;
    for (QLineEdit *field : visible<QLineEdit>()) {
        const bool isPart =
            field->objectName() == u"qt_spinbox_lineedit"_s || qobject_cast<QComboBox *>(field->parent());
        expected.append(isPart ? field->parentWidget() : field);
    }
    for (QAbstractButton *button : visible<QAbstractButton>()) {
        // Of the options of a group only the chosen one takes part.
        if (!qobject_cast<QRadioButton *>(button))
            expected.append(button);
    }
    for (QWidget *widget : expected) {
        const bool isReachable = widget->isEnabled() && widget->focusPolicy() & Qt::TabFocus;
        EXPECT_TRUE(!isReachable || reached.contains(widget)) << widget->objectName().toStdString();
    }
}

// A dialog that its program calls again and again while the user works with it fixes itself what a later call sets.
TEST_P(EveryDialog, ALaterCallSetsWhatItsFileNames)
{
    const QByteArrayView later = GetParam().later;
    if (later.isEmpty())
        return;
    dialog->hide();
    dialog->state().load(host.writeFile(u"state"_s, later.toByteArray()));
    dialog->show();
    dialog->state().save();
    const QList<QByteArray> lines = FakeHost::readFile(dialog->state().filePath()).mid(3).split('\n');
    const QByteArrayView expected = GetParam().written.isEmpty() ? later : GetParam().written;
    EXPECT_TRUE(lines.contains(expected.toByteArray())) << lines.join('\n').toStdString();
}

/// What a dialog has in memory, as far as it can be counted: objects, and icons, each of which has pictures in a cache.
QStringList dialogHoldings(const QDialog &dialog)
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QStringList all = {u"top %1"_s.arg(QApplication::topLevelWidgets().size())};
    for (const QObject *object : dialog.findChildren<QObject *>())
        all.append(QString::fromLatin1(object->metaObject()->className()) + u' ' + object->objectName());
    for (const QAbstractButton *button : dialog.findChildren<QAbstractButton *>())
        all.append(u"icon %1 %2"_s.arg(button->objectName()).arg(button->icon().cacheKey()));
    for (int color = 0; color <= 256; ++color)
        all.append(u"color %1"_s.arg(CKvQtColorComboBox::colorSwatch(color).cacheKey()));
    all.sort();
    return all;
}

// A document's dialog is called a thousand times.
TEST_P(EveryDialog, LaterCallsLeaveNothingBehind)
{
    const auto call = [this] {
        dialog->hide();
        dialog->state().load(host.writeFile(u"state"_s, GetParam().later.toByteArray()));
        dialog->show();
        QCoreApplication::processEvents();
    };
    call();
    const QStringList before = dialogHoldings(*dialog);
    for (int i = 0; i < 3; ++i)
        call();
    EXPECT_EQ(dialogHoldings(*dialog), before);
}

TEST_P(EveryDialog, WritesDotsThatWereTyped)
{
    dialog->state().load(host.path(u"state"_s));
    for (QLineEdit *field : visible<QLineEdit>()) {
        const QString name = field->objectName();
        if (name.isEmpty() || name.startsWith(u"qt_"_s) || !field->isEnabled() || field->validator())
            continue;
        QTest::mouseClick(field, Qt::LeftButton);
        field->selectAll();
        QTest::keyClicks(field, u"a...b"_s);
        QTest::keyClick(field, Qt::Key_Tab);
        dialog->state().save();
        const QByteArray written = FakeHost::readFile(host.path(u"state"_s));
        EXPECT_TRUE(written.contains(name.toLower().toUtf8() + "=a...b\n")) << written.toStdString();
    }
}

// Losing the focus on the way out, a field must not tell a dialog that is half gone.
TEST_P(EveryDialog, CanBeDestroyedWhileAFieldHasTheFocus)
{
    QSet<QString> seen; // the editors of spin boxes have one name, and one is enough
    for (qsizetype field = 0; field < visible<QLineEdit>().size(); ++field) {
        if (seen.contains(visible<QLineEdit>().at(field)->objectName()))
            continue;
        seen.insert(visible<QLineEdit>().at(field)->objectName());
        visible<QLineEdit>().at(field)->setFocus();
        dialog.reset(GetParam().create(&window));
        EXPECT_FALSE(window.focusWidget());
        dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    }
}

INSTANTIATE_TEST_SUITE_P(All, EveryDialog, testing::ValuesIn(dialogRows),
                         [](const auto &test) { return std::string(test.param.name); });

/// Translates what is made while it is there.
class Translation
{
public:
    explicit Translation(const QString &language)
    {
        add(m_toolkit, QLibraryInfo::path(QLibraryInfo::TranslationsPath) + u"/qtbase_"_s + language);
        add(m_module, u":/translations/module_"_s + language);
    }

private:
    static void add(QTranslator &translator, const QString &file)
    {
        if (translator.load(file))
            QCoreApplication::installTranslator(&translator);
    }
    QTranslator m_toolkit;
    QTranslator m_module;
};

/// A dialog in a language. The environment's ORTAKIT_PICTURES names a folder for pictures of all pages; none are made
/// without it.
class InEveryLanguage : public testing::TestWithParam<std::tuple<DialogRow, const char *>>, protected ShownDialog
{
protected:
    InEveryLanguage() : m_translation(QString::fromLatin1(std::get<1>(GetParam()))) { show(row()); }

    static const DialogRow &row() { return std::get<0>(GetParam()); }

    /// Does it with each page of the dialog that there is to see.
    void onEachPage(const std::function<void(int page)> &body)
    {
        int page = 0;
        body(page);
        for (QTabWidget *tabs : dialog->findChildren<QTabWidget *>())
            for (int tab = 1; tab < tabs->count(); ++tab) {
                tabs->setCurrentIndex(tab);
                QCoreApplication::processEvents();
                body(++page);
            }
    }

    void takePicture(int page) const
    {
        const QString folder = qEnvironmentVariable("ORTAKIT_PICTURES");
        const QString name =
            u"%1-%2-%3.png"_s.arg(QLatin1StringView(std::get<1>(GetParam())), QLatin1StringView(row().name)).arg(page);
        if (!folder.isEmpty()) {
            EXPECT_TRUE(dialog->grab().save(folder + u'/' + name)) << name.toStdString();
        }
    }

private:
    Translation m_translation;
};

TEST_P(InEveryLanguage, TextsFitAndMnemonicsDiffer)
{
    onEachPage([this](int page) {
        takePicture(page);
        EXPECT_THAT(ortakit::test::cutTexts(*dialog), testing::IsEmpty());
        const QMap<QChar, QStringList> shared = ortakit::test::sharedMnemonics(*dialog);
        QStringList texts;
        for (const QStringList &same : shared)
            texts.append(same.join(u" / "_s));
        EXPECT_LE(shared.size(), row().sharedLetters.size()) << texts.join(u", "_s).toStdString();
    });
}

INSTANTIATE_TEST_SUITE_P(All, InEveryLanguage,
                         testing::Combine(testing::ValuesIn(dialogRows), testing::Values("de", "fr", "es", "it")),
                         [](const auto &test) {
                             return std::string(std::get<0>(test.param).name) + '_' + std::get<1>(test.param);
                         });

} // namespace
