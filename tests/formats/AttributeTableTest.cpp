#include "formats/AttributeTable.h"

#include "formats/TextReading.h"
#include "tests/formats/Folder.h"

namespace {

TEST(AttributeTable, ReadsFieldsThatHaveAColumn)
{
    // table: "[field][field]" for the headers and each row
    const std::tuple<const char *, QByteArray, QString> rows[] = {
        {"empty", "", {}},
        {"only headers", "HANDLE\tNAME", u"[HANDLE][NAME]"_s},
        {"without an end", "A\tB\r\n1\t2\r\n3\t4", u"[A][B] [1][2] [3][4]"_s},
        {"cut off", "A\tB\tC\n1\t2\n3", u"[A][B][C] [1][2] [3]"_s},
        {"too many", "A\tB\n1\t2\t3\t4\n", u"[A][B] [1][2]"_s},
        {"empty fields", "A\t\tC\n\t2\t\n\n", u"[A][][C] [][2][] []"_s},
        {"a blank first line", "\n1\t2\n", u"[] [1]"_s},
        {"non-ASCII", "\xC3\x9C\nT\xC3\xBCr \xE2\x82\xAC\n", u"[Ü] [Tür €]"_s},
        {"a mark that is a character",
         "\xEF\xBB\xBF"
         "A\n1\xEF\xBB\xBF\n",
         u"[\uFEFFA] [1\uFEFF]"_s},
        {"quoted, as a spreadsheet does", "\"A\"\tB\r\n\"1\t2\"\t\"say \"\"so\"\"\"\n\"\"\t\"\"\"\"",
         u"[A][B] [1\t2][say \"so\"] [][\"]"_s},
        {"several lines in a field", "A\tB\n\"1\r\n2\"\t\"\n\"\n3\t4\n", u"[A][B] [1\r\n2][\n] [3][4]"_s},
        {"quotes within", "A\n3\"\n4\" x 5\"\n", u"[A] [3\"] [4\" x 5\"]"_s},
        {"quotes that close nothing", "A\tB\n\"1\t2\n\"3\"4\t\"\n5\t\"\"6\n",
         u"[A][B] [\"1][2] [\"3\"4][\"] [5][\"\"6]"_s},
        {"lines with a carriage return", "A\r1\r\r2\r", u"[A] [1] [] [2]"_s},
        {"separators of other formats", "A;B,C\n1;2,3^4=5\n", u"[A;B,C] [1;2,3^4=5]"_s},
    };
    for (const auto &[name, text, table] : rows) {
        AttributeTableReader reader(text);
        EXPECT_FALSE(reader.isTooLarge()) << name;
        const auto shown = [](const QStringList &fields) { return u'[' + fields.join(u"]["_s) + u']'; };
        QStringList found;
        while (reader.next())
            found.append(shown(reader.fields()));
        EXPECT_EQ(reader.rowCount(), found.size()) << name;
        if (!reader.headers().isEmpty())
            found.prepend(shown(reader.headers()));
        EXPECT_EQ(found.join(u' '), table) << name;
    }
}

TEST(AttributeTable, RefusesWhatNoMemoryHolds)
{
    const qsizetype mostColumns = AttributeTableReader::mostColumns;
    const qsizetype mostCells = AttributeTableReader::mostCells;
    const std::tuple<const char *, qsizetype, qsizetype, bool> rows[] = {
        {"as wide as may be", mostColumns, 1, false},
        {"wider", mostColumns + 1, 0, true},
        {"very wide", 5'000'000, 0, true},
        {"as many cells as may be", 1000, mostCells / 1000, false},
        {"more cells", 1000, mostCells / 1000 + 1, true},
    };
    for (const auto &[name, columns, lines, isTooLarge] : rows) {
        const QByteArray text = QByteArray(columns - 1, '\t') + QByteArray(lines + 1, '\n');
        EXPECT_EQ(AttributeTableReader(text).isTooLarge(), isTooLarge) << name;
    }
}

TEST(AttributeTable, GoesToLispAsOneLine)
{
    EXPECT_EQ(attributeText({u"A"_s, u"B"_s}, {{u"1"_s, u"2"_s}, {u"3"_s}, {}}), u"A\tB^1\t2^3^"_s);
    EXPECT_EQ(attributeText({u"A"_s, u""_s}, {}), u"A\t"_s);
    EXPECT_EQ(attributeText({u"A^B"_s}, {{u"a\tb\\P\r\n"_s}, {u"\"q\""_s}, {u"3\""_s}, {u"a\\P"_s}}),
              u"\"A\\136B\"^\"a\\tb\\\\P\\r\\n\"^\"\\\"q\\\"\"^3\"^a\\P"_s);
}

TEST(AttributeTable, BytesThatAreNoUtf8AreWindows1252)
{
    EXPECT_EQ(utf8OfLegacy("T\xFCr \x80\x81\x9F"), u"Tür €\u0081Ÿ"_s.toUtf8());
    EXPECT_EQ(utf8OfLegacy(u"Tür €"_s.toUtf8()), u"Tür €"_s.toUtf8());
}

} // namespace
