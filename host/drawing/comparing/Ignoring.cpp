#include "host/drawing/comparing/Ignoring.h"

#include <QtGlobal>

#include <algorithm>

namespace host::drawing {

namespace {

constexpr IgnorableKind kindRows[] = {
    {"times", Ignored::Times, true, QT_TRANSLATE_NOOP("Comparing", "dates and editing time: $TD...")},
    {"handles", Ignored::Handles, true, QT_TRANSLATE_NOOP("Comparing", "the next free handle: $HANDSEED")},
    {"identity", Ignored::Identity, true,
     QT_TRANSLATE_NOOP("Comparing", "names of the file and of who saved it: $VERSIONGUID, $LASTSAVEDBY, ...")},
    {"extents", Ignored::Extents, true,
     QT_TRANSLATE_NOOP("Comparing", "extents, which follow from the entities: $EXTMIN, ...")},
    {"reactors", Ignored::Reactors, true,
     QT_TRANSLATE_NOOP("Comparing", "who wants to hear of changes and who shows a block: {ACAD_REACTORS, {BLKREFS")},
    {"version", Ignored::Version, false,
     QT_TRANSLATE_NOOP("Comparing", "version and code page: $ACADVER, $DWGCODEPAGE")},
    {"view", Ignored::View, false,
     QT_TRANSLATE_NOOP("Comparing", "what windows showed last: the VPORT table, $VIEWCTR, ...")},
    {"header", Ignored::Header, false, QT_TRANSLATE_NOOP("Comparing", "all variables of the header")},
    {"classes", Ignored::Classes, false, QT_TRANSLATE_NOOP("Comparing", "the classes section")},
    {"objects", Ignored::Objects, false,
     QT_TRANSLATE_NOOP("Comparing", "all that is not drawn: dictionaries, layouts, ...")},
    {"xdata", Ignored::Xdata, false, QT_TRANSLATE_NOOP("Comparing", "extended data")},
    {"order", Ignored::Order, false, QT_TRANSLATE_NOOP("Comparing", "which entity is drawn over which")},
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
