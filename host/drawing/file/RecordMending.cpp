#include "host/drawing/file/RecordMending.h"

#include "host/drawing/file/RecordTypes.h"
#include "host/drawing/tags/DrawingTexts.h"
#include "host/drawing/tags/GroupCodes.h"
#include "host/drawing/tags/MarkerLines.h"

#include <QHash>
#include <QSet>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

/// Goes through the tags of a record.
template <typename Take>
void forEachFoundTag(const FoundRecord &record, Take take)
{
    TagReader reader(record.bytes, record.lineEnds);
    for (Tag tag; reader.read(tag);) {
        if (!take(tag))
            return;
    }
}

void noteMended(RecoveryReport &report, const FoundRecord &record, const QString &why)
{
    report.add({RecoveryStep::Done::Mended, RecoveryStep::Unit::Line, record.line, record.line,
                QString::fromLatin1(record.type), why});
}

void noteDropped(RecoveryReport &report, const FoundRecord &record, const QString &why)
{
    report.add({RecoveryStep::Done::Dropped, RecoveryStep::Unit::Line, record.line, record.line,
                QString::fromLatin1(record.type), why});
}

/// "AC1009": versions of all programs so far are four digits that begin with 1.
bool isVersion(QByteArrayView text)
{
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    return text.size() == 6 && text.first(3).compare(QByteArrayView("AC1"), Qt::CaseInsensitive) == 0 &&
           std::ranges::all_of(text.sliced(3), isDigit);
}

/// The name that a dictionary has among the named objects, told from the type of an object in it; null for others.
const char *knownListName(QByteArrayView type)
{
    static constexpr std::pair<const char *, const char *> names[] = {
        {"LAYOUT", "ACAD_LAYOUT"},         {"GROUP", "ACAD_GROUP"},
        {"MLINESTYLE", "ACAD_MLINESTYLE"}, {"MLEADERSTYLE", "ACAD_MLEADERSTYLE"},
        {"TABLESTYLE", "ACAD_TABLESTYLE"}, {"MATERIAL", "ACAD_MATERIAL"},
        {"SCALE", "ACAD_SCALELIST"},       {"VISUALSTYLE", "ACAD_VISUALSTYLE"},
        {"IMAGEDEF", "ACAD_IMAGE_DICT"},   {"ACDBPLACEHOLDER", "ACAD_PLOTSTYLENAME"}};
    for (const auto &[known, name] : names) {
        if (isWord(type, known))
            return name;
    }
    return nullptr;
}

Handle ownerOf(const FoundRecord &record)
{
    return Handle::fromText(firstValue(record, ownerCode)).value_or(Handle{});
}

bool isFoundDictionary(const FoundRecord &record)
{
    return isWord(record.type, "DICTIONARY") && !record.isVariable;
}

/// Group codes and handles of those dictionaries whose names are known from what they own; `root` becomes what owns
/// them.
QByteArray knownEntries(const std::vector<FoundRecord> &records, quint64 &root)
{
    QHash<quint64, const FoundRecord *> dictionaries;
    for (const FoundRecord &record : records) {
        if (isFoundDictionary(record) && record.handle != 0)
            dictionaries.insert(record.handle, &record);
    }
    QByteArray entries;
    QSet<QByteArray> named;
    for (const FoundRecord &record : records) {
        const char *name = record.isVariable ? nullptr : knownListName(record.type);
        const FoundRecord *owner = name ? dictionaries.value(ownerOf(record).value) : nullptr;
        if (!owner || named.contains(name) || dictionaries.contains(ownerOf(*owner).value))
            continue;
        named.insert(name);
        root = root == 0 ? ownerOf(*owner).value : root;
        entries += QByteArray("  3\n") + name + "\n350\n" + Handle{owner->handle}.toHex() + '\n';
    }
    return entries;
}

/// The record with that handle in place of its own, or behind its type.
QByteArray withHandle(const FoundRecord &record, Handle handle)
{
    const int handleCode = isWord(record.type, "DIMSTYLE") ? 105 : 5;
    QByteArray before;
    QByteArray after;
    bool isPlaced = false;
    bool isOwn = true;
    forEachFoundTag(record, [&](const Tag &tag) {
        isOwn = isOwn && tag.code != subclassCode;
        if (tag.code == handleCode && isOwn && !isPlaced) {
            isPlaced = true;
            before += after;
            after.clear();
            return true;
        }
        (before.isEmpty() ? before : after) += tag.whole;
        return true;
    });
    return before + QByteArray::number(handleCode).rightJustified(3, ' ') + '\n' + handle.toHex() + '\n' + after;
}

