#include "host/kernel/platform/HelpService.h"

#include "host/kernel/documents/Session.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/platform/HelpTopics.h"

#include <QApplication>
#include <QFileInfo>
#include <QWidget>

namespace host::kernel {

namespace {

/// A page that is called by the topic, or the start page; empty when the folder has neither.
QString pageByName(const QString &folder, const QString &topic)
{
    for (const QString &name : {topic, QStringLiteral("index")})
        if (QFileInfo::exists(folder + u'/' + name + QStringLiteral(".html")))
            return name + QStringLiteral(".html");
    return {};
}

} // namespace

HelpService::HelpService(Session &session) : m_session(session) {}

HelpService::~HelpService() = default;

void HelpService::Help(const OdString &helpFile, int topic, bool keepOpen, QWidget *, int)
{
    QStringList keys{QString::number(topic)};
    const bool isOwn = helpFile.isEmpty() || helpFile == m_session.helpFolder();
    if (const QWidget *dialog = isOwn ? QApplication::activeModalWidget() : nullptr)
        keys.prepend(QStringLiteral("dialog ") + dialog->objectName());
    show(isOwn ? m_session.helpFolder() : helpFile, keys, keepOpen);
}

void HelpService::show(const QStringList &keys)
{
    show(m_session.helpFolder(), keys, false);
}

bool HelpService::knows(const QStringList &keys) const
{
    return !topics().address(keys).isEmpty();
}

const HelpTopics &HelpService::topics() const
{
    if (!m_topics)
        m_topics = std::make_unique<HelpTopics>(m_session.helpFolder());
    return *m_topics;
}

void HelpService::show(const QString &folder, const QStringList &keys, bool keepOpen)
{
    QString address = folder == m_session.helpFolder() ? topics().address(keys) : HelpTopics(folder).address(keys);
    if (address.isEmpty())
        address = pageByName(folder, keys.value(keys.size() - 1));
    if (m_viewer && !address.isEmpty())
        m_viewer->show(folder, address, keepOpen);
    else if (Document *document = m_session.documents().active())
        document->print(address.isEmpty() ? u'\n' + Kernel::tr("No help page.") : u'\n' + folder + u'/' + address);
}

} // namespace host::kernel
