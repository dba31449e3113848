#include "lispfuncs/PromptFunctions.h"

#include "tests/lispfuncs/CallText.h"
#include "tests/support/ModuleTest.h"

namespace {

using testing::ElementsAre;

constexpr std::pair<const char *, CKvLispEngine::Handler> promptFunctions[] = {
    {"getIntOrtakit", ortakit::getIntOrtakit},       {"getStringOrtakit", ortakit::getStringOrtakit},
    {"getPointOrtakit", ortakit::getPointOrtakit},   {"getKwordOrtakit", ortakit::getKwordOrtakit},
    {"getRealOrtakit", ortakit::getRealOrtakit},     {"getDistOrtakit", ortakit::getDistOrtakit},
    {"getCornerOrtakit", ortakit::getCornerOrtakit}, {"getAngleOrtakit", ortakit::getAngleOrtakit},
    {"initgetOrtakit", ortakit::initgetOrtakit},
};

FakeAnswer value(const QVariant &given)
{
    return {.code = kRtNormal, .value = given, .keyword = {}};
}

FakeAnswer code(int given)
{
    return {.code = given, .value = {}, .keyword = {}};
}

FakeAnswer keyword(const QString &typed)
{
    return {.code = kRtKeyword, .value = {}, .keyword = typed};
}

class PromptFunctions : public testing::Test
{
protected:
    PromptFunctions()
    {
        for (const auto &[name, handler] : promptFunctions)
            m_host.document().lisp().defineFunction(QString::fromLatin1(name), handler);
        m_host.document().setUserOrigin({100, 0, 0});
        call(u"initgetOrtakit"_s);
    }

    int call(const QString &name, const QVariantList &arguments = {})
    {
        return m_host.document().lisp().call(name, arguments);
    }

    /// Calls `name` with the user answering `answer`.
    int ask(const QString &name, const QVariantList &arguments, const FakeAnswer &answer)
    {
        m_host.document().input().answer(answer);
        return call(name, arguments);
    }

    std::string result() { return m_host.document().lisp().result().toStdString(); }

    std::vector<std::string> requests()
    {
        std::vector<std::string> texts;
        for (const QString &request : m_host.document().input().requests())
            texts.push_back(request.toStdString());
        return texts;
    }

