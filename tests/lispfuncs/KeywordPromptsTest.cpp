#include "lispfuncs/KeywordPrompts.h"

#include "tests/support/FakeHost.h"
#include "tests/support/QtTestPrinters.h"

#include <gtest/gtest.h>

namespace {

using namespace Qt::StringLiterals;
using ortakit::test::FakeHost;

const QVariant nil;

QVariant point(double x, double y, double z)
{
    return QVariant::fromValue(OdGePoint3d{x, y, z});
}

struct Row
{
    const char *name;
    CKvLispEngine::Handler function;
    QVariantList arguments;
    QStringList requests; ///< what the host is asked; nothing for wrong arguments
};

class KeywordPrompts : public testing::TestWithParam<Row>
{
protected:
    FakeHost m_host;
};

TEST_P(KeywordPrompts, AskTheHost)
{
    const Row &row = GetParam();
    ortakit::test::FakeDocument &document = m_host.document();
    document.setUserOrigin({100, 0, 0});
    document.lisp().defineFunction(u"ask"_s, row.function);
    const int code = document.lisp().call(u"ask"_s, row.arguments);
    EXPECT_EQ(document.input().requests(), row.requests);
    EXPECT_EQ(code, row.requests.isEmpty() ? kRtError : kRtNormal);
}

constexpr auto getPoint = ortakit::koraGetPoint;
constexpr auto getString = ortakit::koraGetString;
constexpr auto getKword = ortakit::koraGetKword;

// A call without bits and keywords asks for no initget: it leaves what the program has set.
INSTANTIATE_TEST_SUITE_P(
    Arguments, KeywordPrompts,
    testing::Values(
        Row{"point, nothing given", getPoint, {}, {u"getPoint \"\""_s}},
        Row{"point, bits alone",
            getPoint,
            {QVariant::fromValue(short(33)), u"\\nNext: "_s},
            {u"initget 33"_s, u"getPoint \"\nNext: \""_s}},
        Row{"point, base in front",
            getPoint,
            {point(1, 2, 0), 70000, u"Undo, eXit,"_s, u"Next"_s},
            {u"initget 70000 Undo eXit"_s, u"getPoint \"\nNext [Undo/eXit]: \" from (101 2 0)"_s}},
        Row{"point, no keywords but options",
            getPoint,
            {0, nil, u"Next [Undo] <0,0>:"_s},
            {u"initget 0 Undo"_s, u"getPoint \"\nNext [Undo] <0,0>: \""_s}},
        Row{"point, keywords shown otherwise",
            getPoint,
            {u"Undo"_s, u"Next [take Back]"_s},
            {u"initget 0 Undo"_s, u"getPoint \"\nNext [take Back]: \""_s}},
        Row{"point, keywords alone", getPoint, {u"Undo"_s, nil}, {u"initget 0 Undo"_s, u"getPoint \"\n [Undo]: \""_s}},
        Row{"point, T", getPoint, {true, u"Next"_s}, {}},
        Row{"string, T and prompt", getString, {true, u"Name"_s}, {u"getString with spaces \"\nName: \""_s}},
        Row{"string, nil for keywords and T",
            getString,
            {0, nil, true, u"Name"_s, nil},
            {u"getString with spaces \"\nName: \""_s}},
        Row{"string, strings alone",
            getString,
            {u"List"_s, u"Name"_s, u"door"_s},
            {u"initget 0 List"_s, u"getString \"\nName [List] <door>: \" default door"_s}},
        Row{"string, T at the end",
            getString,
            {u"List"_s, u"Name <door>"_s, true},
            {u"initget 0 List"_s, u"getString with spaces \"\nName [List] <door>: \" default door"_s}},
        Row{"string, a point", getString, {point(1, 2, 0), u"Name"_s}, {}},
        Row{"keyword, all",
            getKword,
            {1, u"A,B"_s, u"Which"_s, u"a/b"_s, u"B"_s},
            {u"initget 1 A B"_s, u"getKeyword \"\nWhich [a/b] <B>: \" default B"_s}},
        Row{"keyword, options count without keywords",
            getKword,
            {u""_s, u"Which"_s, u"A/B"_s},
            {u"initget 0 A B"_s, u"getKeyword \"\nWhich [A/B]: \""_s}},
        Row{"keyword, default without options",
            getKword,
            {u"A,B"_s, u"Which <A>"_s, nil, u"B"_s},
            {u"initget 0 A B"_s, u"getKeyword \"\nWhich [A/B] <B>: \" default B"_s}},
        Row{"keyword, no prompt",
            getKword,
            {u"A,B"_s},
            {u"initget 0 A B"_s, u"getKeyword \"\nSpecify option [A/B]: \""_s}},
        Row{"keyword, a fifth string", getKword, {u"A"_s, u"B"_s, u"C"_s, u"D"_s, u"E"_s}, {}}));

} // namespace
