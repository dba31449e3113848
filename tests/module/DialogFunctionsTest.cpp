// What single Dlg_ functions do beside the body that they share.

#include "module/DialogFunctions.h"

#include "module/DialogRegistry.h"
#include "platform/kernel/CKvLispEngine.h"
#include "state/ToolDialog.h"
#include "tests/support/FakeHost.h"
#include "tests/support/ModalAnswers.h"
#include "tests/support/QtTestPrinters.h"

#include <QAbstractButton>

#include <gtest/gtest.h>

namespace {

using namespace Qt::StringLiterals;
using namespace ortakit;
using ortakit::test::FakeHost;
using ortakit::test::ModalAnswers;

class DialogFunctions : public testing::Test
{
protected:
    DialogFunctions() { host.document().lisp().defineFunction(u"f"_s, dlgPatternHatch); }
    ~DialogFunctions() override { DialogRegistry::instance().records().clear(); }

    FakeHost host;
};

TEST_F(DialogFunctions, PatternHatchGivesItsActionAndIsRefusedInABlockEditor)
{
    const QString state = host.writeFile(u"state"_s, "pattern_mask=TRUE\nwidth=4\n");
    DialogRegistry::instance().append(&host.document());
    ModalAnswers answers;
    answers.drive([](QWidget *window) { window->findChild<QAbstractButton *>(u"Btn_SelectPoints"_s)->click(); });
    EXPECT_EQ(host.document().lisp().call(u"f"_s, {state, u"NEW"_s}), kRtNormal);
    EXPECT_EQ(host.document().lisp().result(), u"\"GET_POINTS\""_s);
    const QByteArray saved = FakeHost::readFile(state);
    EXPECT_TRUE(saved.contains("!action!=GET_POINTS\n")) << saved.toStdString();

    host.customBlocks().isEditing = true;
    EXPECT_EQ(host.document().lisp().call(u"f"_s, {}), kRtNormal);
    EXPECT_EQ(host.document().lisp().result(), u"nil"_s);
    EXPECT_EQ(answers.shown().size(), 1);
}

} // namespace
