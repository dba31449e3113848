#include "Supply.h"

#include <QStringList>

#include <cstdio>

namespace sample {

namespace {

QStringList takenOut;

} // namespace

// [missing]
void notSupplied(const char *call)
{
    static QStringList told;
    const QString name = QString::fromLatin1(call);
    if (told.contains(name))
        return;
    told.append(name);
    std::fprintf(stderr, "not supplied: %s\n", call);
}
// [/missing]

void takeOut(const QString &call)
{
    takenOut.append(call);
}

bool isSupplied(const char *call)
{
    if (!takenOut.contains(QString::fromLatin1(call)))
        return true;
    notSupplied(call);
    return false;
}

} // namespace sample
