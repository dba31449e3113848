#include "host/drawing/dwg/ReadingNotes.h"

#include "host/drawing/tags/DrawingTexts.h"

#include <algorithm>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

/// By how many objects are lost, and by how many parts of the file: none, one, several.
constexpr const char *lostSentences[3][3] = {
    {"", QT_TRANSLATE_NOOP("DrawingTexts", "1 part of the file could not be read"),
     QT_TRANSLATE_NOOP("DrawingTexts", "%1 parts of the file could not be read")},
    {QT_TRANSLATE_NOOP("DrawingTexts", "1 object could not be read"),
     QT_TRANSLATE_NOOP("DrawingTexts", "1 object and 1 part of the file could not be read"),
     QT_TRANSLATE_NOOP("DrawingTexts", "1 object and %1 parts of the file could not be read")},
    {QT_TRANSLATE_NOOP("DrawingTexts", "%1 objects could not be read"),
     QT_TRANSLATE_NOOP("DrawingTexts", "%1 objects and 1 part of the file could not be read"),
     QT_TRANSLATE_NOOP("DrawingTexts", "%1 objects and %2 parts of the file could not be read")},
};

qsizetype formOf(qsizetype count)
{
    return std::min<qsizetype>(count, 2);
}

} // namespace

QString ReadingNote::message() const
{
    if (type.isEmpty() && handle.isEmpty())
        return text;
    const QString object =
        type.isEmpty() ? DrawingTexts::tr("object %1").arg(handle) : QStringList{type, handle}.join(u' ').trimmed();
    switch (kind) {
    case Kind::Lost:
        return DrawingTexts::tr("%1 could not be read: %2").arg(object, text);
    case Kind::Doubtful:
        return DrawingTexts::tr("%1 may be wrong: %2").arg(object, text);
    case Kind::Kept:
    case Kind::Mended:
        break;
    }
    return u"%1: %2"_s.arg(object, text);
}

QString ReadingNotes::summary() const
{
    if (!hasFaults())
        return {};
    if (!hasLost())
        return doubtfulCount == 0
                   ? DrawingTexts::tr("the file is damaged; the drawing is whole")
                   : DrawingTexts::tr("some of the file is not as expected; what was read of it may be wrong");
    QString sentence = DrawingTexts::tr(lostSentences[formOf(lostObjects)][formOf(lostParts)]);
    for (const qsizetype count : {lostObjects, lostParts})
        if (count > 1)
            sentence = sentence.arg(count);
    return sentence;
}

QStringList ReadingNotes::faults(qsizetype limit) const
{
    QStringList messages;
    for (const auto kind : {ReadingNote::Kind::Lost, ReadingNote::Kind::Doubtful, ReadingNote::Kind::Mended}) {
        for (const ReadingNote &note : list) {
            if (note.kind == kind && messages.size() < limit)
                messages.append(note.message());
        }
    }
    if (const qsizetype further = lostObjects + lostParts + doubtfulCount + mendedCount - messages.size(); further > 0)
        messages.append(DrawingTexts::tr("and %1 more").arg(further));
    return messages;
}

} // namespace host::drawing
