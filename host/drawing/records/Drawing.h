#pragma once

#include "host/drawing/records/DrawingObserver.h"
#include "host/drawing/records/Record.h"
#include "host/drawing/tags/Diagnostic.h"
#include "host/drawing/tags/TagList.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace host::drawing {

class Blocks;
class Dictionaries;
class Drawing;
class Entities;
class HeaderVariables;
class Journal;
class Layouts;
class Tables;
struct IndexedFile;
struct RecordState;

/// The versions of the format, by the number in $ACADVER ("AC1009" is 1009). Files without it count as R12.
enum class Version : int
{
    R12 = 1009,
    R13 = 1012,
    R14 = 1014,
    R2000 = 1015,
    R2004 = 1018,
    R2007 = 1021,
    R2010 = 1024,
    R2013 = 1027,
    R2018 = 1032
};

/// The version that $ACADVER names; R12 for what is none.
Version versionNamed(const QString &name);

/// The outcome of reading: a whole drawing, or none and the reason.
struct ReadResult
{
    std::unique_ptr<Drawing> drawing; ///< null when the file could not be read
    Diagnostic error;                 ///< meaningful when there is no drawing

    explicit operator bool() const { return drawing != nullptr; }
};

/// A drawing as its file has it: records in order, each a run of tags kept as bytes. What nobody changed is written
/// back as it was read. Typed access is in the parts: header(), tables(), blocks(), entities(), layouts(),
/// dictionaries().
///
/// Every change goes through journal(). Not thread-safe; different drawings may live on different threads.
class Drawing final
{
public:
    /// Reads the text of a DXF file of any version. All or nothing. Costs one pass over the bytes, which are kept.
    static ReadResult fromBytes(QByteArray bytes);
    /// As fromBytes(), for a file; remembers its path. What the file is, is told from its content, not from its name.
    static ReadResult open(const QString &path);
    ~Drawing();
    Drawing(const Drawing &) = delete;
    Drawing &operator=(const Drawing &) = delete;

    /// Where the drawing was read from or last saved to; empty for a new one.
    QString path() const;
    void setPath(const QString &path);
    Version version() const;
    const TextCodec &codec() const;
    /// The whole drawing as the bytes of a file.
    QByteArray toBytes() const;
    /// The same in pieces, in order and without copying them; a drawing nobody changed is one piece. Stops when
    /// `take` returns false.
    bool forEachPiece(const std::function<bool(QByteArrayView)> &take) const;

    Journal &journal() { return *m_journal; }
    const Journal &journal() const { return *m_journal; }
    HeaderVariables &header() { return *m_header; }
    const HeaderVariables &header() const { return *m_header; }
    Tables &tables() { return *m_tables; }
    const Tables &tables() const { return *m_tables; }
    Blocks &blocks() { return *m_blocks; }
    const Blocks &blocks() const { return *m_blocks; }
    Entities &entities() { return *m_entities; }
    const Entities &entities() const { return *m_entities; }
    Layouts &layouts() { return *m_layouts; }
    const Layouts &layouts() const { return *m_layouts; }
    Dictionaries &dictionaries() { return *m_dictionaries; }
    const Dictionaries &dictionaries() const { return *m_dictionaries; }

    /// Whether the record is in the drawing now: neither erased nor its adding undone. Any number may be asked about.
    bool isAlive(RecordId id) const;
    /// Whether the record was erased and can be brought back with setErased().
    bool isErased(RecordId id) const;
    /// All ids ever given out are below this number.
    quint32 idLimit() const;

    // What a record is. The id must be one this drawing gave out; erased records can be asked as well.
    RecordKind kind(RecordId id) const;
    Section section(RecordId id) const;
    /// Value of group 0 ("LINE"), of group 9 for a header variable; without blanks around. A view into the drawing.
    QByteArrayView typeName(RecordId id) const;
    bool isType(RecordId id, QByteArrayView type) const { return typeName(id) == type; }
    Handle handle(RecordId id) const;
    /// The owner's handle (group 330 before the first subclass marker); null where the file has none.
    Handle owner(RecordId id) const;
    TagList tags(RecordId id) const;
    /// tags(id).fields(): the record as a typed list.
    FieldList fields(RecordId id) const;
    /// The record's bytes as they are written.
    QByteArrayView bytes(RecordId id) const;

    /// The record with this handle, erased or not; noRecord when there is none. Constant cost.
    RecordId find(Handle handle) const;

    // Order. Only records that are alive are given; an erased one may be asked for its neighbours.
    /// The record in whose range this one stands: the POLYLINE or INSERT of a child, the BLOCK of its entities, the
    /// TABLE of its entries, the SECTION of everything else; noRecord for sections.
    RecordId parent(RecordId id) const;
    /// In file order, across everything.
    RecordId first() const;
    RecordId next(RecordId id) const;
    RecordId previous(RecordId id) const;
    /// Among the records with the same parent, end markers (ENDSEC, ENDTAB, ENDBLK, SEQEND) left out.
    RecordId firstChild(RecordId parent) const;
    RecordId nextSibling(RecordId id) const;
    std::vector<RecordId> children(RecordId parent) const;
    /// ENDSEC, ENDTAB, ENDBLK or SEQEND of such a record; noRecord when it has none.
    RecordId endOf(RecordId parent) const;
    /// The first section of this kind, noRecord when the file has none.
    RecordId sectionRecord(Section section) const;

    // Changes. Each is journaled and told to the observers.
    /// Gives a record other tags. The type and handle stay as they are, whatever `fields` say about groups 0 and 5 (105
    /// for a DIMSTYLE). Tags that are the same as before keep their bytes. False when nothing changed.
    bool setFields(RecordId id, const FieldList &fields);
    /// Takes a record out of the drawing or brings it back, with its children and end marker, and for a TABLE, BLOCK or
    /// SECTION all within. False when it was so already or the record was never in the drawing as it now is.
    bool setErased(RecordId id, bool erased);
    /// Adds a record directly behind `after`, as a part of `parent`; from noRecord as the last before its end. Writes
    /// exactly the fields given; only the handle index is kept. Callers wanting a correct drawing use the parts
    /// instead.
    RecordId insert(RecordId after, RecordId parent, RecordKind kind, const FieldList &fields);
    /// The next free handle, and $HANDSEED moved on. Null in a file without handles ($HANDLING 0).
    Handle takeHandle();

    /// Observers are not owned and are told in the order they were added.
    void addObserver(DrawingObserver *observer);
    void removeObserver(DrawingObserver *observer);
    /// Grows with every change of any kind, undo included. For caches.
    quint64 revision() const;
    /// As revision(), for changes in one section only.
    quint64 revision(Section section) const;
    /// As revision(Section), but only what can change names and places counts: not entities, not values of variables.
    quint64 structureRevision(Section section) const;

private:
    friend class Journal;
    explicit Drawing(IndexedFile &&file);

    bool isInside(RecordId id, RecordId container) const;
    void link(RecordId id, RecordId after);
    void changeState(RecordId id, const RecordState &state);

    struct Private;
    std::unique_ptr<Private> d;
    std::unique_ptr<Journal> m_journal;
    std::unique_ptr<HeaderVariables> m_header;
    std::unique_ptr<Tables> m_tables;
    std::unique_ptr<Blocks> m_blocks;
    std::unique_ptr<Entities> m_entities;
    std::unique_ptr<Dictionaries> m_dictionaries;
    std::unique_ptr<Layouts> m_layouts;
};

} // namespace host::drawing