    FakeHost m_host;
};

// The answer is a value, "key" and a keyword, or nothing where the user takes the default.
TEST_F(PromptFunctions, AskAndAnswer)
{
    const struct
    {
        const char *name;
        QString function;
        QString arguments;
        QString answer;
        QString requests; ///< with ", " between
        const char *result;
    } rows[] = {
        {"integer", u"getInt"_s, u"Count:"_s, u"7"_s, u"initget 0, getInteger \"Count: \""_s, "7"},
        {"integer by its default", u"getInt"_s, u"Count <12>:"_s, u""_s,
         u"initget 0, getInteger \"Count <12>: \" default 12"_s, "12"},
        {"integer with a named default", u"getInt"_s, u"Specify size [Auto/Manual] <Auto>:"_s, u"key Enter to auto"_s,
         u"initget 0 Auto Manual, initget 0 Auto Manual Enter to auto, "
         "getInteger \"Specify size [Auto/Manual/Enter to auto] <Auto>: \""_s,
         "\"Enter to auto\""},
        {"real by its default", u"getReal"_s, u"Specify size <2.5>:"_s, u""_s,
         u"initget 0, getReal \"Specify size <2.5>: \" default 2.5"_s, "2.5"},
        {"real with a default that only looks like a number", u"getReal"_s, u"Size <5.>:"_s, u"key Enter to 5."_s,
         u"initget 0, initget 0 Enter to 5., getReal \"Size [Enter to 5.] <5.>: \""_s, "\"Enter to 5.\""},
        {"distance from a point", u"getDist"_s, u"(1 2 3) | Distance"_s, u"4.5"_s,
         u"initget 0, getDistance \"Distance: \" from (101 2 3)"_s, "4.5"},
        {"distance by its default", u"getDist"_s, u"Size <2.50>:"_s, u""_s,
         u"initget 0, getDistance \"Size <2.5 m>: \" default 2.5"_s, "2.5"},
        {"integer whose default has a fraction", u"getInt"_s, u"Count <+2.5>:"_s, u""_s,
         u"initget 0, getInteger \"Count <2>: \" default 2"_s, "2"},
        {"angle, prompt before the point", u"getAngle"_s, u"Angle <.5> | (1 2 3)"_s, u""_s,
         u"initget 0, getAngle \"Angle <28.65 deg>: \" from (101 2 3) default 0.5"_s, "0.5"},
        {"point comes back in user coordinates", u"getPoint"_s, u"\\nPick [Last] <Last>:  | (1 2 3)"_s, u"(150 5 0)"_s,
         u"initget 0 Last, initget 0 Last Enter to last, getPoint \"Pick [Last] <Last>: \" from (101 2 3)"_s,
         "(50 5 0)"},
        {"a numeric default of a point is an option too", u"getPoint"_s, u"Pick <0>:"_s, u"key Enter to 0"_s,
         u"initget 0, initget 0 Enter to 0, getPoint \"Pick <0>:\""_s, "\"Enter to 0\""},
        {"corner without a base", u"getCorner"_s, u"Corner:"_s, u"(101 1 0)"_s,
         u"initget 0, getCorner \"Corner:\" from (100 0 0)"_s, "(1 1 0)"},
        {"string without blanks", u"getString"_s, u"Name <door>:"_s, u""_s,
         u"initget 0, getString \"Name <door>: \" default door"_s, "\"door\""},
        {"string with blanks", u"getString"_s, u"T | Name"_s, u"front door"_s,
         u"initget 0, getString with spaces \"Name: \""_s, "\"front door\""},
        {"the later of T and nil counts", u"getString"_s, u"T | Name | nil"_s, u"door"_s,
         u"initget 0, getString \"Name: \""_s, "\"door\""},
        {"keyword", u"getKword"_s, u"Go on? [Yes/No] <No>"_s, u"Yes"_s,
         u"initget 0 Yes No, getKeyword \"Go on? [Yes/No] <No>: \" default No"_s, "\"Yes\""},
        {"keyword without a prompt", u"getKword"_s, u""_s, u"x"_s, u"initget 0, getKeyword \"Specify option: \""_s,
         "\"x\""},
        {"keyword with nothing but options", u"getKword"_s, u"[Yes/No]"_s, u"No"_s,
         u"initget 0 Yes No, getKeyword \"Specify option [Yes/No]: \""_s, "\"No\""},
        {"a number is no prompt", u"getReal"_s, u"3"_s, u"1.5"_s, u"initget 0, getReal \": \""_s, "1.5"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        const QStringList before = m_host.document().input().requests();
        const QVariant given = row.answer.isEmpty() ? QVariant() : valueOf(row.answer);
        const FakeAnswer answer = row.answer.startsWith(u"key ") ? keyword(row.answer.mid(4)) : value(given);
        EXPECT_EQ(ask(row.function + u"Ortakit"_s, argumentsOf(row.arguments), answer), kRtNormal);
        EXPECT_EQ(m_host.document().input().requests().mid(before.size()).join(u", "_s), row.requests);
        EXPECT_EQ(result(), row.result);
    }
}

TEST_F(PromptFunctions, OutcomesThatAreNoValue)
{
    const QString askers[] = {u"getIntOrtakit"_s,  u"getStringOrtakit"_s, u"getPointOrtakit"_s, u"getKwordOrtakit"_s,
                              u"getRealOrtakit"_s, u"getDistOrtakit"_s,   u"getAngleOrtakit"_s, u"getCornerOrtakit"_s};
    for (const QString &name : askers) {
        SCOPED_TRACE(name.toStdString());
        const bool isPoint = name == u"getPointOrtakit";
        EXPECT_EQ(ask(name, {u"?"_s}, code(kRtCancel)), isPoint ? kRtNormal : kRtCancel);
        EXPECT_EQ(result(), isPoint ? "nil" : "");
        EXPECT_EQ(ask(name, {u"?"_s}, code(kRtNone)), kRtNone);
        EXPECT_EQ(result(), "");
        EXPECT_EQ(ask(name, {u"?"_s}, keyword(u"Auto"_s)), kRtNormal);
        EXPECT_EQ(result(), "\"Auto\"");
        EXPECT_EQ(ask(name, {u"?"_s}, keyword({})), kRtNormal);
        EXPECT_EQ(result(), "nil");
    }
}

TEST_F(PromptFunctions, BitsStayUntilAPointIsAskedFor)
{
    call(u"initgetOrtakit"_s, {1});
    call(u"getIntOrtakit"_s);
    call(u"getCornerOrtakit"_s);
    call(u"getPointOrtakit"_s);
    call(u"getRealOrtakit"_s);
    EXPECT_THAT(requests(), ElementsAre("initget 1", "getInteger \": \"", "initget 1", "getCorner \"\" from (100 0 0)",
                                        "initget 0", "getPoint \"\"", "initget 0", "getReal \": \""));
}

TEST_F(PromptFunctions, BitsAreSharedByDocuments)
{
    call(u"initgetOrtakit"_s, {6});
    ortakit::test::FakeDocument *other = m_host.documents().open();
    other->lisp().defineFunction(u"getRealOrtakit"_s, ortakit::getRealOrtakit);
    other->lisp().call(u"getRealOrtakit"_s);
    EXPECT_EQ(other->input().requests().value(0).toStdString(), "initget 6");
}

TEST_F(PromptFunctions, InitgetTakesBitsAndText)
{
    const std::tuple<QString, int, int> rows[] = {
        {{}, 0, -1},         {u"70000 | Yes No"_s, 70000, 1}, {u"5 | Yes No"_s, 5, 1}, {u"3"_s, 3, -1},
        {u"Yes No"_s, 0, 1}, {u"1.5 | Yes No"_s, 0, 2}, // a real is no bits
    };
    for (const auto &[arguments, bits, released] : rows) {
        SCOPED_TRACE(arguments.toStdString());
        call(u"initgetOrtakit"_s, {1});
        EXPECT_EQ(call(u"initgetOrtakit"_s, argumentsOf(arguments)), kRtNormal);
        EXPECT_EQ(result(), "");
        EXPECT_EQ(m_host.document().lisp().releasedArguments(), released);
        call(u"getRealOrtakit"_s);
        EXPECT_EQ(requests().at(requests().size() - 2), "initget " + std::to_string(bits));
    }
}

TEST_F(PromptFunctions, EachClearsLispCanceled)
{
    for (const auto &[name, handler] : promptFunctions) {
        m_host.document().lisp().setSymbol(u"LispCanceled"_s, *OdResBuf::newInteger(OdResBuf::kRtShort, 1));
        call(QString::fromLatin1(name));
        const bool prompts = handler != ortakit::initgetOrtakit;
        EXPECT_EQ(m_host.document().lisp().symbols().value(u"lispcanceled"_s).toStdString(), prompts ? "0" : "1")
            << name;
    }
}

TEST(PromptFunctionsWithoutDocument, AreErrors)
{
    FakeHost host;
    host.documents().close(&host.document());
    for (const auto &[name, handler] : promptFunctions)
        EXPECT_EQ(handler(), kRtError) << name;
}

} // namespace
