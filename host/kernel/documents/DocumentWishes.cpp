#include "host/kernel/documents/DocumentWishes.h"

#include "host/kernel/documents/DocumentManager.h"
#include "host/kernel/languages/Texts.h"

namespace host::kernel {

QStringList DocumentWishes::grant(Typed more)
{
    while (!m_waiting.empty()) {
        const DocumentWish wish = std::move(m_waiting.front());
        m_waiting.pop_front();
        if (const QString problem = grantOne(wish, more); !problem.isEmpty()) {
            m_waiting.clear();
            return {problem};
        }
    }
    return {};
}

QString DocumentWishes::grantOne(const DocumentWish &wish, Typed more)
{
    switch (wish.kind) {
    case DocumentWish::Kind::Open:
        return wish.path.isEmpty() ? openChosen() : open(wish.path);
    case DocumentWish::Kind::New:
        return m_documents.createFrom(wish.path).error;
    case DocumentWish::Kind::Close:
        return close(wish, m_waiting.empty() ? more : Typed::Nothing);
    case DocumentWish::Kind::Quit:
        return quit(wish);
    }
    return {};
}

QString DocumentWishes::open(const QString &path)
{
    const OpenOutcome opened = m_documents.open(path);
    if (opened && opened.document != m_standIn)
        closeStandIn();
    return opened.error;
}

QString DocumentWishes::openChosen()
{
    const QStringList paths = m_question ? m_question() : QStringList();
    for (const QString &path : paths)
        if (const QString problem = open(path); !problem.isEmpty())
            return problem;
    return {};
}

QString DocumentWishes::close(const DocumentWish &wish, Typed more)
{
    Document *const document = wish.document;
    if (!document)
        return {};
    if (document == m_kept)
        return Kernel::tr("%1 stays open while a session is played on it.").arg(document->title());
    if (wish.changes == DocumentWish::Changes::Keep && document->isModified())
        return Kernel::tr("%1 was not closed: it was changed since.").arg(document->title());
    const QString title = document->title();
    if (!m_documents.close(document))
        return Kernel::tr("%1 was not closed: a program of it runs.").arg(title);
    if (more == Typed::More && m_documents.documentCount() == 0)
        m_standIn = m_documents.create();
    return {};
}

QString DocumentWishes::quit(const DocumentWish &wish)
{
    if (QString problem = close(wish, Typed::Nothing); !problem.isEmpty())
        return problem;
    m_waiting.clear();
    m_isQuitWanted = true;
    emit quitWanted();
    return {};
}

void DocumentWishes::closeStandIn()
{
    if (m_standIn && !m_standIn->isModified() && m_standIn->path().isEmpty())
        m_documents.close(m_standIn);
    m_standIn = nullptr;
}

} // namespace host::kernel
