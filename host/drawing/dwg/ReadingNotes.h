#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace host::drawing {

/// One thing that was noted about a file that opened all the same.
struct ReadingNote
{
    enum class Kind
    {
        Kept,     ///< nothing is wrong: an object is of a class that is not known, and is kept as its bytes
        Mended,   ///< something was damaged and could be made up for wholly: the drawing is as it was
        Doubtful, ///< what it concerns is in the drawing; a checksum does not fit
        Lost      ///< what it concerns is not in the drawing
    };

    Kind kind = Kind::Lost;
    QString type;   ///< of the object, as in DXF files ("LINE"); empty for a part of the file that is no object
    QString handle; ///< of the object, in digits of base 16; empty where there is none
    QString text;   ///< a sentence, not translated

    /// "LINE 2A could not be read: The object ends before its values do.", in the language of the program but for the
    /// reason.
    QString message() const;
};

/// What was noted about a file that opened. Empty for a DXF file, which is read whole or not at all.
struct ReadingNotes
{
    qsizetype lostObjects = 0;     ///< objects of the file that are not in the drawing
    qsizetype lostParts = 0;       ///< pages, maps and other parts of the file that could not be read
    qsizetype doubtfulCount = 0;   ///< things that are in the drawing and may be wrong
    qsizetype mendedCount = 0;     ///< damage that nothing is left of
    std::vector<ReadingNote> list; ///< the first 1000 of all kinds

    /// Whether something is missing in the drawing.
    bool hasLost() const { return lostObjects > 0 || lostParts > 0; }
    /// Whether something is wrong with the file, be it that nothing is with the drawing: it is told.
    bool hasFaults() const { return hasLost() || doubtfulCount > 0 || mendedCount > 0; }
    /// "2 objects and 1 part of the file could not be read", or that some of the file is not as expected where all
    /// could, or that all of it was made up for, in the language of the program; empty without a fault.
    QString summary() const;
    /// The messages of the first `limit` faults, the gravest in front, and how many there are beyond.
    QStringList faults(qsizetype limit) const;
};

} // namespace host::drawing