void replaceBytes(FoundRecord &record, const QByteArray &bytes, ByteArena &arena)
{
    record.bytes = QByteArrayView(arena.store(bytes), bytes.size());
}

/// A variable's name and its first value.
struct OneValue
{
    QByteArray bytes;
    bool hasValue = false;
    bool hasMore = false; ///< behind it stands what belongs to nothing
};

/// Points are one value of two or three tags.
OneValue oneValueOf(const FoundRecord &variable)
{
    constexpr int nameCode = 9;
    OneValue result;
    int expected = 0; // of the ordinate that comes next
    forEachFoundTag(variable, [&](const Tag &tag) {
        const bool isFirst = !result.hasValue && tag.code != nameCode && tag.code != commentCode;
        const bool isOrdinate = tag.code == expected && expected <= 30;
        if (isFirst || isOrdinate)
            expected = isFirst && tag.code != 10 ? 0 : tag.code + 10;
        const bool isKept = isFirst || isOrdinate || tag.code == nameCode || tag.code == commentCode;
        result.hasValue = result.hasValue || isFirst;
        result.hasMore = result.hasMore || !isKept;
        if (isKept)
            result.bytes += tag.whole;
        return true;
    });
    return result;
}

/// Those that more than one record has, in order.
std::vector<quint64> sharedHandles(const std::vector<FoundRecord> &records)
{
    std::vector<quint64> handles;
    for (const FoundRecord &record : records) {
        if (record.handle != 0)
            handles.push_back(record.handle);
    }
    std::ranges::sort(handles);
    std::vector<quint64> shared;
    for (size_t i = 1; i < handles.size(); ++i) {
        if (handles[i] == handles[i - 1] && (shared.empty() || shared.back() != handles[i]))
            shared.push_back(handles[i]);
    }
    return shared;
}

/// A text of another encoding in the file's, with its escapes.
QByteArray recoded(const Tag &tag, const TextCodec &from, const TextCodec &to)
{
    const qsizetype valueBegin = tag.value.begin() - tag.whole.begin();
    const QByteArrayView front = tag.whole.first(valueBegin);
    const QByteArrayView behind = tag.whole.sliced(valueBegin + tag.value.size());
    return front.toByteArray() + to.encode(from.decode(tag.value)) + behind.toByteArray();
}

} // namespace

QByteArrayView firstValue(const FoundRecord &record, int code)
{
    QByteArrayView value;
    forEachFoundTag(record, [&](const Tag &tag) {
        if (tag.code == code)
            value = tag.trimmed();
        return tag.code != code;
    });
    return value;
}

QByteArray withoutCode(const FoundRecord &record, int code)
{
    QByteArray bytes;
    forEachFoundTag(record, [&](const Tag &tag) {
        if (tag.code != code)
            bytes += tag.whole;
        return true;
    });
    return bytes;
}

FileTraits traitsOf(std::vector<FoundRecord> &records, QByteArrayView text, RecoveryReport &report)
{
    // Larger ones are a damage themselves, and would leave no room above.
    constexpr quint64 largestHandle = 0x7FFFFFFFFFFFFFFFULL;
    FileTraits traits;
    std::erase_if(records, [&report](const FoundRecord &record) {
        const bool isDamaged =
            record.isVariable && isWord(record.type, "$ACADVER") && !isVersion(firstValue(record, 1));
        if (isDamaged)
            noteDropped(report, record, DrawingTexts::tr("it names no version"));
        return isDamaged;
    });
    for (const FoundRecord &record : records) {
        if (record.handle < largestHandle)
            traits.nextHandle = std::max(traits.nextHandle, record.handle + 1);
        if (!record.isVariable)
            continue;
        if (isWord(record.type, "$ACADVER")) {
            traits.hasVersion = true;
            traits.version = versionNamed(QString::fromLatin1(firstValue(record, 1)));
        } else if (isWord(record.type, "$DWGCODEPAGE")) {
            traits.codePage = firstValue(record, 3).toByteArray();
        }
    }
    if (traits.hasVersion || findWord(text, "AcDbEntity") < 0)
        return traits;
    const bool isAscii = std::ranges::none_of(text, [](char c) { return static_cast<signed char>(c) < 0; });
    traits.version = !isAscii && text.isValidUtf8() ? Version::R2007 : Version::R2000;
    return traits;
}

