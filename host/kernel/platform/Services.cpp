#include "host/kernel/platform/Services.h"

#include "platform/ed/OdEdCommand.h"
#include "platform/ed/OdEditor.h"
#include "platform/kernel/CKvCustBlockUtils.h"
#include "platform/kernel/CKvDocument.h"
#include "platform/kernel/CKvHelp.h"
#include "platform/kernel/CKvSystemServices.h"

#include <utility>

namespace {

host::kernel::Services installed;
CKvDocument *activeDocument = nullptr;

} // namespace

namespace host::kernel {

Services installServices(const Services &services)
{
    return std::exchange(installed, services);
}

CKvDocument *setActiveDocument(CKvDocument *document)
{
    return std::exchange(activeDocument, document);
}

} // namespace host::kernel

CKvSystemServices *GetKvSystemServices()
{
    return installed.system;
}

CKvHelp *GetKvHelp()
{
    return installed.help;
}

OdEditor *odedEditor()
{
    return installed.editor;
}

OdEdCommandStack *odedRegCmds()
{
    return installed.commands;
}

CKvCustBlockUtils *CKvCustBlockUtils::Get()
{
    return installed.customBlocks;
}

CKvDocument *ACTIVE_DOCUMENT()
{
    return activeDocument;
}
