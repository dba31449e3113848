#pragma once

#include "host/kernel/documents/Document.h"

#include <QPointer>

#include <deque>

namespace host::kernel {

class DocumentManager;

/// What a command wants of the open documents.
struct DocumentWish
{
    enum class Kind
    {
        Open,  ///< the drawing of `path`; the user is asked for it, with a dialog, when that is empty
        New,   ///< an untitled drawing with what the drawing of `path` holds; an empty one when that is empty
        Close, ///< `document`
        Quit   ///< closes `document`, and the program ends
    };
    enum class Changes
    {
        Keep,   ///< a document that was changed since stays open
        Discard ///< the user has been asked
    };
    Kind kind;
    QString path{};
    QPointer<Document> document{};
    Changes changes = Changes::Keep;
};

/// What running commands want of the open documents: no document opens or closes while a program of one is under way,
/// so that what they wish for is done when their run has ended. The session does it in front of what is typed next,
/// which runs in the drawing that is active then.
class KV_EXPORT DocumentWishes final : public QObject
{
    Q_OBJECT

public:
    explicit DocumentWishes(DocumentManager &documents) : m_documents(documents) {}

    void add(DocumentWish wish) { m_waiting.push_back(std::move(wish)); }
    bool isEmpty() const { return m_waiting.empty(); }
    /// Does what was wished for, in order, while no document is busy. What could not be done, a sentence each; the
    /// wishes behind one that was not done are forgotten. When the last drawing closes and `more` is typed ahead, an
    /// empty one takes its place, since commands run in drawings.
    enum class Typed
    {
        Nothing,
        More
    };
    QStringList grant(Typed more);
    /// Closes the empty drawing that took the place of the last one, unless something was drawn in it.
    void closeStandIn();

    /// Who asks the user for the drawings to open; none, as in the beginning, where there is no window.
    void setQuestion(std::function<QStringList()> question) { m_question = std::move(question); }
    bool hasQuestion() const { return bool(m_question); }
    /// This document is not closed by commands; null for none.
    void keep(Document *document) { m_kept = document; }
    /// A command has ended the program: nothing else is to be run.
    bool isQuitWanted() const { return m_isQuitWanted; }
    /// The program goes on after all.
    void forgetQuit() { m_isQuitWanted = false; }

signals:
    void quitWanted();

private:
    QString grantOne(const DocumentWish &wish, Typed more);
    QString open(const QString &path);
    QString openChosen();
    QString close(const DocumentWish &wish, Typed more);
    QString quit(const DocumentWish &wish);

    DocumentManager &m_documents;
    std::deque<DocumentWish> m_waiting;
    std::function<QStringList()> m_question;
    QPointer<Document> m_kept;
    QPointer<Document> m_standIn;
    bool m_isQuitWanted = false;
};

} // namespace host::kernel
