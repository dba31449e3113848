#include "host/commands/annotate/Justification.h"

#include "host/kernel/running/CommandContext.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::FieldList;
using drawing::Vec3;

namespace {

constexpr const char *firstEnd = "Specify first endpoint of text baseline: ";

constexpr Justification justifications[] = {
    {"Left", "Specify start point of text: ", 0, 0},
    {"Center", "Specify center point of text: ", 1, 0},
    {"Right", "Specify right endpoint of text baseline: ", 2, 0},
    {"Align", firstEnd, 3, 0},
    {"Middle", "Specify middle point of text: ", 4, 0},
    {"Fit", firstEnd, 5, 0},
    {"TL", "Specify top-left point of text: ", 0, 3},
    {"TC", "Specify top-center point of text: ", 1, 3},
    {"TR", "Specify top-right point of text: ", 2, 3},
    {"ML", "Specify middle-left point of text: ", 0, 2},
    {"MC", "Specify middle-center point of text: ", 1, 2},
    {"MR", "Specify middle-right point of text: ", 2, 2},
    {"BL", "Specify bottom-left point of text: ", 0, 1},
    {"BC", "Specify bottom-center point of text: ", 1, 1},
    {"BR", "Specify bottom-right point of text: ", 2, 1},
};

/// How far the letters' own point for the alignment lies from their left end on the base line.
Vec3 anchor(const Justification &justification, const drawing::Box &letters, double height)
{
    const double width = letters.isEmpty() ? 0.0 : letters.high.x;
    const double low = letters.isEmpty() ? 0.0 : std::min(letters.low.y, 0.0);
    const double shares[] = {0.0, 0.5, 1.0, 0.0, 0.5, 0.0};
    const double rows[] = {0.0, low, height / 2.0, height};
    // "Middle" is that of all letters, those below the base line included.
    const double middle = letters.isEmpty() ? height / 2.0 : (letters.low.y + letters.high.y) / 2.0;
    const double up = justification.horizontal == 4 ? middle : rows[justification.vertical];
    return {width * shares[justification.horizontal], up, 0.0};
}

void stretch(FieldList &text, const Justification &justification, double length, const drawing::Box &letters)
{
    const double width = letters.isEmpty() ? 0.0 : letters.high.x;
    if (!(width > 0.0) || !(length > 0.0))
        return;
    const int code = justification.isAligned() ? 40 : 41;
    const drawing::Field *present = drawing::findField(text, code);
    drawing::setField(text, code, (present ? present->real() : 1.0) * length / width);
}

} // namespace

const Justification &leftJustification()
{
    return justifications[0];
}

const Justification *justificationOf(const QString &option)
{
    for (const Justification &row : justifications)
        if (option.compare(QLatin1String(row.option), Qt::CaseInsensitive) == 0)
            return &row;
    return nullptr;
}

const Justification *justificationOf(int horizontal, int vertical)
{
    for (const Justification &row : justifications)
        if (row.horizontal == horizontal && row.vertical == vertical)
            return &row;
    return nullptr;
}

QString justificationOptions()
{
    QStringList options;
    for (const Justification &row : justifications)
        options.append(QLatin1String(row.option));
    return options.join(u' ');
}

Dialogue<const Justification *> askJustification(CommandContext &context)
{
    QString options = justificationOptions();
    options.replace(u' ', u'/');
    const PromptReply reply = co_await context.keyword(u"Enter an option [%1]: "_s.arg(options));
    co_return reply.hasValue() ? justificationOf(reply.text) : nullptr;
}

void justify(FieldList &text, const Justification &justification, const Vec3 &first, const Vec3 &second,
             const drawing::Box &letters)
{
    drawing::setField(text, 10, first);
    if (justification.isLeft())
        return;
    drawing::setField(text, 11, justification.isStretched() ? second : first);
    drawing::setField(text, 72, qint64(justification.horizontal));
    if (justification.vertical != 0)
        drawing::setField(text, 73, qint64(justification.vertical));
    if (justification.isStretched())
        return stretch(text, justification, (second - first).length(), letters);
    const double angle = drawing::findField(text, 50)->real() * M_PI / 180.0;
    const Vec3 by = anchor(justification, letters, drawing::findField(text, 40)->real());
    drawing::setField(text, 10,
                      first - Vec3{by.x * std::cos(angle) - by.y * std::sin(angle),
                                   by.x * std::sin(angle) + by.y * std::cos(angle), 0.0});
}

} // namespace host::kernel
