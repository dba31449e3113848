#include "module/DialogFunctions.h"

#include "dialogs/breakline/Dlg_QT_Breakline.h"
#include "module/RunDialog.h"

namespace ortakit {

int dlgBreakLine()
{
    return runDialog<Dlg_QT_Breakline>(DialogSlot::BreakLine, {});
}

} // namespace ortakit
