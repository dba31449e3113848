// The files of checking/: programs that are read, and what is found in them.

#include "host/lisp/checking/Checker.h"
#include "tests/lisp/LispBench.h"
#include "tests/support/CaseFile.h"

using namespace host::lisp::checking;
using ortakit::test::CaseRow;

namespace {

NativeArities languageAlone()
{
    const host::lisp::test::Bench bench;
    return nativeArities(bench.interpreter);
}

/// "\n" and "\t" of a row's one line as what they stand for.
std::string unfolded(std::string text)
{
    for (const auto &[written, meant] : {std::pair{"\\n", "\n"}, std::pair{"\\t", "\t"}}) {
        for (std::size_t at = 0; (at = text.find(written, at)) != std::string::npos; ++at)
            text.replace(at, 2, meant);
    }
    return text;
}

std::string told(const std::vector<Finding> &findings)
{
    std::string text;
    for (const Finding &finding : findings)
        text += (text.empty() ? "" : " | ") + std::to_string(finding.at.line) + ':' +
                std::to_string(finding.at.column) + ' ' + rowOf(finding.kind).name + ": " + finding.message;
    return text.empty() ? "-" : text;
}

class CheckingCases : public testing::TestWithParam<std::filesystem::path>
{
};

TEST_P(CheckingCases, find)
{
    const NativeArities natives = languageAlone();
    const auto file = ortakit::test::readCases(GetParam());
    ASSERT_FALSE(file.groups.empty()) << GetParam();
    for (const auto &group : file.groups) {
        for (const CaseRow &row : group)
            EXPECT_EQ(told(check({{"case", unfolded(row.source)}}, natives)), row.text('=')) << row.place;
    }
}

INSTANTIATE_TEST_SUITE_P(Files, CheckingCases, testing::ValuesIn(ortakit::test::caseFiles("lisp/checking")),
                         [](const auto &file) { return ortakit::test::caseName(file.param); });

TEST(Checking, filesKnowEachOther)
{
    const std::vector<CheckedSource> sources = {{"b.lsp", "(twice 1 2)(thrice 1)"},
                                                {"a.lsp", "(defun twice (x) (nope x))"},
                                                {"lib.lsp", "(defun thrice (x) (neither))", true}};
    std::string text;
    for (const Finding &finding : check(sources, languageAlone()))
        text += finding.text() + '\n';
    EXPECT_EQ(text, "b.lsp:1:2: error: twice takes 1 argument, not 2 [argument-count]\n"
                    "a.lsp:1:19: warning: there is no function nope [unknown-function]\n");
}

TEST(Checking, endsWithHugeAndDeepTexts)
{
    for (const char *piece : {"(", ")", "'", "(a", "\n(defun f (", "(setq x ("}) {
        std::string text;
        while (text.size() < 300'000)
            text += piece;
        EXPECT_FALSE(check({{"case", text}}, languageAlone()).empty()) << piece;
    }
}

} // namespace
