#pragma once

#include "platform/Export.h"

#include <QString>

#include <limits>
#include <optional>
#include <vector>

namespace host::drawing {
class Journal;
}

namespace host::kernel {

/// The undo steps of a document as its user sees them: a whole top-level run (command or Lisp expression) is one,
/// however many commands it called. Inside a run every command is a step of its own, so that a program can take back
/// what it just did. A run that closes several groups in which something changed leaves a step for each of them.
class KV_EXPORT UndoSteps
{
public:
    explicit UndoSteps(drawing::Journal &journal) : m_journal(journal) {}

    /// Runs nest; the outermost makes the step and names it. None is made when nothing changed.
    void beginRun(const QString &name);
    void endRun();
    /// What was changed since the last boundary is a step of its own inside the run. Nothing outside a run.
    void boundary();
    /// As boundary(); what is changed from here on can be taken back with takeBackTo().
    int checkpoint();
    /// Takes back what was changed since that checkpoint, as if it had never been: it cannot be done again.
    void takeBackTo(int checkpoint);

    // The UNDO command's options.
    /// Steps up to end() become one. Begin inside Begin has no further effect.
    void begin();
    void end();
    bool isGroupOpen() const { return m_groupStart.has_value(); }
    void mark();
    /// Undoes to the last mark, which is used up; everything when there is none.
    void back();
    bool hasMark() const { return !m_marks.empty(); }

    /// Takes back up to `count` steps; how many there were.
    int undo(int count = 1);
    int redo(int count = 1);
    /// How many calls of undo() and back() took something back: records that were erased before one of them may not be
    /// brought back behind it, since what they refer to may never have been.
    int undoCount() const { return m_undoCount; }
    bool canUndo() const { return !m_steps.empty(); }
    bool canRedo() const { return !m_undone.empty(); }
    QString undoName() const { return m_steps.empty() ? QString() : m_steps.back().name; }
    QString redoName() const { return m_undone.empty() ? QString() : m_undone.back().name; }

private:
    /// The journal steps from `depthBefore` on, up to the next step.
    struct Step
    {
        QString name;
        int depthBefore = 0;
        int depthAfter = 0;
    };
    void closeJournalGroup();
    void openJournalGroup();
    void absorbLooseChanges();
    void addStep(const QString &name, int depthBefore);
    void undoOne();
    /// Makes one of the steps that begin at `depth` or later, but before `until`.
    void mergeFrom(int depth, const QString &name, int until = std::numeric_limits<int>::max());

    drawing::Journal &m_journal;
    std::vector<Step> m_steps;
    std::vector<Step> m_undone;
    std::vector<int> m_marks;
    std::optional<int> m_groupStart;
    std::vector<int> m_groupEnds; ///< journal depths where the run closed groups
    QString m_runName;
    int m_undoCount = 0;
    int m_runDepth = 0; ///< how many runs are nested
    int m_runStart = 0; ///< journal depth at the begin of the outermost run
    int m_boundary = 0; ///< journal depth at the last boundary
};

} // namespace host::kernel
