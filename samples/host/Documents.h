#pragma once

#include "Database.h"
#include "LispEngine.h"
#include "UserInput.h"
#include "platform/kernel/CKvDocument.h"
#include "platform/kernel/CKvDocumentManager.h"

#include <QList>

namespace sample {

/// An open drawing. Its user coordinate system is that of the world.
class Document final : public CKvDocument
{
public:
    explicit Document(const QString &path) : m_database(path) {}

    /// Whoever evaluates something holds it, see there.
    std::shared_ptr<LispEngine> engine() const { return m_engine; }
    void setEngine(std::shared_ptr<LispEngine> engine) { m_engine = std::move(engine); }
    UserInput &prompts() { return m_input; }

    CKvLispEngine *lispEngine() override { return m_engine.get(); }
    CKvUserInput *userInput() override;
    CKvSelectionInput *selectionInput() override { return &m_selection; }
    OdDbDatabase *database() override { return &m_database; }
    OdString systemVariable(const OdString &name) const override;
    OdGePoint3d userToWorld(const OdGePoint3d &point) const override { return point; }
    OdGePoint3d worldToUser(const OdGePoint3d &point) const override { return point; }

private:
    Database m_database;
    UserInput m_input;
    SelectionInput m_selection;
    std::shared_ptr<LispEngine> m_engine;
};

/// The open documents and the active one; tells the reactors of their coming and going.
class DocumentManager final : public CKvDocumentManager
{
public:
    ~DocumentManager() override;

    /// Opens a document without reading anything, and makes it the active one. `prepare` gets each new engine before
    /// the module does.
    Document *open(const QString &path, const std::function<void(LispEngine &)> &prepare);
    /// Closes the active document; the one that was opened before it becomes active.
    void close();
    void activate(Document *document) { m_active = document; }
    /// Null when none is open.
    Document *active() const { return m_active; }
    const std::vector<std::unique_ptr<Document>> &documents() const { return m_documents; }

    int documentCount() const override { return int(m_documents.size()); }
    CKvDocument *document(int index) const override;
    void addReactor(CKvDocumentManagerReactor *reactor) override;
    void removeReactor(CKvDocumentManagerReactor *reactor) override { m_reactors.removeAll(reactor); }

private:
    using Notice = void (CKvDocumentManagerReactor::*)(CKvDocument *);
    void tell(Notice notice, Document *document);

    std::vector<std::unique_ptr<Document>> m_documents;
    Document *m_active = nullptr;
    QList<CKvDocumentManagerReactor *> m_reactors;
};

DocumentManager &documentManager();

} // namespace sample
