#pragma once

#include "host/drawing/tags/TagReader.h"

#include <optional>

namespace host::drawing {

// Lines such as 0, SECTION, 2, OBJECTS, looked for from any place in a text and not from its start.
//
// In a sound file a line that is no group code, such as SECTION, is a value, so the line in front of it is its group
// code, and a run of lines around it cannot be taken for another.

/// Lines of markers are not longer.
inline constexpr qsizetype longestMarkerLine = 80;

/// Where `word` stands in `text` at `from` or behind; -1 when nowhere.
qsizetype findWord(QByteArrayView text, QByteArrayView word, qsizetype from = 0);

/// The end of the line that goes on at `position`, before its line feed; -1 for a long line.
qsizetype lineEndFrom(QByteArrayView text, qsizetype position);

/// Goes through the lines of a text from a place in it to the front. The first line of the text is not taken: it may
/// have more in front that is not there.
class LinesBackward
{
public:
    /// From the line that ends at `end`; there is none when that is -1.
    LinesBackward(QByteArrayView text, qsizetype end) : m_text(text), m_end(end) {}

    /// Where the line last taken begins.
    qsizetype begin() const { return m_begin; }

    /// Without blanks around; nothing at the front, and for a line that is longer than those of markers.
    std::optional<QByteArrayView> take();
    bool takeCode(int wanted);
    /// In any case.
    bool takeWord(QByteArrayView word);

private:
    QByteArrayView m_text;
    qsizetype m_end;
    qsizetype m_begin = 0;
};

/// Whether the line at `position` and the one in front are `word` with the group code 0.
bool isRecordStart(QByteArrayView text, QByteArrayView word, qsizetype position);

/// Where `word` next begins such a record, at `from` or behind; -1 when nowhere.
qsizetype findRecordStart(QByteArrayView text, QByteArrayView word, qsizetype from = 0);

} // namespace host::drawing
