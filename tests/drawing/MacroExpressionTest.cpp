#include "host/drawing/file/NewDrawing.h"
#include "host/drawing/text/DateText.h"
#include "host/drawing/text/DrawingVariables.h"

#include <gtest/gtest.h>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

std::optional<QString> sampleVariable(const QString &name)
{
    static const QHash<QString, QString> variables = {
        {QStringLiteral("CLAYER"), QStringLiteral("WALLS, \"outer\"")},
        {QStringLiteral("DATE"), QStringLiteral("2448860.54044954")},
        {QStringLiteral("LUNITS"), QStringLiteral("1")},
        {QStringLiteral("LUPREC"), QStringLiteral("3")},
        {QStringLiteral("USERS1"), QStringLiteral("$(eval,$(getvar,users1))$(eval,$(getvar,users1))")},
        {QStringLiteral("USERS2"), QStringLiteral("$(strlen,$(getvar,clayer))")},
        {QStringLiteral("USERS3"), QString(3000, u'x')},
    };
    const auto found = variables.constFind(name.toUpper());
    return found == variables.constEnd() ? std::nullopt : std::optional(*found);
}

QString macroValue(const QString &text)
{
    return evaluateMacro(text, {.variable = sampleVariable});
}

TEST(MacroExpression, values)
{
    const std::pair<const char *, const char *> rows[] = {
        {"no call: a,b) (c \"d\" $ 5", "no call: a,b) (c \"d\" $ 5"},
        {"", ""},
        {"Layer $(getvar,clayer)!", "Layer WALLS, \"outer\"!"},
        {"$(getvar, CLayer )", "WALLS, \"outer\""},
        // Numbers.
        {"$(+,1,2,3.5)", "6.5"},
        {"$(-,10,1,2)", "7"},
        {"$(-,5)", "5"},
        {"$(*,2,-3)", "-6"},
        {"$(/,1,3)", "0.333333333333"},
        {"$(*,0,-1)", "0"},
        {"$(+, 1e3 , 1 )", "1001"},
        {"$(fix,-3.99)", "-3"},
        {"$(fix,1e20)", "100000000000000000000"},
        {"$(=,1,1.0)$(=,1,2)$(!=,1,2)$(<,1,2)$(>,1,2)$(<=,2,2)$(>=,1,2)", "1011010"},
        {"$(and,6,3) $(or,6,3) $(xor,6,3) $(and,7,6,4) $(or,5)", "2 7 5 4 5"},
        // Texts.
        {"$(eq,abc,abc)$(eq,abc,ABC)$(eq,,\"\")$(eq,a,a )", "1010"},
        {"$(strlen,\"a,b)\"\"c\")", "6"},
        {"$(strlen,$(getvar,clayer))", "14"},
        {"$(upper,caf\xC3\xA9)", "CAF\xC3\x89"},
        {"$(substr,abcdef,3)|$(substr,abcdef,2,3)|$(substr,abc,9)|$(substr,abc,1,0)", "cdef|bcd||"},
        {"$(index,0,\"a,b,c\")$(index,2,\"a,b,c\")$(index,7,\"a,b,c\").", "ac."},
        {"$(nth,0,a,b,c)$(nth,2,a,b,c)", "ac"},
        {"$(linelen)", "240"},
        // Choices evaluate what they choose.
        {"$(if,1,yes,no)$(if,0,yes,no)$(if,0,yes).", "yesno."},
        {"$(if,$(eq,$(getvar,clayer),0),zero,$(upper,other))", "OTHER"},
        {"$(if,1,a,$(eval,$(getvar,users1)))", "a"},
        {"$(nth,1,$(eval,$(getvar,users1)),b)", "b"},
        {"$(if,0,\"$(\",b)", "b"},
        // Quotes keep what is in them from being a call; eval makes it one again.
        {"$(upper,\"$(getvar,x)\")", "$(GETVAR,X)"},
        {"$(eval,\"$(+,1,2)\")$(eval,$(getvar,users2))", "314"},
        {"$(eval,\"a,b)\")", "a,b)"},
        {"$(+,$(eval,\"$(+,1,\"\"2\"\")\"),4)", "7"},
        {"$($(if,1,upper),b)", "B"},
        // Dates: the sample is 5 September 1992, 12:58:14.84 after midnight.
        {"$(edtime,2448871.54044954,\"DDDD\",D)", "$(edtime,?\?)"},
        {"$(edtime,2448871.54044954,\"DDDD, D DD DDD M MO MON MONTH YY YYYY\")",
         "Saturday, 5 05 Sat 9 09 Sep September 92 1992"},
        {"$(edtime,2448871.54044954,H:MM:SS.MSEC)", "12:58:14.840"},
        {"$(edtime,2448871.04044954,HH:MM AM/PM)$(edtime,2448871.74,H a/p)", "12:58 AM5 p"},
        {"$(edtime,2448871.0,H:MMam/pm) $(edtime,2448871.0,H:MM)", "12:00am 0:00"},
        {"$(edtime,2448871.99999999999,YYYY-MO-DD HH)", "1992-09-06 00"},
        {"$(edtime,0,YYYY-MO-DD)", "1992-08-25"},
        {"$(edtime,-5,YYYY)$(edtime,1e9,YYYY)$(edtime,x,YYYY)", "$(edtime,?\?)$(edtime,?\?)$(edtime,?\?)"},
        // Lengths without anybody who writes them are decimal.
        {"$(rtos,3.14159,2,2) $(rtos,2) $(rtos,2,9,9)", "3.14 2.000 $(rtos,?\?)"},
        {"$(angtos,3.14159265358979,0,1) $(angtos,0,5,1)", "180.0 $(angtos,?\?)"},
        // Nothing of the machine's environment is known.
        {"$(getenv,PATH) $(getenv, HOME )", "PATH HOME"},
        // Faults, and what stands around them.
        {"a$(oops,1)b$(Oops)c", "a$(oops)??b$(Oops)??c"},
        {"a$()b", "a$()??b"},
        {"$(+)$(+,)$(+,1,x)$(/,1,0)$(+,inf)$(*,1e300,1e300)", "$(+,?\?)$(+,?\?)$(+,?\?)$(/,?\?)$(+,?\?)$(*,?\?)"},
        {"$(=,1)$(getvar,none)$(if,x,1,2)$(if,1)$(if,1,2,3,4)", "$(=,?\?)$(getvar,?\?)$(if,?\?)$(if,?\?)$(if,?\?)"},
        {"$(nth,-1,a)$(nth,1,a)$(nth,x,a)$(nth)", "$(nth,?\?)$(nth,?\?)$(nth,?\?)$(nth,?\?)"},
        {"$(substr,abc,0)$(substr,abc,1,-1)$(index,-1,a)$(and,1e12,1)",
         "$(substr,?\?)$(substr,?\?)$(index,?\?)$(and,?\?)"},
        {"$(eval)$(linelen,1)$(upper,a,b)", "$(eval,?\?)$(linelen,?\?)$(upper,?\?)"},
        // Unclosed.
        {"a$(", "a$?"},
        {"a$(+,1,2", "a$?"},
        {"a$(+,1,\"2)", "a$?"},
        {"a$(eval,\"b$(\")c", "ab$?"},
    };
    for (const auto &[text, value] : rows)
        EXPECT_EQ(macroValue(QString::fromUtf8(text)).toStdString(), value) << text;
}

