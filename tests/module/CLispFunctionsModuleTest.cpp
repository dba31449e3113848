#include "module/CLispFunctionsModule.h"

#include "module/DialogRegistry.h"
#include "platform/rx/OdRxWin32Module.h"
#include "tests/support/ModuleTest.h"

#include <QCoreApplication>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// In the order in which Lisp programs and other hosts know them.
const QStringList definedNames =
    u"Dlg_LispExplorer Dlg_PatternHatch Dlg_BreakLine Dlg_getblockinfo Dlg_edittextcase Dlg_exportsetting "
    "Dlg_replaceblock Dlg_replaceblocktoxref Dlg_convertsimplesnotes Dlg_makelinestyle Dlg_imporAttributes "
    "Dlg_NumberText Dlg_TextFrame Dlg_TextMask CreateRtext Dlg_ExDimensionStyle Dlg_ImDimensionStyle Dlg_ShowLinks "
    "Dlg_DrawOrderColor Dlg_RedefinePaths Dlg_MergeSheets Dlg_ExportInfo Dlg_EditAlias Dlg_MakeShape "
    "Dlg_MultiViewSetup c:setbackupfolder KORA_entfield KORA_ssget KORA_getpoint KORA_getstring KORA_getkword "
    "KORA_EntSel KORA_IsItDemoVersion KORA_ssget_filter initgetOrtakit getPointOrtakit getIntOrtakit getKwordOrtakit "
    "getStringOrtakit getRealOrtakit getDistOrtakit getAngleOrtakit getCornerOrtakit acet-ss-drag-move"_s.split(u' ');

using ModuleObject = OdRxWin32Module<CLispFunctionsModule>;

class Module : public testing::Test
{
protected:
    ~Module() override
    {
        m_module->uninitApp();
        m_module->deleteModule();
    }

    static std::vector<CKvDocument *> records()
    {
        std::vector<CKvDocument *> documents;
        for (const DocumentDialogSet &record : DialogRegistry::instance().records())
            documents.push_back(record.document());
        return documents;
    }

    FakeHost m_host;
    FakeDocument *m_first = &m_host.document();
    OdRxModule *m_module = ModuleObject::instance(nullptr);
};

TEST_F(Module, OpenDocumentsGetTheFunctionsAndLoseThem)
{
    FakeDocument *second = m_host.documents().open();
    m_module->initApp();
    EXPECT_EQ(m_first->lisp().definitions(), definedNames);
    EXPECT_EQ(second->lisp().definitions(), definedNames);
    EXPECT_THAT(records(), ElementsAre(m_first, second));
    EXPECT_EQ(m_host.documents().reactorCount(), 1);
    EXPECT_EQ(m_host.editor().reactors().size(), 1);

    FakeDocument *third = m_host.documents().open();
    EXPECT_EQ(third->lisp().definitions(), definedNames);
    m_host.documents().close(third);
    EXPECT_THAT(records(), ElementsAre(m_first, second));

    m_module->uninitApp();
    for (FakeDocument *document : {m_first, second}) {
        EXPECT_THAT(document->lisp().functions(),
                    ElementsAre(u"c:setbackupfolder", u"dlg_exportsetting", u"dlg_patternhatch"));
    }
    EXPECT_THAT(records(), IsEmpty());
    EXPECT_EQ(m_host.documents().reactorCount(), 0);
    EXPECT_THAT(m_host.editor().reactors(), IsEmpty());
}

TEST_F(Module, TextsAreInTheLanguageThatTheHostTells)
{
    const auto text = [] { return QCoreApplication::translate("DLG_QT_ConvertNotes", "Keep original T&extStyle"); };
    const QString english = text();
    m_first->setSystemVariable(u"LOCALE"_s, u"DEU"_s);
    m_module->initApp();
    EXPECT_EQ(text(), u"Original-T&extstil beibehalten");
    m_module->uninitApp();
    EXPECT_EQ(text(), english) << "nothing of the module is left";

    ortakit::ModuleLanguage language;
    const std::pair<QString, bool> rows[] = {{u"FRA"_s, true}, {u"ENU"_s, false},  {u"fr_CA"_s, true},
                                             {u"fra"_s, true}, {QString(), false}, {u"JPN"_s, false}};
    for (const auto &[locale, isTranslated] : rows) {
        m_first->setSystemVariable(u"LOCALE"_s, locale);
        language.follow(m_first);
        EXPECT_EQ(text() != english, isTranslated) << locale.toStdString();
    }
}

TEST_F(Module, BlocksAreReplacedWithTheHostsPermissionOnly)
{
    m_module->initApp();
    m_host.refuse({u"replaceblock"_s, u"replaceblocktoxref"_s});
    ModalAnswers user;
    for (const QString &name : {u"Dlg_replaceblock"_s, u"Dlg_replaceblocktoxref"_s}) {
        EXPECT_EQ(m_first->lisp().call(name, {u"/no/state"_s, u"DOOR"_s}), 5100) << name.toStdString();
        EXPECT_EQ(m_first->lisp().result(), u"nil"_s);
    }
    EXPECT_THAT(user.shown(), IsEmpty());

    m_host.refuse({u"replaceblock"_s});
    EXPECT_EQ(m_first->lisp().call(u"Dlg_replaceblocktoxref"_s, {7, u"DOOR"_s, 8}), 5100) << "anything comes first";
    EXPECT_EQ(user.shown().size(), 1);
    EXPECT_EQ(m_first->lisp().call(u"Dlg_replaceblocktoxref"_s), -5001);
}

TEST_F(Module, EnginesThatComeLateAreServedOnce)
{
    m_first->setHasLisp(false);
    m_module->initApp();
    EXPECT_THAT(records(), IsEmpty());
    m_first->setHasLisp(true);
    static_cast<CLispFunctionsModule *>(m_module)->LispDocumentReady(m_first);
    EXPECT_EQ(m_first->lisp().definitions(), definedNames);
    EXPECT_THAT(records(), ElementsAre(m_first));

    DialogRegistry::instance().remove(m_first);
    m_module->uninitApp();
    EXPECT_EQ(m_first->lisp().functions().size(), 3) << "undefined all the same";
}

TEST_F(Module, HostsWithoutDocumentsGetTheEditorReactor)
{
    FakeEditor editor;
    FakeCommandStack commands;
    const host::kernel::Services before = host::kernel::installServices(
        {.system = nullptr, .help = nullptr, .editor = &editor, .customBlocks = nullptr, .commands = &commands});
    m_module->initApp();
    EXPECT_EQ(editor.reactors().size(), 1);
    EXPECT_THAT(m_first->lisp().definitions(), IsEmpty());
    m_module->uninitApp();
    EXPECT_THAT(editor.reactors(), IsEmpty());
    host::kernel::installServices(before);
}

} // namespace
