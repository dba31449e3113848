// The files of cases/ and dialogues/: Lisp, typed answers, and what comes of them.

#include "tests/kernel/CaseHost.h"

#include <QTranslator>

using ortakit::test::CaseRow;
using namespace Qt::StringLiterals;

namespace {

class KernelCases : public testing::TestWithParam<std::filesystem::path>
{
};

TEST_P(KernelCases, give)
{
    const auto file = ortakit::test::readCases(GetParam());
    EXPECT_FALSE(file.groups.empty()) << GetParam();
    for (const auto &group : file.groups) {
        CaseHost host;
        host.lisp(file.prelude);
        for (const CaseRow &row : group)
            host.check(row);
    }
}

INSTANTIATE_TEST_SUITE_P(Files, KernelCases, testing::ValuesIn(ortakit::test::caseFiles("kernel/cases")),
                         [](const auto &file) { return ortakit::test::caseName(file.param); });

class CommandDialogues : public testing::TestWithParam<std::filesystem::path>
{
};

TEST_P(CommandDialogues, areTheSameInEveryWay)
{
    const auto helpers = ortakit::test::readCases(GetParam().parent_path().parent_path() / "dialogues.lsp").prelude;
    const auto file = ortakit::test::readCases(GetParam());
    EXPECT_FALSE(helpers.empty() || file.groups.empty()) << GetParam();
    for (const auto &group : file.groups) {
        for (const CaseRow &row : group) {
            CaseHost host;
            host.lisp(helpers);
            host.playDialogue(row);
        }
    }
}

/// A few keywords in another language, whatever the translations say.
class GermanKeywords final : public QTranslator
{
public:
    GermanKeywords() { QCoreApplication::installTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        static const QHash<QByteArray, QString> words = {
            {"Yes", u"Ja"_s},        {"No", u"Nein"_s},      {"Close", u"Schließen"_s},  {"Undo", u"Zurück"_s},
            {"ALL", u"ALle"_s},      {"Last", u"Letztes"_s}, {"Remove", u"Entfernen"_s}, {"Diameter", u"Durchmesser"_s},
            {"Window", u"Fenster"_s}};
        return context == QByteArrayView("Keywords") ? words.value(source) : QString();
    }
};

TEST(CommandDialoguesInGerman, takeItsKeywordsAndEnglishOnes)
{
    const GermanKeywords keywords;
    const std::filesystem::path folder =
        ortakit::test::caseFiles("kernel/dialogues").front().parent_path().parent_path();
    const auto helpers = ortakit::test::readCases(folder / "dialogues.lsp").prelude;
    const auto file = ortakit::test::readCases(folder / "german.lsp");
    ASSERT_FALSE(helpers.empty() || file.groups.empty());
    for (const CaseRow &row : file.groups.front()) {
        CaseHost host;
        host.lisp(helpers);
        host.playDialogue(row);
    }
}

INSTANTIATE_TEST_SUITE_P(Files, CommandDialogues, testing::ValuesIn(ortakit::test::caseFiles("kernel/dialogues")),
                         [](const auto &file) { return ortakit::test::caseName(file.param); });

} // namespace
