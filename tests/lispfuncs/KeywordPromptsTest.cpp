#include "lispfuncs/KeywordPrompts.h"

#include "tests/lispfuncs/CallText.h"
#include "tests/support/ModuleTest.h"

namespace {

// A call without bits and keywords asks for no initget: it leaves what the program has set.
TEST(KeywordPrompts, AskTheHost)
{
    constexpr auto getPoint = ortakit::koraGetPoint;
    constexpr auto getString = ortakit::koraGetString;
    constexpr auto getKword = ortakit::koraGetKword;
    // requests: what the host is asked, with "; " between; nothing for wrong arguments
    const std::tuple<const char *, CKvLispEngine::Handler, QString, QString> rows[] = {
        {"point, nothing given", getPoint, {}, u"getPoint \"\""_s},
        {"point, bits alone", getPoint, u"33 | \\nNext: "_s, u"initget 33; getPoint \"\nNext: \""_s},
        {"point, base in front", getPoint, u"(1 2 0) | 70000 | Undo, eXit, | Next"_s,
         u"initget 70000 Undo eXit; getPoint \"\nNext [Undo/eXit]: \" from (101 2 0)"_s},
        {"point, no keywords but options", getPoint, u"0 | nil | Next [Undo] <0,0>:"_s,
         u"initget 0 Undo; getPoint \"\nNext [Undo] <0,0>: \""_s},
        {"point, keywords shown otherwise", getPoint, u"Undo | Next [take Back]"_s,
         u"initget 0 Undo; getPoint \"\nNext [take Back]: \""_s},
        {"point, keywords alone", getPoint, u"Undo | nil"_s, u"initget 0 Undo; getPoint \"\n [Undo]: \""_s},
        {"point, T", getPoint, u"T | Next"_s, {}},
        {"string, T and prompt", getString, u"T | Name"_s, u"getString with spaces \"\nName: \""_s},
        {"string, nil for keywords and T", getString, u"0 | nil | T | Name | nil"_s,
         u"getString with spaces \"\nName: \""_s},
        {"string, strings alone", getString, u"List | Name | door"_s,
         u"initget 0 List; getString \"\nName [List] <door>: \" default door"_s},
        {"string, T at the end", getString, u"List | Name <door> | T"_s,
         u"initget 0 List; getString with spaces \"\nName [List] <door>: \" default door"_s},
        {"string, a point", getString, u"(1 2 0) | Name"_s, {}},
        {"keyword, all", getKword, u"1 | A,B | Which | a/b | B"_s,
         u"initget 1 A B; getKeyword \"\nWhich [a/b] <B>: \" default B"_s},
        {"keyword, options count without keywords", getKword, u"\"\" | Which | A/B"_s,
         u"initget 0 A B; getKeyword \"\nWhich [A/B]: \""_s},
        {"keyword, default without options", getKword, u"A,B | Which <A> | nil | B"_s,
         u"initget 0 A B; getKeyword \"\nWhich [A/B] <B>: \" default B"_s},
        {"keyword, no prompt", getKword, u"A,B"_s, u"initget 0 A B; getKeyword \"\nSpecify option [A/B]: \""_s},
        {"keyword, a fifth string", getKword, u"A | B | C | D | E"_s, {}},
    };
    for (const auto &[name, function, arguments, requests] : rows) {
        SCOPED_TRACE(name);
        ortakit::test::FakeHost host;
        ortakit::test::FakeDocument &document = host.document();
        document.setUserOrigin({100, 0, 0});
        document.lisp().defineFunction(u"ask"_s, function);
        const int code = document.lisp().call(u"ask"_s, argumentsOf(arguments));
        EXPECT_EQ(document.input().requests().join(u"; "_s), requests);
        EXPECT_EQ(code, requests.isEmpty() ? kRtError : kRtNormal);
    }
}

} // namespace
