#pragma once

#include "host/kernel/documents/DocumentWishes.h"
#include "host/kernel/files/RecoveryCopy.h"
#include "platform/kernel/CKvDocumentManager.h"

#include <QObject>

#include <memory>
#include <vector>

namespace host::kernel {

class Session;

/// What came of opening a drawing.
struct OpenOutcome
{
    Document *document = nullptr;       ///< null when the file could not be read
    QString error;                      ///< a sentence that names the file
    QStringList recovered{};            ///< what opening a damaged file dropped and mended, a sentence each
    std::optional<LockHolder> holder{}; ///< why there is no document: another process has the file open
    QStringList lost{}; ///< what of a DWG file could not be read or is doubtful: a sum, then a sentence each

    explicit operator bool() const { return document != nullptr; }
};

/// The open documents, in order of opening. Owns them. A document has a Lisp engine while reactors hear of it between
/// LispDocumentReady and LispDocumentClosing; windows listen to the signals. There may be none at all, as at the start.
class KV_EXPORT DocumentManager final : public QObject, public CKvDocumentManager
{
    Q_OBJECT

public:
    /// The session owns it.
    explicit DocumentManager(Session &session);
    /// Closes all documents without saving.
    ~DocumentManager() override;

    /// Opens a drawing file and makes it the active document. A file that is open already becomes active, and is not
    /// read again. What a save that was killed left beside the file is taken away, and told in the document, as is what
    /// of a DWG file could not be read.
    OpenOutcome open(const QString &path, OpenMode mode = OpenMode::Alone);
    /// Opens what is sound of a damaged file as a drawing that has no file yet and differs from what any file holds:
    /// "plan.dxf (recovered)". It is never saved under the path of the damaged one. What was dropped is printed in it.
    OpenOutcome openRecovered(const QString &path);
    /// Opens what a process that was killed left of a drawing, as a changed drawing of the same path. Saving it tells
    /// when its file has changed since; where that file is open already, it has no path, and where another process has
    /// it open, it is for reading only. A damaged copy is opened as far as it is sound. The copy stays where it is.
    OpenOutcome openCopy(const RecoveryFile &copy);
    /// The document whose file the path leads to, by whatever links; null when there is none.
    Document *documentOf(const QString &path) const;
    /// A new empty drawing, which becomes active.
    Document *create();
    /// A new drawing with what that drawing file holds, which becomes active; an empty one when there is no path.
    OpenOutcome createFrom(const QString &path);
    /// What commands want of the documents.
    DocumentWishes &wishes() { return m_wishes; }
    /// Closes without asking and without saving. The document is gone after the call. Refused (false) while a program
    /// of it runs. The one opened last becomes active when it was the active one.
    bool close(Document *document);

    /// The one that is typed to and that the module works on; null when none is open.
    Document *active() const { return m_active; }
    /// `document` must be one of these, or null for none.
    void setActive(Document *document);
    /// In order of opening; another vector after any call that opens or closes.
    const std::vector<std::unique_ptr<Document>> &documents() const { return m_documents; }

    // As CKvDocumentManager says. Reactors are not owned, and are told in the order in which they came.

    int documentCount() const override { return static_cast<int>(m_documents.size()); }
    CKvDocument *document(int index) const override;
    void addReactor(CKvDocumentManagerReactor *reactor) override;
    void removeReactor(CKvDocumentManagerReactor *reactor) override;

signals:
    /// Null when the last one was closed.
    void activeChanged(host::kernel::Document *document);
    /// It has its Lisp engine, and the reactors have heard of it.
    void opened(host::kernel::Document *document);
    /// The document is whole still.
    void aboutToClose(host::kernel::Document *document);

private:
    Document *add(std::unique_ptr<drawing::Drawing> drawing, DrawingClaim claim, const QString &name = {});
    static QStringList tellLost(Document &document);
    static void tellLeftovers(Document &document, const QString &path);
    void remove(Document *document);
    template <typename Call>
    void tell(Call &&call);

    Session &m_session;
    std::vector<std::unique_ptr<Document>> m_documents;
    std::vector<CKvDocumentManagerReactor *> m_reactors;
    Document *m_active = nullptr;
    DocumentWishes m_wishes{*this};
    int m_untitled = 0; ///< new drawings so far, which are numbered on
};

} // namespace host::kernel
