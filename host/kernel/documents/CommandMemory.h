#pragma once

#include "host/drawing/math/Matrix.h"
#include "host/drawing/records/Drawing.h"
#include "host/drawing/tags/Tag.h"

#include <QHash>
#include <QString>

#include <vector>

namespace host::kernel {

/// A user coordinate system, and the name it was restored by; empty for one without.
struct UserSystem
{
    drawing::Matrix axes;
    QString name;
};

/// The layers as they were before a command: their own groups by name.
using LayerStates = QHash<QString, drawing::FieldList>;

/// What commands of a document remember from one run to the next, while it is open: what "Previous" means to them. No
/// part of the drawing, and not undone.
struct CommandMemory
{
    std::vector<UserSystem> formerModelSystems; ///< oldest first, the last ten
    std::vector<UserSystem> formerSheetSystems;
    std::vector<LayerStates> formerLayers;   ///< before each command over layers, oldest first, the last ten
    LayerStates beforeIsolation;             ///< by LAYISO, for LAYUNISO; empty when there is none
    std::vector<drawing::RecordId> takenOut; ///< by the last ERASE, or making or writing of a block, for OOPS
    int undosBefore = 0;                     ///< UndoSteps::undoCount() at that time
    bool isolationTurnsOff = false;          ///< LAYISO turns layers off instead of locking them
};

} // namespace host::kernel
