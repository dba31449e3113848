#include "host/drawing/file/RecoveryReport.h"

#include "host/drawing/tags/DrawingTexts.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

QString placeOf(const RecoveryStep &step)
{
    if (step.first == 0)
        return {};
    const QString unit = step.unit == RecoveryStep::Unit::Line  ? u"line"_s
                         : step.unit == RecoveryStep::Unit::Tag ? u"tag"_s
                                                                : u"byte"_s;
    return step.first == step.last ? u"%1 %2: "_s.arg(unit).arg(step.first)
                                   : u"%1s %2-%3: "_s.arg(unit).arg(step.first).arg(step.last);
}

QString doneText(RecoveryStep::Done done)
{
    return done == RecoveryStep::Done::Dropped  ? u"dropped"_s
           : done == RecoveryStep::Done::Mended ? u"mended"_s
                                                : u"added"_s;
}

} // namespace

QString RecoveryStep::message() const
{
    const QString number = count > 1 ? DrawingTexts::tr("%1 times ").arg(count) : QString();
    return u"%1%2%3 %4: %5"_s.arg(placeOf(*this), number, what, doneText(done), why);
}

void RecoveryReport::add(const RecoveryStep &step)
{
    RecoveryStep *last = m_steps.empty() ? nullptr : &m_steps.back();
    const bool goesOn = last && last->done == step.done && last->unit == step.unit && last->what == step.what &&
                        last->why == step.why && (step.first == 0) == (last->first == 0) && step.first >= last->first;
    if (!goesOn) {
        m_steps.push_back(step);
        return;
    }
    last->last = step.last;
    last->count += step.count;
}

void RecoveryReport::countInTags()
{
    for (RecoveryStep &step : m_steps) {
        step.unit = RecoveryStep::Unit::Tag;
        step.first = (step.first + 1) / 2;
        step.last = (step.last + 1) / 2;
    }
}

void RecoveryReport::putInFront(const RecoveryReport &other)
{
    m_steps.insert(m_steps.begin(), other.m_steps.begin(), other.m_steps.end());
}

QMap<QString, qint64> RecoveryReport::dropped() const
{
    QMap<QString, qint64> types;
    for (const RecoveryStep &step : m_steps) {
        if (step.done == RecoveryStep::Done::Dropped)
            types[step.what] += step.count;
    }
    return types;
}

int RecoveryReport::count(RecoveryStep::Done done) const
{
    int sum = 0;
    for (const RecoveryStep &step : m_steps)
        sum += step.done == done ? step.count : 0;
    return sum;
}

QStringList RecoveryReport::lines(qsizetype limit) const
{
    QStringList texts;
    for (const RecoveryStep &step : m_steps) {
        if (texts.size() == limit) {
            texts.append(DrawingTexts::tr("and %1 more").arg(qsizetype(m_steps.size()) - limit));
            break;
        }
        texts.append(step.message());
    }
    if (m_steps.empty())
        return {DrawingTexts::tr("the file is sound, nothing was dropped")};
    QStringList types;
    const QMap<QString, qint64> all = dropped();
    for (auto type = all.begin(); type != all.end(); ++type)
        types.append(u"%1 %2"_s.arg(type.key()).arg(type.value()));
    const QString list = types.isEmpty() ? QString() : u" (%1)"_s.arg(types.join(u", "_s));
    texts.append(DrawingTexts::tr("recovered: %1 dropped%2, %3 mended, %4 added")
                     .arg(count(RecoveryStep::Done::Dropped))
                     .arg(list)
                     .arg(count(RecoveryStep::Done::Mended))
                     .arg(count(RecoveryStep::Done::Added)));
    return texts;
}

} // namespace host::drawing
