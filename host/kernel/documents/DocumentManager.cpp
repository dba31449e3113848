#include "host/kernel/documents/DocumentManager.h"

#include "files/Leftovers.h"
#include "files/qt/Files.h"
#include "host/drawing/file/NewDrawing.h"
#include "host/drawing/file/Recovery.h"
#include "host/drawing/records/Journal.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/platform/Services.h"

#include <QDir>
#include <QFileInfo>

namespace host::kernel {

namespace {

/// Lines on what was mended in a drawing, or is not in it.
constexpr qsizetype longestTelling = 200;

} // namespace

DocumentManager::DocumentManager(Session &session) : m_session(session) {}

DocumentManager::~DocumentManager()
{
    while (!m_documents.empty())
        remove(m_documents.back().get());
}

OpenOutcome DocumentManager::open(const QString &path, OpenMode mode)
{
    if (Document *open = documentOf(path)) {
        setActive(open);
        return {open, {}};
    }
    const bool isForced = mode == OpenMode::Alone && m_session.overrule() == Overrule::Obstacles;
    DrawingClaim claim(path, isForced ? OpenMode::Anyway : mode);
    if (claim.holder() && !claim.isReadOnly())
        return {nullptr, openElsewhere(path, *claim.holder()).text, {}, claim.holder()};
    drawing::ReadResult read = drawing::Drawing::open(path);
    if (!read)
        return {nullptr, drawing::openingError(path, read)};
    claim.setContent(*read.drawing);
    const QString file = claim.file();
    Document *document = add(std::move(read.drawing), std::move(claim));
    tellLeftovers(*document, file);
    return {.document = document, .error = {}, .lost = tellLost(*document)};
}

OpenOutcome DocumentManager::openRecovered(const QString &path)
{
    drawing::Recovered recovered = drawing::recoverFile(path);
    if (!recovered)
        return {nullptr, QStringLiteral("%1: %2").arg(path, recovered.error.message())};
    const QString name = Kernel::tr("%1 (recovered)").arg(QFileInfo(path).fileName());
    Document *document = add(std::move(recovered.drawing), {}, name);
    document->setDamagedFile(path);
    const QStringList told = recovered.report.lines(longestTelling);
    document->print(u'\n' + told.join(u'\n') + u'\n');
    return {document, {}, told};
}

OpenOutcome DocumentManager::openCopy(const RecoveryFile &copy)
{
    const RecoveryNote &note = copy.note;
    drawing::ReadResult read = drawing::Drawing::open(copy.file);
    QStringList told;
    if (!read && read.isDamaged) {
        drawing::Recovered recovered = drawing::recoverFile(copy.file);
        read.drawing = std::move(recovered.drawing);
        told = recovered.report.lines(longestTelling);
    }
    if (!read)
        return {nullptr, drawing::openingError(copy.file, read)};
    const bool hasPath = !note.path.isEmpty() && !documentOf(note.path);
    DrawingClaim claim = hasPath ? DrawingClaim(note.path, OpenMode::Alone) : DrawingClaim();
    if (claim.holder())
        claim = DrawingClaim(note.path, OpenMode::ReadOnly);
    if (hasPath)
        claim.setBase(note.base);
    read.drawing->setPath(hasPath ? note.path : QString());
    read.drawing->setForm(note.isBinary ? drawing::FileForm::Binary : drawing::FileForm::Text);
    read.drawing->journal().markUnsaved();
    Document *document = add(std::move(read.drawing), std::move(claim), note.title);
    document->setRecovered();
    emit document->titleChanged();
    if (!told.isEmpty())
        document->print(u'\n' + told.join(u'\n') + u'\n');
    return {document, {}, told};
}

QStringList DocumentManager::tellLost(Document &document)
{
    const drawing::ReadingNotes &notes = document.drawing().readingNotes();
    if (!notes.hasFaults())
        return {};
    const QStringList told = QStringList(notes.summary()) + notes.faults(longestTelling);
    document.print(QStringLiteral("\n%1: %2\n").arg(document.title(), told.join(u'\n')));
    return told;
}

/// Takes away what a save that was killed left beside the file, and tells of a whole copy.
void DocumentManager::tellLeftovers(Document &document, const QString &path)
{
    for (const std::filesystem::path &copy : files::removeLeftovers(files::nativePath(path)))
        document.print(Kernel::tr("\nSaving this drawing was broken off once. What was to be saved is in %1; the "
                                  "drawing's own file may have only a part of it.\n")
                           .arg(QDir::toNativeSeparators(files::fromNativePath(copy))));
}

Document *DocumentManager::documentOf(const QString &path) const
{
    const QString file = canonicalFile(path);
    const std::optional<FileIdentity> identity = identityOf(path);
    const auto isIts = [&](const auto &document) { return document->claim().isOf(file, identity); };
    const auto found = std::find_if(m_documents.begin(), m_documents.end(), isIts);
    return found == m_documents.end() ? nullptr : found->get();
}

Document *DocumentManager::create()
{
    return add(drawing::newDrawing(), {});
}

OpenOutcome DocumentManager::createFrom(const QString &path)
{
    if (path.isEmpty())
        return {create(), {}};
    drawing::ReadResult read = drawing::Drawing::open(path);
    if (!read)
        return {nullptr, drawing::openingError(path, read)};
    read.drawing->setPath({});
    Document *document = add(std::move(read.drawing), {});
    return {.document = document, .error = {}, .lost = tellLost(*document)};
}

Document *DocumentManager::add(std::unique_ptr<drawing::Drawing> drawing, DrawingClaim claim, const QString &name)
{
    const bool isNew = drawing->path().isEmpty() && name.isEmpty();
    const QString untitled = isNew ? QStringLiteral("Drawing%1").arg(++m_untitled) : name;
    m_documents.push_back(std::make_unique<Document>(m_session, std::move(drawing), std::move(claim), untitled));
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
