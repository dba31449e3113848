#include "module/DialogRegistry.h"

#include <algorithm>

DialogRegistry &DialogRegistry::instance()
{
    static DialogRegistry registry;
    return registry;
}

void DialogRegistry::append(CKvDocument *document)
{
    m_records.emplace_back(document);
}

void DialogRegistry::remove(const CKvDocument *document)
{
    const auto found = std::ranges::find(m_records, document, &DocumentDialogSet::document);
    if (found == m_records.end())
        return;
    // Taken out first: what a dialog does on its way out already meets a registry without it.
    const DocumentDialogSet removed = std::move(*found);
    m_records.erase(found);
}

CKvDialog *DialogRegistry::dialog(const CKvDocument *document, DialogSlot slot, CKvDialog *(*create)(QWidget *parent),
                                  QWidget *parent)
{
    CKvDialog *found = nullptr;
    for (DocumentDialogSet &record : m_records) {
        if (record.document() != document)
            continue;
        QPointer<CKvDialog> &kept = record.dialog(slot);
        if (!kept)
            kept = create(parent);
        found = kept;
    }
    return found;
}
