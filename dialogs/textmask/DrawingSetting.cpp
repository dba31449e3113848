#include "dialogs/textmask/DrawingSetting.h"

#include "platform/db/OdDbDatabase.h"
#include "platform/kernel/CKvDocument.h"
#include "platform/kernel/CKvDocumentManager.h"
#include "platform/kernel/CKvSystemServices.h"

std::optional<qint16> DrawingSetting::value() const
{
    const OdDbDatabase *database = isOpen() ? m_document->database() : nullptr;
    const OdResBufPtr link = database ? database->getSysVar(m_name) : nullptr;
    if (!link)
        return std::nullopt;
    return static_cast<qint16>(link->getInteger());
}

void DrawingSetting::setValue(std::optional<qint16> value) const
{
    const std::optional<qint16> present = this->value();
    if (present && value && *present != *value)
        m_document->database()->setSysVar(m_name, *OdResBuf::newInteger(OdResBuf::kRtShort, *value));
}

bool DrawingSetting::isOpen() const
{
    CKvSystemServices *services = GetKvSystemServices();
    const CKvDocumentManager *manager = services ? services->documentManager() : nullptr;
    for (int i = 0; manager && i < manager->documentCount(); ++i) {
        if (manager->document(i) == m_document)
            return m_document != nullptr;
    }
    return false;
}
