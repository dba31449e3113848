#include "module/CommandDialog.h"

#include "platform/kernel/CKvDocument.h"
#include "platform/kernel/CKvSystemServices.h"
#include "platform/kernel/CKvUserInput.h"

#include <QCoreApplication>

namespace ortakit {

std::optional<OdString> askForText(const char *prompt)
{
    CKvDocument *document = ACTIVE_DOCUMENT();
    CKvUserInput *input = document ? document->userInput() : nullptr;
    if (!input)
        return std::nullopt;
    input->initget(0, {});
    const OdString shown = input->formatPrompt(QCoreApplication::translate("LispExtension", prompt), OdString());
    OdString text;
    if (input->getString(shown, true, text) != kRtNormal || text.isEmpty())
        return std::nullopt;
    return text;
}

std::optional<OdString> askForStateFile()
{
    return askForText(QT_TRANSLATE_NOOP("LispExtension", "Specify state file"));
}

QWidget *dialogParent()
{
    CKvSystemServices *services = GetKvSystemServices();
    return services ? services->mainWindow() : nullptr;
}

} // namespace ortakit