TEST(MacroExpression, LengthsAndAnglesAreWrittenByTheSurroundings)
{
    MacroSurroundings surroundings{.variable = sampleVariable};
    surroundings.length = [](double value, int mode, int precision) {
        return QStringLiteral("%1 in %2 to %3").arg(value).arg(mode).arg(precision);
    };
    surroundings.angle = surroundings.length;
    surroundings.environment = [](const QString &name) { return std::optional(name.toLower()); };
    EXPECT_EQ(evaluateMacro(u"$(rtos,2.5); $(rtos,1,4); $(angtos,1); $(angtos,1,2,3); $(getenv,A)", surroundings),
              u"2.5 in 1 to 3; 1 in 4 to 3; 1 in 0 to 0; 1 in 2 to 3; a");
}

TEST(MacroExpression, HostileTextsEndSoonAndSmall)
{
    const QString deep = QStringLiteral("$(upper,").repeated(5000);
    const QString pair = QStringLiteral("$(upper,$(getvar,users3))").repeated(2);
    const std::tuple<const char *, QString, QString, QString> rows[] = {
        {"deep nesting", u'a' + deep, u"a"_s, u"$(++)"_s},
        {"deep nesting that closes", deep + QString(5000, u')'), {}, u"$(++)"_s},
        {"as deep as allowed", QStringLiteral("$(upper,").repeated(100) + u'b' + QString(100, u')'), u"B"_s, u"B"_s},
        {"evaluates itself", u"$(eval,$(getvar,users1))"_s, {}, u"$(++)"_s},
        {"a large value", pair, u"XXXX"_s, u"X$(++)"_s},
        {"a large argument", u"$(strlen,"_s + pair + u')', {}, u"$(++)"_s},
        {"a large text", QString(50'000'000, u'y'), u"yyy"_s, u"y$(++)"_s},
        {"a large gap", u"$(upper,"_s + QString(5'000'000, u' ') + u"b)"_s, {}, u"$(++)"_s},
        {"many faults", QStringLiteral("$(x)").repeated(100'000), u"$(x)??$(x)??"_s, u"$(++)"_s},
    };
    for (const auto &[name, text, begin, end] : rows) {
        const QString value = macroValue(text);
        EXPECT_LE(value.size(), largestMacroText) << name;
        EXPECT_TRUE(value.startsWith(begin)) << name << ": " << value.left(40).toStdString();
        EXPECT_TRUE(value.endsWith(end)) << name << ": " << value.right(40).toStdString();
    }
}

TEST(MacroExpression, ADrawingAloneKnowsItsHeaderItsNameAndTheTime)
{
    const std::unique_ptr<Drawing> drawing = newDrawing();
    const auto value = [&](const char *text) {
        return evaluateMacro(QString::fromUtf8(text), surroundingsOf(*drawing));
    };
    EXPECT_EQ(value("$(getvar,dwgname)|$(getvar,dwgtitled)|$(getvar,cecolor)"), u"|0|BYLAYER");
    drawing->setPath(QStringLiteral("/plans/north side.dxf"));
    EXPECT_EQ(value("$(getvar,DwgName) $(getvar,dwgprefix) $(getvar,clayer) $(getvar,ltscale) $(getvar,insbase)"),
              u"north side.dxf /plans/ 0 1 0,0,0");
    EXPECT_EQ(value("$(getvar,loginname)$(getvar,nothing)"), u"$(getvar,?\?)$(getvar,?\?)");
    EXPECT_EQ(value("$(edtime,0,YYYY-MO-DD)"), QDate::currentDate().toString(Qt::ISODate));
    const QDateTime noon(QDate(2024, 2, 29), QTime(12, 30, 15));
    EXPECT_EQ(dateText(julianDate(noon), u"DD.MO.YYYY HH:MM:SS").value_or(QString()), u"29.02.2024 12:30:15");
    EXPECT_NEAR(calendarDate(noon), 20240229.123015, 1e-8);
}

} // namespace
} // namespace host::drawing
