#include "host/drawing/records/Drawing.h"

#include "files/qt/Files.h"
#include "host/drawing/dwg/DwgText.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/DrawingPrivate.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/JournalPrivate.h"
#include "host/drawing/records/Layouts.h"
#include "host/drawing/records/Structure.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/tags/DrawingTexts.h"
#include "host/drawing/tags/GroupCodes.h"
#include "host/drawing/tags/TagReader.h"

#include <QFileInfo>

namespace host::drawing {

using namespace Qt::StringLiterals;

Version versionNamed(const QString &name)
{
    bool isNumber = false;
    const int number = name.trimmed().mid(2).toInt(&isNumber);
    return isNumber && name.startsWith(u"AC", Qt::CaseInsensitive) ? static_cast<Version>(number) : Version::R12;
}

Drawing::Drawing(IndexedFile &&file)
    : d(std::make_unique<Private>()), m_journal(std::make_unique<Journal>(*this)),
      m_header(std::make_unique<HeaderVariables>(*this)), m_tables(std::make_unique<Tables>(*this)),
      m_blocks(std::make_unique<Blocks>(*this)), m_entities(std::make_unique<Entities>(*this)),
      m_dictionaries(std::make_unique<Dictionaries>(*this)), m_layouts(std::make_unique<Layouts>(*this))
{
    d->file = std::move(file);
    d->version = versionNamed(m_header->text(u"$ACADVER"));
    if (d->version < Version::R2007)
        d->codec = TextCodec::forCodePage(m_header->text(u"$DWGCODEPAGE").toLatin1());
    d->form = d->file.binary ? FileForm::Binary : FileForm::Text;
    d->binary.codeSize = d->version < Version::R13 ? CodeSize::One : CodeSize::Two;
    if (d->file.binary)
        d->binary = std::exchange(*d->file.binary, {});
    for (quint32 i = 0; i < d->records().size(); ++i)
        d->nextHandle = std::max(d->nextHandle, d->entry(RecordId(i)).handle + 1);
}

Drawing::~Drawing() = default;

ReadResult Drawing::fromBytes(QByteArray bytes)
{
    return isDwg(bytes) ? fromDwg(bytes) : fromDxf(std::move(bytes));
}

ReadResult Drawing::fromDwg(QByteArrayView bytes)
{
    DwgText dwg = textOfDwg(bytes);
    if (!dwg)
        return {nullptr, {0, dwg.error}};
    ReadResult result = fromDxf(std::move(dwg.text));
    if (result) {
        result.drawing->d->isFromDwg = true;
        result.drawing->d->notes = std::move(dwg.notes);
    } else {
        // The line is none of the file.
        result.error = {0, DrawingTexts::tr("this DWG file cannot be read: %1").arg(result.error.text)};
    }
    return result;
}

ReadResult Drawing::fromDxf(QByteArray bytes)
{
    IndexResult indexed = indexFile(std::move(bytes));
    if (!indexed.file)
        return {nullptr, indexed.error, indexed.isDamaged};
    return {std::unique_ptr<Drawing>(new Drawing(std::move(*indexed.file))), {}};
}

ReadResult Drawing::open(const QString &path)
{
    // Places in the file are kept in 32 bits.
    constexpr qint64 largest = 0xFFFFFFFELL;
    if (const QFileInfo info(path); info.isDir())
        return {nullptr, {0, DrawingTexts::tr("%1: this is a folder").arg(path)}};
    else if (info.isFile() && info.size() > largest)
        return {nullptr, {0, DrawingTexts::tr("%1: the file is larger than 4 GB").arg(path)}};
    files::WholeBytes file = files::readWhole(path, largest);
    if (!file)
        return {nullptr, {0, u"%1: %2"_s.arg(path, file.reason)}};
    ReadResult result = fromBytes(std::move(file.bytes));
    if (result)
        result.drawing->setPath(path);
    return result;
}

QString Drawing::path() const
{
    return d->path;
}

void Drawing::setPath(const QString &path)
{
    d->path = path;
}

Version Drawing::version() const
{
    return d->version;
}

const TextCodec &Drawing::codec() const
{
    return d->codec;
}

FileForm Drawing::form() const
{
    return d->form;
}

void Drawing::setForm(FileForm form)
{
    d->form = form;
}

bool Drawing::isBinaryFile() const
{
    return d->file.binary.has_value();
}

bool Drawing::isFromDwg() const
{
    return d->isFromDwg;
}

const ReadingNotes &Drawing::readingNotes() const
{
    return d->notes;
}

void Drawing::leaveDwg()
{
    d->isFromDwg = false;
    d->notes = {};
}

const BinaryOrigin &Drawing::binaryOrigin() const
{
    return d->binary;
}

QByteArrayView Drawing::fileText() const
{
    return d->file.bytes;
}

bool Drawing::isAlive(RecordId id) const
{
    return quint32(id) < d->file.records.size() && d->entry(id).flags == 0;
}

bool Drawing::isErased(RecordId id) const
{
    return quint32(id) < d->file.records.size() && d->entry(id).flags == RecordState::Erased;
}

quint32 Drawing::idLimit() const
{
    return d->file.records.size();
}

RecordKind Drawing::kind(RecordId id) const
{
    return d->entry(id).kind;
}

Section Drawing::section(RecordId id) const
{
    return d->entry(id).section;
}

QByteArrayView Drawing::typeName(RecordId id) const
{
    Tag tag;
    return kind(id) != RecordKind::Preamble && tagReader(id).read(tag) ? tag.trimmed() : QByteArrayView();
}

Handle Drawing::handle(RecordId id) const
{
    return {d->entry(id).handle};
}

Handle Drawing::owner(RecordId id) const
{
    TagReader reader = tagReader(id);
    Tag tag;
    bool isInGroup = false;
    while (reader.read(tag) && tag.code != subclassCode) {
        if (tag.code == 102)
            isInGroup = tag.trimmed().startsWith('{');
        else if (tag.code == ownerCode && !isInGroup)
            return tag.handle().value_or(Handle{});
    }
    return {};
}

TagList Drawing::tags(RecordId id) const
{
    std::vector<Tag> tags;
    tags.reserve(std::min<size_t>(d->entry(id).length / 8 + 1, 64));
    TagReader reader = tagReader(id);
    for (Tag tag; reader.read(tag);)
        tags.push_back(tag);
    return {std::move(tags), d->codec};
}

TagReader Drawing::tagReader(RecordId id) const
{
    const RecordEntry &entry = d->entry(id);
    return {entry.kind == RecordKind::Tail ? QByteArrayView() : entry.bytes(), d->file.lineEnds};
}

std::optional<Tag> Drawing::findTag(RecordId id, int code) const
{
    TagReader reader = tagReader(id);
    BraceDepth braces;
    bool isOwn = true;
    for (Tag tag; reader.read(tag);) {
        isOwn = isOwn && !endsOwnGroups(tag);
        if (!isOwn && code < firstXdataCode)
            break;
        if (!braces.isInside(tag) && tag.code == code)
            return tag;
    }
    return std::nullopt;
}

FieldList Drawing::fields(RecordId id) const
{
    return tags(id).fields();
}

QByteArrayView Drawing::bytes(RecordId id) const
{
    return d->entry(id).bytes();
}

RecordId Drawing::find(Handle handle) const
{
    const RecordId id = d->file.handles.find(handle.value, d->file.records);
    return isValid(id) && (d->entry(id).flags & RecordState::Absent) == 0 ? id : noRecord;
}

quint64 Drawing::revision() const
{
    return d->revision;
}

quint64 Drawing::revision(Section section) const
{
    return d->revisions[static_cast<size_t>(section)];
}

quint64 Drawing::structureRevision(Section section) const
{
    return d->structureRevisions[static_cast<size_t>(section)];
}

} // namespace host::drawing
