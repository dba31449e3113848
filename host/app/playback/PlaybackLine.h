#pragma once

#include "host/app/playback/PlaybackVerbs.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <array>

namespace host::app {

/// One line of a session.
struct Step
{
    int line = 0; ///< from 1; of what a part wrote, the line that plays it
    /// Of what a part wrote: the part and the line in it, for messages ("part opened, line 3"). Else empty.
    QString place;
    Verb verb = Verb::Enter;
    VerbKind kind = VerbKind::Start;
    /// The arguments, quotes taken off. A text that runs to the end of the line is one argument.
    QStringList words;
    /// The arguments that are points, in order, in the drawing's current user coordinates.
    QList<std::array<double, 3>> points;
    /// The line as written, without blanks around; for messages.
    QString source;

    /// The argument, or an empty text where it was left out.
    QString word(int index) const { return words.value(index); }
};

/// A line that was read, or what is wrong with it.
struct LineRead
{
    Step step;
    QString error; ///< empty when there is a step
};

/// Reads one line, its continuations joined. An argument with a ${NAME} in it is checked when that is filled in.
LineRead readPlaybackLine(const QString &line);

/// A text as one argument, in quotes where it takes them: what takeWord() gives back.
QString sessionWord(const QString &text);

/// Takes one word off the front of `rest`, its quotes off. False: a quote without its end.
bool takeWord(QStringView &rest, QString &word);

/// A session's text, and what parts write, which could be far more than their text.
constexpr qsizetype longestSession = 16 * 1024 * 1024;

/// Puts `values` in for each ${NAME} that they know; what is put in is not looked at again. A text that gets longer
/// than a session is left off there.
QString filledIn(const QString &text, const QHash<QString, QString> &values);
/// The same with all arguments of a step, which are checked with that. Returns what is wrong with them, else empty: a
/// name without a value, a number that is none.
QString fillIn(Step &step, const QHash<QString, QString> &values);
/// The names in the arguments that have no value yet.
QStringList openNames(const Step &step);

} // namespace host::app
