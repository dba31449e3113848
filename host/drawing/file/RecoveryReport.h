#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <vector>

namespace host::drawing {

/// One thing that recovering a drawing did, with all of its kind that follow each other.
struct RecoveryStep
{
    enum class Done
    {
        Dropped, ///< is not in the drawing
        Mended,  ///< is in the drawing, other than the file has it
        Added    ///< was not in the file
    };
    enum class Unit
    {
        Line, ///< of a text file
        Tag,  ///< of a binary file, as far as it could be read
        Byte  ///< of a binary file, from its start, where it could not be read
    };

    Done done = Done::Dropped;
    Unit unit = Unit::Line;
    qint64 first = 0; ///< of the file, counted from 1; 0 when no place in it can be named
    qint64 last = 0;
    QString what; ///< type of record ("LINE"), "lines" for what is none
    QString why;  ///< a part of a sentence
    int count = 1;

    /// "lines 12-19: LINE dropped: group code expected, found "x"".
    QString message() const;
};

/// What came of recovering a drawing. Empty when the file was sound.
class RecoveryReport
{
public:
    /// Joins what goes on behind the last step.
    void add(const RecoveryStep &step);
    /// Takes lines for those of a text that was made of a binary file, two for each tag.
    void countInTags();
    void putInFront(const RecoveryReport &other);
    const std::vector<RecoveryStep> &steps() const { return m_steps; }
    bool isEmpty() const { return m_steps.empty(); }
    /// How many were dropped of each type.
    QMap<QString, qint64> dropped() const;
    int count(RecoveryStep::Done done) const;
    /// The first `limit` steps in lines, how many there are beyond, and a sentence with all numbers.
    QStringList lines(qsizetype limit) const;

private:
    std::vector<RecoveryStep> m_steps;
};

} // namespace host::drawing
