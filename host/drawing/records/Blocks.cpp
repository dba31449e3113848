#include "host/drawing/records/Blocks.h"

#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Structure.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/tags/GroupCodes.h"

#include <algorithm>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

// R12 spells the layouts with a dollar sign.
bool isLayoutName(const QString &name)
{
    static const QString prefixes[] = {u"*Model_Space"_s, u"*Paper_Space"_s, u"$Model_Space"_s, u"$Paper_Space"_s};
    return std::any_of(std::begin(prefixes), std::end(prefixes),
                       [&](const QString &prefix) { return name.startsWith(prefix, Qt::CaseInsensitive); });
}

const QString unloadedMark = u"ORTAKIT_UNLOADED"_s;

/// Where the mark stands; the end where it does not.
FieldList::iterator findUnloadedMark(FieldList &fields)
{
    return std::ranges::find_if(fields, [](const Field &field) {
        return field.code == applicationCode && field.text().compare(unloadedMark, Qt::CaseInsensitive) == 0;
    });
}

} // namespace

bool Block::isLayout() const
{
    return isLayoutName(name);
}

RecordId Blocks::find(QStringView name) const
{
    return names().value(name.toString().toCaseFolded(), noRecord);
}

std::optional<Block> Blocks::get(QStringView name) const
{
    const RecordId record = find(name);
    return isValid(record) ? std::optional<Block>(read(record)) : std::nullopt;
}

Block Blocks::read(RecordId record) const
{
    const TagList tags = m_drawing.tags(record);
    Block block;
    block.record = record;
    block.name = tags.text(2);
    block.tableEntry = m_drawing.tables().find(TableKind::BlockRecord, block.name);
    block.basePoint = tags.point(10);
    block.externalPath = tags.text(1);
    block.flags = static_cast<int>(tags.integer(70));
    if (block.isExternal()) {
        FieldList fields = m_drawing.fields(record);
        block.isUnloaded = findUnloadedMark(fields) != fields.end();
    }
    return block;
}

std::vector<RecordId> Blocks::all() const
{
    const RecordId section = m_drawing.sectionRecord(Section::Blocks);
    return isValid(section) ? m_drawing.children(section) : std::vector<RecordId>();
}

QString Blocks::name(RecordId block) const
{
    return m_drawing.tags(block).text(2);
}

void Blocks::setUnloaded(RecordId block, bool isUnloaded)
{
    FieldList fields = m_drawing.fields(block);
    const auto mark = findUnloadedMark(fields);
    if (isUnloaded == (mark != fields.end()))
        return;
    const JournalGroup group(m_drawing.journal(), {});
    if (isUnloaded)
        fields.insert(fields.end(), {{applicationCode, unloadedMark}, {1070, qint64(1)}});
    else
        fields.erase(mark, std::find_if(mark + 1, fields.end(),
                                        [](const Field &field) { return field.code == applicationCode; }));
    ensureApplications(m_drawing, fields);
    m_drawing.setFields(block, fields);
}

const QHash<QString, RecordId> &Blocks::names() const
{
    const quint64 revision = m_drawing.structureRevision(Section::Blocks);
    if (m_revision != revision) {
        m_names.clear();
        for (const RecordId block : all()) {
            const QString key = name(block).toCaseFolded();
            if (!m_names.contains(key))
                m_names.insert(key, block);
        }
        m_revision = revision;
    }
    return m_names;
}

QString Blocks::completedName(const QString &name) const
{
    static const QStringList anonymous = {u"*U"_s, u"*D"_s, u"*X"_s, u"*T"_s, u"*E"_s};
    if (!anonymous.contains(name.toUpper()))
        return name;
    int number = 0;
    while (isValid(find(QString(name + QString::number(number)))))
        ++number;
    return name + QString::number(number);
}

RecordId Blocks::create(const QString &name, const Vec3 &basePoint, int flags)
{
    if (name.isEmpty() || isLayoutName(name))
        return noRecord;
    const JournalGroup group(m_drawing.journal(), {});
    const QString wanted = completedName(name);
    const RecordId existing = find(wanted);
    if (!isValid(existing))
        return insertBlockDefinition(m_drawing, wanted, basePoint, flags);
    for (const RecordId entity : m_drawing.children(existing))
        m_drawing.dictionaries().setErasedWithOwned(entity, true);
    FieldList fields = m_drawing.fields(existing);
    setField(fields, 10, basePoint);
    setField(fields, 70, qint64(flags));
    m_drawing.setFields(existing, fields);
    return existing;
}

bool Blocks::erase(RecordId block)
{
    return erase(std::vector<RecordId>{block}) == 1;
}

int Blocks::erase(const std::vector<RecordId> &blocks)
{
    const JournalGroup group(m_drawing.journal(), {});
    std::vector<RecordId> gone;
    int count = 0;
    for (const RecordId block : blocks) {
        if (const RecordId entry = read(block).tableEntry; isValid(entry) && m_drawing.setErased(entry, true))
            gone.push_back(entry);
        const RecordId end = m_drawing.endOf(block);
        for (RecordId record = block; isValid(record); record = record == end ? noRecord : m_drawing.next(record))
            gone.push_back(record);
        count += m_drawing.setErased(block, true) ? 1 : 0;
    }
    m_drawing.dictionaries().eraseOwnedBy(gone);
    return count;
}

} // namespace host::drawing
