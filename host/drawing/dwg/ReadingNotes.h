#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace host::drawing {

/// One thing that was found wrong in a file that opened all the same.
struct ReadingNote
{
    bool isLost = false; ///< what it concerns is not in the drawing; else it is, and is doubtful
    QString type;        ///< of the object, as in DXF files ("LINE"); empty for a part of the file that is no object
    QString handle;      ///< of the object, in digits of base 16; empty where there is none
    QString text;        ///< a sentence, not translated

    /// "LINE 2A: The object ends before its values do."
    QString message() const;
};

/// What was noted about a file that opened. Empty for a DXF file, which is read whole or not at all.
struct ReadingNotes
{
    qsizetype lostCount = 0;       ///< objects, and parts, of the file that are not in the drawing
    std::vector<ReadingNote> list; ///< the first 1000, lost ones and others

    bool isEmpty() const { return list.empty(); }
    /// "2 objects could not be read", in the language of the program; empty when none was lost.
    QString summary() const;
    /// The messages of the first `limit`, and how many there are beyond.
    QStringList lines(qsizetype limit) const;
};

} // namespace host::drawing
