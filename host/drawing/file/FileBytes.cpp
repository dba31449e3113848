#include "host/drawing/file/FileBytes.h"

#include "host/drawing/tags/DrawingTexts.h"
#include "host/drawing/tags/GroupCodes.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

/// What is handed on at once.
constexpr qsizetype binaryPiece = 64 * 1024;

/// Turns the records of one drawing into bytes.
class BinaryRecords
{
public:
    explicit BinaryRecords(const Drawing &drawing)
        : m_drawing(drawing), m_origin(drawing.binaryOrigin()), m_text(drawing.fileText()), m_writer(m_origin.codeSize)
    {
    }

    BinaryWriter &writer() { return m_writer; }

    /// Why the record cannot be written; empty when it was.
    QString write(RecordId id)
    {
        if (m_drawing.kind(id) == RecordKind::Tail) {
            if (wasBinary())
                m_writer.writeRaw(m_drawing.bytes(id));
            return {};
        }
        for (const Tag &tag : m_drawing.tagsForFile(id)) {
            if (!writeTag(tag))
                return DrawingTexts::tr("%1 has a value for group %2 that the binary form has no room for: \"%3\"")
                    .arg(nameOf(id))
                    .arg(tag.code)
                    .arg(QString::fromLatin1(tag.value.first(std::min<qsizetype>(tag.value.size(), 40))));
        }
        return {};
    }

private:
    bool wasBinary() const { return m_drawing.isBinaryFile(); }

    bool writeTag(const Tag &tag)
    {
        if (const KeptTag *kept = keptAt(tag.whole.data())) {
            m_writer.writeRaw(kept->bytes);
            return true;
        }
        const bool isLeftOut = tag.code == commentCode && !wasBinary();
        return isLeftOut || m_writer.write(tag);
    }

    /// Null for what was changed, and for tags whose text tells all.
    const KeptTag *keptAt(const char *place) const
    {
        if (m_origin.kept.empty() || place < m_text.begin() || place >= m_text.end())
            return nullptr;
        const auto found = std::ranges::lower_bound(m_origin.kept, place - m_text.begin(), {}, &KeptTag::place);
        return found != m_origin.kept.end() && found->place == place - m_text.begin() ? &*found : nullptr;
    }

    QString nameOf(RecordId id) const
    {
        const QString type = QString::fromLatin1(m_drawing.typeName(id));
        const Handle handle = m_drawing.handle(id);
        return handle.isNull() ? type : DrawingTexts::tr("%1 with the handle %2").arg(type, handle.toString());
    }

    const Drawing &m_drawing;
    const BinaryOrigin &m_origin;
    QByteArrayView m_text;
    BinaryWriter m_writer;
};

} // namespace

QString forEachFilePiece(const Drawing &drawing, const std::function<bool(QByteArrayView)> &take)
{
    if (drawing.form() == FileForm::Text) {
        drawing.forEachPiece(take);
        return {};
    }
    BinaryRecords records(drawing);
    records.writer().writeRaw(binaryMark());
    for (RecordId id = drawing.first(); isValid(id); id = drawing.next(id)) {
        if (const QString problem = records.write(id); !problem.isEmpty())
            return problem;
        if (records.writer().size() >= binaryPiece && !take(records.writer().take()))
            return {};
    }
    take(records.writer().take());
    return {};
}

} // namespace host::drawing
