#include "host/app/batch/inspecting/DifferenceObject.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

using drawing::Difference;
using drawing::Fate;
using drawing::FieldChange;
using drawing::RecordKind;

QString fateWord(Fate fate)
{
    return fate == Fate::Added ? u"added"_s : fate == Fate::Removed ? u"removed"_s : u"changed"_s;
}

QString kindWord(RecordKind kind)
{
    switch (kind) {
    case RecordKind::Variable:
        return u"variable"_s;
    case RecordKind::Class:
        return u"class"_s;
    case RecordKind::TableEntry:
        return u"table entry"_s;
    case RecordKind::Block:
        return u"block"_s;
    case RecordKind::Entity:
        return u"entity"_s;
    case RecordKind::Child:
        return u"part of entity"_s;
    case RecordKind::Object:
        return u"object"_s;
    default:
        return u"other"_s;
    }
}

bool isDrawnRecord(RecordKind kind)
{
    return kind == RecordKind::Entity || kind == RecordKind::Child;
}

QJsonObject changeObject(RecordKind kind, QByteArrayView type, const FieldChange &change)
{
    QJsonObject object{{u"group"_s, change.code}};
    if (const QString name = drawing::groupName(kind, type, change.code); !name.isEmpty() && change.part.isEmpty())
        object.insert(u"property"_s, name);
    if (!change.part.isEmpty())
        object.insert(u"of"_s, QString::fromUtf8(change.part));
    if (change.number > 0)
        object.insert(u"number"_s, change.number);
    if (change.before)
        object.insert(u"before"_s, valueObject(*change.before));
    if (change.after)
        object.insert(u"after"_s, valueObject(*change.after));
    return object;
}

QJsonObject differenceObject(const drawing::Comparison &comparison, const Difference &difference,
                             const drawing::DifferenceText &text)
{
    const bool isOld = difference.fate == Fate::Removed;
    const drawing::Drawing &drawing = isOld ? comparison.pairs.before() : comparison.pairs.after();
    const drawing::RecordId record = isOld ? difference.before : difference.after;
    QJsonObject object{{u"change"_s, fateWord(difference.fate)},
                       {u"kind"_s, kindWord(difference.kind)},
                       {u"type"_s, QString::fromUtf8(drawing.typeName(record))},
                       {u"name"_s, (isOld ? text.before() : text.after()).name(record)},
                       {u"text"_s, text.line(difference)}};
    if (!drawing.handle(record).isNull())
        object.insert(u"handle"_s, drawing.handle(record).toString());
    if (isDrawnRecord(difference.kind)) {
        object.insert(u"layer"_s, drawing.tags(record).text(8, u"0"_s));
        object.insert(u"place"_s, drawing::placeName(drawing, record));
    }
    if (difference.isElsewhere)
        object.insert(u"placeBefore"_s, drawing::placeName(comparison.pairs.before(), difference.before));
    if (difference.isReordered)
        object.insert(u"reordered"_s, true);
    if (difference.contents > 0)
        object.insert(u"contents"_s, difference.contents);
    QJsonArray changes;
    for (const FieldChange &change : difference.changes)
        changes.append(changeObject(difference.kind, drawing.typeName(record), change));
    if (!changes.isEmpty())
        object.insert(u"changes"_s, changes);
    return object;
}

QJsonObject tallyObject(const drawing::Tally &tally)
{
    return {{u"added"_s, tally.added}, {u"removed"_s, tally.removed}, {u"changed"_s, tally.changed}};
}

QJsonObject talliesObject(const QMap<QString, drawing::Tally> &tallies)
{
    QJsonObject object;
    for (const auto &[name, tally] : tallies.asKeyValueRange())
        object.insert(name, tallyObject(tally));
    return object;
}

} // namespace

QJsonValue valueObject(const drawing::FieldValue &value)
{
    if (const auto *number = std::get_if<double>(&value))
        return *number;
    if (const auto *whole = std::get_if<qint64>(&value))
        return *whole;
    if (const auto *text = std::get_if<QString>(&value))
        return *text;
    if (const auto *handle = std::get_if<drawing::Handle>(&value))
        return handle->toString();
    if (const auto *bytes = std::get_if<QByteArray>(&value))
        return QString::fromLatin1(bytes->toHex());
    const drawing::Vec3 point = drawing::Field{0, value}.point();
    return std::holds_alternative<drawing::Vec2>(value) ? QJsonArray{point.x, point.y}
                                                        : QJsonArray{point.x, point.y, point.z};
}

QJsonObject comparisonObject(const drawing::Comparison &comparison, const drawing::DifferenceText &text, bool isBrief)
{
    const drawing::Tallies tallies = drawing::tallied(comparison);
    QJsonObject totals = tallyObject(tallies.all);
    totals.insert(u"same"_s, comparison.same);
    const bool isByHandle = comparison.pairs.matching() == drawing::Matching::ByHandle;
    QJsonObject object{{u"equal"_s, comparison.differences.empty()},
                       {u"matchedBy"_s, isByHandle ? u"handle"_s : u"content"_s},
                       {u"totals"_s, totals},
                       {u"byType"_s, talliesObject(tallies.byType)},
                       {u"byLayer"_s, talliesObject(tallies.byLayer)}};
    if (isBrief)
        return object;
    QJsonArray differences;
    for (const Difference &difference : comparison.differences)
        differences.append(differenceObject(comparison, difference, text));
    object.insert(u"differences"_s, differences);
    return object;
}

} // namespace host::app
