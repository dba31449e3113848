#pragma once

#include "host/drawing/references/NamedFiles.h"
#include "host/kernel/files/KeptBack.h"
#include "host/lisp/Console.h"
#include "platform/Export.h"

#include <QStringList>

#include <functional>

namespace host::kernel {

class Document;
class Session;

/// The folders whose programs may run: the installation (the session's support folders), the folder of the user's data,
/// and those that the user named. What lies beside a drawing or in the working folder came with somebody else's files:
/// it is never run by itself.
///
/// Folders are compared by what the system says they are, behind symbolic links and "..": a link in a trusted folder
/// does not make a program elsewhere trusted. Files and folders that everyone may write to are not trusted, except
/// those of the installation.
class KV_EXPORT TrustedFolders
{
public:
    enum class Answer
    {
        No,
        Once,
        Always ///< the program's folder is to be trusted from now on
    };
    /// Asks a person about a program; `reason` says what speaks against it. Always counts only where `canTrust`.
    using Question = std::function<Answer(const QString &path, const QString &reason, bool canTrust)>;

    explicit TrustedFolders(Session &session) : m_session(session) {}

    /// The user's lists: full paths between ";". What is no full path is passed over. Kept in the user's settings.
    enum class List
    {
        Run, ///< TRUSTEDPATHS; a path that ends in "/..." takes in the folders below
        Read ///< READPATHS: whose files drawings may name, with those below
    };
    QString named(List list = List::Run) const;
    /// False when it cannot be kept.
    bool setNamed(const QString &paths, List list = List::Run);
    /// Takes in a folder and those below as long as the session lives.
    void addForSession(const QString &folder, List list = List::Run);

    /// What files the document's drawing may name: those of its own folder, of all folders whose programs may run, of
    /// the list for reading, and what the user named while it is open. Another one that is there is told on the command
    /// line.
    drawing::ReadableFiles readable(Document &document) const;

    /// Who is asked; without a question (as in the beginning), what is not trusted does not run.
    void setQuestion(Question question) { m_question = std::move(question); }

    /// How far something is allowed.
    enum class Allowance
    {
        Once,  ///< this file: to be read while the document is open, to be run while the session lives
        Folder ///< all of its folder, from now on; kept in the lists
    };
    /// Allows what the document was kept from, which is off its list then: what was not read is shown, a program may be
    /// loaded now and is not loaded by this. Why it cannot be, as a sentence; empty when it was.
    QString allow(Document &document, const KeptBack &item, Allowance allowance);

    /// What speaks against running this file for a document, as the end of a sentence; empty when nothing does. The
    /// user's data are no reason to trust what lies right beside the drawing.
    QString objection(const QString &path, const Document &document) const;

    /// The full path of the program that one of `names`, in their order, means: itself when it is a full path, else in
    /// the trusted folders, in the working folder and beside the drawing. One in the last two that is not trusted, and
    /// one that a program names by its full path, runs only when the person that is asked says so; otherwise the
    /// document prints that it does not. Empty when there is none that may run.
    QString findProgram(Document &document, const QStringList &names, lisp::LoadedBy by);
    /// Asks whether to load this program, whether or not it is trusted. Its full path; empty when it is not wanted,
    /// also where nobody can be asked.
    QString wanted(Document &document, const QString &path);
    /// A file of any kind by its name in the trusted folders, or by its full path when it is trusted.
    QString findTrusted(const Document &document, const QString &name) const;
    /// Whether `findfile` means a program by this name.
    static bool isProgram(const QString &name);

private:
    QStringList searched() const;
    bool ask(Document &document, const QString &path, const QString &reason);
    bool isNamed(const QString &folder) const;
    /// The folder at the end of a list that is kept.
    bool append(const QString &folder, List list);
    /// Asks, or says that it does not run.
    bool mayRun(Document &document, const QString &path, const QString &reason, lisp::LoadedBy by);

    Session &m_session;
    Question m_question;
    std::shared_ptr<drawing::FolderNames> m_names = std::make_shared<drawing::FolderNames>();
    QStringList m_forSession;
    QStringList m_readForSession;
    QStringList m_refused; ///< by a person, so that programs need not ask again
    QStringList m_allowed; ///< by a person, as full paths
};

} // namespace host::kernel
