#include "formats/SettingsListing.h"

#include "tests/formats/Folder.h"
#include "tests/support/QtTestPrinters.h"

#include <gtest/gtest.h>

using namespace ortakit;
using namespace Qt::StringLiterals;
using formats_test::Folder;

namespace {

/// The lines of a class with "|" between.
QByteArray lines(const SettingsListing &listing, SettingClass settingClass)
{
    return listing.lines(settingClass).join('|');
}

TEST(SettingsListing, LinesGoByTheFirstWordThatFits)
{
    const struct
    {
        const char *what;
        QByteArray bytes;
        QByteArray readOnly;
        QByteArray dangerous;
        QByteArray standard;
    } rows[] = {
        {"empty", "", "", "", ""},
        {"one of each, in any order", "A 1\nB 2 ;dangerous\nC 3 ;read-only\nD 4", "C 3 ;read-only", "B 2 ;dangerous",
         "A 1|D 4"},
        {"both words", "A dangerous read-only\n", "A dangerous read-only", "", ""},
        {"other spellings", "A Read-only\nB DANGEROUS\nC readonly\n", "", "", "A Read-only|B DANGEROUS|C readonly"},
        {"within a word", "Aread-onlyB\nnon-dangerously\n", "Aread-onlyB", "non-dangerously", ""},
        {"line ends and blanks", " A  1 \r\n\r\n\tB\r\n", "", "", " A  1 ||\tB"},
        {"byte-order mark",
         "\xEF\xBB\xBF"
         "A 1\n",
         "", "", "A 1"},
        {"UTF-16",
         QByteArray("\xFF\xFE"
                    "A\0\xE4\0",
                    6),
         "", "", "A\xC3\xA4"},
        {"not UTF-8", "A \xE4\xF6\n", "", "", "A \xE4\xF6"},
        {"cut off", "A read-onl", "", "", "A read-onl"},
    };
    const Folder folder;
    for (const auto &row : rows) {
        const SettingsListing listing = readSettingsListing(folder.writeFile(u"a.txt"_s, row.bytes));
        EXPECT_EQ(lines(listing, SettingClass::ReadOnly), row.readOnly) << row.what;
        EXPECT_EQ(lines(listing, SettingClass::Dangerous), row.dangerous) << row.what;
        EXPECT_EQ(lines(listing, SettingClass::Standard), row.standard) << row.what;
    }
    EXPECT_EQ(lines(readSettingsListing(folder.path(u"missing.txt"_s)), SettingClass::Standard), "");
}

TEST(SettingsListing, AScriptIsTrimmedAsAWholeOnly)
{
    EXPECT_EQ(settingsScript({}), "");
    EXPECT_EQ(settingsScript({"", " A  1 ", "", " B ", " \t"}), "A  1 \n\n B");
}

} // namespace
