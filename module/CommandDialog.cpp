#include "module/CommandDialog.h"

#include "platform/kernel/CKvDocument.h"
#include "platform/kernel/CKvSystemServices.h"
#include "platform/kernel/CKvUserInput.h"

#include <QCoreApplication>

namespace ortakit {

std::optional<OdString> askForStateFile()
{
    CKvDocument *document = ACTIVE_DOCUMENT();
    CKvUserInput *input = document ? document->userInput() : nullptr;
    if (!input)
        return std::nullopt;
    input->initget(0, {});
    const OdString prompt =
        input->formatPrompt(QCoreApplication::translate("LispExtension", "Specify state file"), OdString());
    OdString path;
    if (input->getString(prompt, true, path) != kRtNormal || path.isEmpty())
        return std::nullopt;
    return path;
}

QWidget *dialogParent()
{
    CKvSystemServices *services = GetKvSystemServices();
    return services ? services->mainWindow() : nullptr;
}

} // namespace ortakit
