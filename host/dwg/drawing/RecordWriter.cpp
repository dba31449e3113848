#include "host/dwg/drawing/RecordWriter.h"

#include "host/dwg/objects/ParagraphTypes.h"
#include "host/dwg/objects/ProxyTypes.h"

namespace host::dwg {

namespace {

// Viewports' entities as a table, which the text form does not have.
constexpr int viewportEntityTable = 0x46;
constexpr int viewportEntity = 0x47;

bool isProxy(int type)
{
    return type == proxyEntityType || type == proxyObjectType;
}

/// Whether it is an extension record of R13 with values that its text form has no groups for: it is a proxy there.
bool hasLaterGroups(const Fields &fields)
{
    bool hasLater = false;
    if (fields.until(Release::R13) && fields.typeName() == "XRECORD") {
        fields.forEachTag([&hasLater](int code, std::string_view) {
            hasLater |= (code >= 290 && code <= 299) || (code >= 400 && code <= 489);
        });
    }
    return hasLater;
}

} // namespace

std::string tagLines(int code, std::string_view value)
{
    std::string text;
    addTagLines(code, value, text);
    return text;
}

RecordWriter::RecordWriter(DrawingObjects &objects, std::string &text)
    : m_objects(objects), m_text(text), m_fields(objects.release(), m_names), m_head({}), m_arrowSizes(objects, m_names)
{
    m_fields.setMaintenance(objects.maintenance());
    m_fields.setAskSize([this](std::uint64_t handle) { return sizeOfText(handle); });
    m_fields.setAskColour([this](std::uint64_t handle) { return bookColour(handle); });
    m_fields.setAskArrowSize([this](std::uint64_t style) { return m_arrowSizes.sizeOf(style, m_head); });
}

std::optional<TextSize> RecordWriter::sizeOfText(std::uint64_t handle)
{
    constexpr int paragraphsType = 0x2c;
    const auto known = m_textSizes.find(handle);
    if (known != m_textSizes.end())
        return known->second;
    std::optional<TextSize> &size = m_textSizes[handle];
    const ObjectFrame *const frame = m_objects.peek(handle);
    if (!frame || frame->type != paragraphsType)
        return size;
    Fields fields(m_objects.release(), m_names);
    ObjectHead({}).read(*frame, true, fields);
    const TextSize read = readParagraphSize(fields);
    if (!fields.hasFailed())
        size = read;
    return size;
}

std::optional<NotedColour> RecordWriter::bookColour(std::uint64_t handle)
{
    const auto known = m_bookColours.find(handle);
    if (known != m_bookColours.end())
        return known->second;
    std::optional<NotedColour> &colour = m_bookColours[handle];
    const ObjectFrame *const frame = m_objects.peek(handle);
    if (!frame || m_objects.typeNameOf(frame->type) != "DBCOLOR")
        return colour;
    Fields fields(m_objects.release(), m_names);
    ObjectHead({}).read(*frame, false, fields);
    const NotedColour read = fields.longColour();
    if (fields.isUsedUp())
        colour = read;
    return colour;
}

void RecordWriter::setSpaces(const ObjectHead::Spaces &spaces)
{
    m_spaces = spaces;
    m_head = ObjectHead(spaces);
}

void RecordWriter::beginSection(std::string_view name)
{
    beginRecord("SECTION");
    addTag(2, name);
}

void RecordWriter::beginRecord(std::string_view type)
{
    addTag(0, type);
}

void RecordWriter::addTag(int code, std::string_view value)
{
    addTagLines(code, value, m_text);
}

void RecordWriter::readHead(const ObjectFrame &frame, std::string_view typeName, bool isEntity)
{
    m_fields.setTypeName(typeName);
    m_head.read(frame, isEntity, m_fields);
}

void RecordWriter::writeFields(std::string_view recordType, std::string_view lines)
{
    writeTags(recordType, lines, m_fields.mark());
}

void RecordWriter::writeTags(std::string_view recordType, std::string_view lines, std::size_t end)
{
    if (lines.empty())
        return m_fields.writeRecord(recordType, m_text, end);
    beginRecord(recordType);
    m_text += lines;
    m_fields.write(m_text, 0, end);
}

void RecordWriter::writeNoted(std::string_view recordType, std::string_view lines)
{
    std::size_t end = m_fields.companion();
    if (m_head.hasExtendedData()) {
        const std::size_t extended = m_fields.mark();
        m_head.noteExtendedData(m_fields);
        m_fields.moveForward(extended, end);
        end += m_fields.mark() - extended;
    }
    writeTags(recordType, lines, end);
    if (!m_companions.isEmpty())
        m_companions.make(m_fields, end);
    noteOwned();
}

void RecordWriter::noteOwned()
{
    const Relations &relations = m_fields.relations();
    if (relations.dictionary != 0)
        m_owned.push_back(relations.dictionary);
    m_owned.insert(m_owned.end(), relations.entries.begin(), relations.entries.end());
    if (!relations.hasList)
        m_owned.insert(m_owned.end(), relations.parts.begin(), relations.parts.end());
}

bool RecordWriter::writeObject(std::uint64_t handle)
{
    if (const auto companion = m_companions.take(handle)) {
        m_text += companion->lines;
        m_fields.start({}, {}, {});
        m_fields.relations().entries = companion->entries;
        noteOwned();
        return true;
    }
    const ObjectFrame *const frame = m_objects.take(handle);
    return frame && writeFrame(handle, *frame);
}

bool RecordWriter::writeFrame(std::uint64_t handle, const ObjectFrame &frame)
{
    const ObjectType *type = m_objects.typeOf(frame.type);
    const ObjectClass *one = m_objects.classOf(frame.type);
    if (m_text.size() > m_objects.mostText()) {
        m_objects.lose(handle, frame.type, "The file makes more records than it can have.");
        return false;
    }
    if (type && writeKnown(handle, frame, *type))
        return true;
    if (one || isProxy(frame.type))
        return writeProxy(handle, frame, one ? one->isEntity : frame.type == proxyEntityType);
    if (type)
        m_objects.lose(handle, frame.type, m_fields.lack() ? m_fields.lack() : "The object ends before its values do.");
    else if (frame.type != viewportEntityTable && frame.type != viewportEntity)
        m_objects.lose(handle, frame.type, "Objects of this type are not read.");
    return false;
}

void RecordWriter::readKnown(const ObjectFrame &frame, const ObjectType &type)
{
    readHead(frame, type.name, type.isEntity);
    if (type.read)
        type.read(m_fields);
}

bool RecordWriter::writeKnown(std::uint64_t handle, const ObjectFrame &frame, const ObjectType &type)
{
    readKnown(frame, type);
    // Twice, so that the first way is taken again where neither fits.
    for (int i = 0; i < 2 && m_head.hasBookColour() && !m_fields.isUsedUp(); ++i) {
        m_head.tryOtherBookColours();
        readKnown(frame, type);
    }
    // Classes have other forms in other releases and programs; what a reader leaves over tells that it is another one.
    if (m_objects.classOf(frame.type) && (!m_fields.isUsedUp() || hasLaterGroups(m_fields)))
        return false;
    if (m_fields.lack())
        return false;
    const bool isWhole = m_fields.isUsedUp();
    if (!m_companions.isEmpty())
        m_companions.complete(m_fields);
    if (!writeUnlessFailed())
        return false;
    if (!isWhole)
        m_objects.warn(handle, frame.type, "More of the object is in the file than is read of it.");
    if (m_fields.doubt())
        m_objects.warn(handle, frame.type, m_fields.doubt());
    return true;
}

bool RecordWriter::writeProxy(std::uint64_t handle, const ObjectFrame &frame, bool isEntity)
{
    readHead(frame, isEntity ? "ACAD_PROXY_ENTITY" : "ACAD_PROXY_OBJECT", isEntity);
    ProxyParts parts{isEntity, m_head.graphicsMark(), {}};
    if (isProxy(frame.type)) {
        readProxy(m_fields, parts);
    } else {
        if (m_objects.release() <= Release::R14)
            parts.texts = readTextPlaces(frame, isEntity);
        noteProxy(m_fields, frame.type, parts);
        m_objects.keep(handle, frame.type,
                       m_objects.typeOf(frame.type)
                           ? "The object has another form than is known; it is kept as its bytes."
                           : "Objects of this class are kept as their bytes.");
    }
    if (writeUnlessFailed())
        return true;
    m_objects.lose(handle, frame.type, "The object ends before its values do.");
    return false;
}

/// Where texts begin in an object of a class that later releases have; nothing where the class has another form. The
/// object's head has been read again then.
std::vector<std::size_t> RecordWriter::readTextPlaces(const ObjectFrame &frame, bool isEntity)
{
    std::vector<std::size_t> places;
    const ObjectClass *one = m_objects.classOf(frame.type);
    const ObjectType *type = one ? typeByClass(one->name, Release::R2000) : nullptr;
    if (!type || !type->read)
        return places;
    m_fields.keepTextPlaces(&places);
    type->read(m_fields);
    m_fields.keepTextPlaces(nullptr);
    if (m_fields.hasFailed())
        places.clear();
    readHead(frame, isEntity ? "ACAD_PROXY_ENTITY" : "ACAD_PROXY_OBJECT", isEntity);
    return places;
}

/// Writes what was noted of an object, unless it was damaged.
bool RecordWriter::writeUnlessFailed()
{
    if (m_fields.hasFailed())
        return false;
    writeNoted(m_fields.typeName());
    return true;
}

} // namespace host::dwg
