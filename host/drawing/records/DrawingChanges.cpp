// How records are changed, made and taken out, and how others hear of it.

#include "host/drawing/records/DrawingObserver.h"
#include "host/drawing/records/DrawingPrivate.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/JournalPrivate.h"
#include "host/drawing/records/Structure.h"
#include "host/drawing/tags/GroupCodes.h"

namespace host::drawing {

namespace {

int handleCodeOf(RecordKind kind, QByteArrayView type)
{
    if (kind == RecordKind::Variable)
        return 0;
    return kind == RecordKind::TableEntry && type == "DIMSTYLE" ? 105 : 5;
}

/// The handle's field: in front of the first subclass marker.
template <typename Fields>
auto findHandleField(Fields &fields, int handleCode)
{
    auto field = fields.begin();
    while (field != fields.end() && field->code != handleCode && field->code != subclassCode)
        ++field;
    return field != fields.end() && field->code == handleCode ? field : fields.end();
}

/// Takes out what no record has and no reader takes; a second type would be another record.
void dropForeign(FieldList &fields)
{
    const auto isForeign = [](const Field &field) { return field.code == 0 || !isRecordCode(field.code); };
    if (!fields.empty())
        fields.erase(std::remove_if(fields.begin() + 1, fields.end(), isForeign), fields.end());
}

/// `fields` with type and handle of the record as it is.
FieldList keepIdentity(const std::vector<FieldSpan> &before, FieldList fields, int handleCode)
{
    FieldList old;
    for (const FieldSpan &span : before)
        old.push_back(span.field);
    const auto oldHandle = findHandleField(old, handleCode);
    const auto newHandle = findHandleField(fields, handleCode);
    if (newHandle != fields.end() && oldHandle != old.end())
        *newHandle = *oldHandle;
    else if (newHandle != fields.end() && handleCode != 0)
        // A second one would be taken for the handle in its place.
        for (auto each = newHandle; each != fields.end(); each = findHandleField(fields, handleCode))
            fields.erase(each);
    else if (oldHandle != old.end())
        fields.insert(fields.begin() + (!fields.empty() && fields.front().code == 0 ? 1 : 0), *oldHandle);
    if (fields.empty() || fields.front().code != old.front().code)
        fields.insert(fields.begin(), old.front());
    fields.front() = old.front();
    dropForeign(fields);
    return fields;
}

} // namespace

bool Drawing::setFields(RecordId id, const FieldList &fields)
{
    if (!isAlive(id) || kind(id) == RecordKind::Tail || kind(id) == RecordKind::Preamble)
        return false;
    const TagList old = tags(id);
    const std::vector<FieldSpan> before = readFieldSpans({old.begin(), old.end()}, d->codec);
    const FieldList wanted = keepIdentity(before, fields, handleCodeOf(kind(id), typeName(id)));
    const QByteArray bytes = rewriteFields(before, wanted, d->file.style, d->codec);
    if (bytes == d->entry(id).bytes())
        return false;
    changeState(id, {d->arena.store(bytes), static_cast<quint32>(bytes.size()), 0});
    return true;
}

bool Drawing::setErased(RecordId id, bool erased)
{
    const quint8 from = erased ? 0 : RecordState::Erased;
    if (quint32(id) >= d->records().size() || d->entry(id).flags != from)
        return false;
    const JournalGroup oneStep(*m_journal, {});
    const RecordId last = isValid(endOf(id)) ? endOf(id) : id;
    for (RecordId record = id; isValid(record); record = d->entry(record).next) {
        RecordState state = d->entry(record).state();
        const bool isWithin = record == id || isInside(record, id);
        if (!isWithin && (state.flags & RecordState::Absent) == 0)
            break;
        if (isWithin && state.flags == from) {
            state.flags = erased ? RecordState::Erased : 0;
            changeState(record, state);
        }
        if (record == last && last != id)
            break;
    }
    return true;
}

RecordId Drawing::insert(RecordId after, RecordId parentRecord, RecordKind recordKind, const FieldList &given)
{
    FieldList fields = given;
    dropForeign(fields);
    TagWriter writer(d->file.style, d->codec);
    for (const Field &field : fields)
        writer.write(field);
    const QByteArray bytes = writer.take();
    const RecordId id = d->records().append();
    RecordEntry &entry = d->records()[id];
    entry.data = d->arena.store(bytes);
    entry.length = static_cast<quint32>(bytes.size());
    entry.flags = RecordState::Absent;
    entry.kind = recordKind;
    entry.parent = parentRecord;
    const Field *name = findField(fields, 2);
    if (recordKind == RecordKind::Section && name)
        entry.section = sectionNamed(name->text().toLatin1());
    else if (isValid(parentRecord))
        entry.section = d->entry(parentRecord).section;
    link(id, isValid(after) ? after : d->entry(endOf(parentRecord)).previous);
    const QByteArray type = fields.empty() ? QByteArray() : fields.front().text().toLatin1();
    const auto handleField = findHandleField(fields, handleCodeOf(recordKind, type));
    if (handleField != fields.end() && recordKind != RecordKind::Variable) {
        entry.handle = handleField->handle().value;
        d->nextHandle = std::max(d->nextHandle, entry.handle + 1);
        if (entry.handle != 0)
            d->file.handles.insert(id, d->file.records);
    }
    changeState(id, {entry.data, entry.length, 0});
    return id;
}

void Drawing::link(RecordId id, RecordId after)
{
    RecordEntry &entry = d->records()[id];
    RecordEntry &before = d->records()[after];
    entry.previous = after;
    entry.next = before.next;
    if (isValid(before.next))
        d->records()[before.next].previous = id;
    before.next = id;
}

void Drawing::changeState(RecordId id, const RecordState &state)
{
    const RecordState before = d->entry(id).state();
    d->setState(id, state);
    m_journal->d->note(id, before, state);
    d->announce(id, before, ChangeCause::Edit);
    if (!m_journal->isGroupOpen())
        d->announceDone();
}

Handle Drawing::takeHandle()
{
    const bool isOptional = d->version < Version::R13;
    const qint64 isHandling = m_header->integer(u"$HANDLING", d->nextHandle > 1 ? 1 : 0);
    if (isOptional && isHandling == 0)
        return {};
    const std::optional<Field> seed = m_header->get(u"$HANDSEED");
    quint64 handle = std::max(seed ? seed->handle().value : 1, d->nextHandle);
    // A seed at the end of the range must not wrap to 0: small numbers are looked for instead.
    constexpr quint64 largest = 0x7FFFFFFFFFFFFFFFULL;
    if (handle > largest)
        handle = d->nextHandle > largest ? 1 : d->nextHandle;
    while (isValid(find({handle})))
        ++handle;
    d->nextHandle = handle + 1;
    m_header->set(u"$HANDSEED", {5, Handle{handle + 1}});
    return {handle};
}

void Drawing::addObserver(DrawingObserver *observer)
{
    d->observers.push_back(observer);
}

void Drawing::removeObserver(DrawingObserver *observer)
{
    std::erase(d->observers, observer);
}

void Drawing::Private::announce(RecordId id, const RecordState &before, ChangeCause cause)
{
    const RecordState now = entry(id).state();
    if (before.isAlive() == now.isAlive() && before.isSame(now))
        return;
    const auto section = static_cast<size_t>(entry(id).section);
    ++revision;
    ++revisions[section];
    const RecordKind kind = entry(id).kind;
    const bool isEntity = kind >= RecordKind::Entity && kind <= RecordKind::EndChildren;
    if (!isEntity && (kind != RecordKind::Variable || before.isAlive() != now.isAlive()))
        ++structureRevisions[section];
    if (!before.isAlive() && !now.isAlive())
        return;
    const RecordChange change = before.isAlive() == now.isAlive() ? RecordChange::Modified
                                : now.isAlive()                   ? RecordChange::Appeared
                                                                  : RecordChange::Vanished;
    for (size_t i = 0; i < observers.size(); ++i)
        observers[i]->recordChanged(id, change, cause);
}

void Drawing::Private::announceDone()
{
    for (size_t i = 0; i < observers.size(); ++i)
        observers[i]->changesDone();
}

} // namespace host::drawing
