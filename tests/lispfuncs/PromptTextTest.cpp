#include "lispfuncs/PromptText.h"

#include <gtest/gtest.h>

namespace {

using ortakit::isNumericDefault;
using ortakit::parsePrompt;
using ortakit::PromptText;

struct ParseRow
{
    const char *name;
    const char *prompt;
    const char *given;
    const char *cleaned;
    const char *keywords; // joined with "|"
    const char *defaultText;
};

const ParseRow parseRows[] = {
    {"nothing", "", "", "", "", ""},
    {"plain", "Specify size", "Specify size", "Specify size", "", ""},
    {"options and default", "Specify size [Auto/Manual] <Auto>: ", "Specify size [Auto/Manual] <Auto>: ",
     "Specify size", "Auto|Manual", "Auto"},
    {"numeric default", "Specify size <2.5>:", "Specify size <2.5>:", "Specify size", "", "2.5"},
    {"default before options", "Size <Auto> [Auto/Manual]:", "Size <Auto> [Auto/Manual]:", "Size", "Auto|Manual",
     "Auto"},
    {"written line breaks", "\\nPick\\n a point:", "Pick a point:", "Pick a point", "", ""},
    {"real line break stays", "\nPick a point", "\nPick a point", "\nPick a point", "", ""},
    {"a removed break joins no new one", "\\\\nn", "\\n", "\\n", "", ""},
    {"break inside an option", "[Au\\nto/Manual]", "[Auto/Manual]", "", "Auto|Manual", ""},
    {"text behind the options", "Specify [Auto/Manual] size", "Specify [Auto/Manual] size", "Specify size",
     "Auto|Manual", ""},
    {"blanks of an option stay", "Pick [Use last/All]", "Pick [Use last/All]", "Pick", "Use last|All", ""},
    {"empty options are none", "Pick [Auto//Manual/]", "Pick [Auto//Manual/]", "Pick", "Auto|Manual", ""},
    {"empty brackets", "Pick [] <>", "Pick [] <>", "Pick", "", ""},
    {"only the first brackets", "Pick [A/B] or [C/D]", "Pick [A/B] or [C/D]", "Pick or [C/D]", "A|B", ""},
    {"never closed", "Pick [Auto <3", "Pick [Auto <3", "Pick [Auto <3", "", ""},
    {"only closed", "Pick Auto] 3>", "Pick Auto] 3>", "Pick Auto] 3>", "", ""},
    {"colon inside", "Scale 1:50 <1:100>: ", "Scale 1:50 <1:100>: ", "Scale 1:50", "", "1:100"},
    {"not only ASCII", "Größe [Höhe/Länge] <Höhe>:", "Größe [Höhe/Länge] <Höhe>:", "Größe", "Höhe|Länge", "Höhe"},
};

TEST(PromptText, TakesPromptsApart)
{
    for (const ParseRow &row : parseRows) {
        SCOPED_TRACE(row.name);
        const PromptText parsed = parsePrompt(QString::fromUtf8(row.prompt));
        EXPECT_EQ(parsed.given.toStdString(), row.given);
        EXPECT_EQ(parsed.cleaned.toStdString(), row.cleaned);
        EXPECT_EQ(parsed.keywords.join(u'|').toStdString(), row.keywords);
        EXPECT_EQ(parsed.defaultText.toStdString(), row.defaultText);
    }
}

TEST(PromptText, LongPromptsAreTakenApartAtOnce)
{
    const PromptText parsed = parsePrompt(QString(500000, u'[') + QString(500000, u'/') + QString(500000, u']'));
    EXPECT_EQ(parsed.keywords.size(), 1);
}

struct NumberRow
{
    const char *text;
    bool isNumber;
};

const NumberRow numberRows[] = {
    {"2.5", true}, {"+.5", true},  {"-12", true}, {"007", true},  {"5.", false},  {"", false},  {"+", false},
    {".", false},  {"1e3", false}, {" 1", false}, {"1,5", false}, {"--1", false}, {"٣", false}, {"1.2.3", false},
};

TEST(PromptText, NumericDefaults)
{
    for (const NumberRow &row : numberRows)
        EXPECT_EQ(isNumericDefault(QString::fromUtf8(row.text)), row.isNumber) << '"' << row.text << '"';
}

} // namespace
