#include "lispfuncs/PromptFunctions.h"

#include "tests/support/FakeHost.h"
#include "tests/support/QtTestPrinters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace Qt::StringLiterals;
using ortakit::test::FakeAnswer;
using ortakit::test::FakeHost;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::pair<const char *, CKvLispEngine::Handler> functions[] = {
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

QVariant point(double x, double y, double z)
{
    return QVariant::fromValue(OdGePoint3d{x, y, z});
}

class PromptFunctions : public testing::Test
{
protected:
    PromptFunctions()
    {
        for (const auto &[name, handler] : functions)
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

struct RequestRow
{
    const char *name;
    QString function;
    QVariantList arguments;
    FakeAnswer answer;
    std::vector<std::string> requests;
    int code;
    const char *result;
};

const std::vector<RequestRow> requestRows = {
    {"integer", u"getIntOrtakit"_s, {u"Count:"_s}, value(7), {"initget 0", "getInteger \"Count: \""}, kRtNormal, "7"},
    {"integer by its default",
     u"getIntOrtakit"_s,
     {u"Count <12>:"_s},
     value({}),
     {"initget 0", "getInteger \"Count <12>: \" default 12"},
     kRtNormal,
     "12"},
    {"integer with a named default",
     u"getIntOrtakit"_s,
     {u"Specify size [Auto/Manual] <Auto>:"_s},
     keyword(u"Enter to auto"_s),
     {"initget 0 Auto Manual", "initget 0 Auto Manual Enter to auto",
      "getInteger \"Specify size [Auto/Manual/Enter to auto] <Auto>: \""},
     kRtNormal,
     "\"Enter to auto\""},
    {"real by its default",
     u"getRealOrtakit"_s,
     {u"Specify size <2.5>:"_s},
     value({}),
     {"initget 0", "getReal \"Specify size <2.5>: \" default 2.5"},
     kRtNormal,
     "2.5"},
    {"real with a default that only looks like a number",
     u"getRealOrtakit"_s,
     {u"Specify size <5.>:"_s},
     keyword(u"Enter to 5."_s),
     {"initget 0", "initget 0 Enter to 5.", "getReal \"Specify size [Enter to 5.] <5.>: \""},
     kRtNormal,
     "\"Enter to 5.\""},
    {"distance from a point",
     u"getDistOrtakit"_s,
     {point(1, 2, 3), u"Distance"_s},
     value(4.5),
     {"initget 0", "getDistance \"Distance: \" from (101 2 3)"},
     kRtNormal,
     "4.5"},
    {"angle, prompt before the point",
     u"getAngleOrtakit"_s,
     {u"Angle <.5>"_s, point(1, 2, 3)},
     value({}),
     {"initget 0", "getAngle \"Angle <.5>: \" from (101 2 3) default 0.5"},
     kRtNormal,
     "0.5"},
    {"point comes back in user coordinates",
     u"getPointOrtakit"_s,
     {u"\\nPick [Last] <Last>: "_s, point(1, 2, 3)},
     value(point(150, 5, 0)),
     {"initget 0 Last", "initget 0 Last Enter to last", "getPoint \"Pick [Last] <Last>: \" from (101 2 3)"},
     kRtNormal,
     "(50 5 0)"},
    {"a numeric default of a point is an option too",
     u"getPointOrtakit"_s,
     {u"Pick <0>:"_s},
     keyword(u"Enter to 0"_s),
     {"initget 0", "initget 0 Enter to 0", "getPoint \"Pick <0>:\""},
     kRtNormal,
     "\"Enter to 0\""},
    {"corner without a base",
     u"getCornerOrtakit"_s,
     {u"Corner:"_s},
     value(point(101, 1, 0)),
     {"initget 0", "getCorner \"Corner:\" from (0 0 0)"},
     kRtNormal,
     "(1 1 0)"},
    {"string without blanks",
     u"getStringOrtakit"_s,
     {u"Name <door>:"_s},
     value({}),
     {"initget 0", "getString \"Name <door>: \" default door"},
     kRtNormal,
     "\"door\""},
    {"string with blanks",
     u"getStringOrtakit"_s,
     {true, u"Name"_s},
     value(u"front door"_s),
     {"initget 0", "getString with spaces \"Name: \""},
     kRtNormal,
     "\"front door\""},
    {"the later of T and nil counts",
     u"getStringOrtakit"_s,
     {true, u"Name"_s, QVariant()},
     value(u"door"_s),
     {"initget 0", "getString \"Name: \""},
     kRtNormal,
     "\"door\""},
    {"keyword",
     u"getKwordOrtakit"_s,
     {u"Go on? [Yes/No] <No>"_s},
     value(u"Yes"_s),
     {"initget 0 Yes No", "getKeyword \"Go on? [Yes/No] <No>: \" default No"},
     kRtNormal,
     "\"Yes\""},
    {"keyword without a prompt",
     u"getKwordOrtakit"_s,
     {},
     value(u"x"_s),
     {"initget 0", "getKeyword \"Specify option: \""},
     kRtNormal,
     "\"x\""},
    {"keyword with nothing but options",
     u"getKwordOrtakit"_s,
     {u"[Yes/No]"_s},
     value(u"No"_s),
     {"initget 0 Yes No", "getKeyword \"Specify option [Yes/No]: \""},
     kRtNormal,
     "\"No\""},
    {"no prompt at all", u"getRealOrtakit"_s, {}, value(1.5), {"initget 0", "getReal \": \""}, kRtNormal, "1.5"},
    {"a number is no argument",
     u"getRealOrtakit"_s,
     {3},
     value(1.5),
     {"initget 0", "getReal \": \""},
     kRtNormal,
     "1.5"},
};

TEST_F(PromptFunctions, AskAndAnswer)
{
    for (const RequestRow &row : requestRows) {
        SCOPED_TRACE(row.name);
        const auto before = std::ptrdiff_t(requests().size());
        EXPECT_EQ(ask(row.function, row.arguments, row.answer), row.code);
        const std::vector<std::string> all = requests();
        EXPECT_EQ(std::vector<std::string>(all.begin() + before, all.end()), row.requests);
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
    EXPECT_THAT(requests(), ElementsAre("initget 1", "getInteger \": \"", "initget 1", "getCorner \"\" from (0 0 0)",
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

struct BitsRow
{
    const char *name;
    QVariantList arguments;
    int bits;
    int released;
};

const std::vector<BitsRow> bitsRows = {
    {"nothing", {}, 0, -1},
    {"32-bit", {70000, u"Yes No"_s}, 70000, 1},
    {"16-bit", {QVariant::fromValue(short(5)), u"Yes No"_s}, 5, 1},
    {"bits alone", {3}, 3, -1},
    {"text alone", {u"Yes No"_s}, 0, 1},
    {"a real is no bits", {1.0, u"Yes No"_s}, 0, 2},
};

TEST_F(PromptFunctions, InitgetTakesBitsAndText)
{
    for (const BitsRow &row : bitsRows) {
        SCOPED_TRACE(row.name);
        call(u"initgetOrtakit"_s, {1});
        EXPECT_EQ(call(u"initgetOrtakit"_s, row.arguments), kRtNormal);
        EXPECT_EQ(result(), "");
        EXPECT_EQ(m_host.document().lisp().releasedArguments(), row.released);
        call(u"getRealOrtakit"_s);
        EXPECT_EQ(requests().at(requests().size() - 2), "initget " + std::to_string(row.bits));
    }
}

TEST_F(PromptFunctions, EachClearsLispCanceled)
{
    for (const auto &[name, handler] : functions) {
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
    for (const auto &[name, handler] : functions)
        EXPECT_EQ(handler(), kRtError) << name;
}

} // namespace
