#pragma once

#include <QPointer>
#include <QStringList>
#include <QWidget>

class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace host::app {

/// The command line: what was printed, the prompt, and a line to answer in. It knows nothing of commands; whoever owns
/// it says what the prompt is and takes what was entered.
///
/// Up and Down go through what was entered before. A space ends an answer as Enter does when setSpaceEnters() says so
/// and the text begins no Lisp expression or string. Options of the prompt are links.
/// It keeps the last 5000 lines of what was printed and the last 500 entries, one that repeats the entry before it not
/// at all. What is typed on the history goes to the line; moving about in it and copying do not.
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
    void setEntries(const QStringList &entries);
    QStringList entries() const { return m_entries; }

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
    /// -1 for the entry before, 1 for the one behind; behind the last comes the draft again.
    void recall(int direction);
    bool filterInputKey(const QKeyEvent &key);
    bool filterHistoryKey(QKeyEvent &key);
    /// False for a key that is the line edit's own.
    bool handleKey(const QKeyEvent &event);
    bool spaceEnters() const;

    QPlainTextEdit *m_history;
    QLabel *m_promptLabel;
    QLineEdit *m_input;
    QString m_prompt;
    QStringList m_entries;
    qsizetype m_recalled = 0; ///< in m_entries; their number when none is recalled
    QString m_draft;          ///< what was being written before recalling
    Space m_space = Space::Enters;
    bool m_isUnfinished = false; ///< see setUnfinished()
};

} // namespace host::app
