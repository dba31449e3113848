#include "host/kernel/UndoSteps.h"

#include "host/drawing/Journal.h"

namespace host::kernel {

void UndoSteps::beginRun(const QString &name)
{
    if (m_runDepth++ > 0)
        return;
    // Changes made outside any run still have to be undone in their turn.
    absorbLooseChanges();
    m_runName = name;
    m_runStart = m_boundary = m_journal.undoDepth();
    m_journal.beginGroup(name);
}

void UndoSteps::endRun()
{
    if (--m_runDepth > 0)
        return;
    m_journal.endGroup();
    addStep(m_runName, m_boundary);
    mergeFrom(m_runStart, m_runName);
}

void UndoSteps::boundary()
{
    closeJournalGroup();
    openJournalGroup();
}

void UndoSteps::begin()
{
    boundary();
    if (!m_groupStart)
        m_groupStart = m_journal.undoDepth();
}

void UndoSteps::end()
{
    boundary();
    if (m_groupStart)
        mergeFrom(*m_groupStart, QStringLiteral("GROUP"));
    m_groupStart.reset();
}

void UndoSteps::mark()
{
    boundary();
    m_marks.push_back(m_journal.undoDepth());
}

void UndoSteps::back()
{
    closeJournalGroup();
    int depth = 0;
    if (!m_marks.empty()) {
        depth = m_marks.back();
        m_marks.pop_back();
    }
    while (!m_steps.empty() && m_steps.back().depthBefore >= depth)
        undoOne();
    openJournalGroup();
}

int UndoSteps::undo(int count)
{
    closeJournalGroup();
    int done = 0;
    for (; done < count && !m_steps.empty(); ++done)
        undoOne();
    openJournalGroup();
    return done;
}

int UndoSteps::redo(int count)
{
    closeJournalGroup();
    int done = 0;
    for (; done < count && !m_undone.empty(); ++done) {
        const Step step = m_undone.back();
        m_undone.pop_back();
        while (m_journal.undoDepth() < step.depthAfter && m_journal.redo())
            continue;
        m_steps.push_back(step);
    }
    // What was done again keeps its own name instead of becoming part of this run.
    m_runStart = m_journal.undoDepth();
    openJournalGroup();
    return done;
}

void UndoSteps::closeJournalGroup()
{
    if (m_runDepth == 0) {
        absorbLooseChanges();
        return;
    }
    m_journal.endGroup();
    addStep(m_runName, m_boundary);
}

void UndoSteps::openJournalGroup()
{
    m_boundary = m_journal.undoDepth();
    if (m_runDepth > 0)
        m_journal.beginGroup(m_runName);
}

void UndoSteps::absorbLooseChanges()
{
    addStep(m_journal.undoName(), m_steps.empty() ? 0 : m_steps.back().depthAfter);
}

void UndoSteps::addStep(const QString &name, int depthBefore)
{
    const int depth = m_journal.undoDepth();
    if (depth <= depthBefore)
        return;
    m_steps.push_back({name, depthBefore, depth});
    m_undone.clear();
}

void UndoSteps::undoOne()
{
    const Step step = m_steps.back();
    m_steps.pop_back();
    while (m_journal.undoDepth() > step.depthBefore && m_journal.undo())
        continue;
    m_undone.push_back(step);
    const int depth = m_journal.undoDepth();
    m_runStart = std::min(m_runStart, depth);
    if (m_groupStart)
        m_groupStart = std::min(*m_groupStart, depth);
    while (!m_marks.empty() && m_marks.back() > depth)
        m_marks.pop_back();
}

void UndoSteps::mergeFrom(int depth, const QString &name)
{
    const auto isBefore = [depth](const Step &step) { return step.depthBefore < depth; };
    const auto first = std::find_if_not(m_steps.begin(), m_steps.end(), isBefore);
    if (first == m_steps.end())
        return;
    const Step merged{name, first->depthBefore, m_steps.back().depthAfter};
    m_steps.erase(first, m_steps.end());
    m_steps.push_back(merged);
}

} // namespace host::kernel
