#include "host/drawing/records/Journal.h"

#include "host/drawing/records/DrawingPrivate.h"
#include "host/drawing/records/JournalPrivate.h"

namespace host::drawing {

void JournalStep::note(RecordId id, const RecordState &before, const RecordState &after)
{
    const auto known = m_places.constFind(id);
    if (known != m_places.constEnd()) {
        changes[*known].after = after;
        return;
    }
    m_places.insert(id, changes.size());
    changes.push_back({id, before, after});
}

void JournalStep::close()
{
    m_places = {};
    std::erase_if(changes, [](const Change &change) { return change.before.isSame(change.after); });
    const auto isUnseen = [](const Change &change) { return !change.before.isAlive() && !change.after.isAlive(); };
    if (std::all_of(changes.begin(), changes.end(), isUnseen))
        changes.clear();
    changes.shrink_to_fit();
}

void Journal::Private::note(RecordId id, const RecordState &before, const RecordState &after)
{
    open.note(id, before, after);
    if (depth == 0)
        closeStep();
}

void Journal::Private::closeStep()
{
    open.close();
    if (!open.changes.empty()) {
        if (savedDepth > static_cast<qint64>(undoSteps.size()))
            savedDepth = -1; // the saved state was among the steps to redo, which go now
        redoSteps.clear();
        undoSteps.push_back(std::move(open));
    }
    open = {};
}

void Journal::Private::apply(Drawing::Private &target, const JournalStep &step, ChangeCause cause)
{
    const bool isUndo = cause == ChangeCause::Undo;
    for (const JournalStep::Change &change : step.changes)
        target.setState(change.id, isUndo ? change.before : change.after);
    for (const JournalStep::Change &change : step.changes)
        target.announce(change.id, isUndo ? change.after : change.before, cause);
    target.announceDone();
}

Journal::Journal(Drawing &drawing) : d(std::make_unique<Private>(drawing)) {}

Journal::~Journal() = default;

void Journal::beginGroup(const QString &name)
{
    if (d->depth++ == 0)
        d->open.name = name;
}

void Journal::endGroup()
{
    if (d->depth == 0 || --d->depth > 0)
        return;
    const bool hadChanges = !d->open.changes.empty();
    d->closeStep();
    if (hadChanges)
        d->drawing.d->announceDone();
}

void Journal::abandonGroup()
{
    if (d->depth == 0)
        return;
    d->depth = 0;
    const JournalStep step = std::move(d->open);
    d->open = {};
    d->apply(*d->drawing.d, step, ChangeCause::Undo);
}

bool Journal::isGroupOpen() const
{
    return d->depth > 0;
}

bool Journal::canUndo() const
{
    return !d->undoSteps.empty() && d->depth == 0;
}

bool Journal::canRedo() const
{
    return !d->redoSteps.empty() && d->depth == 0;
}

QString Journal::undoName() const
{
    return d->undoSteps.empty() ? QString() : d->undoSteps.back().name;
}

QString Journal::redoName() const
{
    return d->redoSteps.empty() ? QString() : d->redoSteps.back().name;
}

bool Journal::undo()
{
    if (!canUndo())
        return false;
    d->redoSteps.push_back(std::move(d->undoSteps.back()));
    d->undoSteps.pop_back();
    d->apply(*d->drawing.d, d->redoSteps.back(), ChangeCause::Undo);
    return true;
}

bool Journal::redo()
{
    if (!canRedo())
        return false;
    d->undoSteps.push_back(std::move(d->redoSteps.back()));
    d->redoSteps.pop_back();
    d->apply(*d->drawing.d, d->undoSteps.back(), ChangeCause::Redo);
    return true;
}

int Journal::undoDepth() const
{
    return static_cast<int>(d->undoSteps.size());
}

bool Journal::isModified() const
{
    const auto isReal = [](const JournalStep::Change &change) { return !change.before.isSame(change.after); };
    return d->savedDepth != static_cast<qint64>(d->undoSteps.size()) ||
           std::any_of(d->open.changes.begin(), d->open.changes.end(), isReal);
}

void Journal::markSaved()
{
    const QString name = d->open.name; // what an open group did so far is in the file: its step is cut here
    d->closeStep();
    d->open.name = name;
    d->savedDepth = static_cast<qint64>(d->undoSteps.size());
}

void Journal::markUnsaved()
{
    d->savedDepth = -1;
}

void Journal::clear()
{
    const bool wasModified = isModified();
    d->undoSteps.clear();
    d->redoSteps.clear();
    d->savedDepth = wasModified ? -1 : 0;
}

} // namespace host::drawing
