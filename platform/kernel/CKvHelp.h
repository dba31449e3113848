#pragma once

#include "platform/Export.h"
#include "platform/rx/OdString.h"

class QWidget;

/// Shows pages of help files: the module's own is CKvSystemServices::helpFile(), and what kind of file it is, a folder
/// of pages or a compiled one, only the host knows.
class KV_EXPORT CKvHelp
{
public:
    virtual ~CKvHelp() = default;

    /// Shows topic number `topic` of `helpFile`; an unknown topic, 0 among them, shows the start page. `keepOpen`
    /// leaves a page that is shown already; `parent` may be null; `style` is the host's window style. Returns at once:
    /// the page stands beside a modal dialog and can be read while that runs. Help that is missing is no error.
    /// In a run without windows it may do no more than name the page on the command line.
    virtual void Help(const OdString &helpFile, int topic, bool keepOpen, QWidget *parent, int style) = 0;
};

/// The help service, which lives as long as the host; null before the host has started.
KV_EXPORT CKvHelp *GetKvHelp();
