#include "formats/AttributeTable.h"

#include "tests/support/QtTestPrinters.h"

#include <gtest/gtest.h>

using namespace ortakit;
using namespace Qt::StringLiterals;

namespace {

TEST(AttributeTable, ReadsFieldsThatHaveAColumn)
{
    const struct
    {
        const char *name;
        QByteArray text;
        QString table; ///< "[field][field]" for the headers and each row
    } rows[] = {
        {"empty", "", {}},
        {"only headers", "HANDLE\tNAME", u"[HANDLE][NAME]"_s},
        {"without an end", "A\tB\r\n1\t2\r\n3\t4", u"[A][B] [1][2] [3][4]"_s},
        {"cut off", "A\tB\tC\n1\t2\n3", u"[A][B][C] [1][2] [3]"_s},
        {"too many", "A\tB\n1\t2\t3\t4\n", u"[A][B] [1][2]"_s},
        {"empty fields", "A\t\tC\n\t2\t\n\n", u"[A][][C] [][2][] []"_s},
        {"a blank first line", "\n1\t2\n", u"[] [1]"_s},
        {"non-ASCII", "\xC3\x9C\nT\xC3\xBCr \xE2\x82\xAC\n", u"[Ü] [Tür €]"_s},
        {"another encoding", "A\nT\xFCr\n", u"[A] [T\uFFFDr]"_s},
        {"separators of other formats", "A;B,C\n1;2,3^4=5\n", u"[A;B,C] [1;2,3^4=5]"_s},
    };
    for (const auto &row : rows) {
        AttributeTableReader reader(row.text);
        EXPECT_FALSE(reader.isTooLarge()) << row.name;
        const auto shown = [](const QStringList &fields) { return u'[' + fields.join(u"]["_s) + u']'; };
        QStringList found;
        while (reader.next())
            found.append(shown(reader.fields()));
        EXPECT_EQ(reader.rowCount(), found.size()) << row.name;
        if (!reader.headers().isEmpty())
            found.prepend(shown(reader.headers()));
        EXPECT_EQ(found.join(u' '), row.table) << row.name;
    }
}

TEST(AttributeTable, RefusesWhatNoMemoryHolds)
{
    const qsizetype mostColumns = AttributeTableReader::mostColumns;
    const qsizetype mostCells = AttributeTableReader::mostCells;
    const struct
    {
        const char *name;
        qsizetype columns;
        qsizetype rows;
        bool isTooLarge;
    } rows[] = {
        {"as wide as may be", mostColumns, 1, false},
        {"wider", mostColumns + 1, 0, true},
        {"very wide", 5'000'000, 0, true},
        {"as many cells as may be", 1000, mostCells / 1000, false},
        {"more cells", 1000, mostCells / 1000 + 1, true},
    };
    for (const auto &row : rows) {
        const QByteArray text = QByteArray(row.columns - 1, '\t') + QByteArray(row.rows + 1, '\n');
        EXPECT_EQ(AttributeTableReader(text).isTooLarge(), row.isTooLarge) << row.name;
    }
}

TEST(AttributeTable, GoesToLispAsOneText)
{
    EXPECT_EQ(attributeText({u"A"_s, u"B"_s}, {{u"1"_s, u"2"_s}, {u"3"_s}, {}}), u"A\tB^1\t2^3^"_s);
    EXPECT_EQ(attributeText({u"A"_s, u""_s}, {}), u"A\t"_s);
}

} // namespace
