#include "module/EditingTime.h"

#include "platform/db/OdDbDatabase.h"

#include <QDateTime>

namespace ortakit {

using namespace Qt::StringLiterals;

qint64 systemClock()
{
    return QDateTime::currentMSecsSinceEpoch();
}

void EditingTime::advance(Clock clock)
{
    const double elapsedSeconds = double(clock() - lastActivity) / 1000.0;
    const bool wasPause = idleLimitMinutes > 0 && elapsedSeconds > idleLimitMinutes * 60.0;
    lastActivity = clock();
    if (!wasPause)
        hours += elapsedSeconds / 3600.0;
}

void writeEditingTime(const EditingTime &time, OdDbDatabase *database)
{
    OdDbDictionary *dictionary = database ? database->getNamedObjectsDictionary() : nullptr;
    OdDbXrecord *record = dictionary ? dictionary->setAt(u"KORA_TRACKTIME"_s) : nullptr;
    if (!record)
        return;
    const OdResBufPtr chain = OdResBuf::newInteger(280, time.isTracked ? 1 : 0);
    chain->setNext(OdResBuf::newInteger(90, time.idleLimitMinutes))
        ->setNext(OdResBuf::newReal(40, time.hours))
        ->setNext(OdResBuf::newString(1, QString::number(time.lastActivity)));
    record->setFromRbChain(chain.get());
}

} // namespace ortakit
