#include "module/CEdReactor.h"

#include "module/DialogRegistry.h"
#include "module/ExceptionGuard.h"
#include "platform/kernel/CKvDocument.h"

using namespace Qt::StringLiterals;

namespace {

enum class Save
{
    No,
    IntoDrawing
};

void countActivity(Save save)
{
    const CKvDocument *active = ACTIVE_DOCUMENT();
    for (DocumentDialogSet &record : DialogRegistry::instance().records()) {
        if (record.document() != active || !record.editingTime.isTracked)
            continue;
        ortakit::advance(record.editingTime);
        if (save == Save::IntoDrawing)
            ortakit::writeEditingTime(record.editingTime, record.document()->database());
    }
}

void countActivityGuarded(Save save)
{
    ortakit::runGuarded([=] { countActivity(save); });
}

} // namespace

void CEdReactor::beginSave(OdDbDatabase *, const OdString &)
{
    countActivityGuarded(Save::IntoDrawing);
}

void CEdReactor::commandWillStart(OdEdCommand *, OdEdCommandContext *)
{
    countActivityGuarded(Save::No);
}

void CEdReactor::lispWillStart(OdEdCommandContext *, const OdString &)
{
    countActivityGuarded(Save::No);
}

void CEdReactor::sysVarWillChange(OdDbDatabase *, const OdString &name)
{
    if (name.compare("LASTPROMPT"_L1, Qt::CaseInsensitive) != 0)
        countActivityGuarded(Save::No);
}
