#pragma once

#include "host/app/window/entry/EntryHistory.h"
#include "host/app/workbench/Suggestions.h"

#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <functional>

class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace host::app {

class SuggestionList;

/// The command line: what was printed, the prompt, and a line to answer in. It knows nothing of commands; whoever owns
/// it says what the prompt is and takes what was entered.
///
/// Up, Down and Ctrl+R go through what was entered before, see EntryHistory. What is typed brings up a list of names
/// that fit: Tab and Down choose one of them, which takes the place of what was typed; Enter runs what stands in the
/// line. A space ends an answer as Enter does when setSpaceEnters() says so and the text begins no Lisp expression or
/// string. Options of the prompt are links. It keeps the last 5000 lines of what was printed and the last 500 entries,
/// each of them once. In what was printed Ctrl+F finds text, from the end backwards: Enter goes on, Esc ends it. What
/// is typed on the history goes to the line; moving about in it and copying do not.
class CommandLine : public QWidget
{
    Q_OBJECT

public:
    /// What a space means at the end of a line.
    enum class Space
    {
        Enters,
        IsText
    };

    explicit CommandLine(QWidget *parent = nullptr);

    /// Text as it comes, with its own line feeds; one that begins it is left out at the begin of a line.
    void print(const QString &text);
    /// Only the last line is shown; options in brackets become links.
    void setPrompt(const QString &prompt);
    QString prompt() const { return m_prompt; }
    void setSpace(Space space) { m_space = space; }
    /// While an expression is unfinished every line belongs to it, spaces included.
    void setUnfinished(bool unfinished) { m_isUnfinished = unfinished; }

    /// What was printed and is kept, with line feeds.
    QString historyText() const;
    /// Owned by this; it has the focus whenever this is given it.
    QLineEdit *input() { return m_input; }
    /// Hands on a key that was pressed elsewhere, on the canvas say. False when the key means nothing here.
    bool takeKey(QKeyEvent *event);
    /// Sets what Up and Down go through, oldest first.
    void setEntries(const QStringList &entries) { m_entries->setEntries(entries); }
    QStringList entries() const { return m_entries->entries(); }
    /// Who knows the names that fit what is typed. Asked at each key, so it must be quick.
    void setNames(std::function<QList<Suggestion>(const QString &typed)> names) { m_names = std::move(names); }
    /// What is offered for what is typed.
    SuggestionList &suggestions() { return *m_suggestions; }
    /// Gives the keyboard to what was printed, where it can be walked through and copied.
    void showHistory();

signals:
    /// A line was entered, possibly empty.
    void entered(const QString &text);
    /// An option of the prompt was clicked; what answers it.
    void optionPicked(const QString &option);
    /// Esc.
    void cancelled();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    /// Takes the line: it is emptied and remembered before entered() tells of it.
    void enter();
    void offerNames();
    /// Puts a name in place of the word that is being typed.
    void takeName(const QString &name);
    /// False when there is none to choose.
    bool chooseName(int direction);
    /// The prompt, or what is sought in the history.
    void showSought(const QString &sought, bool isFound);
    void buildFinder();
    /// Finds text further up; from the end when there is none.
    void findText();
    bool filterInputKey(QKeyEvent &key);
    bool filterFinderKey(const QKeyEvent &key);
    void keepEndShown();
    bool filterHistoryKey(QKeyEvent &key);
    /// False for a key that is the line edit's own.
    bool handleKey(const QKeyEvent &event);
    bool spaceEnters() const;

    QPlainTextEdit *m_history;
    QLabel *m_promptLabel;
    QLineEdit *m_input;
    QString m_prompt;
    QLineEdit *m_finder;
    EntryHistory *m_entries;
    SuggestionList *m_suggestions;
    std::function<QList<Suggestion>(const QString &typed)> m_names;
    QString m_typed; ///< what suggestions are for: a chosen one takes the place of its last word
    Space m_space = Space::Enters;
    bool m_isUnfinished = false; ///< see setUnfinished()
};

} // namespace host::app
