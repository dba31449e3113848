#include "host/drawing/comparing/DifferenceText.h"

#include "files/qt/VisibleText.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace host::drawing {

namespace {

constexpr int talliedLayerCode = 8;

/// "StartPoint" as "start point"; names in capitals alone stay.
QString inWords(const QString &name)
{
    if (name == name.toUpper())
        return name;
    QString words;
    for (const QChar c : name) {
        if (c.isUpper() && !words.isEmpty())
            words += u' ';
        words += c.toLower();
    }
    return words;
}

QString changedValue(const std::optional<FieldValue> &value)
{
    return value ? valueText(*value) : u"nothing"_s;
}

bool isDrawnKind(RecordKind kind)
{
    return kind == RecordKind::Entity || kind == RecordKind::Child;
}

} // namespace

Tallies tallied(const Comparison &comparison)
{
    Tallies tallies;
    for (const Difference &difference : comparison.differences) {
        const bool isOld = difference.fate == Fate::Removed;
        const Drawing &drawing = isOld ? comparison.pairs.before() : comparison.pairs.after();
        const RecordId record = isOld ? difference.before : difference.after;
        const bool isVariable = difference.kind == RecordKind::Variable;
        tallies.all.add(difference.fate);
        tallies.byType[isVariable ? u"header"_s : QString::fromUtf8(drawing.typeName(record))].add(difference.fate);
        if (isDrawnKind(difference.kind))
            tallies.byLayer[drawing.tags(record).text(talliedLayerCode, u"0"_s)].add(difference.fate);
    }
    return tallies;
}

QString changedName(RecordKind kind, QByteArrayView type, const FieldChange &change)
{
    const QString known = change.part.isEmpty() ? groupName(kind, type, change.code) : QString();
    QString name = known.isEmpty() ? u"group %1"_s.arg(change.code) : inWords(known);
    if (change.number > 0)
        name += u" #%1"_s.arg(change.number);
    return change.part.isEmpty() ? name : u"%1 of %2"_s.arg(name, files::visibleText(QString::fromUtf8(change.part)));
}

DifferenceText::DifferenceText(const Comparison &comparison)
    : m_comparison(comparison), m_before(comparison.pairs.before()), m_after(comparison.pairs.after())
{
}

QString DifferenceText::line(const Difference &difference) const
{
    if (difference.fate == Fate::Changed)
        return changedLine(difference);
    QString text = difference.fate == Fate::Added ? u"+ "_s + m_after.title(difference.after)
                                                  : u"- "_s + m_before.title(difference.before);
    if (difference.contents > 0)
        text += u", with %1 in it"_s.arg(difference.contents);
    return text;
}

QString DifferenceText::changedLine(const Difference &difference) const
{
    const QByteArrayView type = m_comparison.pairs.before().typeName(difference.before);
    const bool isVariable = difference.kind == RecordKind::Variable;
    QStringList changes;
    if (difference.isElsewhere)
        changes.append(
            u"from %1 to %2"_s.arg(files::visibleText(placeName(m_comparison.pairs.before(), difference.before)),
                                   files::visibleText(placeName(m_comparison.pairs.after(), difference.after))));
    for (const FieldChange &change : difference.changes) {
        const QString values = changedValue(change.before) + u" -> "_s + changedValue(change.after);
        changes.append(isVariable ? values : changedName(difference.kind, type, change) + u' ' + values);
    }
    if (difference.isReordered)
        changes.append(u"other place in the order"_s);
    return u"~ %1: %2"_s.arg(m_before.name(difference.before), changes.join(", "_L1));
}

} // namespace host::drawing
