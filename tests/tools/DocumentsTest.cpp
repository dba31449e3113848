#include "host/app/SessionPlayer.h"
#include "host/app/Workbench.h"
#include "host/kernel/DocumentManager.h"
#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <gtest/gtest.h>

using namespace tools_test;
using namespace Qt::StringLiterals;
using host::kernel::Document;

namespace {

class Documents : public testing::Test
{
protected:
    static QString built(const char *file) { return qEnvironmentVariable("ORTAKIT_BUILD") + QLatin1String(file); }

    /// Plays `session` on the document, which becomes the active one.
    void play(Document &document, const QString &session)
    {
        bench.documents().setActive(&document);
        const auto outcome = host::app::runSession(session, document, {});
        EXPECT_TRUE(outcome.ok) << outcome.message.toStdString();
    }

    ToolRun folder;
    host::app::Workbench bench{{folder.path(u"home"_s), built("/lib/Ortakit.so"), built("/share/ortakit/tools")}};
};

TEST_F(Documents, EachHasItsOwnDialogWithItsOwnValues)
{
    Document *first = bench.documents().create();
    Document *second = bench.documents().create();
    const QString call = u"lisp (Dlg_BreakLine \"\")\ndialog Dlg_QT_Breakline\n"_s;
    play(*first, call + u"set _dist_size 7\nclick ButtonCancel\n"_s);
    play(*second, call + u"expect _dist_size 1\nset _dist_size 3\nclick ButtonCancel\n"_s);
    play(*first, call + u"expect _dist_size 7\nclick ButtonCancel\n"_s);
    ASSERT_TRUE(bench.documents().close(first));
    play(*second, call + u"expect _dist_size 3\nclick ButtonCancel\n"_s);
}

TEST_F(Documents, PromptingFunctionsGiveLispWhatWasAnswered)
{
    const struct
    {
        const char *call;
        QString answer;
        const char *value;
    } rows[] = {
        {"(getIntOrtakit \"Count [Auto/Manual] <Auto>: \")", u"answer 12"_s, "12"},
        {"(getIntOrtakit \"Count [Auto/Manual] <Auto>: \")", u"answer M"_s, "\"Manual\""},
        {"(getIntOrtakit \"Count [Auto/Manual] <Auto>: \")", u"answer E"_s, "\"Enter to auto\""},
        {"(getIntOrtakit \"Count <3>: \")", u"enter"_s, "3"},
        {"(getRealOrtakit \"Size <2.5>: \")", u"enter"_s, "2.5"},
        {"(getRealOrtakit \"Size: \")", u"enter"_s, "nil"},
        {"(getDistOrtakit '(1.0 1.0) \"Length: \")", u"point 4,5"_s, "5.0"},
        {"(getPointOrtakit \"Point: \")", u"point 1,2"_s, "'(1.0 2.0 0.0)"},
        {"(getPointOrtakit \"Point or [Undo]: \")", u"answer u"_s, "\"Undo\""},
        {"(getPointOrtakit \"Point: \")", u"cancel"_s, "nil"},
        {"(getCornerOrtakit '(0.0 0.0) \"Corner: \")", u"point 2,3"_s, "'(2.0 3.0 0.0)"},
        {"(getKwordOrtakit \"Keep [Yes/No] <Yes>: \")", u"answer n"_s, "\"No\""},
        {"(getKwordOrtakit \"Keep [Yes/No] <Yes>: \")", u"enter"_s, "\"Yes\""},
        {"(getStringOrtakit T \"Name: \")", u"answer two words"_s, "\"two words\""},
        {"(getAngleOrtakit \"Turn: \")", u"answer 90"_s, "(/ pi 2)"},
    };
    Document *document = bench.documents().create();
    for (const auto &row : rows) {
        SCOPED_TRACE(row.call);
        play(*document, u"lisp (setq result %1)\n%2\nexpect-lisp (equal result %3 1e-9)\n"_s.arg(
                            QLatin1String(row.call), row.answer, QLatin1String(row.value)));
    }
}

} // namespace
