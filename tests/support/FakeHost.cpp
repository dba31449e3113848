#include "tests/support/FakeHost.h"

#include <QDir>
#include <QFile>

namespace ortakit::test {

FakeDocumentManager::~FakeDocumentManager()
{
    while (!m_documents.empty())
        close(m_documents.back().get());
}

FakeDocument *FakeDocumentManager::open()
{
    m_documents.push_back(std::make_unique<FakeDocument>());
    FakeDocument *opened = m_documents.back().get();
    activate(opened);
    const auto reactors = m_reactors;
    for (CKvDocumentManagerReactor *reactor : reactors)
        reactor->DocumentCreated(opened);
    for (CKvDocumentManagerReactor *reactor : reactors)
        reactor->LispDocumentReady(opened);
    return opened;
}

void FakeDocumentManager::close(FakeDocument *document)
{
    const auto reactors = m_reactors;
    for (CKvDocumentManagerReactor *reactor : reactors)
        reactor->LispDocumentClosing(document);
    document->setHasLisp(false);
    for (CKvDocumentManagerReactor *reactor : reactors)
        reactor->DocumentToBeDestroyed(document);
    std::erase_if(m_documents, [document](const auto &open) { return open.get() == document; });
    activate(m_documents.empty() ? nullptr : m_documents.back().get());
    for (CKvDocumentManagerReactor *reactor : reactors)
        reactor->DocumentDestroyed(document);
}

void FakeDocumentManager::activate(FakeDocument *document)
{
    host::kernel::setActiveDocument(document);
}

CKvDocument *FakeDocumentManager::document(int index) const
{
    return index >= 0 && index < documentCount() ? m_documents[size_t(index)].get() : nullptr;
}

void FakeDocumentManager::addReactor(CKvDocumentManagerReactor *reactor)
{
    if (!m_reactors.contains(reactor))
        m_reactors.append(reactor);
}

void FakeEditor::addReactor(OdEditorReactor *reactor)
{
    if (!m_reactors.contains(reactor))
        m_reactors.append(reactor);
}

void FakeHelp::Help(const OdString &helpFile, int topic, bool keepOpen, QWidget *parent, int style)
{
    requests.append(QStringLiteral("%1 %2 %3 %4 %5")
                        .arg(helpFile)
                        .arg(topic)
                        .arg(keepOpen ? QStringLiteral("keep") : QStringLiteral("new"))
                        .arg(parent ? QStringLiteral("parent") : QStringLiteral("no-parent"))
                        .arg(style));
}

FakeHost::FakeHost()
    : m_before(host::kernel::installServices({.system = this,
                                              .help = &m_help,
                                              .editor = &m_editor,
                                              .customBlocks = &m_customBlocks,
                                              .commands = &m_commands})),
      m_activeBefore(host::kernel::setActiveDocument(nullptr))
{
    writeFile(QStringLiteral("alias.xml"), "<aliases/>");
    QDir().mkpath(path(QStringLiteral("support/Template")));
    m_documents.open()->setSystemVariable(QStringLiteral("LOGFILEPATH"), m_folder.path() + QLatin1Char('/'));
}

FakeHost::~FakeHost()
{
    while (m_documents.documentCount() > 0)
        m_documents.close(static_cast<FakeDocument *>(m_documents.document(0)));
    host::kernel::installServices(m_before);
    host::kernel::setActiveDocument(m_activeBefore);
}

QString FakeHost::writeFile(const QString &name, const QByteArray &content) const
{
    QFile file(path(name));
    if (file.open(QIODevice::WriteOnly))
        file.write(content);
    return file.fileName();
}

QByteArray FakeHost::readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace ortakit::test
