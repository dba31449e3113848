#include "host/app/batch/inspecting/InputDrawing.h"

#include "host/app/batch/BatchWork.h"
#include "host/app/batch/RecoveryTelling.h"
#include "host/app/workbench/ProgramOutput.h"
#include "host/drawing/file/Recovery.h"

using namespace Qt::StringLiterals;

namespace host::app {

InputDrawing openToInspect(const QString &path, const ProgramOptions &options)
{
    if (!options.isRecovering) {
        drawing::ReadResult read = drawing::Drawing::open(path);
        if (!read)
            return {.drawing = nullptr, .error = drawing::openingError(native(path), read)};
        tellLost(path, read.drawing->readingNotes());
        return {.drawing = std::move(read.drawing)};
    }
    drawing::Recovered recovered = drawing::recoverFile(path);
    if (!recovered)
        return {.drawing = nullptr, .error = u"%1: %2"_s.arg(native(path), recovered.error.message())};
    tellRecovery(path, recovered.report);
    recovered.drawing->setPath(path);
    return {.drawing = std::move(recovered.drawing), .recovery = std::move(recovered.report)};
}

} // namespace host::app
