#pragma once

#include <QByteArrayView>
#include <QFlags>
#include <QStringView>

#include <optional>
#include <span>

namespace host::drawing {

/// What of two drawings may differ without their being different.
enum class Ignored
{
    Times = 1,      ///< when and for how long somebody worked on it ($TDUPDATE, ...)
    Handles = 2,    ///< the next free handle
    Identity = 4,   ///< what programs tell files apart by, and who saved it last
    Extents = 8,    ///< what follows from the entities: extents of spaces and layouts
    Reactors = 16,  ///< who wants to hear of changes, and who shows a block: {ACAD_REACTORS and {BLKREFS
    Version = 32,   ///< of the format, with its code page
    View = 64,      ///< what windows showed last: the viewports of model space and their variables
    Header = 128,   ///< all variables of the header
    Objects = 256,  ///< all that is not drawn and no table entry: dictionaries, layouts, ...
    Xdata = 512,    ///< extended data
    Order = 1024,   ///< which entity is drawn over which
    Classes = 2048, ///< which kinds of objects programs have added
};
Q_DECLARE_FLAGS(IgnoredKinds, Ignored)
Q_DECLARE_OPERATORS_FOR_FLAGS(IgnoredKinds)

/// A kind as people choose it.
struct IgnorableKind
{
    const char *name; ///< "times"
    Ignored kind;
    bool isUsual; ///< ignored where nobody says otherwise
};

/// All of them, the usual ones first.
std::span<const IgnorableKind> ignorableKinds();
/// By name in any letter case; nothing for what is none.
std::optional<Ignored> ignoredKind(QStringView name);
/// Those that are ignored where nobody says otherwise.
IgnoredKinds usuallyIgnored();
/// Whether a header variable, with its $ and in upper case, is of one of these kinds.
bool isIgnoredVariable(QByteArrayView name, IgnoredKinds kinds);

} // namespace host::drawing
