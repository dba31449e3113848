#pragma once

#include "tests/kernel/Bench.h"

#include <QStringList>

#include <random>

/// A bench for random trials: drawings to begin from, answers of all kinds as Lisp writes them, and what must hold
/// behind every step. The same seed gives the same trials.
///
/// ORTAKIT_FUZZ_SECONDS says how long a test goes on (otherwise two seconds), ORTAKIT_FUZZ_SEED where it begins, and
/// with ORTAKIT_FUZZ_LOG each step stands in that file before it is made, and behind it how long it took if that was
/// more than a second; ORTAKIT_FUZZ_AGAIN names such a file whose steps are all that is done. ORTAKIT_CORPUS names a
/// folder of drawings to begin from as well.
class FuzzBench : public Bench
{
protected:
    FuzzBench();
    ~FuzzBench() override;

    template <typename List>
    auto any(const List &list)
    {
        return list[qsizetype(m_random() % quint64(list.size()))];
    }
    /// True once in so many times.
    bool oneIn(unsigned times) { return m_random() % times == 0; }

    /// An answer of a program: a point, number, option, word of snaps and filters, entity, selection set, or nothing of
    /// the kind.
    QString anyAnswer();
    /// Another drawing, with another coordinate system, in a space, with some layers locked, frozen or off.
    void beginAnew();
    // Undo and redo of one step.
    void stepBack();
    void stepOn();
    /// Does what a log says.
    void playAgain(const QString &logFile);
    /// Evaluates, within the time that a step may take; tells whether it ended without an error.
    bool runTimed(const QString &expression);
    /// What opening the drawing's file would mend.
    QStringList faults();
    /// Which handles of its records name no record.
    QStringList dangling();
    /// That there is none but those before the step.
    static void expectNoMore(const QStringList &before, QStringList now, const QString &step);
    /// Until the time is over or several rounds have failed; each that fails is followed by another drawing.
    void repeatedly(const std::function<void()> &round);

    std::minstd_rand m_random;

private:
    void log(const QString &line);
    /// A new drawing with what that file holds, an empty one without a path.
    void begin(const QString &path);
    void define();

    QString m_folderBefore;
    QStringList m_corpus; ///< full paths
    std::unique_ptr<host::kernel::InputFeeder> m_clock;
};
