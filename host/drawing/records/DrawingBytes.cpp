// What a drawing is as a file: the bytes of its records, less what they say of records that are gone.

#include "host/drawing/records/DrawingPrivate.h"
#include "host/drawing/records/SortTable.h"

namespace host::drawing {

namespace {

constexpr int memberCode = 340;     ///< of a group
constexpr int sortedCode = 331;     ///< of a sort table; the handle that it is sorted as (5) follows
constexpr int insertCode = 331;     ///< of a block: where it is inserted
constexpr int viewportCode = 331;   ///< of a layout: which one was worked in last
constexpr int annotationCode = 340; ///< of a leader: the text that it leads to

/// Only these name entities that need not know of it. They go on naming erased ones, which may come back. 0 for
/// others.
int listingCode(RecordKind kind, QByteArrayView type)
{
    if (kind == RecordKind::TableEntry)
        return type == "BLOCK_RECORD" ? insertCode : 0;
    if (kind == RecordKind::Entity)
        return type == "LEADER" ? annotationCode : 0;
    if (kind != RecordKind::Object)
        return 0;
    if (type == "LAYOUT")
        return viewportCode;
    return type == "GROUP" ? memberCode : type == "SORTENTSTABLE" ? sortedCode : 0;
}

/// Whether the record may be one of these, told by its first bytes: of a million records few are looked at any closer,
/// for a drawing that is open is copied while somebody draws in it.
bool mayList(const RecordEntry &entry)
{
    const QByteArrayView bytes = entry.bytes();
    constexpr qsizetype longestCode = 16; // "  0", with a generous margin
    const qsizetype line = bytes.first(std::min(bytes.size(), longestCode)).indexOf('\n');
    if (line < 0)
        return true;
    const QByteArrayView type = bytes.sliced(line + 1);
    switch (entry.kind) {
    case RecordKind::Entity:
        return type.startsWith("LEADER") || type.isEmpty() || type.front() <= ' '; // blanks do not count
    case RecordKind::TableEntry:
    case RecordKind::Object:
        return true;
    default:
        return false;
    }
}

bool isGone(const Drawing &drawing, const Tag &tag)
{
    const RecordId record = drawing.find(tag.handle().value_or(Handle{}));
    return isValid(record) && !drawing.isAlive(record);
}

/// Puts views together that lie behind each other.
class JoinedPieces
{
public:
    explicit JoinedPieces(const std::function<bool(QByteArrayView)> &take) : m_take(take) {}

    bool add(QByteArrayView bytes)
    {
        if (m_piece.end() == bytes.begin()) {
            m_piece = QByteArrayView(m_piece.begin(), bytes.end());
            return true;
        }
        return flush() && (m_piece = bytes, true);
    }
    bool flush() const { return m_piece.isEmpty() || m_take(m_piece); }

private:
    const std::function<bool(QByteArrayView)> &m_take;
    QByteArrayView m_piece;
};

} // namespace

std::vector<Tag> Drawing::tagsForFile(RecordId id) const
{
    const TagList all = tags(id);
    std::vector<Tag> kept(all.begin(), all.end());
    const int listing = listingCode(kind(id), typeName(id));
    if (listing == 0)
        return kept;
    bool isPairGone = false;
    std::erase_if(kept, [&](const Tag &tag) {
        const bool isSecond = isPairGone && listing == sortedCode && tag.code == sortHandleCode;
        isPairGone = tag.code == listing && isGone(*this, tag);
        return isPairGone || isSecond;
    });
    return kept;
}

QByteArray Drawing::toBytes() const
{
    if (d->revision == 0)
        return d->file.bytes;
    QByteArray bytes;
    bytes.reserve(d->file.bytes.size() + d->file.bytes.size() / 16);
    forEachPiece([&](QByteArrayView piece) {
        bytes += piece;
        return true;
    });
    return bytes;
}

bool Drawing::forEachPiece(const std::function<bool(QByteArrayView)> &take) const
{
    if (d->revision == 0)
        return take(d->file.bytes);
    JoinedPieces pieces(take);
    for (RecordId id = first(); isValid(id); id = next(id)) {
        const RecordEntry &entry = d->entry(id);
        if (!mayList(entry) || listingCode(entry.kind, typeName(id)) == 0) {
            if (!pieces.add(entry.bytes()))
                return false;
            continue;
        }
        for (const Tag &tag : tagsForFile(id))
            if (!pieces.add(tag.whole))
                return false;
    }
    return pieces.flush();
}

} // namespace host::drawing
