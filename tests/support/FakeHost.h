#pragma once

#include "host/kernel/platform/Services.h"
#include "platform/ed/OdEdCommand.h"
#include "platform/ed/OdEditor.h"
#include "platform/kernel/CKvCustBlockUtils.h"
#include "platform/kernel/CKvDocumentManager.h"
#include "platform/kernel/CKvHelp.h"
#include "platform/kernel/CKvSystemServices.h"
#include "tests/support/FakeDocument.h"

#include <QTemporaryDir>

namespace ortakit::test {

/// The open documents of a fake host; tells its reactors in the order of a real one.
class FakeDocumentManager final : public CKvDocumentManager
{
public:
    ~FakeDocumentManager() override;

    /// Opens a document: DocumentCreated, then LispDocumentReady. It becomes the active one.
    FakeDocument *open();
    /// Closes it: LispDocumentClosing, DocumentToBeDestroyed, DocumentDestroyed. The last one left becomes active.
    void close(FakeDocument *document);
    void activate(FakeDocument *document);
    int reactorCount() const { return int(m_reactors.size()); }

    int documentCount() const override { return int(m_documents.size()); }
    CKvDocument *document(int index) const override;
    void addReactor(CKvDocumentManagerReactor *reactor) override;
    void removeReactor(CKvDocumentManagerReactor *reactor) override { m_reactors.removeAll(reactor); }

private:
    std::vector<std::unique_ptr<FakeDocument>> m_documents;
    QList<CKvDocumentManagerReactor *> m_reactors;
};

/// Keeps the editor's reactors for a test to notify.
class FakeEditor final : public OdEditor
{
public:
    const QList<OdEditorReactor *> &reactors() const { return m_reactors; }

    void addReactor(OdEditorReactor *reactor) override;
    void removeReactor(OdEditorReactor *reactor) override { m_reactors.removeAll(reactor); }

private:
    QList<OdEditorReactor *> m_reactors;
};

/// Keeps the commands of a module for a test to run.
class FakeCommandStack final : public OdEdCommandStack
{
public:
    const QList<OdEdCommand *> &commands() const { return m_commands; }

    bool addCommand(OdEdCommand *command) override
    {
        m_commands.append(command);
        return true;
    }
    void removeCommand(OdEdCommand *command) override { m_commands.removeAll(command); }

private:
    QList<OdEdCommand *> m_commands;
};

/// Writes down which pages were asked for, one line each: file topic keep-open parent style.
class FakeHelp final : public CKvHelp
{
public:
    QStringList requests;

    void Help(const OdString &helpFile, int topic, bool keepOpen, QWidget *parent, int style) override;
};

/// Answers what a test has set.
class FakeCustomBlocks final : public CKvCustBlockUtils
{
public:
    bool isEditing = false;

    bool IsEditing(const CKvDocument &) const override { return isEditing; }
};

/// A host of fakes, installed as the process's host while it lives, with one open document whose LOGFILEPATH is a
/// folder of its own that goes away with it, as does the support folder below it with its empty Template. The host that
/// was installed before comes back afterwards.
class FakeHost final : public CKvSystemServices
{
public:
    FakeHost();
    ~FakeHost() override;
    FakeHost(const FakeHost &) = delete;
    FakeHost &operator=(const FakeHost &) = delete;

    /// The active document; a test that closed all of them must not ask.
    FakeDocument &document() { return *static_cast<FakeDocument *>(ACTIVE_DOCUMENT()); }
    FakeDocumentManager &documents() { return m_documents; }
    FakeEditor &editor() { return m_editor; }
    FakeCommandStack &commands() { return m_commands; }
    FakeHelp &help() { return m_help; }
    /// isPermitted() refuses these commands from now on.
    void refuse(const QStringList &commands) { m_refused = commands; }
    FakeCustomBlocks &customBlocks() { return m_customBlocks; }
    void setMainWindow(QWidget *window) { m_mainWindow = window; }

    /// Absolute path of `name` in the host's own folder, which exists.
    QString path(const QString &name) const { return m_folder.filePath(name); }
    /// Writes `content` to the file `name` there and gives its path.
    QString writeFile(const QString &name, const QByteArray &content) const;
    /// What the file at `path` holds; empty when it cannot be read.
    static QByteArray readFile(const QString &path);

    CKvDocumentManager *documentManager() override { return &m_documents; }
    QWidget *mainWindow() override { return m_mainWindow; }
    OdString helpFile() const override { return QStringLiteral("help.file"); }
    OdString defaultFolder() const override { return m_folder.path(); }
    /// Its own folder, with an alias file without aliases.
    OdString userSupportFolder() const override { return m_folder.path() + QLatin1Char('/'); }
    bool isPermitted(const OdString &command, CKvDocument &) override { return !m_refused.contains(command); }
    OdString supportFolder() const override { return path(QStringLiteral("support")); }
    OdString stringSetting(const OdString &globalName, const OdString &localName) const override
    {
        return settings.value(globalName + QLatin1Char('/') + localName);
    }
    void setStringSetting(const OdString &globalName, const OdString &localName, const OdString &value) override
    {
        settings[globalName + QLatin1Char('/') + localName] = value;
    }
    KvLicence licenceState() const override { return licence; }

    /// Settings by "global name/local name".
    QMap<QString, QString> settings;
    KvLicence licence = KvLicence::None;

private:
    QTemporaryDir m_folder;
    FakeDocumentManager m_documents;
    FakeEditor m_editor;
    FakeCommandStack m_commands;
    FakeHelp m_help;
    FakeCustomBlocks m_customBlocks;
    QWidget *m_mainWindow = nullptr;
    QStringList m_refused;
    host::kernel::Services m_before;
    CKvDocument *m_activeBefore;
};

} // namespace ortakit::test
