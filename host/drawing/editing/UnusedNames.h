#pragma once

#include "host/drawing/records/Drawing.h"

#include <functional>
#include <span>

namespace host::drawing {

/// Things with names that drawings collect and may lose when nothing needs them.
enum class NamedKind
{
    Blocks,
    DetailViewStyles,
    DimStyles,
    Groups,
    Layers,
    Linetypes,
    Materials,
    MultileaderStyles,
    PlotStyles,
    Shapes, ///< text styles that stand for shape files
    TextStyles,
    MultilineStyles,
    SectionViewStyles,
    TableStyles,
    VisualStyles,
    Applications
};

/// All kinds, in the order of NamedKind.
std::span<const NamedKind> allNamedKinds();
/// What people call several of a kind: "text styles".
QString kindName(NamedKind kind);

struct NamedThing
{
    RecordId record = noRecord;
    QString name; ///< of a shape file its file's name
};

/// Those of the kind that nothing in the drawing refers to, by handle or by name, and whose names `isWanted` accepts.
/// What every drawing has, what is current and what belongs to external references is never among them. Costs one pass
/// over all records.
std::vector<NamedThing> unusedNames(const Drawing &drawing, NamedKind kind,
                                    const std::function<bool(const QString &)> &isWanted);
/// Takes them out of the drawing, blocks with what they own.
void eraseNamed(Drawing &drawing, NamedKind kind, const std::vector<NamedThing> &things);

/// Takes out the table entries that an external reference of this name has brought ("name|layer") and that nothing
/// refers to by handle or name.
void eraseDependents(Drawing &drawing, const QString &reference);

} // namespace host::drawing
