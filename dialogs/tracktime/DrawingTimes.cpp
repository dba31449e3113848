#include "dialogs/tracktime/DrawingTimes.h"

#include "platform/kernel/CKvUtils.h"

#include <QCollator>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>

#include <algorithm>
#include <numeric>

using ortakit::EditingTime;

namespace {

bool isDrawingName(const QString &fileName)
{
    return fileName.endsWith(QLatin1String(".dwg"), Qt::CaseInsensitive) ||
           fileName.endsWith(QLatin1String(".dxf"), Qt::CaseInsensitive);
}

/// `value` where it is another than `stored`.
template <class Value>
std::optional<Value> differing(Value value, Value stored)
{
    return value == stored ? std::nullopt : std::optional(value);
}

/// Numbers from 0 on, sorted by what `key` gives for each.
template <class Key>
QList<int> sortedNumbers(qsizetype count, Qt::SortOrder order, Key key)
{
    using Keyed = std::pair<decltype(key(0)), int>;
    std::vector<Keyed> keyed;
    keyed.reserve(std::size_t(count));
    for (int number = 0; number < int(count); ++number)
        keyed.emplace_back(key(number), number);
    std::stable_sort(keyed.begin(), keyed.end(), [order](const Keyed &one, const Keyed &other) {
        return order == Qt::AscendingOrder ? one.first < other.first : other.first < one.first;
    });
    QList<int> numbers;
    numbers.reserve(count);
    for (const Keyed &entry : keyed)
        numbers.append(entry.second);
    return numbers;
}

} // namespace

EditingTime DrawingTime::time() const
{
    return change.applied(stored.value_or(EditingTime()), 0);
}

void DrawingTime::setTracked(bool isTracked, qint32 limitOfNew)
{
    if (!isReadable())
        return;
    change.isTracked = differing(isTracked, stored.value_or(EditingTime()).isTracked);
    if (!stored)
        change.idleLimitMinutes = isTracked ? std::optional(limitOfNew) : std::nullopt;
}

void DrawingTime::setIdleLimit(qint32 minutes)
{
    if (hasLimit())
        change.idleLimitMinutes = stored ? differing(minutes, stored->idleLimitMinutes) : std::optional(minutes);
}

bool findDrawings(const QString &folder, bool withSubFolders, const std::function<bool()> &goesOn, QStringList &paths)
{
    QDirIterator entries(folder, QDir::Files,
                         withSubFolders ? QDirIterator::Subdirectories : QDirIterator::NoIteratorFlags);
    while (entries.hasNext()) {
        if (!goesOn())
            return false;
        const QString path = entries.next();
        if (isDrawingName(entries.fileName()))
            paths.append(path);
    }
    return true;
}

DrawingTimeReader::DrawingTimeReader(const QString &folder, const QList<OpenDrawings::Drawing> &open)
    : m_folder(folder), m_open(open)
{
    for (OpenDrawings::Drawing &drawing : m_open)
        drawing.path = QFileInfo(drawing.path).canonicalFilePath();
}

DrawingTime DrawingTimeReader::read(const QString &path) const
{
    DrawingTime found{.path = path, .name = QDir(m_folder).relativeFilePath(path)};
    const QString canonical = QFileInfo(path).canonicalFilePath();
    const auto open = std::find_if(m_open.cbegin(), m_open.cend(),
                                   [&canonical](const auto &drawing) { return drawing.path == canonical; });
    if (open == m_open.cend()) {
        found.stored = ortakit::editingTimeFromChain(
            CKvUtils::drawingRecord(path, ortakit::editingTimeRecordName(), &found.problem).get());
        return found;
    }
    found.isOpen = true;
    if (open->time != EditingTime())
        found.stored = open->time;
    return found;
}

QString writeToFile(const DrawingTime &drawing)
{
    const OdString name = ortakit::editingTimeRecordName();
    const EditingTime before =
        ortakit::editingTimeFromChain(CKvUtils::drawingRecord(drawing.path, name).get()).value_or(EditingTime());
    const EditingTime after = drawing.change.applied(before, QDateTime::currentMSecsSinceEpoch());
    OdString error;
    CKvUtils::setDrawingRecord(drawing.path, name, ortakit::editingTimeChain(after).get(), &error);
    return error;
}

QList<int> sortedBy(TimeColumn column, Qt::SortOrder order, const QList<DrawingTime> &drawings)
{
    const QCollator collator;
    switch (column) {
    case TimeColumn::Tracked:
        return sortedNumbers(drawings.size(), order, [&drawings](int number) {
            const EditingTime time = drawings[number].time();
            return std::pair(!time.isTracked, time.idleLimitMinutes);
        });
    case TimeColumn::Hours:
        return sortedNumbers(drawings.size(), order, [&drawings](int number) { return drawings[number].time().hours; });
    case TimeColumn::Name:
        break;
    }
    return sortedNumbers(drawings.size(), order, [&drawings, &collator](int number) {
        return collator.sortKey(drawings[number].name.toCaseFolded());
    });
}

QString hoursText(double hours)
{
    return QString::number(hours, 'f', 2);
}
