#include "module/EditingTime.h"

#include "platform/db/OdDbDatabase.h"

#include <QDateTime>

namespace ortakit {

namespace {

Clock replacedClock = nullptr;

} // namespace

qint64 currentTime()
{
    return replacedClock ? replacedClock() : QDateTime::currentMSecsSinceEpoch();
}

void setClock(Clock clock)
{
    replacedClock = clock;
}

void advance(EditingTime &time)
{
    const double elapsedSeconds = double(currentTime() - time.lastActivity) / 1000.0;
    const bool wasPause = time.idleLimitMinutes > 0 && elapsedSeconds > time.idleLimitMinutes * 60.0;
    time.lastActivity = currentTime();
    if (!wasPause)
        time.hours += elapsedSeconds / 3600.0;
}

bool writeEditingTime(const EditingTime &time, OdDbDatabase *database)
{
    OdDbDictionary *dictionary = database ? database->getNamedObjectsDictionary() : nullptr;
    OdDbXrecord *record = dictionary ? dictionary->setAt(editingTimeRecordName()) : nullptr;
    return record && record->setFromRbChain(editingTimeChain(time).get());
}

EditingTime readEditingTime(OdDbDatabase *database)
{
    OdDbDictionary *dictionary = database ? database->getNamedObjectsDictionary() : nullptr;
    const OdDbXrecord *record = dictionary ? dictionary->getAt(editingTimeRecordName()) : nullptr;
    const OdResBufPtr chain = record ? record->rbChain() : nullptr;
    std::optional<EditingTime> time = editingTimeFromChain(chain.get());
    if (!time)
        return {};
    time->lastActivity = currentTime();
    return *time;
}

} // namespace ortakit
