#include "host/dcl/Problem.h"

#include <algorithm>

namespace host::dcl {

using namespace Qt::StringLiterals;

QString Problem::toText() const
{
    QString place = file;
    if (line > 0)
        place += (file.isEmpty() ? u"line "_s : u":"_s) + QString::number(line);
    const QString kind = weight == Weight::Error ? u"error"_s : u"warning"_s;
    return (place.isEmpty() ? QString() : place + u": "_s) + kind + u": "_s + text;
}

bool hasError(const QList<Problem> &problems)
{
    return std::any_of(problems.begin(), problems.end(),
                       [](const Problem &problem) { return problem.weight == Problem::Weight::Error; });
}

} // namespace host::dcl
