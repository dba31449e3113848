#include "host/kernel/DocumentManager.h"

#include "files/Leftovers.h"
#include "files/qt/Files.h"
#include "host/drawing/NewDrawing.h"
#include "host/kernel/Services.h"
#include "host/kernel/Session.h"

#include <QDir>
#include <QFileInfo>

namespace host::kernel {

DocumentManager::DocumentManager(Session &session) : m_session(session) {}

DocumentManager::~DocumentManager()
{
    while (!m_documents.empty())
        remove(m_documents.back().get());
}

OpenOutcome DocumentManager::open(const QString &path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    for (const auto &document : m_documents) {
        if (!canonical.isEmpty() && QFileInfo(document->path()).canonicalFilePath() == canonical) {
            setActive(document.get());
            return {document.get(), {}};
        }
    }
    drawing::ReadResult read = drawing::Drawing::open(path);
    if (!read)
        return {nullptr, QStringLiteral("%1: %2").arg(path, read.error.message())};
    Document *document = add(std::move(read.drawing));
    tellLeftovers(*document, canonical);
    return {document, {}};
}

/// Takes away what a save that was killed left beside the file, and tells of a whole copy.
void DocumentManager::tellLeftovers(Document &document, const QString &path)
{
    for (const std::filesystem::path &copy : files::removeLeftovers(files::nativePath(path)))
        document.print(QStringLiteral("\nSaving this drawing was broken off once. What was to be saved is in %1; the "
                                      "drawing's own file may have only a part of it.\n")
                           .arg(QDir::toNativeSeparators(files::fromNativePath(copy))));
}

Document *DocumentManager::create()
{
    return add(drawing::newDrawing());
}

Document *DocumentManager::add(std::unique_ptr<drawing::Drawing> drawing)
{
    const QString untitled = drawing->path().isEmpty() ? QStringLiteral("Drawing%1").arg(++m_untitled) : QString();
    m_documents.push_back(std::make_unique<Document>(m_session, std::move(drawing), untitled));
    Document *document = m_documents.back().get();
    setActive(document);
    tell([&](CKvDocumentManagerReactor &reactor) { reactor.DocumentCreated(document); });
    document->openLisp();
    tell([&](CKvDocumentManagerReactor &reactor) { reactor.LispDocumentReady(document); });
    emit opened(document);
    return document;
}

bool DocumentManager::close(Document *document)
{
    if (!document || document->isBusy())
        return false;
    remove(document);
    return true;
}

void DocumentManager::remove(Document *document)
{
    const auto isIt = [document](const auto &owned) { return owned.get() == document; };
    const auto place = std::find_if(m_documents.begin(), m_documents.end(), isIt);
    if (place == m_documents.end())
        return;
    emit aboutToClose(document);
    tell([&](CKvDocumentManagerReactor &reactor) { reactor.LispDocumentClosing(document); });
    document->closeLisp();
    tell([&](CKvDocumentManagerReactor &reactor) { reactor.DocumentToBeDestroyed(document); });
    std::unique_ptr<Document> last = std::move(*std::find_if(m_documents.begin(), m_documents.end(), isIt));
    std::erase(m_documents, nullptr);
    if (m_active == document)
        setActive(m_documents.empty() ? nullptr : m_documents.back().get());
    last.reset();
    tell([&](CKvDocumentManagerReactor &reactor) { reactor.DocumentDestroyed(document); });
}

void DocumentManager::setActive(Document *document)
{
    setActiveDocument(document);
    if (std::exchange(m_active, document) != document)
        emit activeChanged(document);
}

CKvDocument *DocumentManager::document(int index) const
{
    return index >= 0 && index < documentCount() ? m_documents[static_cast<size_t>(index)].get() : nullptr;
}

void DocumentManager::addReactor(CKvDocumentManagerReactor *reactor)
{
    if (reactor && std::find(m_reactors.begin(), m_reactors.end(), reactor) == m_reactors.end())
        m_reactors.push_back(reactor);
}

void DocumentManager::removeReactor(CKvDocumentManagerReactor *reactor)
{
    std::erase(m_reactors, reactor);
}

template <typename Call>
void DocumentManager::tell(Call &&call)
{
    // A copy: reactors may come and go meanwhile.
    const std::vector<CKvDocumentManagerReactor *> reactors = m_reactors;
    for (CKvDocumentManagerReactor *reactor : reactors)
        if (std::find(m_reactors.begin(), m_reactors.end(), reactor) != m_reactors.end())
            call(*reactor);
}

} // namespace host::kernel
