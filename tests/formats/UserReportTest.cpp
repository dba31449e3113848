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
    const Folder folder;
    const auto read = [&](const QByteArray &bytes) {
        return readSystemInformation(folder.writeFile(u"a.txt"_s, bytes));
    };
    EXPECT_EQ(read(""), QString());
    EXPECT_EQ(read("OS=x\r\n\r\nRA"), u"\nOS=x\n\nRA"_s);
    EXPECT_EQ(readSystemInformation(folder.path(u"missing.txt"_s)), QString());
}

} // namespace
