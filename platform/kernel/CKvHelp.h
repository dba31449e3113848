#pragma once

#include "platform/Export.h"
#include "platform/rx/OdString.h"

class QWidget;

/// Shows pages of help files.
class KV_EXPORT CKvHelp
{
public:
    virtual ~CKvHelp() = default;

    /// Shows topic number `topic` of `helpFile`; an unknown topic, 0 among them, shows the start page. `keepOpen`
    /// leaves a page that is shown already; `parent` may be null; `style` is the host's window style.
    virtual void Help(const OdString &helpFile, int topic, bool keepOpen, QWidget *parent, int style) = 0;
};

/// The help service; null before the host has started.
KV_EXPORT CKvHelp *GetKvHelp();
