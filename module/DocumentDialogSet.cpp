#include "module/DocumentDialogSet.h"

#include <QApplication>

#include <utility>

DocumentDialogSet::DocumentDialogSet(DocumentDialogSet &&other) noexcept
    : editingTime(other.editingTime), m_document(other.m_document), m_dialogs(std::exchange(other.m_dialogs, {}))
{
}

DocumentDialogSet &DocumentDialogSet::operator=(DocumentDialogSet &&other) noexcept
{
    if (this == &other)
        return *this;
    destroyDialogs();
    editingTime = other.editingTime;
    m_document = other.m_document;
    m_dialogs = std::exchange(other.m_dialogs, {});
    return *this;
}

void DocumentDialogSet::destroyDialogs()
{
    // Records that outlive the application (an unload at the very end) have no window left to take down.
    if (!qApp)
        return;
    for (QPointer<CKvDialog> &slot : m_dialogs) {
        if (!slot)
            continue;
        slot->hide();
        // Hiding runs handlers of the dialog, and one of them may have destroyed it.
        delete slot.data();
        slot.clear();
    }
}
