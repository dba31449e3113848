#pragma once

#include "host/app/window/entry/EntryHistory.h"
#include "host/app/workbench/LispNames.h"

#include <QStringList>
#include <QWidget>

#include <functional>

class QCompleter;
class QKeyEvent;
class QLabel;
class QPlainTextEdit;
class QStringListModel;

namespace host::app {

/// A place to try Lisp at: what came of the forms so far, and a field to write the next one in. It runs nothing itself;
/// whoever owns it takes what was entered and prints what came of it.
///
/// Enter ends what was written once all its lists and strings are closed, and begins a new line before that. Up in the
/// first line and Down in the last go through what was entered before, the last 200 of it; Ctrl+R seeks in that, see
/// EntryHistory. Tab completes the word in
/// front of the cursor, from a list where there are several. The line below says what the word at the cursor is, else
/// what the list around it calls. Esc empties the field and is told.
class LispConsole : public QWidget
{
    Q_OBJECT

public:
    /// Who knows the names. Both are asked while something is written, on this thread, and must be quick.
    struct Names
    {
        /// See completionOf().
        std::function<Completion(const QString &text)> complete;
        /// See helpOnName().
        std::function<QString(const QString &name)> help;
    };

    explicit LispConsole(Names names, QWidget *parent = nullptr);

    /// Text as it comes, with its own line feeds; one that begins it is left out at the begin of a line.
    void print(const QString &text);
    /// What was printed and is kept.
    QString outputText() const;
    /// Owned by this; it has the focus whenever this is given it.
    QPlainTextEdit *input() { return m_input; }
    /// Sets what Up and Down go through, oldest first.
    void setEntries(const QStringList &entries) { m_entries->setEntries(entries); }
    const QStringList &entries() const { return m_entries->entries(); }
    /// The line about the word at the cursor.
    QString helpText() const;

signals:
    /// One form or more, whole, with the line feeds they were written with. It was printed.
    void entered(const QString &text);
    /// Esc.
    void cancelled();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void buildCompleter();
    bool filterKey(QKeyEvent &key);
    bool handleKey(const QKeyEvent &key);
    /// Enters what is written when it is whole.
    bool takeReturn();
    /// False when the key moves within the field.
    bool recall(int direction);
    void complete();
    /// Puts the name in place of the word in front of the cursor.
    void insertName(const QString &name);
    void showHelp(const QString &text);
    /// Of the word at the cursor, or of the call it is in.
    void updateHelp();
    /// As high as what is written, up to a limit.
    void updateHeight();
    QString textBeforeCursor() const;

    Names m_names;
    QPlainTextEdit *m_output;
    QPlainTextEdit *m_input;
    QLabel *m_help;
    QCompleter *m_completer;
    QStringListModel *m_candidates;
    EntryHistory *m_entries;
};

} // namespace host::app
