#include "lispfuncs/PromptText.h"

#include "tests/support/ModuleTest.h"

namespace {

TEST(PromptText, TakesPromptsApart)
{
    // keywords: with "|" between
    const std::tuple<const char *, const char *, const char *, const char *, const char *> rows[] = {
        {"nothing", "", "", "", ""},
        {"plain", "Specify size", "Specify size", "", ""},
        {"options and default", "Specify size [Auto/Manual] <Auto>: ", "Specify size", "Auto|Manual", "Auto"},
        {"numeric default", "Specify size <2.5>:", "Specify size", "", "2.5"},
        {"default before options", "Size <Auto> [Auto/Manual]:", "Size", "Auto|Manual", "Auto"},
        {"real line break stays", "\nPick a point", "\nPick a point", "", ""},
        {"text behind the options", "Specify [Auto/Manual] size", "Specify size", "Auto|Manual", ""},
        {"blanks of an option stay", "Pick [Use last/All]", "Pick", "Use last|All", ""},
        {"blanks around an option go", "Pick [ Auto / Manual ] <Auto>:", "Pick", "Auto|Manual", "Auto"},
        {"empty options are none", "Pick [Auto//Manual/]", "Pick", "Auto|Manual", ""},
        {"empty brackets", "Pick [] <>", "Pick", "", ""},
        {"only the first brackets", "Pick [A/B] or [C/D]", "Pick or [C/D]", "A|B", ""},
        {"never closed", "Pick [Auto <3", "Pick [Auto <3", "", ""},
        {"only closed", "Pick Auto] 3>", "Pick Auto] 3>", "", ""},
        {"colon inside", "Scale 1:50 <1:100>: ", "Scale 1:50", "", "1:100"},
        {"not only ASCII", "Größe [Höhe/Länge] <Höhe>:", "Größe", "Höhe|Länge", "Höhe"},
    };
    for (const auto &[name, prompt, cleaned, keywords, defaultText] : rows) {
        SCOPED_TRACE(name);
        const PromptText parsed = parsePrompt(QString::fromUtf8(prompt));
        EXPECT_EQ(parsed.given.toStdString(), prompt);
        EXPECT_EQ(parsed.cleaned.toStdString(), cleaned);
        EXPECT_EQ(parsed.keywords.join(u'|').toStdString(), keywords);
        EXPECT_EQ(parsed.defaultText.toStdString(), defaultText);
    }
}

TEST(PromptText, WrittenLineBreaksGo)
{
    EXPECT_EQ(parsePrompt(u"\\nPick\\n a point:"_s).given.toStdString(), "Pick a point:");
    EXPECT_EQ(parsePrompt(u"\\\\nn"_s).given.toStdString(), "\\n") << "a removed break joins no new one";
    EXPECT_EQ(parsePrompt(u"[Au\\nto/Manual]"_s).keywords.join(u'|').toStdString(), "Auto|Manual");
}

TEST(PromptText, LongPromptsAreTakenApartAtOnce)
{
    const PromptText parsed = parsePrompt(QString(500000, u'[') + QString(500000, u'/') + QString(500000, u']'));
    EXPECT_EQ(parsed.keywords.size(), 1);
}

TEST(PromptText, NumericDefaults)
{
    for (const char *number : {"2.5", "+.5", "-12", "007"})
        EXPECT_TRUE(isNumericDefault(QString::fromUtf8(number))) << number;
    for (const char *other : {"5.", "", "+", ".", "1e3", " 1", "1,5", "--1", "٣", "1.2.3"})
        EXPECT_FALSE(isNumericDefault(QString::fromUtf8(other))) << '"' << other << '"';
}

} // namespace
