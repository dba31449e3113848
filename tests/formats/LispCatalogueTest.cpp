#include "formats/LispCatalogue.h"

#include "tests/formats/Folder.h"
#include "tests/support/QtTestPrinters.h"

#include <gtest/gtest.h>

using namespace ortakit;
using namespace Qt::StringLiterals;
using formats_test::Folder;

namespace {

TEST(LispCatalogue, KeepsWholeLinesByTheirKind)
{
    const LispCatalogue catalogue = parseLispCatalogue("VARIABLE!B!INT!2\r\n"
                                                       "COMMAND!C:A!USUBR!Lisp!<C:A>\n"
                                                       "\n"
                                                       "command!C:X!USUBR!Lisp!<C:X>\n"
                                                       " COMMAND!C:Y\n"
                                                       "COMMANDS!C:Z\n"
                                                       "FUNCTION\n"
                                                       "FUNCTION!F!!\n"
                                                       "VARIABLE!A!STR!ä!!");
    EXPECT_EQ(catalogue.commands, QStringList{u"COMMAND!C:A!USUBR!Lisp!<C:A>"_s});
    EXPECT_EQ(catalogue.functions, (QStringList{u"FUNCTION"_s, u"FUNCTION!F!!"_s}));
    EXPECT_EQ(catalogue.variables, (QStringList{u"VARIABLE!B!INT!2"_s, u"VARIABLE!A!STR!ä!!"_s}));
    EXPECT_EQ(lispDump(catalogue), ";(setq C:A <C:A>)\n;(setq  )\n;(setq F )\n;(setq B 2)\n;(setq A \"ä\")\n")
        << "commands, then functions, then variables";
}

TEST(LispCatalogue, ALineGivesThreeColumnsAndOneAssignment)
{
    const std::tuple<QString, QString, QByteArray> rows[] = {
        {u"COMMAND!C:A!USUBR!Lisp!<C:A>"_s, u"C:A|USUBR|Lisp"_s, ";(setq C:A <C:A>)\n"},
        {u"FUNCTION!F!SUBR!!<F>!more"_s, u"F|SUBR|"_s, ";(setq F <F>)\n"},
        {u"FUNCTION!F!STR!x!y"_s, u"F|STR|x"_s, ";(setq F y)\n"},
        {u"VARIABLE!V!STR!two words"_s, u"V|STR|two words"_s, ";(setq V \"two words\")\n"},
        {u"VARIABLE!V!STR!"_s, u"V|STR|"_s, ";(setq V \"\")\n"},
        {u"VARIABLE!V!str!x"_s, u"V|str|x"_s, ";(setq V x)\n"},
        {u"VARIABLE!Größe!LIST!'(1 2)!3"_s, u"Größe|LIST|'(1 2)"_s, ";(setq Größe '(1 2))\n"},
        // A return would end the comment for some readers.
        {u"VARIABLE!V!STR!a\r(quit)"_s, u"V|STR|a\r(quit)"_s, ";(setq V \"a (quit)\")\n"},
        {u"COMMAND"_s, u"||"_s, ";(setq  )\n"},
        {u"FUNCTION!F!SUBR"_s, u"F|SUBR|"_s, ";(setq F )\n"},
        {u"VARIABLE!V"_s, u"V||"_s, ";(setq V )\n"},
    };
    for (const auto &[line, columns, dump] : rows) {
        EXPECT_EQ(lispSymbolColumns(line).join(u'|'), columns) << line.toStdString();
        EXPECT_EQ(lispDump(parseLispCatalogue(line.toUtf8())), dump) << line.toStdString();
    }
}

TEST(LispCatalogue, LongLinesAndMissingFilesDoNoHarm)
{
    const Folder folder;
    const LispCatalogueReading reading =
        readLispCatalogue(folder.writeFile(u"catalogue"_s, "VARIABLE" + QByteArray(20'000'000, '!') + "\n" +
                                                               QByteArray("FUNCTION!f!SUBR!x!y\n").repeated(100'000)));
    ASSERT_TRUE(reading);
    EXPECT_EQ(reading.catalogue.functions.size(), 100'000);
    EXPECT_EQ(lispSymbolColumns(reading.catalogue.variables.value(0)), QStringList(3, QString()));
    EXPECT_FALSE(readLispCatalogue(folder.path(u"missing"_s)));
}

} // namespace
