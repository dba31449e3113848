#pragma once

#include <QList>
#include <QString>

namespace host::dcl {

/// What is wrong in a file of dialogs, at which place.
struct Problem
{
    enum class Weight
    {
        Error,  ///< the file is of no use
        Warning ///< what is meant was guessed, or what is asked for is passed over
    };

    Weight weight = Weight::Error;
    QString file; ///< as it was opened; empty for a text without a file
    int line = 0; ///< from 1; 0 when it is about the whole file
    QString text; ///< a sentence without its point

    /// One line: `doors.dcl:12: error: ";" is expected behind the value, not "}"`.
    QString toText() const;
};

/// Whether one of them is an error.
bool hasError(const QList<Problem> &problems);

} // namespace host::dcl
