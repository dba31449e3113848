#include "formats/SettingsListing.h"

#include "tests/formats/Folder.h"
#include "tests/support/QtTestPrinters.h"

#include <gtest/gtest.h>

using namespace ortakit;
using namespace Qt::StringLiterals;
using formats_test::Folder;

namespace {

TEST(SettingsListing, LinesGoByTheFirstWordThatFits)
{
    const struct
    {
        const char *what;
        QByteArray bytes;
        QByteArray lines; ///< read-only ones / dangerous ones / others, with "|" between
    } rows[] = {
        {"empty", "", " /  / "},
        {"one of each, in any order", "A 1\nB 2 ;dangerous\nC 3 ;read-only\nD 4",
         "C 3 ;read-only / B 2 ;dangerous / A 1|D 4"},
        {"both words", "A dangerous read-only\n", "A dangerous read-only /  / "},
        {"other spellings", "A Read-only\nB DANGEROUS\nC readonly\n", " /  / A Read-only|B DANGEROUS|C readonly"},
        {"within a word", "Aread-onlyB\nnon-dangerously\n", "Aread-onlyB / non-dangerously / "},
        {"line ends and blanks", " A  1 \r\n\r\n\tB\r\n", " /  /  A  1 ||\tB"},
        {"not UTF-8", "A \xE4\xF6\n", " /  / A \xE4\xF6"},
    };
    const Folder folder;
    for (const auto &row : rows) {
        const SettingsListing listing = readSettingsListing(folder.writeFile(u"a.txt"_s, row.bytes));
        QList<QByteArray> classes;
        for (const SettingClass one : {SettingClass::ReadOnly, SettingClass::Dangerous, SettingClass::Standard})
            classes.append(listing.lines(one).join('|'));
        EXPECT_EQ(classes.join(" / "), row.lines) << row.what;
    }
    EXPECT_TRUE(readSettingsListing(folder.path(u"missing.txt"_s)).lines(SettingClass::Standard).isEmpty());
}

TEST(SettingsListing, AScriptIsTrimmedAsAWholeOnly)
{
    EXPECT_EQ(settingsScript({}), "");
    EXPECT_EQ(settingsScript({"", " A  1 ", "", " B ", " \t"}), "A  1 \n\n B");
}

} // namespace
