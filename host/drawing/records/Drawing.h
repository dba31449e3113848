#pragma once

#include "host/drawing/dwg/ReadingNotes.h"
#include "host/drawing/records/DrawingObserver.h"
#include "host/drawing/records/Record.h"
#include "host/drawing/tags/BinaryTags.h"
#include "host/drawing/tags/Diagnostic.h"
#include "host/drawing/tags/TagList.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
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
class TagReader;
struct IndexedFile;
struct RecordState;

/// The versions of the format, by the number in $ACADVER ("AC1009" is 1009), so that later ones are greater. Files
/// without it count as R12; other numbers, older and newer ones, are kept as they are.
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

/// The version that $ACADVER names, in any letter case; R12 for what is none.
Version versionNamed(const QString &name);

/// The outcome of reading: a whole drawing, or none and the reason.
struct ReadResult
{
    std::unique_ptr<Drawing> drawing; ///< null when the file could not be read
    Diagnostic error;                 ///< meaningful when there is no drawing
    bool isDamaged = false; ///< there is no drawing, but the file began as one: recoverFile() may open what is sound

    explicit operator bool() const { return drawing != nullptr; }
};

/// A drawing as its file has it: records in order, each a run of tags kept as bytes. What nobody changed is written
/// back as it was read. Typed access is in the parts: header(), tables(), blocks(), entities(), layouts(),
/// dictionaries().
///
/// Every change goes through journal(). Not thread-safe; different drawings may live on different threads.
///
/// Functions that take a RecordId take one that this drawing gave out, and not noRecord, where they do not say more:
/// they do not check it. Records are never removed from memory, so an id stays good whatever is erased or undone.
class Drawing final
{
public:
    /// Reads a DXF file of any version, text or binary. All or nothing: what is wrong in the structure is told with its
    /// line, values are not looked at. Costs one pass over the bytes, which are kept; those of a binary file are made
    /// text, which is kept instead.
    ///
    /// A DWG file is made text as well, as far as it can be read: see readingNotes().
    static ReadResult fromBytes(QByteArray bytes);
    /// As fromBytes(), for a regular file of up to 4 GB; remembers its path. What the file is, is told from its
    /// content, not from its name. Errors of opening begin with the path.
    static ReadResult open(const QString &path);
    ~Drawing();
    Drawing(const Drawing &) = delete;
    Drawing &operator=(const Drawing &) = delete;

    /// Where the drawing was read from or last saved to; empty for a new one.
    QString path() const;
    void setPath(const QString &path);
    /// What the file said when it was read: writing $ACADVER does not change it.
    Version version() const;
    /// How texts are spelt in the file's bytes, fixed with the version.
    const TextCodec &codec() const;
    /// What save() writes: the form of the file that was read, text for a new drawing. Asking for the other one is no
    /// change of the drawing.
    FileForm form() const;
    void setForm(FileForm form);
    /// Whether the file that was read is a binary one.
    bool isBinaryFile() const;
    /// Whether the drawing's file is a DWG file. The drawing is written as DXF, so not in its place.
    bool isFromDwg() const;
    /// What of its file is not in the drawing, or is doubtful.
    const ReadingNotes &readingNotes() const;
    /// Another file is the drawing's own, which holds all of it as DXF.
    void leaveDwg();
    /// What a drawing in the binary form is written with: how its file was, or how such files of its version are.
    const BinaryOrigin &binaryOrigin() const;
    /// What the file was read as: its text. Views into it are what KeptTag::place counts from.
    QByteArrayView fileText() const;
    /// The whole drawing as the text of a file, whatever its form; forEachFilePiece() gives the file. Until the first
    /// change this is what was read, shared and not copied; later it costs a copy of everything.
    QByteArray toBytes() const;
    /// The same in pieces, in order and without copying them; a drawing nobody changed is one piece. Stops, and returns
    /// false, when `take` does. The views hold until the drawing is destroyed.
    bool forEachPiece(const std::function<bool(QByteArrayView)> &take) const;
    /// The tags that a record has in the file. Groups, sort tables, layouts, block records and leaders go on naming
    /// what was erased, as it may come back; what is written leaves these references out.
    std::vector<Tag> tagsForFile(RecordId id) const;

    // The parts. They belong to the drawing and live as long as it does.
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
    /// Whether the record was erased and can be brought back with setErased(). Any number may be asked about.
    bool isErased(RecordId id) const;
    /// All ids ever given out are below this number.
    quint32 idLimit() const;

