#include "host/drawing/file/Differences.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace host::drawing {

namespace {

QHash<QString, RecordId> recordsByName(const Drawing &drawing)
{
    QHash<QString, RecordId> records;
    for (const auto &[name, id] : namedRecords(drawing))
        records.insert(name, id);
    return records;
}

QString typeOf(const Drawing &drawing, RecordId id)
{
    return QString::fromUtf8(drawing.typeName(id));
}

} // namespace

std::vector<std::pair<QString, RecordId>> namedRecords(const Drawing &drawing)
{
    std::vector<std::pair<QString, RecordId>> records;
    QHash<QString, int> nameless;
    for (RecordId id = drawing.first(); isValid(id); id = drawing.next(id)) {
        const QString type = typeOf(drawing, id);
        QString name = drawing.handle(id).toString();
        if (drawing.kind(id) == RecordKind::Variable)
            name = type;
        else if (drawing.handle(id).isNull())
            name = u"%1 number %2"_s.arg(type).arg(++nameless[type]);
        records.emplace_back(name, id);
    }
    return records;
}

QStringList differences(const Drawing &before, const Drawing &after)
{
    const QHash<QString, RecordId> old = recordsByName(before);
    const QHash<QString, RecordId> now = recordsByName(after);
    QStringList found;
    for (auto record = old.cbegin(); record != old.cend(); ++record) {
        const auto same = now.constFind(record.key());
        if (same == now.cend())
            found.append(u'-' + typeOf(before, *record));
        else if (before.bytes(*record) != after.bytes(*same))
            found.append(u'~' + typeOf(before, *record));
    }
    for (auto record = now.cbegin(); record != now.cend(); ++record)
        if (!old.contains(record.key()))
            found.append(u'+' + typeOf(after, *record));
    found.sort();
    return found;
}

QStringList counted(const QStringList &sorted)
{
    QStringList texts;
    for (qsizetype i = 0; i < sorted.size();) {
        const qsizetype first = i;
        while (i < sorted.size() && sorted[i] == sorted[first])
            ++i;
        texts.append(QString::number(i - first) + sorted[first]);
    }
    return texts;
}

} // namespace host::drawing
