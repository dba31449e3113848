#include "host/drawing/records/TableCodes.h"

#include <span>

namespace host::drawing {

namespace {

/// Groups `first` to `last` are written since a version.
struct CodesSince
{
    int first;
    int last;
    Version since;
};

constexpr CodesSince dimensionStyleCodes[] = {
    {49, 50, Version::R2007},   {69, 69, Version::R2007},   {79, 79, Version::R2000},   {90, 90, Version::R2007},
    {148, 148, Version::R2000}, {179, 179, Version::R2000}, {270, 275, Version::R13},   {276, 279, Version::R2000},
    {280, 288, Version::R13},   {289, 289, Version::R2000}, {290, 290, Version::R2007}, {294, 294, Version::R2010},
    {340, 340, Version::R13},   {341, 344, Version::R2000}, {345, 347, Version::R2007}, {371, 372, Version::R2000},
};

/// What stands on a dash beside its length: the early version has dashes alone.
constexpr CodesSince linetypeCodes[] = {
    {9, 9, Version::R13},   {44, 46, Version::R13},   {50, 50, Version::R13},
    {74, 75, Version::R13}, {340, 340, Version::R13},
};

std::span<const CodesSince> codesOf(TableKind kind)
{
    if (kind == TableKind::DimStyle)
        return dimensionStyleCodes;
    if (kind == TableKind::Linetype)
        return linetypeCodes;
    return {};
}

} // namespace

bool hasCode(TableKind kind, int code, Version version)
{
    for (const CodesSince &range : codesOf(kind)) {
        if (code >= range.first && code <= range.last)
            return version >= range.since;
    }
    return true;
}

} // namespace host::drawing
