#include "host/drawing/file/ObjectsText.h"

#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/tags/GroupCodes.h"
#include "host/drawing/tags/MarkerLines.h"
#include "host/drawing/tags/TagList.h"

namespace host::drawing {

namespace {

const Finding doubt{};
const Finding noRecordThere{true};

/// The tags of the record that begins at `text`, up to the next record; empty when they are damaged or there is no next
/// record.
std::vector<Tag> recordTags(QByteArrayView text)
{
    std::vector<Tag> tags;
    TagReader reader(text, LineEnds::LineFeed);
    for (Tag tag; reader.read(tag);) {
        if (tag.code == 0 && !tags.empty())
            return tags;
        if (tag.code != commentCode)
            tags.push_back(tag);
    }
    return {};
}

/// Whether the text of a file stands for `name`; most are told apart without decoding them.
bool meansName(QByteArrayView value, QStringView name, const TextCodec &codec)
{
    const bool isPlain = std::none_of(value.begin(), value.end(),
                                      [](char c) { return c == '\\' || c == '^' || static_cast<signed char>(c) < 0; });
    return isPlain ? name.compare(QLatin1StringView(value), Qt::CaseInsensitive) == 0
                   : codec.decode(value).compare(name, Qt::CaseInsensitive) == 0;
}

/// The first entry of that name in a dictionary: the value that leads to its object. Null when there is none.
const Tag *findEntry(const std::vector<Tag> &tags, QStringView name, const TextCodec &codec)
{
    for (size_t i = 0; i + 1 < tags.size(); ++i) {
        if (tags[i].code == entryNameCode && Dictionaries::isReference(tags[i + 1].code) &&
            meansName(tags[i].value, name, codec))
            return &tags[i + 1];
    }
    return nullptr;
}

/// The start of the record with this handle right behind its type, "0, TYPE, 5, handle", when `digits` in `text` is
/// such a handle; -1 when not.
qsizetype recordStart(QByteArrayView text, QByteArrayView digits, qsizetype position)
{
    LinesBackward lines(text, lineEndFrom(text, position));
    if (!lines.takeWord(digits) || !lines.takeCode(5))
        return -1;
    const std::optional<QByteArrayView> type = lines.take();
    int code = 0;
    // A type that is a number might be the group code of another value.
    return type && !parseGroupCode(type->begin(), type->end(), code) && lines.takeCode(0) ? lines.begin() : -1;
}

/// The only record of the section with this handle, as most programs write it; -1 when it is not found so.
qsizetype findRecord(QByteArrayView section, QByteArrayView digits)
{
    const QByteArray line = '\n' + digits.toByteArray();
    qsizetype only = -1;
    for (qsizetype found = findWord(section, line); found >= 0; found = findWord(section, line, found + 1)) {
        const qsizetype start = recordStart(section, digits, found + 1);
        if (start >= 0 && only >= 0)
            return -1;
        only = std::max(only, start);
    }
    return only;
}

} // namespace

Finding findXrecord(QByteArrayView objects, const FileHead &head, QStringView name)
{
    const qsizetype sectionEnd = findRecordStart(objects, "ENDSEC");
    const std::vector<Tag> start = recordTags(objects);
    if (sectionEnd < 0 || start.empty())
        return doubt;
    const std::vector<Tag> root = recordTags(QByteArrayView(start.back().whole.end(), objects.end()));
    if (root.empty())
        return doubt;
    const Tag *entry = root.front().trimmed() == "DICTIONARY" ? findEntry(root, name, head.codec) : nullptr;
    if (!entry)
        return noRecordThere;
    if (entry->handle().value_or(Handle{}).isNull())
        return doubt;
    const qsizetype position = findRecord(objects.first(sectionEnd), entry->trimmed());
    const std::vector<Tag> record = position < 0 ? std::vector<Tag>() : recordTags(objects.sliced(position));
    // Of something else than an extension record the whole file may know another one with this handle.
    if (record.empty() || record.front().trimmed() != "XRECORD")
        return doubt;
    return {true, Dictionaries::xrecordData(TagList(record, head.codec).fields(), head.version)};
}

} // namespace host::drawing
