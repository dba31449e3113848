#pragma once

#include "host/dwg/drawing/ArrowSizes.h"
#include "host/dwg/drawing/Companions.h"
#include "host/dwg/drawing/DrawingObjects.h"

#include <utility>

namespace host::dwg {

/// Writes objects of a file as records of the text form, and what stands around them.
class RecordWriter
{
public:
    /// Both must outlive this; `text` gets the records.
    RecordWriter(DrawingObjects &objects, std::string &text);
    RecordWriter(const RecordWriter &) = delete;
    RecordWriter &operator=(const RecordWriter &) = delete;

    /// The fields of the object that was read last, and what it refers to.
    Fields &fields() { return m_fields; }
    /// What the fields look names up in.
    Names &names() { return m_names; }
    const ObjectHead::Spaces &spaces() const { return m_spaces; }
    /// The owners of what does not tell its owner; known when the header was read.
    void setSpaces(const ObjectHead::Spaces &spaces);

    /// Records that the file does not have, known when the header was read.
    void setCompanions(Companions companions) { m_companions = std::move(companions); }
    const Companions &companions() const { return m_companions; }

    void beginSection(std::string_view name);
    void endSection() { beginRecord("ENDSEC"); }
    void beginRecord(std::string_view type);
    void addTag(int code, std::string_view value);
    void addLines(std::string_view lines) { m_text += lines; }

    /// Writes an object by its type, unless it was written before. What it refers to is in the relations of fields()
    /// then. False when it was not written.
    bool writeObject(std::uint64_t handle);
    /// The same for one that was taken.
    bool writeFrame(std::uint64_t handle, const ObjectFrame &frame);

    // Records that are put together from several objects: the head is read, fields are noted, and all is written.
    void readHead(const ObjectFrame &frame, std::string_view typeName, bool isEntity);
    /// Writes the tags that were noted behind `lines`, and the extended data of the head behind them.
    void writeNoted(std::string_view recordType, std::string_view lines = {});
    /// Writes the tags that were noted for a record that is no object.
    void writeFields(std::string_view recordType, std::string_view lines = {});

    /// What the records own that were written since the last call: extension dictionaries, entries of dictionaries and
    /// others, in their order. What stands in lists of entities is not among them.
    std::vector<std::uint64_t> takeOwned() { return std::exchange(m_owned, {}); }

private:
    void readKnown(const ObjectFrame &frame, const ObjectType &type);
    bool writeKnown(std::uint64_t handle, const ObjectFrame &frame, const ObjectType &type);
    bool writeProxy(std::uint64_t handle, const ObjectFrame &frame, bool isEntity);
    std::vector<std::size_t> readTextPlaces(const ObjectFrame &frame, bool isEntity);
    void writeTags(std::string_view recordType, std::string_view lines, std::size_t end);
    void noteOwned();
    bool writeUnlessFailed();
    std::optional<TextSize> sizeOfText(std::uint64_t handle);
    std::optional<NotedColour> bookColour(std::uint64_t handle);

    DrawingObjects &m_objects;
    std::string &m_text;
    Names m_names;
    Fields m_fields;
    ObjectHead::Spaces m_spaces;
    ObjectHead m_head;
    ArrowSizes m_arrowSizes;
    std::unordered_map<std::uint64_t, std::optional<TextSize>> m_textSizes; ///< as they were asked for
    std::unordered_map<std::uint64_t, std::optional<NotedColour>> m_bookColours;
    Companions m_companions;
    std::vector<std::uint64_t> m_owned;
};

/// A tag as two lines of a file.
std::string tagLines(int code, std::string_view value);

} // namespace host::dwg
