#include "module/ModuleCommands.h"

#include "dialogs/selectblock/DLG_QT_SelectBlock.h"
#include "dialogs/tracktime/Dlg_QT_TrackTime.h"
#include "module/BlockImport.h"
#include "module/CommandDialog.h"
#include "module/ExceptionGuard.h"
#include "module/RegisteredDrawings.h"
#include "platform/ed/OdEdCommand.h"

#include <vector>

namespace ortakit {

namespace {

using namespace Qt::StringLiterals;

void trackTime()
{
    runCommandDialog<Dlg_QT_TrackTime>({.prepare = [](Dlg_QT_TrackTime &dialog) {
        static RegisteredDrawings open;
        dialog.setOpenDrawings(&open);
    }});
}

struct CommandRow
{
    QLatin1StringView name;
    void (*run)();
};

/// The commands that the host gets.
const std::vector<CommandRow> commandRows = {
    {"ORTAKIT_IMPORTBLOCK"_L1, importBlock},
    {"ORTAKIT_SELECTBLOCK"_L1, [] { runCommandDialog<DLG_QT_SelectBlock>({}); }},
    {"ORTAKIT_TRACKTIME"_L1, trackTime},
};

class ModuleCommand final : public OdStaticRxObject<OdEdCommand>
{
public:
    explicit ModuleCommand(const CommandRow &row) : m_row(row) {}

    OdString groupName() const override { return u"ORTAKIT"_s; }
    OdString globalName() const override { return m_row.name; }
    void execute(OdEdCommandContext *) override { runGuarded(m_row.run); }

private:
    CommandRow m_row;
};

std::vector<ModuleCommand> &moduleCommands()
{
    static std::vector<ModuleCommand> commands(commandRows.begin(), commandRows.end());
    return commands;
}

} // namespace

void addCommands()
{
    for (ModuleCommand &command : moduleCommands())
        odedRegCmds()->addCommand(&command);
}

void removeCommands()
{
    for (ModuleCommand &command : moduleCommands())
        odedRegCmds()->removeCommand(&command);
}

} // namespace ortakit
