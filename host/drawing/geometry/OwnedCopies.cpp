#include "host/drawing/geometry/OwnedCopies.h"

#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Reactors.h"
#include "host/drawing/records/Structure.h"
#include "host/drawing/tags/GroupCodes.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

/// One entity's objects while they are copied.
class OwnedCopier
{
public:
    explicit OwnedCopier(Drawing &drawing) : m_drawing(drawing) {}
    void copy(RecordId original, RecordId copy);

private:
    void leaveOut(RecordId owner);
    std::vector<RecordId> chosenOf(const std::vector<RecordId> &objects);
    void give(RecordId original, RecordId copy);
    FieldList ledToCopies(const FieldList &fields) const;
    void tellImage(RecordId reactor);

    Drawing &m_drawing;
    QSet<quint64> m_leftOut;         ///< handles of originals
    QHash<quint64, Handle> m_copies; ///< by the handles of the originals
};

/// What says places or ties the original to others stays with it, and a dictionary in which nothing else is.
void OwnedCopier::leaveOut(RecordId owner)
{
    const Dictionaries &dictionaries = m_drawing.dictionaries();
    const RecordId extension = dictionaries.extensionDictionary(owner);
    if (!isValid(extension))
        return;
    qsizetype others = 0;
    for (const Dictionaries::Entry &entry : dictionaries.entries(extension)) {
        if (entry.name == u"AcDbContextDataManager" || entry.name == u"ACAD_DIMASSOC")
            m_leftOut.insert(entry.handle.value);
        else
            ++others;
    }
    if (others == 0)
        m_leftOut.insert(m_drawing.handle(extension).value);
}

/// Handles lead to the copies; entries of what is left out are left out, and so are reactors that were not copied.
FieldList OwnedCopier::ledToCopies(const FieldList &fields) const
{
    FieldList led;
    bool isReactors = false;
    for (Field field : fields) {
        if (field.code == groupCode)
            isReactors = field.text() == u"{ACAD_REACTORS";
        if (field.code == 0 || tagType(field.code) != TagType::Handle) {
            led.push_back(std::move(field));
            continue;
        }
        const auto copy = m_copies.constFind(field.handle().value);
        const bool isLeftOut = m_leftOut.contains(field.handle().value);
        if (isLeftOut && !led.empty() && led.back().code == entryNameCode)
            led.pop_back();
        if (isLeftOut || (isReactors && copy == m_copies.constEnd()))
            continue;
        if (copy != m_copies.constEnd())
            field.value = *copy;
        led.push_back(std::move(field));
    }
    return led;
}

/// The definition of an image knows what tells each of its images of changes.
void OwnedCopier::tellImage(RecordId reactor)
{
    const RecordId image = m_drawing.find(m_drawing.owner(reactor));
    const RecordId definition = isValid(image) ? m_drawing.find(m_drawing.tags(image).handle(340)) : noRecord;
    if (m_drawing.isType(reactor, "IMAGEDEF_REACTOR") && m_drawing.isAlive(definition))
        addReactor(m_drawing, definition, m_drawing.handle(reactor));
}

/// Leads what a part of the entity refers to to the copies, and gives its copy the extension dictionary.
void OwnedCopier::give(RecordId original, RecordId copy)
{
    FieldList fields = ledToCopies(m_drawing.fields(copy));
    const RecordId extension = m_drawing.dictionaries().extensionDictionary(original);
    const Handle given = isValid(extension) ? m_copies.value(m_drawing.handle(extension).value) : Handle{};
    if (!given.isNull()) {
        const FieldList group = {{groupCode, u"{ACAD_XDICTIONARY"_s}, {360, given}, {groupCode, u"}"_s}};
        const auto behindHandle = fields.begin() + std::min<qsizetype>(2, qsizetype(fields.size()));
        fields.insert(behindHandle, group.begin(), group.end());
    }
    m_drawing.setFields(copy, fields);
}

/// Which of the objects are copied, with the handles that the copies will have. Owners come first among them.
std::vector<RecordId> OwnedCopier::chosenOf(const std::vector<RecordId> &objects)
{
    std::vector<RecordId> chosen;
    for (const RecordId object : objects) {
        const Handle handle = m_drawing.handle(object);
        if (m_leftOut.contains(handle.value) || m_leftOut.contains(m_drawing.owner(object).value)) {
            m_leftOut.insert(handle.value);
        } else if (m_drawing.isAlive(object)) {
            m_copies.insert(handle.value, m_drawing.takeHandle());
            chosen.push_back(object);
        }
    }
    return chosen;
}

void OwnedCopier::copy(RecordId original, RecordId copy)
{
    const std::vector<RecordId> objects = m_drawing.dictionaries().ownedBy(original);
    std::vector<RecordId> parts = m_drawing.children(original);
    std::vector<RecordId> copiedParts = m_drawing.children(copy);
    if (objects.empty() || parts.size() != copiedParts.size())
        return;
    parts.push_back(original);
    copiedParts.push_back(copy);
    for (std::size_t i = 0; i < parts.size(); ++i) {
        leaveOut(parts[i]);
        m_copies.insert(m_drawing.handle(parts[i]).value, m_drawing.handle(copiedParts[i]));
    }
    const RecordId section = ensureSection(m_drawing, Section::Objects);
    for (const RecordId object : chosenOf(objects)) {
        const FieldList fields = ledToCopies(m_drawing.fields(object));
        tellImage(m_drawing.insert(noRecord, section, RecordKind::Object, fields));
    }
    for (std::size_t i = 0; i < parts.size(); ++i)
        give(parts[i], copiedParts[i]);
}

} // namespace

void copyOwnedObjects(Drawing &drawing, RecordId original, RecordId copy)
{
    OwnedCopier(drawing).copy(original, copy);
}

} // namespace host::drawing
