#pragma once

#include "module/DocumentDialogSet.h"

#include <vector>

class QWidget;

/// The records of all documents that have the Lisp functions, in the order they got them. Used on the thread of the
/// user interface alone. Documents are not owned; they are compared as pointers and never looked into here.
class DialogRegistry
{
public:
    /// The one of the process, made on the first call; records left in it go when the module's code is unloaded,
    /// without their dialogs when the application has ended by then.
    static DialogRegistry &instance();

    /// Adds an empty record for `document` at the end.
    void append(CKvDocument *document);
    /// Destroys the first record of `document` with its dialogs; without one nothing happens.
    void remove(const CKvDocument *document);

    /// Valid until the next append() or remove(), which a dialog or a Lisp program may cause.
    std::vector<DocumentDialogSet> &records() { return m_records; }

    /// The dialog of `document` in `slot`, made by `create` with `parent` when the slot is empty; of two records the
    /// later one's. Null when `document` has no record.
    CKvDialog *dialog(const CKvDocument *document, DialogSlot slot, CKvDialog *(*create)(QWidget *parent),
                      QWidget *parent);

private:
    std::vector<DocumentDialogSet> m_records;
};
