#include "Documents.h"

#include "Supply.h"

#include <QDir>

#include <algorithm>
#include <utility>

namespace sample {

CKvUserInput *Document::userInput()
{
    return isSupplied("CKvDocument::userInput") ? &m_input : nullptr;
}

OdString Document::systemVariable(const OdString &name) const
{
    const QString asked = name.toUpper();
    if (asked == u"LOGFILEPATH") // the folder of the user's data, with a separator at its end
        return QDir::tempPath() + u'/';
    // Of LISPCODEPAGE, DXFVERSION and LOCALE an empty text says that the usual is meant.
    if (asked != u"LISPCODEPAGE" && asked != u"DXFVERSION" && asked != u"LOCALE")
        notSupplied(("CKvDocument::systemVariable " + asked.toLatin1()).constData());
    return {};
}

// [documents]
Document *DocumentManager::open(const QString &path, const std::function<void(LispEngine &)> &prepare)
{
    m_documents.push_back(std::make_unique<Document>(path));
    Document *opened = m_documents.back().get();
    activate(opened);
    tell(&CKvDocumentManagerReactor::DocumentCreated, opened);
    const auto engine = std::make_shared<LispEngine>();
    prepare(*engine);
    opened->setEngine(engine);
    tell(&CKvDocumentManagerReactor::LispDocumentReady, opened);
    return opened;
}

void DocumentManager::close()
{
    Document *closing = m_active;
    if (!closing)
        return;
    tell(&CKvDocumentManagerReactor::LispDocumentClosing, closing); // its dialogs go now, a running one as well
    closing->engine()->forgetFunctions();
    closing->setEngine(nullptr);
    tell(&CKvDocumentManagerReactor::DocumentToBeDestroyed, closing);
    std::erase_if(m_documents, [closing](const auto &document) { return document.get() == closing; });
    activate(m_documents.empty() ? nullptr : m_documents.back().get());
    tell(&CKvDocumentManagerReactor::DocumentDestroyed, closing);
}
// [/documents]

DocumentManager::~DocumentManager()
{
    while (m_active)
        close();
}

CKvDocument *DocumentManager::document(int index) const
{
    return index >= 0 && index < documentCount() ? m_documents[std::size_t(index)].get() : nullptr;
}

void DocumentManager::addReactor(CKvDocumentManagerReactor *reactor)
{
    if (reactor && !m_reactors.contains(reactor))
        m_reactors.append(reactor);
}

void DocumentManager::tell(Notice notice, Document *document)
{
    const QList<CKvDocumentManagerReactor *> reactors = m_reactors;
    for (CKvDocumentManagerReactor *reactor : reactors) {
        if (m_reactors.contains(reactor))
            (reactor->*notice)(document);
    }
}

DocumentManager &documentManager()
{
    static DocumentManager one;
    return one;
}

} // namespace sample

CKvDocument *ACTIVE_DOCUMENT()
{
    return sample::documentManager().active();
}
