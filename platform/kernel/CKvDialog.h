#pragma once

#include "platform/Export.h"

#include <QDialog>

/// Base of every dialog that the host shows: follows the host's style, and is hidden rather than deleted when closed.
class KV_EXPORT CKvDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CKvDialog(QWidget *parent = nullptr);
    ~CKvDialog() override;
};
