#include "host/drawing/text/TextAlignment.h"

#include "host/drawing/math/Angles.h"

#include <algorithm>
#include <cmath>

namespace host::drawing {

namespace {

/// How far the letters' own point for the alignment lies from their left end on the base line.
Vec3 alignedAnchor(const TextAlignment &alignment, const Box &letters, double height)
{
    const double width = letters.isEmpty() ? 0.0 : letters.high.x;
    const double low = letters.isEmpty() ? 0.0 : std::min(letters.low.y, 0.0);
    const double shares[] = {0.0, 0.5, 1.0, 0.0, 0.5, 0.0};
    const double rows[] = {0.0, low, height / 2.0, height};
    // "Middle" is that of all letters, those below the base line included.
    const double middle = letters.isEmpty() ? height / 2.0 : (letters.low.y + letters.high.y) / 2.0;
    const double up = alignment.horizontal == 4 ? middle : rows[alignment.vertical];
    return {width * shares[alignment.horizontal], up, 0.0};
}

void stretchText(FieldList &text, const TextAlignment &alignment, double length, const Box &letters)
{
    const double width = letters.isEmpty() ? 0.0 : letters.high.x;
    if (!(width > 0.0) || !(length > 0.0))
        return;
    const int code = alignment.isAligned() ? 40 : 41;
    setField(text, code, realOf(text, code, 1.0) * length / width);
}

} // namespace

TextAlignment textAlignment(const FieldList &text)
{
    const auto number = [&](int code, int most) {
        const Field *field = findField(text, code);
        const qint64 value = field ? field->integer() : 0;
        return value >= 0 && value <= most ? static_cast<int>(value) : 0;
    };
    const bool isLine = !text.empty() && text.front().text().compare(u"TEXT", Qt::CaseInsensitive) == 0;
    return {.horizontal = number(72, 5), .vertical = number(isLine ? 73 : 74, 3)};
}

void alignText(FieldList &text, const Box &letters)
{
    const TextAlignment alignment = textAlignment(text);
    const Field *own = findField(text, 11);
    const Field *start = findField(text, 10);
    if (alignment.isLeft() || !own || !start || !isPoint(*own) || !isPoint(*start))
        return;
    if (alignment.isStretched())
        return stretchText(text, alignment, (own->point() - start->point()).length(), letters);
    const double angle = realOf(text, 50) * radians;
    const Vec3 by = alignedAnchor(alignment, letters, realOf(text, 40));
    const Vec3 turned{by.x * std::cos(angle) - by.y * std::sin(angle), by.x * std::sin(angle) + by.y * std::cos(angle),
                      0.0};
    setField(text, 10, own->point() - turned);
}

} // namespace host::drawing
