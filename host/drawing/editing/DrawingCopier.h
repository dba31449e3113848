#pragma once

#include "host/drawing/editing/CopyBetweenDrawings.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Entities.h"

#include <QHash>
#include <QSet>

namespace host::drawing {

/// What becomes of a definition for which the target has another of the same name.
enum class NameClash
{
    Keep,   ///< the target's stands for both
    Prefix, ///< the copy gets a name of its own
    Rename  ///< every copy gets the prefix, clash or not, but for what every drawing has; what has that name stands
};

/// How far copies reach.
enum class CopyDepth
{
    Named,    ///< what is named or found by name: table entries, blocks, objects of the dictionaries below the root
    WithOwned ///< and extension dictionaries with all in them, and references between what is copied
};

struct CopyRules
{
    NameClash clash = NameClash::Keep;
    QString prefix{}; ///< in front of the name of a copy that clashes, or of every one
    CopyDepth depth = CopyDepth::Named;
};

/// As insertAsBlock() of two drawings, with rules of its own.
CopyResult insertAsBlock(const Drawing &source, Drawing &target, const QString &name, const CopyRules &rules);

/// Copies records of one drawing into another with what they name or refer to. What the target has under the same name
/// wins unless the rules say otherwise; anonymous blocks get a new name, as equal names there mean nothing.
class DrawingCopier
{
public:
    DrawingCopier(const Drawing &source, Drawing &target, CopyRules rules = {});

    /// Into a block when one is given, else into a space; noRecord when it cannot be copied.
    RecordId copyEntity(RecordId entity, RecordId block, Space space = Space::Model);
    /// The entry of a table in the target that stands for one of the source; noRecord when there can be none. Blocks
    /// that it needs have no contents before something else is copied.
    RecordId copyTableEntry(RecordId entry);
    /// The block's copy in the target, or what that has under the name; noRecord when it can have none.
    RecordId copyBlock(RecordId block);
    /// A block of the target takes the place of one of the source: the space of a sheet.
    void replaceBlock(const QString &name, const QString &by) { m_blocks.insert(name.toCaseFolded(), by); }
    /// An object's fields behind its head as the target has them. To be kept in a record that is remembered.
    FieldList objectBody(RecordId object);
    /// The target's record that stands for one of the source from now on.
    void remember(RecordId original, RecordId copy);
    /// Groups of entities of which at least one was copied.
    void copyGroups();
    /// The last step, with CopyDepth::WithOwned: copies what the copies own and leads their references to each other.
    void finish();

    int skipped() const { return m_skipped; }
    int converted() const { return m_converted; }
    /// See CopyResult.
    const std::vector<KeptName> &kept() const { return m_kept; }

private:
    FieldList translated(RecordId record);
    RecordId createEarlyForms(RecordId entity, const FieldList &fields, RecordId block, Space space);
    FieldList entityFields(RecordId entity);
    void ensureReferences(FieldList &fields);
    Handle translatedHandle(Handle handle);
    Handle translatedEntry(RecordId entry);
    Handle translatedObject(RecordId object);
    RecordId copyObject(RecordId object, RecordId dictionary, const QString &name);
    RecordId addCopy(RecordId object, Handle owner);
    void copyClass(const QString &type);
    void ensureEntry(TableKind kind, Field &name);
    RecordId copyEntry(TableKind kind, RecordId entry);
    FieldList entryFields(TableKind kind, RecordId entry);
    bool isRenamed(TableKind kind, const QString &name) const;
    bool clashes(TableKind kind, RecordId entry, RecordId existing) const;
    QString freeName(TableKind kind, const QString &name) const;
    QString ensureBlock(const QString &name);
    QString copyDefinition(const Block &block, const QString &name);
    RecordId copyOneEntity(RecordId entity, RecordId block, Space space);
    void fillBlocks();
    void copyBlockRecord(const Block &block, const Block &copy);

    // References to what may be copied later stand as marked handles of the source until finish().
    static Handle pending(Handle handle);
    static bool isPending(Handle handle);
    void copyOwned(RecordId original, RecordId copy);
    void copyExtension(RecordId original, RecordId copy);
    void resolve(RecordId copy);
    Handle copyOf(Handle original) const;

    const Drawing &m_source;
    Drawing &m_target;
    CopyRules m_rules;
    QHash<quint64, Handle> m_objects;    ///< handles of named objects copied, by those of the source
    QHash<QString, QString> m_blocks;    ///< names in the target, by those in the source
    QHash<RecordId, RecordId> m_entries; ///< table entries of the target, by those of the source
    QHash<quint64, Handle> m_copies;     ///< handles of all other copies, by those of the source
    std::vector<std::pair<RecordId, RecordId>> m_remembered; ///< originals and copies, in the order they were made
    std::vector<KeptName> m_kept;
    QSet<QString> m_classes;                         ///< types looked after
    std::vector<std::pair<Block, RecordId>> m_empty; ///< definitions and their copies that have no contents yet
    bool m_isFilling = false;
    int m_depth = 0; ///< of table entries and objects that refer to one another
    int m_skipped = 0;
    int m_converted = 0;
};

} // namespace host::drawing
