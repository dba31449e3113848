#pragma once

#include "platform/Export.h"

#include <QDialogButtonBox>

/// The host's row of standard buttons, in the order that the platform has them. OK, Cancel, Close and Help carry the
/// host's icons, which are those of the style at the moment when the row is shown; a button that has no such icon keeps
/// what it has.
class KV_EXPORT CKvQtDialogButtonBox : public QDialogButtonBox
{
    Q_OBJECT

public:
    /// Without buttons: the form or its dialog adds them.
    explicit CKvQtDialogButtonBox(QWidget *parent = nullptr);

protected:
    /// Sets the icons: only then all buttons are there.
    void showEvent(QShowEvent *event) override;
};
