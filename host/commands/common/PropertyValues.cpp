#include "host/commands/common/PropertyValues.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

QString withoutMark(const QString &word)
{
    return word.startsWith(u'_') ? word.mid(1) : word;
}

int colourNumber(const QString &text)
{
    static const QStringList names = {u"RED"_s,  u"YELLOW"_s,  u"GREEN"_s, u"CYAN"_s,
                                      u"BLUE"_s, u"MAGENTA"_s, u"WHITE"_s};
    const int number = text.toInt();
    return number >= 1 && number <= 255 ? number : int(names.indexOf(withoutMark(text).toUpper())) + 1;
}

std::optional<qint64> exactColour(const QString &text)
{
    const QStringList parts = text.split(u',');
    qint64 value = 0;
    for (const QString &part : parts) {
        bool isNumber = false;
        const uint number = part.trimmed().toUInt(&isNumber);
        if (!isNumber || number > 255 || parts.size() != 3)
            return std::nullopt;
        value = value * 256 + number;
    }
    return value;
}

std::span<const int> lineweights()
{
    static constexpr int weights[] = {0,  5,  9,  13, 15, 18,  20,  25,  30,  35,  40,  50,
                                      53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211};
    return weights;
}

int nearestWeight(double millimetres)
{
    return *std::ranges::min_element(lineweights(), {},
                                     [millimetres](int weight) { return std::abs(weight - millimetres * 100.0); });
}

} // namespace host::kernel
