#include "host/kernel/platform/HelpService.h"

#include "host/kernel/documents/Session.h"
#include "host/kernel/languages/Texts.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDialog>
#include <QEvent>
#include <QFileInfo>
#include <QTextBrowser>
#include <QUrl>

namespace host::kernel {

namespace {

/// Links have their colour from the palette that there was when a page was read.
class HelpWindow final : public QTextBrowser
{
public:
    using QTextBrowser::QTextBrowser;

protected:
    void changeEvent(QEvent *event) override
    {
        QTextBrowser::changeEvent(event);
        if (event->type() == QEvent::PaletteChange && !source().isEmpty())
            reload();
    }
};

} // namespace

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
            document->print(u'\n' + (path.isEmpty() ? Kernel::tr("No help page.") : path));
        return;
    }
    const bool wasOpen = m_browser && m_browser->isVisible();
    QTextBrowser &shown = browser();
    QWidget *const modal = QApplication::activeModalWidget();
    standInFrontOf(modal ? *modal : *m_session.mainWindow());
    if (!keepOpen || !wasOpen)
        shown.setSource(path.startsWith(u':') ? QUrl(QStringLiteral("qrc") + path) : QUrl::fromLocalFile(path));
    shown.show();
    shown.raise();
    shown.activateWindow();
}

QTextBrowser &HelpService::browser()
{
    if (!m_browser) {
        m_browser = new HelpWindow(m_session.mainWindow());
        m_browser->setObjectName(QStringLiteral("helpWindow"));
        m_browser->setWindowFlags(Qt::Window);
        m_browser->setWindowModality(Qt::NonModal);
        m_browser->setWindowTitle(QObject::tr("Help"));
        m_browser->setOpenLinks(false);
        QObject::connect(m_browser, &QTextBrowser::anchorClicked, m_browser,
                         [this](const QUrl &link) { follow(link); });
        m_browser->resize(720, 560);
    }
    return *m_browser;
}

/// Pages lead to each other and to the web, and nowhere else.
void HelpService::follow(const QUrl &link)
{
    const QUrl page = m_browser->source();
    const bool isBeside = link.scheme() == page.scheme() && link.host().isEmpty() &&
                          link.adjusted(QUrl::RemoveFilename | QUrl::NormalizePathSegments).path() ==
                              page.adjusted(QUrl::RemoveFilename | QUrl::NormalizePathSegments).path();
    if (isBeside)
        m_browser->setSource(link);
    else if (link.scheme() == QLatin1String("http") || link.scheme() == QLatin1String("https"))
        QDesktopServices::openUrl(link);
    else if (Document *document = m_session.documents().active())
        document->print(Kernel::tr("\nThis link of the help page is not followed: %1\n")
                            .arg(QString::fromLatin1(link.toEncoded())));
}

/// A modal dialog blocks every window but those that belong to it.
void HelpService::standInFrontOf(QWidget &owner)
{
    if (m_browser->parentWidget() == &owner)
        return;
    const bool wasOpen = m_browser->isVisible();
    const QRect place = m_browser->geometry();
    m_browser->setParent(&owner, m_browser->windowFlags());
    m_browser->setGeometry(place);
    // Who answers prompts when the dialog has gone keeps the keyboard.
    m_browser->setAttribute(Qt::WA_ShowWithoutActivating);
    m_browser->setVisible(wasOpen);
    m_browser->setAttribute(Qt::WA_ShowWithoutActivating, false);
    if (&owner == m_session.mainWindow())
        return;
    const auto leave = [this, &owner] {
        if (m_browser && m_session.mainWindow() && m_browser->parentWidget() == &owner)
            standInFrontOf(*m_session.mainWindow());
    };
    QObject::connect(&owner, &QObject::destroyed, m_browser, leave);
    if (auto *dialog = qobject_cast<QDialog *>(&owner))
        QObject::connect(dialog, &QDialog::finished, m_browser, leave);
}

} // namespace host::kernel
