#include "host/commands/annotate/Justification.h"

#include "host/drawing/text/TextAlignment.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::FieldList;
using drawing::Vec3;

namespace {

constexpr const char *firstEnd = QT_TRANSLATE_NOOP("Commands", "Specify first endpoint of text baseline: ");

constexpr Justification justifications[] = {
    {"Left", QT_TRANSLATE_NOOP("Commands", "Specify start point of text: "), 0, 0},
    {"Center", QT_TRANSLATE_NOOP("Commands", "Specify center point of text: "), 1, 0},
    {"Right", QT_TRANSLATE_NOOP("Commands", "Specify right endpoint of text baseline: "), 2, 0},
    {"Align", firstEnd, 3, 0},
    {"Middle", QT_TRANSLATE_NOOP("Commands", "Specify middle point of text: "), 4, 0},
    {"Fit", firstEnd, 5, 0},
    {"TL", QT_TRANSLATE_NOOP("Commands", "Specify top-left point of text: "), 0, 3},
    {"TC", QT_TRANSLATE_NOOP("Commands", "Specify top-center point of text: "), 1, 3},
    {"TR", QT_TRANSLATE_NOOP("Commands", "Specify top-right point of text: "), 2, 3},
    {"ML", QT_TRANSLATE_NOOP("Commands", "Specify middle-left point of text: "), 0, 2},
    {"MC", QT_TRANSLATE_NOOP("Commands", "Specify middle-center point of text: "), 1, 2},
    {"MR", QT_TRANSLATE_NOOP("Commands", "Specify middle-right point of text: "), 2, 2},
    {"BL", QT_TRANSLATE_NOOP("Commands", "Specify bottom-left point of text: "), 0, 1},
    {"BC", QT_TRANSLATE_NOOP("Commands", "Specify bottom-center point of text: "), 1, 1},
    {"BR", QT_TRANSLATE_NOOP("Commands", "Specify bottom-right point of text: "), 2, 1},
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
    const PromptReply reply = co_await context.keyword(Commands::tr("Enter an option [%1]: ").arg(options));
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
