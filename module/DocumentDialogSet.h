#pragma once

#include "module/DialogSlot.h"
#include "module/EditingTime.h"
#include "platform/kernel/CKvDialog.h"

#include <QPointer>

#include <array>

class CKvDocument;

/// What the module keeps for one document: its dialogs and its editing time. The document is not owned.
///
/// The dialogs are owned, though each may be destroyed by anybody: its slot is empty from then on.
class DocumentDialogSet
{
public:
    explicit DocumentDialogSet(CKvDocument *document) : m_document(document) {}
    ~DocumentDialogSet() { destroyDialogs(); }
    DocumentDialogSet(DocumentDialogSet &&other) noexcept;
    DocumentDialogSet &operator=(DocumentDialogSet &&other) noexcept;

    CKvDocument *document() const { return m_document; }

    QPointer<CKvDialog> &dialog(DialogSlot slot) { return m_dialogs[std::size_t(slot)]; }

    /// Hides and deletes the dialogs, a running one as well.
    void destroyDialogs();

    ortakit::EditingTime editingTime;

private:
    CKvDocument *m_document;
    std::array<QPointer<CKvDialog>, dialogSlotCount> m_dialogs;
};
