#include "host/kernel/HelpService.h"

#include "host/kernel/Session.h"

#include <QFileInfo>
#include <QTextBrowser>
#include <QUrl>

namespace host::kernel {

HelpService::~HelpService()
{
    delete m_browser;
}

QString HelpService::page(const QString &folder, int topic)
{
    for (const QString &name : {QString::number(topic), QStringLiteral("index")}) {
        const QString path = folder + u'/' + name + QStringLiteral(".html");
        if (QFileInfo::exists(path))
            return path;
    }
    return {};
}

void HelpService::Help(const OdString &helpFile, int topic, bool keepOpen, QWidget *, int)
{
    const QString path = page(helpFile.isEmpty() ? m_session.helpFolder() : helpFile, topic);
    if (!m_session.mainWindow()) {
        if (Document *document = m_session.documents().active())
            document->print(u'\n' + (path.isEmpty() ? QStringLiteral("No help page.") : path));
        return;
    }
    if (!m_browser) {
        // A window of its own: it can be read beside a modal dialog's parent and outlives the dialog.
        m_browser = new QTextBrowser(m_session.mainWindow());
        m_browser->setObjectName(QStringLiteral("helpWindow"));
        m_browser->setWindowFlags(Qt::Window);
        m_browser->setWindowModality(Qt::NonModal);
        m_browser->setWindowTitle(QObject::tr("Help"));
        m_browser->setOpenExternalLinks(true);
        m_browser->resize(720, 560);
    } else if (keepOpen && m_browser->isVisible()) {
        return;
    }
    if (path.startsWith(u':'))
        m_browser->setSource(QUrl(QStringLiteral("qrc") + path));
    else
        m_browser->setSource(QUrl::fromLocalFile(path));
    m_browser->show();
    m_browser->raise();
}

} // namespace host::kernel
