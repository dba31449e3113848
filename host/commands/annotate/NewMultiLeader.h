#pragma once

#include "host/drawing/math/Vec.h"
#include "host/drawing/records/Record.h"

#include <QString>

namespace host::kernel {

class CommandContext;

/// Makes a MULTILEADER with one straight line and a text, by the style CMLEADERSTYLE, which is made where the drawing
/// lacks it. Points are in world coordinates. noRecord when it could not be made, which was told.
drawing::RecordId createMultiLeader(CommandContext &context, drawing::Vec3 arrow, drawing::Vec3 landing,
                                    const QString &content);

} // namespace host::kernel
