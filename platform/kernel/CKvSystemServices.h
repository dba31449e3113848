#pragma once

#include "platform/Export.h"
#include "platform/rx/OdString.h"

class CKvDocument;
class CKvDocumentManager;
class QWidget;

/// What the host may be used for.
enum class KvLicence
{
    Full,
    Demo,
    None ///< the host needs no licence or has none
};

/// What the host offers once for the whole process. The object and what it hands out are the host's own and live as
/// long as it does; paths are full, with the separators that Qt uses.
class KV_EXPORT CKvSystemServices
{
public:
    virtual ~CKvSystemServices() = default;

    /// Null in a host that runs without documents.
    virtual CKvDocumentManager *documentManager() = 0;
    /// Parent of tool dialogs; null in a run without a window.
    virtual QWidget *mainWindow() = 0;
    /// The help file that the module's topics are in.
    virtual OdString helpFile() const = 0;
    /// Where a file dialog starts that has no folder of its own.
    virtual OdString defaultFolder() const = 0;
    /// The folder of the support files that are the user's own, with a separator at its end. The host takes its command
    /// aliases from "alias.xml" in it and goes by a changed file from the next command on.
    virtual OdString userSupportFolder() const = 0;
    /// Whether `command` may run in `document` now. Where the user has to be told why not, the host does it.
    virtual bool isPermitted(const OdString &command, CKvDocument &document) = 0;
    /// The folder of the host's support files, without a separator at the end; "Template" below it is where drawings
    /// to start from are kept.
    virtual OdString supportFolder() const = 0;
    /// A setting that the host keeps for the user from one run to the next, by its global and its local name; empty
    /// where there is none.
    virtual OdString stringSetting(const OdString &globalName, const OdString &localName) const = 0;
    /// Keeps the setting from now on. Where it cannot, the host tells the user.
    virtual void setStringSetting(const OdString &globalName, const OdString &localName, const OdString &value) = 0;
    /// As of now: a licence may come or run out while the host runs.
    virtual KvLicence licenceState() const = 0;
};

/// The services; null before the host has started.
KV_EXPORT CKvSystemServices *GetKvSystemServices();
