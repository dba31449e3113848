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
using ortakit::test::FakeLispEngine;
using ortakit::test::ModalAnswers;

class DialogFunctions : public testing::Test
{
protected:
    DialogFunctions() { host.document().lisp().defineFunction(u"f"_s, dlgPatternHatch); }
    ~DialogFunctions() override { DialogRegistry::instance().records().clear(); }

    FakeHost host;
};

TEST_F(DialogFunctions, DrawOrderColorGivesTheNumbersInTheirOrder)
{
    FakeLispEngine &lisp = host.document().lisp();
    lisp.defineFunction(u"colors"_s, dlgDrawOrderColor);
    DialogRegistry::instance().append(&host.document());
    const struct
    {
        QVariantList arguments;
        const char *buttons;
        QString result;
    } rows[] = {
        {{u"3"_s, u"-7"_s, 5}, "reverse acceptButton", u"( 7 3 )"_s},
        {{u"1"_s, 2.5, u"2"_s}, "ButtonCancel", u"nil"_s},
        {{4}, "acceptButton", u"( )"_s}, // the list of the call before is gone
    };
    for (const auto &row : rows) {
        const QString state = host.writeFile(u"state"_s, "kept=1\n");
        ModalAnswers answers;
        answers.drive([&row](QWidget *window) {
            for (const QString &button : QString::fromLatin1(row.buttons).split(u' '))
                window->findChild<QAbstractButton *>(button)->click();
        });
        EXPECT_EQ(lisp.call(u"colors"_s, QVariantList{state} + row.arguments), kRtNormal);
        EXPECT_EQ(lisp.result(), row.result);
        if (row.result == u"( 7 3 )"_s) {
            EXPECT_EQ(lisp.resultTypes(), (QList<int>{OdResBuf::kRtListBegin, OdResBuf::kRtShort, OdResBuf::kRtShort,
                                                      OdResBuf::kRtListEnd}));
        }
        EXPECT_EQ(FakeHost::readFile(state) == "kept=1\n", row.result == u"nil"_s);
    }
    EXPECT_EQ(lisp.call(u"colors"_s, {7, u"3"_s}), kRtError);
    EXPECT_EQ(lisp.call(u"colors"_s), kRtError);
}

TEST_F(DialogFunctions, MergeSheetsTakesAnythingFirst)
{
    FakeLispEngine &lisp = host.document().lisp();
    lisp.defineFunction(u"sheets"_s, dlgMergeSheets);
    DialogRegistry::instance().append(&host.document());
    EXPECT_EQ(lisp.call(u"sheets"_s), kRtError);
    for (const QVariant &first : {QVariant(7), QVariant(host.path(u"state"_s))}) {
        ModalAnswers answers;
        answers.drive([](QWidget *window) { window->findChild<QAbstractButton *>(u"acceptButton"_s)->click(); });
        EXPECT_EQ(lisp.call(u"sheets"_s, {first, u"A"_s, 3, u"B"_s}), kRtNormal);
        EXPECT_EQ(lisp.result(), u"T"_s);
    }
    EXPECT_TRUE(FakeHost::readFile(host.path(u"state"_s)).contains("lstsheets=A^B^\n"));
}

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
