#pragma once

#include "host/drawing/records/Drawing.h"

#include <QHash>

#include <optional>

namespace host::drawing {

/// How many blocks within blocks are followed where a drawing is drawn or measured; more is taken for damage.
inline constexpr int deepestNesting = 32;

/// A block definition as it was when it was read; later changes of the drawing do not reach it.
struct Block
{
    RecordId record = noRecord;     ///< the BLOCK record; its children are the entities
    RecordId tableEntry = noRecord; ///< the BLOCK_RECORD; noRecord in R12
    QString name;
    Vec3 basePoint;
    QString externalPath;    ///< file of an external reference
    int flags = 0;           ///< group 70
    bool isUnloaded = false; ///< an external reference that shows nothing until it is loaded again
    /// Made by a program for one use, such as the picture of a dimension.
    bool isAnonymous() const { return (flags & 1) != 0; }
    /// Whether the file says that there are attribute definitions; nobody counted them.
    bool hasAttributes() const { return (flags & 2) != 0; }
    /// An external reference, attached or overlaid.
    bool isExternal() const { return (flags & (4 | 8)) != 0; }
    /// Model or paper space rather than a block to insert.
    bool isLayout() const;
};

/// The block definitions of a drawing. Names are compared without regard to letter case; of two that share one the
/// first counts.
class Blocks
{
public:
    explicit Blocks(Drawing &drawing) : m_drawing(drawing) {}

    /// The BLOCK record, noRecord when there is none of that name. Constant cost once looked at.
    RecordId find(QStringView name) const;
    std::optional<Block> get(QStringView name) const;
    /// `block` is a BLOCK record. Costs a pass over its tags.
    Block read(RecordId block) const;
    /// In file order, layouts among them.
    std::vector<RecordId> all() const;
    QString name(RecordId block) const;
    /// Unloads an external reference or loads it again. The format has no place for that: it stands in extended data of
    /// this program.
    void setUnloaded(RecordId block, bool isUnloaded);

    /// Adds an empty definition (BLOCK, ENDBLK and what the version wants beside them) and gives the BLOCK record. One
    /// of that name that exists is emptied, when `basePoint` is its new base point. A name beginning with "*U", "*D",
    /// "*X", "*T" or "*E" and nothing behind is completed with the next free number. noRecord for an empty name and
    /// for the layouts. `flags` are those of Block. One step of the journal.
    RecordId create(const QString &name, const Vec3 &basePoint, int flags = 0);
    /// Takes a definition out, with its table entry and the objects that it and its entities own. References to it are
    /// the caller's concern. Costs one pass over the objects, for however many definitions.
    bool erase(RecordId block);
    /// The same for many at once, as one step; gives how many were taken out.
    int erase(const std::vector<RecordId> &blocks);

private:
    QString completedName(const QString &name) const;
    const QHash<QString, RecordId> &names() const;

    Drawing &m_drawing;
    mutable QHash<QString, RecordId> m_names;
    mutable quint64 m_revision = ~quint64(0);
};

} // namespace host::drawing
