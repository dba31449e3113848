#include "host/drawing/comparing/Ignoring.h"

#include <algorithm>

namespace host::drawing {

namespace {

constexpr IgnorableKind kindRows[] = {
    {"times", Ignored::Times, true},      {"handles", Ignored::Handles, true},   {"identity", Ignored::Identity, true},
    {"extents", Ignored::Extents, true},  {"reactors", Ignored::Reactors, true}, {"version", Ignored::Version, false},
    {"view", Ignored::View, false},       {"header", Ignored::Header, false},    {"classes", Ignored::Classes, false},
    {"objects", Ignored::Objects, false}, {"xdata", Ignored::Xdata, false},      {"order", Ignored::Order, false},
};

struct VariableKind
{
    const char *name; ///< ends in * for all that begin so
    Ignored kind;
};

constexpr VariableKind variableKinds[] = {
    {"$TD*", Ignored::Times},
    {"$HANDSEED", Ignored::Handles},
    {"$FINGERPRINTGUID", Ignored::Identity},
    {"$VERSIONGUID", Ignored::Identity},
    {"$LASTSAVEDBY", Ignored::Identity},
    {"$ACADMAINTVER", Ignored::Identity},
    {"$EXTMIN", Ignored::Extents},
    {"$EXTMAX", Ignored::Extents},
    {"$PEXTMIN", Ignored::Extents},
    {"$PEXTMAX", Ignored::Extents},
    {"$ACADVER", Ignored::Version},
    {"$DWGCODEPAGE", Ignored::Version},
    {"$REQUIREDVERSIONS", Ignored::Version},
    {"$VIEW*", Ignored::View},
};

bool isOfName(QByteArrayView variable, QByteArrayView row)
{
    return row.endsWith('*') ? variable.startsWith(row.chopped(1)) : variable == row;
}

} // namespace

std::span<const IgnorableKind> ignorableKinds()
{
    return kindRows;
}

std::optional<Ignored> ignoredKind(QStringView name)
{
    for (const IgnorableKind &row : kindRows)
        if (name.compare(QLatin1StringView(row.name), Qt::CaseInsensitive) == 0)
            return row.kind;
    return {};
}

IgnoredKinds usuallyIgnored()
{
    IgnoredKinds kinds;
    for (const IgnorableKind &row : kindRows)
        kinds.setFlag(row.kind, row.isUsual);
    return kinds;
}

bool isIgnoredVariable(QByteArrayView name, IgnoredKinds kinds)
{
    return kinds.testFlag(Ignored::Header) || std::ranges::any_of(variableKinds, [&](const VariableKind &row) {
               return kinds.testFlag(row.kind) && isOfName(name, row.name);
           });
}

} // namespace host::drawing
