#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace host::dwg::test {

struct TextTag
{
    int code;
    std::string value;
};

/// A record of a drawing in text form; header variables are records as well.
using TextRecord = std::vector<TextTag>;

/// The records of a drawing by handle; classes by their names ("CLASS LAYOUT"), header variables by theirs
/// ("$LTSCALE").
using TextRecords = std::map<std::string, TextRecord>;

TextRecords readRecords(std::string_view text);

/// How two drawings are alike, record by record.
struct PairOutcome
{
    int equal = 0;
    std::vector<std::string> different; ///< "LINE 2A: group 10 is 1.0, not 2.0"
    std::vector<std::string> missing;   ///< "LINE 2A"
    std::vector<std::string> extra;

    int all() const { return equal + static_cast<int>(different.size() + missing.size()); }
};

/// Compares a drawing that was read with the one that another program made of the same file. Numbers are the same when
/// they are to the last digit that the other program writes; the order of reactors and extension dictionary in front of
/// a record does not count. Records that are made anew whenever a file is saved have other handles in both: they are
/// brought together by their names in dictionaries.
PairOutcome comparePair(const TextRecords &read, TextRecords expected);

} // namespace host::dwg::test
