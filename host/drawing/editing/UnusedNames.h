#pragma once

#include "host/drawing/records/Drawing.h"

#include <functional>
#include <span>

namespace host::drawing {

/// Things with names that drawings collect and may lose when nothing needs them. Some are entries of symbol tables,
/// others objects that a dictionary below the root names; drawings of R12 have only the former.
enum class NamedKind
{
    Blocks,
    DetailViewStyles,
    DimStyles,
    Groups, ///< unused without a member that is still there
    Layers,
    Linetypes,
    Materials,
    MultileaderStyles,
    PlotStyles,
    Shapes, ///< text styles that stand for shape files; any SHAPE in the drawing keeps all of them
    TextStyles,
    MultilineStyles,
    SectionViewStyles,
    TableStyles,
    VisualStyles,
    Applications
};

/// All kinds, in the order of NamedKind. What the span shows lives as long as the program.
std::span<const NamedKind> allNamedKinds();
/// What people call several of a kind, and one: "text styles", "text style". In the language of the program.
QString kindName(NamedKind kind);
QString kindNameOfOne(NamedKind kind);

struct NamedThing
{
    RecordId record = noRecord; ///< the BLOCK, the table entry or the object
    QString name;               ///< of a shape file its file's name
};

/// Those of the kind that nothing in the drawing refers to, by handle or by name, and whose names `isWanted` accepts.
/// What every drawing has, what is current and what belongs to external references is never among them. Costs one pass
/// over all records. What an unused thing of another kind needs is not among them: ask again when that is erased.
std::vector<NamedThing> unusedNames(const Drawing &drawing, NamedKind kind,
                                    const std::function<bool(const QString &)> &isWanted);
/// Takes them out of the drawing, with the objects that they own. One step of the journal. Nobody looks again whether
/// they are unused.
void eraseNamed(Drawing &drawing, NamedKind kind, const std::vector<NamedThing> &things);

/// Takes out the blocks and table entries that an external reference of this name has brought ("name|layer"): all of
/// its blocks, and of its layers, dimension styles, linetypes and text styles those that nothing refers to by handle or
/// name any more; with `isGone`, of both only those that it accepts. One step of the journal.
void eraseDependents(Drawing &drawing, const QString &reference, const std::function<bool(RecordId)> &isGone = {});

} // namespace host::drawing
