#include "host/app/batch/RecoveryTelling.h"

#include "files/qt/VisibleText.h"
#include "host/app/batch/BatchWork.h"
#include "host/app/workbench/ProgramOutput.h"

#include <QJsonArray>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

using RecoveryStep = drawing::RecoveryStep;

constexpr qsizetype longestList = 200;

QJsonObject stepObject(const RecoveryStep &step)
{
    const QString done = step.done == RecoveryStep::Done::Dropped  ? u"dropped"_s
                         : step.done == RecoveryStep::Done::Mended ? u"mended"_s
                                                                   : u"added"_s;
    QJsonObject object{{u"what"_s, step.what},
                       {u"done"_s, done},
                       {u"why"_s, step.why},
                       {u"count"_s, step.count},
                       {u"text"_s, step.message()}};
    if (step.first > 0) {
        const QString unit = step.unit == RecoveryStep::Unit::Line  ? u"line"_s
                             : step.unit == RecoveryStep::Unit::Tag ? u"tag"_s
                                                                    : u"byte"_s;
        object.insert(u"unit"_s, unit);
        object.insert(u"first"_s, step.first);
        object.insert(u"last"_s, step.last);
    }
    return object;
}

} // namespace

void tellRecovery(const QString &path, const drawing::RecoveryReport &report)
{
    for (const QString &line : report.lines(longestList))
        writeMessage(u"%1: %2"_s.arg(files::visibleText(native(path)), files::visibleText(line)));
}

void tellLost(const QString &path, const drawing::ReadingNotes &notes)
{
    if (!notes.hasFaults())
        return;
    writeMessage(u"%1: %2"_s.arg(files::visibleText(native(path)), notes.summary()));
    for (const QString &line : notes.faults(longestList))
        writeMessage(u"%1: %2"_s.arg(files::visibleText(native(path)), files::visibleText(line)));
}

void addUnread(QJsonObject &object, const drawing::ReadingNotes &notes)
{
    if (notes.lostObjects > 0)
        object.insert(u"unread"_s, notes.lostObjects);
    if (notes.lostParts > 0)
        object.insert(u"unreadParts"_s, notes.lostParts);
}

QJsonObject recoveryObject(const drawing::RecoveryReport &report)
{
    QJsonObject dropped;
    const QMap<QString, qint64> types = report.dropped();
    for (auto type = types.begin(); type != types.end(); ++type)
        dropped.insert(type.key(), type.value());
    QJsonArray steps;
    for (const RecoveryStep &step : report.steps())
        steps.append(stepObject(step));
    return {{u"dropped"_s, dropped},
            {u"mended"_s, report.count(RecoveryStep::Done::Mended)},
            {u"added"_s, report.count(RecoveryStep::Done::Added)},
            {u"steps"_s, steps}};
}

} // namespace host::app
