#include "host/app/batch/inspecting/InputDrawing.h"

#include "files/qt/VisibleText.h"
#include "host/app/batch/BatchWork.h"
#include "host/app/batch/RecoveryTelling.h"
#include "host/app/workbench/ProgramOutput.h"
#include "host/drawing/file/Recovery.h"
#include "host/kernel/documents/Session.h"

#include <QFileInfo>
#include <QSet>

using namespace Qt::StringLiterals;

namespace host::app {

InputDrawing openToInspect(const QString &path, const ProgramOptions &options)
{
    if (!options.isRecovering) {
        drawing::ReadResult read = drawing::Drawing::open(path);
        if (!read)
            return {.drawing = nullptr, .error = drawing::openingError(native(path), read)};
        return {.drawing = std::move(read.drawing)};
    }
    drawing::Recovered recovered = drawing::recoverFile(path);
    if (!recovered)
        return {.drawing = nullptr, .error = u"%1: %2"_s.arg(native(path), recovered.error.message())};
    tellRecovery(path, recovered.report);
    recovered.drawing->setPath(path);
    return {.drawing = std::move(recovered.drawing), .recovery = std::move(recovered.report)};
}

drawing::ReadableFiles readableToInspect(const ProgramOptions &options)
{
    drawing::ReadableFiles readable;
    for (const QString &folder : options.readableFolders)
        readable.folders.append(QFileInfo(folder).absoluteFilePath());
    readable.folders.append(kernel::Session::homeFolder(options.home) + u"/plotstyles"_s);
    readable.refused = [told = std::make_shared<QSet<QString>>()](const QString &path, const QString &reason) {
        if (told->contains(path))
            return;
        told->insert(path);
        writeMessage(u"%1 was not read: %2"_s.arg(files::visibleText(native(path)), reason));
    };
    return readable;
}

} // namespace host::app
