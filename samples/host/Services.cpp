// What the application offers once: folders, settings, help, permission. It is what a host has anyway.

#include "Documents.h"
#include "Supply.h"
#include "platform/kernel/CKvCustBlockUtils.h"
#include "platform/kernel/CKvHelp.h"
#include "platform/kernel/CKvSystemServices.h"

#include <QDir>
#include <QHash>

#include <cstdio>

namespace sample {

namespace {

class SystemServices final : public CKvSystemServices
{
public:
    CKvDocumentManager *documentManager() override
    {
        return isSupplied("CKvSystemServices::documentManager") ? &sample::documentManager() : nullptr;
    }
    /// Without a window of its own, this host leaves the dialogs to the module.
    QWidget *mainWindow() override { return nullptr; }
    OdString helpFile() const override { return {}; }
    OdString defaultFolder() const override { return QDir::homePath(); }
    OdString userSupportFolder() const override { return QDir::tempPath() + u'/'; }
    OdString supportFolder() const override { return QDir::tempPath(); }
    bool isPermitted(const OdString &, CKvDocument &) override { return isSupplied("CKvSystemServices::isPermitted"); }
    KvLicence licenceState() const override { return KvLicence::None; }

    /// For as long as this host runs; another one writes them down.
    OdString stringSetting(const OdString &globalName, const OdString &) const override
    {
        return m_settings.value(globalName);
    }
    void setStringSetting(const OdString &globalName, const OdString &, const OdString &value) override
    {
        m_settings.insert(globalName, value);
    }

private:
    QHash<QString, QString> m_settings;
};

class HelpPages final : public CKvHelp
{
public:
    void Help(const OdString &, int topic, bool, QWidget *, int) override
    {
        std::fprintf(stderr, "help: topic %d\n", topic);
    }
};

} // namespace

} // namespace sample

CKvSystemServices *GetKvSystemServices()
{
    static sample::SystemServices services;
    return sample::isSupplied("GetKvSystemServices") ? &services : nullptr;
}

CKvHelp *GetKvHelp()
{
    static sample::HelpPages help;
    return sample::isSupplied("GetKvHelp") ? &help : nullptr;
}

CKvCustBlockUtils *CKvCustBlockUtils::Get()
{
    return nullptr; // a host without custom blocks
}
