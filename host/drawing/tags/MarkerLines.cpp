#include "host/drawing/tags/MarkerLines.h"

#include <cstring>

namespace host::drawing {

namespace {

} // namespace

qsizetype findWord(QByteArrayView text, QByteArrayView word, qsizetype from)
{
    // Several times as fast as Qt's search for short words.
    const void *found = memmem(text.data() + from, size_t(text.size() - from), word.data(), size_t(word.size()));
    return found ? static_cast<const char *>(found) - text.data() : -1;
}

qsizetype lineEndFrom(QByteArrayView text, qsizetype position)
{
    const qsizetype searched = std::min(text.size() - position, longestMarkerLine);
    const qsizetype feed = text.sliced(position, searched).indexOf('\n');
    if (feed >= 0)
        return position + feed;
    return searched < longestMarkerLine ? text.size() : -1;
}

std::optional<QByteArrayView> LinesBackward::take()
{
    const qsizetype searched = std::min(std::max<qsizetype>(m_end, 0), longestMarkerLine);
    const qsizetype feed = searched > 0 ? m_text.sliced(m_end - searched, searched).lastIndexOf('\n') : -1;
    if (feed < 0)
        return {};
    m_begin = m_end - searched + feed + 1;
    const QByteArrayView line = m_text.sliced(m_begin, m_end - m_begin);
    m_end = m_begin - 1;
    return line.trimmed();
}

bool LinesBackward::takeCode(int wanted)
{
    const std::optional<QByteArrayView> line = take();
    int code = -1;
    return line && parseGroupCode(line->begin(), line->end(), code) && code == wanted;
}

bool LinesBackward::takeWord(QByteArrayView word)
{
    const std::optional<QByteArrayView> line = take();
    return line && isWord(*line, word);
}

bool isRecordStart(QByteArrayView text, QByteArrayView word, qsizetype position)
{
    LinesBackward lines(text, lineEndFrom(text, position));
    return lines.takeWord(word) && lines.takeCode(0);
}

qsizetype findRecordStart(QByteArrayView text, QByteArrayView word, qsizetype from)
{
    qsizetype found = findWord(text, word, from);
    while (found >= 0 && !isRecordStart(text, word, found))
        found = findWord(text, word, found + 1);
    return found;
}

} // namespace host::drawing
