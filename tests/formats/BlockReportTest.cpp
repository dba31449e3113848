#include "formats/BlockReport.h"

#include "tests/support/QtTestPrinters.h"

#include <gtest/gtest.h>

using namespace ortakit;
using namespace Qt::StringLiterals;

namespace {

TEST(BlockReport, CountsBlocksThatHaveReferences)
{
    const struct
    {
        QString entry;
        QString block; ///< "name=number", empty when it is left out
    } rows[] = {
        {u"DOOR;12"_s, u"DOOR=12"_s},
        {u"DOOR;0"_s, {}},
        {u"DOOR;-3"_s, {}},
        {u"DOOR"_s, {}},
        {u"DOOR;"_s, {}},
        {u"DOOR;many"_s, {}},
        {u"DOOR;2.5"_s, {}},
        {u"DOOR;99999999999"_s, {}},
        {u"DOOR;7;9"_s, u"DOOR=7"_s},
        {u";4"_s, u"=4"_s},
        {u""_s, {}},
        {u"Tür 2;1"_s, u"Tür 2=1"_s},
    };
    for (const auto &row : rows) {
        QString found;
        for (const BlockCount &block : blockCounts({row.entry}))
            found += block.name + u'=' + QString::number(block.references);
        EXPECT_EQ(found, row.block) << row.entry.toStdString();
    }
}

TEST(BlockReport, StandsInColumns)
{
    const struct
    {
        const char *name;
        QList<BlockCount> blocks;
        QByteArray report;
    } rows[] = {
        {"none", {}, "Name Instances\r\n"},
        {"short", {{u"A"_s, 1}}, "Name Instances\r\nA       1\r\n"},
        {"two",
         {{u"A"_s, 1}, {u"LONGNAME"_s, 1234}},
         "Name        Instances\r\n"
         "A              1\r\n"
         "LONGNAME       1234\r\n"},
        {"non-ASCII is as wide as it looks",
         {{u"Tür"_s, 2}, {u"Tor"_s, 10}},
         "Name   Instances\r\n"
         "T\xC3\xBCr       2\r\n"
         "Tor       10\r\n"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(blockReport(row.blocks), row.report) << row.name;
}

} // namespace
