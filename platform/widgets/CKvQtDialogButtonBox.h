#pragma once

#include "platform/Export.h"

#include <QDialogButtonBox>

/// The host's row of standard buttons (Close, Help and the like), which carry the host's icons.
class KV_EXPORT CKvQtDialogButtonBox : public QDialogButtonBox
{
    Q_OBJECT

public:
    explicit CKvQtDialogButtonBox(QWidget *parent = nullptr);

protected:
    void showEvent(QShowEvent *event) override;
};
