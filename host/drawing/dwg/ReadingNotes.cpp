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
        return doubtfulCount == 0
                   ? QString()
                   : DrawingTexts::tr("some of the file is not as expected; what was read of it may be wrong");
    return lostCount == 1 ? DrawingTexts::tr("1 object could not be read")
                          : DrawingTexts::tr("%1 objects could not be read").arg(lostCount);
}

QStringList ReadingNotes::faults(qsizetype limit) const
{
    QStringList messages;
    for (const auto kind : {ReadingNote::Kind::Lost, ReadingNote::Kind::Doubtful}) {
        for (const ReadingNote &note : list) {
            if (note.kind == kind && messages.size() < limit)
                messages.append(note.message());
        }
    }
    if (const qsizetype further = lostCount + doubtfulCount - messages.size(); further > 0)
        messages.append(DrawingTexts::tr("and %1 more").arg(further));
    return messages;
}

} // namespace host::drawing
