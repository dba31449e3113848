#include "host/lisp/Reader.h"

#include "tests/lisp/LispBench.h"

using namespace host::lisp;
using namespace host::lisp::test;

namespace {

/// All forms of a text, fed in pieces of `size` bytes, or the error.
std::string readInPieces(const std::string &text, std::size_t size)
{
    Bench bench;
    Reader reader(bench.interpreter, "piece");
    std::string forms;
    try {
        const auto takeForms = [&] {
            while (const std::optional<Value> form = reader.next())
                forms += toText(*form) + " ";
        };
        for (std::size_t at = 0; at < text.size(); at += size) {
            reader.feed(text.substr(at, size));
            takeForms();
        }
        reader.finish();
        takeForms();
    } catch (const Error &error) {
        return forms + "! " + error.summary();
    }
    return forms;
}

TEST(Reader, FormsAreTheSameInAnyPieces)
{
    const std::vector<Row> rows = {
        {"(a b)", "(A B) "},
        {"1 -2 +3 1. .5 -2.5E-3 1e3 2147483648 -", "1 -2 3 1.0 0.5 -0.0025 1000.0 2.14748e+09 - "},
        {"1+ 1- +- . ", "1+ 1- +- ! misplaced dot on input (piece:1)"},
        {"inf nan 0x10 1e 1.2.3 --1 e5 +-1", "INF NAN 0X10 1E 1.2.3 --1 E5 +-1 "},
        {"\"a\\\\b\\\"c\\n\\t\\r\\e\"", "\"a\\\\b\\\"c\\n\\t\\r\\e\" "},
        {"\"\\101\\060x\\7\\U+20ACz\\q\\U\"", "\"A0x\\007€zqU\" "},
        {"\"two\nlines\" 'x", "\"two\\nlines\" (QUOTE X) "},
        {"''(a 'b)", "(QUOTE (QUOTE (A (QUOTE B)))) "},
        {"(a . b) (a b . c) (a . (b))", "(A . B) (A B . C) (A B) "},
        {"a;comment\nb;|block ; | \n comment|;c;", "A B C "},
        {";||;x;|*;|;y", "X Y "},
        {"a\"b\"c(d)e'f", "A \"b\" C (D) E (QUOTE F) "},
        {"nil () (nil)", "nil nil (nil) "},
        {"größe \"€\"", "GRÖßE \"€\" "},
        {"\xFF\"\xFE\"", "\xFF \"\xFE\" "},
        {"x\ny\n)", "X Y ! extra right paren on input (piece:3)"},
        {"x\n(a\n(b\n", "X ! malformed list on input (piece:2)"},
        {"\n\"abc\n\n", "! malformed string on input (piece:2)"},
        {"( . a)", "! misplaced dot on input (piece:1)"},
        {"(a . )", "! misplaced dot on input (piece:1)"},
        {"(a . b c)", "! extra cdrs in dotted pair on input (piece:1)"},
        {"(a ')", "! nothing after quote on input (piece:1)"},
        {"(a .\n", "! malformed list on input (piece:1)"},
        {";| never ends", ""},
        {"", ""},
    };
    for (const Row &row : rows) {
        for (const std::size_t size : {1U, 2U, 3U, 7U, 1000U})
            EXPECT_EQ(readInPieces(row.source, size), row.expected) << row.source << " in pieces of " << size;
    }
}

TEST(Reader, AnUnfinishedFormIsAState)
{
    Bench bench;
    Reader reader(bench.interpreter, "prompt");
    reader.feed("(setq a ; not yet\n");
    EXPECT_FALSE(reader.next());
    EXPECT_TRUE(reader.isIncomplete());
    EXPECT_EQ(reader.depth(), 1U);
    reader.feed("\"half");
    EXPECT_FALSE(reader.next());
    EXPECT_TRUE(reader.isInString());
    reader.feed(" a string\")(b\n");
    EXPECT_EQ(toText(*reader.next()), "(SETQ A \"half a string\")");
    EXPECT_FALSE(reader.next());
    EXPECT_TRUE(reader.isIncomplete());
    reader.reset();
    EXPECT_FALSE(reader.isIncomplete());
    reader.feed("(c)\n");
    EXPECT_EQ(toText(*reader.next()), "(C)");
}

TEST(Reader, AfterAnErrorItStartsAnew)
{
    Bench bench;
    Reader reader(bench.interpreter, "prompt");
    reader.feed("(a . b c) rest\n");
    EXPECT_THROW(reader.next(), Error);
    EXPECT_FALSE(reader.isIncomplete());
    reader.feed("(d)\n");
    EXPECT_EQ(toText(*reader.next()), "(D)");
}

} // namespace
