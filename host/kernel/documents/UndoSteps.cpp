#include "host/kernel/documents/UndoSteps.h"

#include "host/drawing/records/Journal.h"

#include <algorithm>

namespace host::kernel {

void UndoSteps::beginRun(const QString &name)
{
    if (m_runDepth++ > 0)
        return;
    // Changes made outside any run still have to be undone in their turn.
    absorbLooseChanges();
    m_runName = name;
    m_runStart = m_boundary = m_journal.undoDepth();
    m_groupEnds.clear();
    m_journal.beginGroup(name);
}

void UndoSteps::endRun()
{
    if (--m_runDepth > 0)
        return;
    m_journal.endGroup();
    addStep(m_runName, m_boundary);
    // What was changed before the first group and behind the last one belongs to these.
    int until = std::numeric_limits<int>::max();
    for (int i = int(m_groupEnds.size()) - 2; i >= 0; --i) {
        mergeFrom(m_groupEnds[i], m_runName, until);
        until = m_groupEnds[i];
    }
    mergeFrom(m_runStart, m_runName, until);
}

void UndoSteps::boundary()
{
    closeJournalGroup();
    openJournalGroup();
}

int UndoSteps::checkpoint()
{
    boundary();
    return m_journal.undoDepth();
}

void UndoSteps::takeBackTo(int checkpoint)
{
    closeJournalGroup();
    if (m_journal.undoDepth() > checkpoint) {
        while (!m_steps.empty() && m_steps.back().depthBefore >= checkpoint)
            undoOne();
        m_undone.clear();
    }
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
    if (m_runDepth > 0 && m_groupStart && m_journal.undoDepth() > std::max(*m_groupStart, m_runStart))
        m_groupEnds.push_back(m_journal.undoDepth());
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
    ++m_undoCount;
    openJournalGroup();
}

int UndoSteps::undo(int count)
{
    closeJournalGroup();
    int done = 0;
    for (; done < count && !m_steps.empty(); ++done)
        undoOne();
    m_undoCount += done > 0 ? 1 : 0;
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
    for (std::vector<int> *depths : {&m_marks, &m_groupEnds})
        while (!depths->empty() && depths->back() > depth)
            depths->pop_back();
}

void UndoSteps::mergeFrom(int depth, const QString &name, int until)
{
    const auto beginsBefore = [](int limit) { return [limit](const Step &step) { return step.depthBefore < limit; }; };
    const auto first = std::find_if_not(m_steps.begin(), m_steps.end(), beginsBefore(depth));
    const auto last = std::find_if_not(first, m_steps.end(), beginsBefore(until));
    if (first == last)
        return;
    const Step merged{name, first->depthBefore, std::prev(last)->depthAfter};
    m_steps.insert(m_steps.erase(first, last), merged);
}

} // namespace host::kernel
