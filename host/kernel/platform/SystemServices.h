#pragma once

#include "platform/kernel/CKvSystemServices.h"

namespace host::kernel {

class Session;

/// The platform's view of a session.
class SystemServices final : public CKvSystemServices
{
public:
    explicit SystemServices(Session &session) : m_session(session) {}

    CKvDocumentManager *documentManager() override;
    QWidget *mainWindow() override;
    /// The folder of the help pages.
    OdString helpFile() const override;
    /// The active drawing's folder, else the user's documents.
    OdString defaultFolder() const override;
    /// The folder of the user's data. An alias file is made there when there is none.
    OdString userSupportFolder() const override;
    /// Everything is, but while a program has left a drawing command half way: the command takes the next input.
    bool isPermitted(const OdString &command, CKvDocument &document) override;
    /// The folder of the user's data.
    OdString supportFolder() const override;
    OdString stringSetting(const OdString &globalName, const OdString &localName) const override;
    void setStringSetting(const OdString &globalName, const OdString &localName, const OdString &value) override;
    /// This host is free: it has none.
    KvLicence licenceState() const override { return KvLicence::None; }

private:
    Session &m_session;
};

} // namespace host::kernel
