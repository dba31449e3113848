#pragma once

#include "host/drawing/records/Record.h"

#include <QString>

#include <memory>

namespace host::drawing {

class Drawing;

/// The undo steps of a drawing. Every change is recorded; changes between beginGroup() and the matching endGroup()
/// are one step. A change outside any group is a step of its own. A group that leaves every record as it was leaves
/// no step. Undoing a step gives back the very bytes that were there before.
///
/// A command opens one group around all that it does. Functions that change several records open one of their own,
/// which makes a step only where they are called outside of any.
///
/// A new step forgets the steps to redo. There is no limit to the number of steps; each keeps, for every record it
/// touched, where the bytes before and after are, and the bytes stay with the drawing.
class Journal
{
public:
    explicit Journal(Drawing &drawing);
    ~Journal();
    Journal(const Journal &) = delete;
    Journal &operator=(const Journal &) = delete;

    /// Groups nest: only the outermost makes a step, and gives it its name.
    void beginGroup(const QString &name);
    /// Without an open group it does nothing.
    void endGroup();
    /// Takes back everything since the outermost beginGroup() and closes all open groups; nothing stays to redo of it.
    void abandonGroup();
    bool isGroupOpen() const;

    // False also while a group is open.
    bool canUndo() const;
    bool canRedo() const;
    /// Name of the step that undo() would take back; empty when there is none or it was made without a group.
    QString undoName() const;
    QString redoName() const;
    /// False, and nothing happens, when there is no step or a group is open. Costs in proportion to the records of the
    /// step.
    bool undo();
    bool redo();
    /// Number of steps that undo() could take back.
    int undoDepth() const;

    /// Whether the drawing differs from what was last read or saved. Going back to that state by undo() or redo() makes
    /// it unmodified again; making the same change anew does not.
    bool isModified() const;
    /// The drawing as it is now is what the file holds. An open group becomes a step up to here, and goes on under the
    /// same name.
    void markSaved();
    /// No file holds the drawing as it is: it is modified until it is saved.
    void markUnsaved();
    /// Forgets all steps, keeps the drawing and whether it is modified. A modified drawing stays so until it is saved.
    void clear();

private:
    friend class Drawing;
    struct Private;
    std::unique_ptr<Private> d;
};

/// Opens a group for the life of a scope, which must not outlive the journal. Leaving the scope by an exception closes
/// the group as well, with what was changed so far.
class JournalGroup
{
public:
    JournalGroup(Journal &journal, const QString &name) : m_journal(journal) { m_journal.beginGroup(name); }
    ~JournalGroup() { m_journal.endGroup(); }
    JournalGroup(const JournalGroup &) = delete;
    JournalGroup &operator=(const JournalGroup &) = delete;

private:
    Journal &m_journal;
};

} // namespace host::drawing
