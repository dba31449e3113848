// What single Dlg_ functions do beside the body that they share.

#include "module/DialogFunctions.h"

#include "module/DialogRegistry.h"
#include "platform/kernel/CKvLispEngine.h"
#include "state/ToolDialog.h"
#include "tests/support/ModuleTest.h"

#include <QAbstractButton>

namespace {

class DialogFunctions : public testing::Test
{
protected:
    DialogFunctions() { DialogRegistry::instance().append(&host.document()); }
    ~DialogFunctions() override { DialogRegistry::instance().records().clear(); }

    /// Calls the function while the user presses these buttons of its dialog; without any it must not come up.
    int call(CKvLispEngine::Handler function, const QVariantList &arguments, const QString &buttons = {})
    {
        ModalAnswers user;
        if (!buttons.isEmpty())
            user.drive([&](QWidget *window) {
                for (const QString &button : buttons.split(u' '))
                    window->findChild<QAbstractButton *>(button)->click();
            });
        lisp.defineFunction(u"f"_s, function);
        const int code = lisp.call(u"f"_s, arguments);
        EXPECT_EQ(user.shown().size(), buttons.isEmpty() ? 0 : 1);
        return code;
    }

    FakeHost host;
    FakeLispEngine &lisp = host.document().lisp();
    QString state = host.writeFile(u"state"_s, "kept=1\n");
};

TEST_F(DialogFunctions, WantTheirArguments)
{
    const std::pair<CKvLispEngine::Handler, QVariantList> rows[] = {{dlgEditTextCase, {1}},
                                                                    {dlgExportSetting, {u"listing"_s}},
                                                                    {dlgExportInfo, {}},
                                                                    {dlgShowLinks, {1}},
                                                                    {dlgRedefinePaths, {1}},
                                                                    {dlgGetBlockInfo, {}},
                                                                    {dlgDrawOrderColor, {7, u"3"_s}},
                                                                    {dlgPatternHatch, {}},
                                                                    {dlgMergeSheets, {}}};
    for (std::size_t row = 0; row < std::size(rows); ++row)
        EXPECT_EQ(call(rows[row].first, rows[row].second), kRtError) << "row " << row;
}

TEST_F(DialogFunctions, DrawOrderColorGivesTheNumbersInTheirOrder)
{
    EXPECT_EQ(call(dlgDrawOrderColor, {state, u"3"_s, u"-7"_s, 5}, u"reverse acceptButton"_s), kRtNormal);
    EXPECT_EQ(lisp.result(), u"( 7 3 )"_s);
    EXPECT_EQ(lisp.resultTypes(),
              (QList<int>{OdResBuf::kRtListBegin, OdResBuf::kRtShort, OdResBuf::kRtShort, OdResBuf::kRtListEnd}));
    EXPECT_EQ(call(dlgDrawOrderColor, {state, 4}, u"acceptButton"_s), kRtNormal);
    EXPECT_EQ(lisp.result(), u"( )"_s) << "the list of the call before is gone";
}

TEST_F(DialogFunctions, MergeSheetsTakesAnythingFirst)
{
    for (const QVariant &first : {QVariant(7), QVariant(state)}) {
        EXPECT_EQ(call(dlgMergeSheets, {first, u"A"_s, 3, u"B"_s}, u"acceptButton"_s), kRtNormal);
        EXPECT_EQ(lisp.result(), u"T"_s);
    }
    EXPECT_TRUE(FakeHost::readFile(state).contains("lstsheets=A^B^\n"));
}

TEST_F(DialogFunctions, PatternHatchIsRefusedInABlockEditor)
{
    host.customBlocks().isEditing = true;
    EXPECT_EQ(call(dlgPatternHatch, {}), kRtNormal);
    EXPECT_EQ(lisp.result(), u"nil"_s);
}

} // namespace
