#include "host/commands/annotate/Justification.h"

#include "host/drawing/text/TextAlignment.h"
#include "host/kernel/running/CommandContext.h"

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
    // An attribute's rows stand under another code, which the caller gives them.
    FieldList line = text;
    line.front().value = u"TEXT"_s;
    drawing::alignText(line, letters);
    line.front() = text.front();
    text = std::move(line);
}

} // namespace host::kernel