    // What a record is. The id must be one this drawing gave out; erased records can be asked as well.
    RecordKind kind(RecordId id) const;
    /// The section it stands in; None for the preamble and what is behind the last section.
    Section section(RecordId id) const;
    /// Value of group 0 ("LINE"), of group 9 for a header variable; without blanks around. A view into the drawing.
    QByteArrayView typeName(RecordId id) const;
    /// Compares letter by letter with what the file has.
    bool isType(RecordId id, QByteArrayView type) const { return typeName(id) == type; }
    /// Null where the file gives the record none, as R12 files may. Constant cost.
    Handle handle(RecordId id) const;
    /// The owner's handle (group 330 before the first subclass marker); null where the file has none.
    Handle owner(RecordId id) const;
    /// Costs a pass over the record's bytes, as all that is made of it: keep the list where more than one tag is
    /// wanted.
    TagList tags(RecordId id) const;
    /// The same tags one after another, without a list of them: for one look at very many records.
    TagReader tagReader(RecordId id) const;
    /// The tag that tags(id).find(code) finds. Goes through the record up to there.
    std::optional<Tag> findTag(RecordId id, int code) const;
    /// tags(id).fields(): the record as a typed list that does not depend on the drawing any more.
    FieldList fields(RecordId id) const;
    /// The record's bytes as they are written. They stay readable while the drawing lives, but a change of the record
    /// goes into others.
    QByteArrayView bytes(RecordId id) const;

    /// The record with this handle, erased or not; noRecord when there is none, and for the null handle. Of several
    /// with the same handle one. Constant cost.
    RecordId find(Handle handle) const;

    // Order. Only records that are alive are given; an erased one may be asked for its neighbours.
    /// The record in whose range this one stands: the POLYLINE or INSERT of a child, the BLOCK of its entities, the
    /// TABLE of its entries, the SECTION of everything else; noRecord for sections.
    RecordId parent(RecordId id) const;
    /// In file order, across everything; noRecord beyond both ends.
    RecordId first() const;
    RecordId next(RecordId id) const;
    RecordId previous(RecordId id) const;
    /// Among the records with the same parent, end markers (ENDSEC, ENDTAB, ENDBLK, SEQEND) left out; noRecord when
    /// there is none. A step costs no more than the parts of `id`.
    RecordId firstChild(RecordId parent) const;
    RecordId nextSibling(RecordId id) const;
    /// All of them, in file order: the list to go through when they are changed on the way.
    std::vector<RecordId> children(RecordId parent) const;
    /// ENDSEC, ENDTAB, ENDBLK or SEQEND of such a record, alive or erased with it; noRecord when it has none.
    RecordId endOf(RecordId parent) const;
    /// The first section of this kind, noRecord when the file has none. Costs a step for each section in front.
    RecordId sectionRecord(Section section) const;

    // Changes. Each is journaled and told to the observers.
    /// Gives a record other tags. The type and handle stay as they are, whatever `fields` say about groups 0 and 5 (105
    /// for a DIMSTYLE), and codes that no record may have are dropped. Tags that are the same as before keep their
    /// bytes. False when nothing changed, and for a record that is not alive.
    bool setFields(RecordId id, const FieldList &fields);
    /// Takes a record out of the drawing or brings it back, with its children and end marker, and for a TABLE, BLOCK or
    /// SECTION all within. False when it was so already or the record was never in the drawing as it now is.
    bool setErased(RecordId id, bool erased);
    /// Adds a record directly behind `after`, as a part of `parent`; from noRecord as the last before its end. Writes
    /// exactly the fields given; only the handle index is kept. Callers wanting a correct drawing use the parts
    /// instead.
    RecordId insert(RecordId after, RecordId parent, RecordKind kind, const FieldList &fields);
    /// The next free handle, and $HANDSEED moved on, which is a change as any other. Null in a file without handles
    /// ($HANDLING 0 in R12).
    Handle takeHandle();

    /// Observers are not owned and are told in the order they were added. They must be removed before they are gone.
    void addObserver(DrawingObserver *observer);
    /// Within a call to an observer the one behind it may miss that change.
    void removeObserver(DrawingObserver *observer);
    /// Grows with every change of any kind, undo included, and is 0 only while the drawing is as it was read. For
    /// caches.
    quint64 revision() const;
    /// As revision(), for changes in one section only.
    quint64 revision(Section section) const;
    /// As revision(Section), but only what can change names and places counts: not entities, not values of variables.
    quint64 structureRevision(Section section) const;

private:
    friend class Journal;
    explicit Drawing(IndexedFile &&file);
    static ReadResult fromDxf(QByteArray bytes);
    static ReadResult fromDwg(QByteArrayView bytes);

    bool isInside(RecordId id, RecordId container) const;
    void link(RecordId id, RecordId after);
    /// All changes come through here: it journals, counts and tells.
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
