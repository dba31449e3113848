#pragma once

#include "host/app/workbench/ProgramOptions.h"
#include "host/drawing/file/RecoveryReport.h"
#include "host/drawing/records/Drawing.h"

#include <memory>
#include <optional>

namespace host::app {

/// A drawing that is looked at and not changed.
struct InputDrawing
{
    std::unique_ptr<drawing::Drawing> drawing;         ///< null when it could not be opened
    std::optional<drawing::RecoveryReport> recovery{}; ///< what was done to open a damaged one
    QString error{};                                   ///< why there is no drawing, a sentence with its path
};

/// Opens a drawing, with the option for it as far as it is sound: what was done then is told on standard error. What
/// the drawing names is looked for beside it.
InputDrawing openToInspect(const QString &path, const ProgramOptions &options);

} // namespace host::app
