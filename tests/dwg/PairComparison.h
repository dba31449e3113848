#pragma once

#include "tests/dwg/TextTree.h"

namespace host::dwg::test {

/// One way in which two drawings are not alike.
struct Difference
{
    enum class Kind
    {
        Different, ///< the same record with other groups
        Missing,   ///< in the expected drawing alone
        Extra,     ///< in the one that was read alone
        Moved      ///< at another place among those around it
    };

    Kind kind;
    std::string record;      ///< "LINE 2A", "LAYER Walls", "$LTSCALE", "XRECORD /ACAD_LAYOUT/Model/*/NAME"
    std::vector<int> groups; ///< those that differ
    std::string told;        ///< "40 "1.0", expected 40 "2.0""
    std::string_view why;    ///< what explains it; empty where nothing does
};

/// How two drawings are alike, record by record.
struct PairOutcome
{
    int all = 0;   ///< records of the expected drawing
    int equal = 0; ///< of them, wherever they stand
    std::vector<Difference> differences;

    int count(Difference::Kind kind) const;
    int explained() const;
    int unexplained() const { return static_cast<int>(differences.size()) - explained(); }
};

/// Compares a drawing that was read with the one that another program made of the same file. Numbers are the same when
/// they are to the last digit that the other program writes; references, when they go to records that are the same
/// (RecordMatching.h).
PairOutcome comparePair(const TextTree &read, const TextTree &expected, std::string_view pair);

} // namespace host::dwg::test
