#pragma once

#include "platform/Export.h"

#include <QDialog>

/// Base of every dialog that the host shows: follows the host's style, and is hidden rather than deleted when closed,
/// so that its widgets keep their values until it is shown again. Who defines this class and the widgets compiles what
/// Qt's moc makes of their headers, too: the module has none of it. Its window has no button for "What's this?".
class KV_EXPORT CKvDialog : public QDialog
{
    Q_OBJECT

public:
    /// Not shown yet. Belongs to `parent`, which may delete it at any time, also while it runs; commonly the host's
    /// main window. Null in a run without windows: then the caller is the owner.
    explicit CKvDialog(QWidget *parent = nullptr);
    /// Ends a dialog that is running; its exec() returns then, to a caller who must not touch it any more.
    ~CKvDialog() override;
};
