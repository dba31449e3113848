#include "host/kernel/platform/SystemServices.h"

#include "host/kernel/documents/Session.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandRun.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace host::kernel {

CKvDocumentManager *SystemServices::documentManager()
{
    return &m_session.documents();
}

QWidget *SystemServices::mainWindow()
{
    return m_session.mainWindow();
}

OdString SystemServices::helpFile() const
{
    return m_session.helpFolder();
}

OdString SystemServices::defaultFolder() const
{
    const Document *document = m_session.documents().active();
    if (document && !document->path().isEmpty())
        return QFileInfo(document->path()).absolutePath();
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

OdString SystemServices::userSupportFolder() const
{
    // Whoever asks is going to read the file.
    m_session.aliases().ensureFile();
    return m_session.home() + u'/';
}

bool SystemServices::isPermitted(const OdString &command, CKvDocument &document)
{
    auto &own = static_cast<Document &>(document);
    const CommandRun *pending = own.pendingCommand();
    if (!pending || pending->isDone())
        return true;
    own.print(Kernel::tr("\n%1 cannot run while another command is under way.").arg(command.toUpper()));
    return false;
}

OdString SystemServices::supportFolder() const
{
    return m_session.home();
}

OdString SystemServices::stringSetting(const OdString &globalName, const OdString &localName) const
{
    return m_session.settings().text(globalName, localName);
}

void SystemServices::setStringSetting(const OdString &globalName, const OdString &localName, const OdString &value)
{
    Document *document = m_session.documents().active();
    if (m_session.settings().setText(globalName, localName, value) || !document)
        return;
    document->print(Kernel::tr("\n%1: the setting cannot be written to %2.\n")
                        .arg(globalName, QDir::toNativeSeparators(m_session.settings().path())));
}

} // namespace host::kernel
