#pragma once

#include "platform/db/OdDbDatabase.h"

#include <QDateTime>
#include <QList>
#include <QString>

/// What a user must know of a block beside its name.
enum class BlockKind
{
    Plain,
    Anonymous,
    External
};

struct BlockEntry
{
    QString name;
    BlockKind kind = BlockKind::Plain;
};

/// Where blocks are chosen from: the active drawing, or a drawing file, which is read once and again when it has
/// changed on the disk since.
class BlockSource
{
public:
    void useActiveDrawing();
    /// An empty path, or one that leads to no drawing, gives no blocks. What was read of the file before is used again
    /// when it is the same file.
    void useFile(const QString &path);

    /// Their blocks in natural order of their names.
    const QList<BlockEntry> &entries() const { return m_entries; }
    /// Null when there is none of that name.
    const BlockEntry *find(const QString &name) const;
    /// Null for the active drawing.
    OdDbDatabasePtr database() const { return m_isFile ? m_database : nullptr; }
    bool isFile() const { return m_isFile; }
    /// Path of the file; empty for the active drawing.
    QString path() const { return m_isFile ? m_path : QString(); }
    /// Why the file gives no blocks, as a sentence; empty when it was read and for the active drawing.
    QString error() const { return m_isFile ? m_error : QString(); }
    /// Whether the file is no longer what was read.
    bool hasChanged() const { return m_isFile && stampOf(m_path) != m_stamp; }

private:
    /// What tells one state of a file from another.
    struct Stamp
    {
        qint64 size = -1;
        QDateTime changed;
        bool operator==(const Stamp &) const = default;
    };
    static Stamp stampOf(const QString &path);
    void listBlocks(OdDbDatabase *database);

    bool m_isFile = false;
    QString m_path;
    Stamp m_stamp;
    OdDbDatabasePtr m_database;
    QString m_error;
    QList<BlockEntry> m_entries;
};
