#pragma once

#include "host/drawing/CopyBetweenDrawings.h"

#include <QHash>
#include <QSet>

namespace host::drawing {

/// Copies records of one drawing into another with what they name or refer to. What the target has under the same name
/// wins; anonymous blocks get a new name, as equal names there mean nothing.
class DrawingCopier
{
public:
    DrawingCopier(const Drawing &source, Drawing &target) : m_source(source), m_target(target) {}

    /// Into model space, or into a block when one is given.
    void copyEntity(RecordId entity, RecordId block);
    /// The block's copy in the target, or what that has under the name; noRecord when it can have none.
    RecordId copyBlock(RecordId block);
    int skipped() const { return m_skipped; }
    /// See CopyResult.
    const std::vector<KeptName> &kept() const { return m_kept; }

private:
    FieldList translated(RecordId record);
    FieldList entityFields(RecordId entity);
    void ensureReferences(const FieldList &fields);
    Handle translatedHandle(Handle handle);
    Handle translatedEntry(RecordId entry);
    Handle translatedObject(RecordId object);
    RecordId copyObject(RecordId object, RecordId dictionary, const QString &name);
    void ensureEntry(TableKind kind, const QString &name);
    RecordId copyEntry(TableKind kind, RecordId entry);
    QString ensureBlock(const QString &name);
    RecordId keepEntry(TableKind kind, RecordId entry, RecordId existing);

    const Drawing &m_source;
    Drawing &m_target;
    QHash<quint64, Handle> m_objects; ///< handles of objects copied, by those of the source
    QHash<QString, QString> m_blocks; ///< names in the target, by those in the source
    std::vector<KeptName> m_kept;
    QSet<RecordId> m_compared; ///< entries of the target
    int m_depth = 0;           ///< of nested blocks
    int m_skipped = 0;
};

} // namespace host::drawing
