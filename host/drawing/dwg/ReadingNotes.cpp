#include "host/drawing/dwg/ReadingNotes.h"

#include "host/drawing/tags/DrawingTexts.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

QString ReadingNote::message() const
{
    const QString object = QStringList{type, handle}.join(u' ').trimmed();
    return object.isEmpty() ? text : u"%1: %2"_s.arg(object, text);
}

QString ReadingNotes::summary() const
{
    if (lostCount == 0)
        return {};
    return lostCount == 1 ? DrawingTexts::tr("1 object could not be read")
                          : DrawingTexts::tr("%1 objects could not be read").arg(lostCount);
}

QStringList ReadingNotes::lines(qsizetype limit) const
{
    QStringList messages;
    for (const ReadingNote &note : list) {
        if (messages.size() == limit) {
            messages.append(DrawingTexts::tr("and %1 more").arg(qsizetype(list.size()) - limit));
            break;
        }
        messages.append(note.message());
    }
    return messages;
}

} // namespace host::drawing
