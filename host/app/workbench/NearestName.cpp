#include "host/app/workbench/NearestName.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// How many letters must be put in, taken out, changed or swapped with their neighbours to make one of the other.
int distanceBetween(const QString &from, const QString &to)
{
    std::vector<int> beforeLast;
    std::vector<int> last(to.size() + 1);
    std::iota(last.begin(), last.end(), 0);
    for (qsizetype i = 1; i <= from.size(); ++i) {
        std::vector<int> row(to.size() + 1, int(i));
        for (qsizetype j = 1; j <= to.size(); ++j) {
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (from[i - 1] == to[j - 1] ? 0 : 1)});
            if (i > 1 && j > 1 && from[i - 1] == to[j - 2] && from[i - 2] == to[j - 1])
                row[j] = std::min(row[j], beforeLast[j - 2] + 1);
        }
        beforeLast = std::exchange(last, std::move(row));
    }
    return last.back();
}

} // namespace

QString nearestName(const QString &wrong, const QStringList &names)
{
    static const QRegularExpression dashes(u"^-+"_s);
    const auto letters = [](QString name) { return name.toLower().remove(dashes); };
    const QString typed = letters(wrong);
    QString nearest;
    // A third of the letters may be wrong, and something must be right.
    int best = std::min<int>(3, 1 + int(typed.size()) / 3);
    for (const QString &name : names) {
        const bool isBegun = typed.size() >= 3 && letters(name).startsWith(typed);
        const int distance = isBegun ? 1 : distanceBetween(typed, letters(name));
        if (distance < best || (distance == best && nearest.isEmpty())) {
            best = distance;
            nearest = name;
        }
    }
    return nearest;
}

QString suggestionFor(const QString &wrong, const QStringList &names)
{
    const QString near = nearestName(wrong, names);
    return near.isEmpty() ? QString() : QCoreApplication::translate("Uses", " (did you mean %1?)").arg(near);
}

} // namespace host::app
