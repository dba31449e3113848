#include "host/kernel/input/Keywords.h"

#include <gtest/gtest.h>

using namespace host::kernel;

namespace {

struct KeywordCase
{
    const char *keywords; ///< with a blank between
    const char *typed;
    const char *expected; ///< null: no match
};

const std::vector<KeywordCase> keywordCases = {
    {"Yes No", "y", "Yes"},       {"Yes No", "YES", "Yes"},        {"Yes No", "yess", nullptr},
    {"Yes No", "_No", "No"},      {"Yes No", "", nullptr},         {"Yes No", "_", nullptr},
    {"LType", "l", nullptr},      {"LType", "LT", "LType"},        {"LType", "lty", "LType"},
    {"LTYPE,LT", "lt", "LTYPE"},  {"LTYPE,LT", "ltyp", "LTYPE"},   {"LTYPE,LT", "l", nullptr},
    {"LTYPE,LT", "LTX", nullptr}, {"eXit", "x", "eXit"},           {"eXit", "xi", "eXit"},
    {"eXit", "ex", "eXit"},       {"eXit", "e", nullptr},          {"SAVE", "s", nullptr},
    {"SAVE", "save", "SAVE"},     {"BEgin Begone", "be", "BEgin"}, {"BEgin Begone", "begone", "Begone"},
    {"auto", "a", nullptr},       {"auto", "AUTO", "auto"},        {"2D 3D", "3d", "3D"},
};

TEST(Keywords, abbreviations)
{
    for (const KeywordCase &row : keywordCases) {
        SCOPED_TRACE(std::string(row.keywords) + " / " + row.typed);
        const QStringList keywords = QString::fromUtf8(row.keywords).split(u' ');
        const std::optional<QString> found = matchKeyword(QString::fromUtf8(row.typed), keywords);
        EXPECT_EQ(found.value_or(QStringLiteral("-")), QString::fromUtf8(row.expected ? row.expected : "-"));
    }
}

TEST(Keywords, namesToReadAndWhatIsTypedForThem)
{
    const QStringList keywords = {QStringLiteral(". for none,."), QStringLiteral("Enter to 0,5")};
    EXPECT_EQ(matchKeyword(QStringLiteral("."), keywords), QStringLiteral("."));
    EXPECT_EQ(matchKeyword(QStringLiteral(". for none"), keywords), QStringLiteral(".")) << "picked from a menu";
    EXPECT_EQ(matchKeyword(QStringLiteral(".x"), keywords), std::nullopt);
    EXPECT_EQ(matchKeyword(QStringLiteral("5"), keywords), QStringLiteral("Enter to 0")) << "not its beginning";
    EXPECT_EQ(formatPrompt(QStringLiteral("Path"), keywords.first(1), QStringLiteral("a b")),
              QStringLiteral("Path [. for none] <a b>: "));
}

} // namespace
