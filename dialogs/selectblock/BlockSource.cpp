#include "dialogs/selectblock/BlockSource.h"

#include "platform/kernel/CKvDocument.h"
#include "platform/kernel/CKvUtils.h"
#include "state/tables/RowSorting.h"

#include <QFileInfo>
#include <QHash>

#include <algorithm>

BlockSource::Stamp BlockSource::stampOf(const QString &path)
{
    const QFileInfo file(path);
    return file.isFile() ? Stamp{file.size(), file.lastModified()} : Stamp();
}

void BlockSource::useActiveDrawing()
{
    m_isFile = false;
    listBlocks(ACTIVE_DOCUMENT() ? ACTIVE_DOCUMENT()->database() : nullptr);
}

void BlockSource::useFile(const QString &path)
{
    m_isFile = true;
    const bool isRead = m_database && path == m_path && !hasChanged();
    if (!isRead) {
        m_path = path;
        // Taken first: what changes while the file is read is then seen as a change.
        m_stamp = stampOf(path);
        m_database = nullptr; // two large drawings at a time would be one too many
        m_error.clear();
        if (m_stamp != Stamp())
            m_database = CKvUtils::readDrawing(path, m_error);
    }
    listBlocks(m_database.get());
}

void BlockSource::listBlocks(OdDbDatabase *database)
{
    QHash<QString, BlockKind> kinds;
    QStringList names;
    for (const CKvBlock &block : CKvUtils::blocks(database)) {
        names.append(block.name);
        kinds.insert(block.name, block.isExternal    ? BlockKind::External
                                 : block.isAnonymous ? BlockKind::Anonymous
                                                     : BlockKind::Plain);
    }
    ortakit::sortNaturally(names);
    m_entries.clear();
    m_entries.reserve(names.size());
    for (const QString &name : std::as_const(names))
        m_entries.append({name, kinds.value(name)});
}

const BlockEntry *BlockSource::find(const QString &name) const
{
    const auto found = std::find_if(m_entries.cbegin(), m_entries.cend(), [&name](const BlockEntry &entry) {
        return entry.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == m_entries.cend() ? nullptr : &*found;
}