void mendHandles(std::vector<FoundRecord> &records, FileTraits &traits, RecoveryReport &report, ByteArena &arena)
{
    const std::vector<quint64> shared = sharedHandles(records);
    std::vector<bool> isTaken(shared.size(), false);
    for (FoundRecord &record : records) {
        bool isAgain = false;
        if (record.handle != 0 && !shared.empty()) {
            const auto found = std::ranges::lower_bound(shared, record.handle);
            if (found != shared.end() && *found == record.handle) {
                const auto index = static_cast<size_t>(found - shared.begin());
                isAgain = isTaken[index];
                isTaken[index] = true;
            }
        }
        if (!isAgain && !record.lacksHandle)
            continue;
        const Handle handle = traits.takeHandle();
        replaceBytes(record, withHandle(record, handle), arena);
        noteMended(report, record,
                   isAgain ? DrawingTexts::tr("its handle was another record's, it has a new one")
                           : DrawingTexts::tr("its handle was none, it has a new one"));
        record.handle = handle.value;
    }
}

void dropNameless(std::vector<FoundRecord> &records, RecoveryReport &report)
{
    std::erase_if(records, [&report](const FoundRecord &record) {
        const bool isNameless = !record.isVariable && typeRole(record.type) == TypeRole::Symbol &&
                                !isWord(record.type, "STYLE") && firstValue(record, 2).isEmpty();
        if (isNameless)
            noteDropped(report, record, DrawingTexts::tr("it has no name"));
        return isNameless;
    });
}

void mendVariables(std::vector<FoundRecord> &records, RecoveryReport &report, ByteArena &arena)
{
    std::erase_if(records, [&](FoundRecord &record) {
        if (!record.isVariable)
            return false;
        const OneValue found = oneValueOf(record);
        if (!found.hasValue)
            noteDropped(report, record, DrawingTexts::tr("it has no value"));
        else if (found.hasMore)
            noteMended(report, record, DrawingTexts::tr("it has more than one value, of which the first was taken"));
        if (found.hasValue && found.hasMore)
            replaceBytes(record, found.bytes, arena);
        return !found.hasValue;
    });
}

void mendRoot(std::vector<FoundRecord> &records, FileTraits &traits, RecoveryReport &report, ByteArena &arena)
{
    const auto isObject = [](const FoundRecord &record) {
        return !record.isVariable && typeRole(record.type) == TypeRole::Object;
    };
    const auto isRoot = [](const FoundRecord &record) { return isFoundDictionary(record) && ownerOf(record).isNull(); };
    const auto first = std::ranges::find_if(records, isObject);
    if (traits.version < Version::R13 || first == records.end() || isRoot(*first))
        return;
    if (const auto other = std::find_if(first, records.end(), isRoot); other != records.end()) {
        noteMended(report, *other, DrawingTexts::tr("it leads to all other objects, and is the first of them now"));
        std::rotate(first, other, other + 1);
        return;
    }
    FoundRecord root;
    const QByteArray entries = knownEntries(records, root.handle);
    const bool isFree =
        root.handle != 0 && std::ranges::find(records, root.handle, &FoundRecord::handle) == records.end();
    root.handle = isFree ? root.handle : traits.takeHandle().value;
    root.line = first->line;
    const QByteArray owner = traits.version >= Version::R2000 ? "330\n0\n" : "";
    replaceBytes(
        root, "  0\nDICTIONARY\n  5\n" + Handle{root.handle}.toHex() + '\n' + owner + "100\nAcDbDictionary\n" + entries,
        arena);
    root.type = QByteArrayView(root.bytes).sliced(4, 10);
    report.add({RecoveryStep::Done::Added, RecoveryStep::Unit::Line, root.line, root.line, u"DICTIONARY"_s,
                DrawingTexts::tr("the one that leads to all other objects was lost")});
    records.insert(first, root);
}

void mendTexts(std::vector<FoundRecord> &records, const FileTraits &traits, RecoveryReport &report, ByteArena &arena)
{
    if (traits.version < Version::R2007)
        return;
    const TextCodec codePage = TextCodec::forCodePage(traits.codePage);
    const TextCodec utf8;
    for (FoundRecord &record : records) {
        if (record.bytes.isValidUtf8() || record.type.isEmpty())
            continue;
        QByteArray mended;
        forEachFoundTag(record, [&](const Tag &tag) {
            mended += tag.value.isValidUtf8() ? tag.whole.toByteArray() : recoded(tag, codePage, utf8);
            return true;
        });
        noteMended(
            report, record,
            DrawingTexts::tr("its text was no UTF-8 and was taken for %1").arg(QString::fromLatin1(traits.codePage)));
        replaceBytes(record, mended, arena);
    }
}

} // namespace host::drawing
