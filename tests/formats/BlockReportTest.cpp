#include "formats/BlockReport.h"

#include "tests/support/QtTestPrinters.h"

#include <gtest/gtest.h>

using namespace ortakit;
using namespace Qt::StringLiterals;

namespace {

TEST(BlockReport, CountsBlocksThatHaveReferences)
{
    // What becomes of an entry: "name=number", or nothing when it is left out.
    const std::pair<QString, QString> rows[] = {
        {u"DOOR;12"_s, u"DOOR=12"_s},
        {u"DOOR;0"_s, {}},
        {u"DOOR;-3"_s, {}},
        {u"DOOR"_s, {}},
        {u"DOOR;"_s, {}},
        {u"DOOR;many"_s, {}},
        {u"DOOR;99999999999"_s, {}},
        {u"DOOR;7;9"_s, u"DOOR=7"_s},
        {u";4"_s, u"=4"_s},
        {u""_s, {}},
        {u"Tür 2;1"_s, u"Tür 2=1"_s},
    };
    for (const auto &[entry, expected] : rows) {
        QString found;
        for (const BlockCount &block : blockCounts({entry}))
            found += block.name + u'=' + QString::number(block.references);
        EXPECT_EQ(found, expected) << entry.toStdString();
    }
}

TEST(BlockReport, StandsInColumns)
{
    EXPECT_EQ(blockReport({}), "Name Instances\r\n");
    EXPECT_EQ(blockReport({{u"A"_s, 1}, {u"LONGNAME"_s, 1234}}), "Name        Instances\r\n"
                                                                 "A              1\r\n"
                                                                 "LONGNAME       1234\r\n");
    EXPECT_EQ(blockReport({{u"Tür"_s, 2}, {u"Tor"_s, 10}}), "Name   Instances\r\n"
                                                            "T\xC3\xBCr       2\r\n"
                                                            "Tor       10\r\n")
        << "as wide as it looks";
}

} // namespace
