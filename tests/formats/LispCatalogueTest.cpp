#include "formats/LispCatalogue.h"

#include "tests/formats/Folder.h"

namespace {

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
        // Not the word of a kind.
        {u"command!C:X!USUBR"_s, u"C:X|USUBR|"_s, ""},
        {u" COMMAND!C:Y"_s, u"C:Y||"_s, ""},
        {u"COMMANDS!C:Z"_s, u"C:Z||"_s, ""},
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
        readLispCatalogue(folder.writeFile(u"catalogue"_s, "VARIABLE" + QByteArray(2'000'000, '!') + "\n" +
                                                               QByteArray("FUNCTION!f!SUBR!x!y\n").repeated(30'000)));
    ASSERT_TRUE(reading);
    EXPECT_EQ(reading.catalogue.functions.size(), 30'000);
    EXPECT_EQ(lispSymbolColumns(reading.catalogue.variables.value(0)), QStringList(3, QString()));
    EXPECT_FALSE(readLispCatalogue(folder.path(u"missing"_s)));
}

} // namespace
