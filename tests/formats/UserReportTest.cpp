#include "formats/UserReport.h"

#include "tests/formats/Folder.h"
#include "tests/support/QtTestPrinters.h"

#include <gtest/gtest.h>

using namespace ortakit;
using namespace Qt::StringLiterals;
using formats_test::Folder;

namespace {

TEST(UserReport, HasEveryHeadingAndWhatWasFilledIn)
{
    const QString line = u"@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@\n"_s;
    EXPECT_EQ(userReportText({}), line + u"\t\tUSER INFORMATION\n"_s + line +
                                      u"NAME:   \nE-MAIL: \nPHONE:  \n\nISSUE DESCRIPTION:\n\n\n"_s + line +
                                      u"\tSTEPS TO REPRODUCE THE ISSUE\n"_s + line + u'\n' + line +
                                      u"\tSYSTEM INFORMATION\n"_s + line);
    EXPECT_EQ(userReportText({.name = u"Ann @ Büro"_s,
                              .email = u"ann@example.com"_s,
                              .phone = u" 1 "_s,
                              .issue = u"It\nstops"_s,
                              .steps = u"1. \n2. "_s,
                              .system = u"\nOS=x\nRAM=y"_s}),
              line + u"\t\tUSER INFORMATION\n"_s + line +
                  u"NAME:   Ann @ Büro\nE-MAIL: ann@example.com\nPHONE:   1 \n\n"
                  "ISSUE DESCRIPTION:\nIt\nstops\n\n"_s +
                  line + u"\tSTEPS TO REPRODUCE THE ISSUE\n"_s + line + u"1. \n2. \n"_s + line +
                  u"\tSYSTEM INFORMATION\n"_s + line + u"\nOS=x\nRAM=y"_s);
}

TEST(UserReport, SystemInformationBeginsWithAnEmptyLine)
{
    const struct
    {
        const char *what;
        QByteArray bytes;
        QString information;
    } rows[] = {
        {"empty", "", {}},
        {"two lines", "OS=x\r\nRAM=y\r\n", u"\nOS=x\nRAM=y"_s},
        {"cut off", "OS=x\n\nRA", u"\nOS=x\n\nRA"_s},
        {"byte-order mark", "\xEF\xBB\xBFOS=\xC3\xA4\n", u"\nOS=ä"_s},
        {"not UTF-8", "OS=\xE4!\n", u"\nOS=\uFFFD!"_s},
    };
    const Folder folder;
    for (const auto &row : rows)
        EXPECT_EQ(readSystemInformation(folder.writeFile(u"a.txt"_s, row.bytes)), row.information) << row.what;
    EXPECT_EQ(readSystemInformation(folder.path(u"missing.txt"_s)), QString());
    EXPECT_EQ(readSystemInformation(folder.path({})), QString());
}

} // namespace
