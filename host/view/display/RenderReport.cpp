#include "host/view/display/RenderReport.h"

#include <QCoreApplication>
#include <QStringList>

namespace host::view {

using namespace Qt::StringLiterals;

namespace {

void addCounts(QStringList &parts, const QMap<QString, qint64> &counts, qint64 total, const QString &word)
{
    if (total == 0)
        return;
    QStringList types;
    for (auto it = counts.begin(); it != counts.end(); ++it)
        types.append(u"%1 %2"_s.arg(it.key()).arg(it.value()));
    parts.append(u"%1 %2 (%3)"_s.arg(total).arg(word, types.join(u", "_s)));
}

qint64 total(const QMap<QString, qint64> &counts)
{
    qint64 sum = 0;
    for (const qint64 count : counts)
        sum += count;
    return sum;
}

void mergeCounts(QMap<QString, qint64> &counts, const QMap<QString, qint64> &others)
{
    for (auto it = others.begin(); it != others.end(); ++it)
        counts[it.key()] += it.value();
}

} // namespace

void RenderReport::add(const RenderReport &other)
{
    drawn += other.drawn;
    hidden += other.hidden;
    mergeCounts(simplified, other.simplified);
    mergeCounts(skipped, other.skipped);
    isCutShort |= other.isCutShort;
}

qint64 RenderReport::skippedCount() const
{
    return total(skipped);
}

QString RenderReport::summary() const
{
    QStringList parts{QCoreApplication::translate("RenderReport", "%1 drawn").arg(drawn)};
    if (hidden > 0)
        parts.append(QCoreApplication::translate("RenderReport", "%1 invisible").arg(hidden));
    addCounts(parts, simplified, total(simplified), QCoreApplication::translate("RenderReport", "simplified"));
    addCounts(parts, skipped, skippedCount(), QCoreApplication::translate("RenderReport", "skipped"));
    return parts.join(u", "_s);
}

QString RenderReport::missing() const
{
    QStringList parts;
    addCounts(parts, skipped, skippedCount(), QCoreApplication::translate("RenderReport", "not drawn"));
    addCounts(parts, simplified, total(simplified), QCoreApplication::translate("RenderReport", "drawn in part"));
    if (isCutShort)
        parts.append(QCoreApplication::translate("RenderReport", "cut short: there is more than is drawn in one go"));
    return parts.join(u", "_s);
}

} // namespace host::view
