// Commands in the languages of the catalogues.

#include "host/kernel/languages/Languages.h"

#include "host/kernel/input/Keywords.h"
#include "tests/kernel/CaseHost.h"

#include <QRegularExpression>
#include <QTranslator>

#include <gmock/gmock.h>

using namespace host::kernel;
using ortakit::test::CaseRow;
using namespace Qt::StringLiterals;

namespace {

/// A code of docs/languages.md.
struct LanguageOfCommands : testing::TestWithParam<const char *>
{
    const std::filesystem::path folder = ortakit::test::testFile("kernel");
    const std::string helpers = ortakit::test::readCases(folder / "dialogues.lsp").prelude;
};

/// What suffices of a keyword in its language: its capitals.
QString shortForm(const QString &keyword)
{
    static const QRegularExpression capitals(u"[\\p{Lu}\\d]+"_s, QRegularExpression::UseUnicodePropertiesOption);
    const QString name = keywordName(keyword);
    return name == keyword ? capitals.match(name).captured() : keyword.sliced(name.size() + 1);
}

/// The word of the language for an English keyword; what is none stays.
QString localAnswer(const PromptRequest &request, const QString &answer, bool isShort)
{
    const std::optional<QString> meant = matchKeyword(answer, request.answers);
    for (qsizetype i = 0; meant && i < request.answers.size(); ++i)
        if (keywordAnswer(request.answers[i]) == *meant)
            return isShort && !request.answers[i].contains(u',') ? shortForm(request.keywords[i])
                                                                 : keywordName(request.keywords[i]);
    return answer;
}

// Whatever commands ask is answered in the words of the language, whole and as short as the prompt shows, and the same
// comes of it as in English. Each language plays a twelfth of them; the environment's ORTAKIT_EVERY_LANGUAGE has all
// of them played.
TEST_P(LanguageOfCommands, givesTheSameAsEnglish)
{
    QTranslator catalogue;
    ASSERT_TRUE(catalogue.load(u"host_%1"_s.arg(QString::fromLatin1(GetParam())), u":/translations"_s));
    const bool isEvery = qEnvironmentVariableIsSet("ORTAKIT_EVERY_LANGUAGE");
    const int share = QByteArray("deesfrit").indexOf(GetParam()) / 2;
    int count = 0;
    for (const auto &file : ortakit::test::caseFiles("kernel/dialogues")) {
        for (const auto &group : ortakit::test::readCases(file).groups) {
            for (const CaseRow &row : group) {
                if (++count % 12 != share && !isEvery)
                    continue;
                CaseHost host;
                host.lisp(helpers);
                const bool isShort = count / 12 % 2 == 0;
                const std::string printed =
                    host.playTranslated(row, catalogue, [&](const PromptRequest &request, const QString &answer) {
                        return localAnswer(request, answer, isShort);
                    });
                EXPECT_THAT(printed, testing::Not(testing::ContainsRegex("%[1-9nL]"))) << row.place;
            }
        }
    }
    EXPECT_GT(count, 1000);
}

// Tables of a language's own: dialogues, and Lisp where nothing is typed.
TEST_P(LanguageOfCommands, takesItsWords)
{
    const auto file = ortakit::test::readCases(folder / "languages" / (GetParam() + std::string(".lsp")));
    ASSERT_FALSE(helpers.empty() || file.groups.empty());
    useLanguage(*findLanguage(QString::fromLatin1(GetParam())));
    for (const auto &group : file.groups) {
        for (const CaseRow &row : group) {
            CaseHost host;
            host.lisp(helpers + file.prelude);
            row.has('!') ? host.playDialogue(row) : host.check(row);
        }
    }
    useLanguage(languages().front());
}

INSTANTIATE_TEST_SUITE_P(All, LanguageOfCommands, testing::Values("de", "fr", "es", "it"),
                         [](const auto &test) { return std::string(test.param); });

} // namespace
