#include "platform/kernel/CKvDialog.h"

CKvDialog::CKvDialog(QWidget *parent) : QDialog(parent)
{
    setAttribute(Qt::WA_DeleteOnClose, false);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}

CKvDialog::~CKvDialog() = default;
