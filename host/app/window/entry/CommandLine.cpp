#include "host/app/window/entry/CommandLine.h"

#include "host/app/window/entry/PromptText.h"
#include "host/app/window/entry/SuggestionList.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextCursor>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

constexpr int linesKept = 5000;
constexpr qsizetype entriesKept = 500;

/// Whether the clipboard has text alone; copied entities are there as a file.
bool isTextOnClipboard()
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    return data && data->hasText() && !data->hasUrls();
}

/// Whether a key means the drawing while nothing is written: the line must not claim it then.
bool isForDrawing(const QKeyEvent &key)
{
    using enum QKeySequence::StandardKey;
    const auto isOne = [&key](auto... wanted) { return (key.matches(wanted) || ...); };
    const bool isShiftSpace = key.key() == Qt::Key_Space && key.modifiers() == Qt::ShiftModifier;
    return isShiftSpace || isOne(Undo, Redo, Cut, Copy, Delete, SelectAll) ||
           (key.matches(Paste) && !isTextOnClipboard());
}

} // namespace

CommandLine::CommandLine(QWidget *parent)
    : QWidget(parent), m_history(new QPlainTextEdit(this)), m_promptLabel(new QLabel(this)),
      m_input(new QLineEdit(this)), m_finder(new QLineEdit(this)),
      m_entries(new EntryHistory(
          {.text = [this] { return m_input->text(); }, .show = [this](const QString &text) { m_input->setText(text); }},
          entriesKept, this)),
      m_suggestions(new SuggestionList(m_input))
{
    const QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    m_history->setObjectName(u"commandHistory"_s);
    m_history->setReadOnly(true);
    m_history->setUndoRedoEnabled(false);
    m_history->setMaximumBlockCount(linesKept);
    m_history->setFont(font);
    m_history->setFocusPolicy(Qt::ClickFocus);
    m_history->installEventFilter(this);
    m_promptLabel->setObjectName(u"commandPrompt"_s);
    m_promptLabel->setFont(font);
    m_promptLabel->setTextFormat(Qt::RichText);
    m_promptLabel->setContentsMargins(4, 0, 0, 0);
    // A long prompt is cut off rather than making the window wider.
    m_promptLabel->setMinimumWidth(1);
    m_input->setObjectName(u"commandInput"_s);
    m_input->setFont(font);
    m_input->setMinimumWidth(160);
    m_input->setAccessibleName(tr("Command line"));
    m_history->setAccessibleName(tr("What was printed"));
    m_input->installEventFilter(this);

    auto *line = new QHBoxLayout;
    line->addWidget(m_promptLabel);
    line->addWidget(m_input, 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(2);
    layout->addWidget(m_history, 1);
    layout->addWidget(m_finder);
    layout->addLayout(line);
    buildFinder();

    connect(m_promptLabel, &QLabel::linkActivated, this,
            [this](const QString &link) { emit optionPicked(linkAnswer(link)); });
    connect(m_input, &QLineEdit::textEdited, this, &CommandLine::offerNames);
    connect(m_suggestions, &SuggestionList::clickedName, this, &CommandLine::takeName);
    connect(m_entries, &EntryHistory::seeking, this, &CommandLine::showSought);
    setFocusProxy(m_input);
    setPrompt(tr("Command:"));
}

void CommandLine::print(const QString &text)
{
    QScrollBar *bar = m_history->verticalScrollBar();
    const bool wasAtEnd = bar->value() >= bar->maximum();
    QTextCursor cursor(m_history->document());
    cursor.movePosition(QTextCursor::End);
    // Programs begin what they say with a line feed, and what was typed has ended with one.
    const bool isNewLineSpare = cursor.atBlockStart() && text.startsWith(u'\n');
    cursor.insertText(isNewLineSpare ? text.sliced(1) : text);
    if (wasAtEnd)
        bar->setValue(bar->maximum());
}

void CommandLine::setPrompt(const QString &prompt)
{
    m_prompt = prompt;
    m_promptLabel->setText(promptHtml(prompt));
    m_promptLabel->setToolTip(promptHtml(prompt));
}

QString CommandLine::historyText() const
{
    return m_history->toPlainText();
}

bool CommandLine::takeKey(QKeyEvent *event)
{
    const bool isText = !event->text().isEmpty() && event->text().front().isPrint() &&
                        !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    static const QList<int> keys = {Qt::Key_Return, Qt::Key_Enter,  Qt::Key_Up,
                                    Qt::Key_Down,   Qt::Key_Escape, Qt::Key_Backspace};
    if (!isText && !keys.contains(event->key()))
        return false;
    if (!handleKey(*event)) {
        m_input->setFocus();
        QKeyEvent copy(event->type(), event->key(), event->modifiers(), event->text());
        QCoreApplication::sendEvent(m_input, &copy);
    }
    return true;
}

bool CommandLine::eventFilter(QObject *object, QEvent *event)
{
    if (object == m_history && event->type() == QEvent::Resize)
        keepEndShown();
    if (object == m_input && (event->type() == QEvent::FocusOut || event->type() == QEvent::Hide))
        m_suggestions->hide();
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride) {
        auto *key = static_cast<QKeyEvent *>(event);
        if (object == m_input    ? filterInputKey(*key)
            : object == m_finder ? filterFinderKey(*key)
                                 : filterHistoryKey(*key))
            return true;
    }
    return QWidget::eventFilter(object, event);
}

bool CommandLine::filterInputKey(QKeyEvent &key)
{
    // Keys that mean something here though a menu has them too.
    const bool isSeekKey = key.key() == Qt::Key_R && key.modifiers() == Qt::ControlModifier;
    if (key.type() == QEvent::ShortcutOverride && isSeekKey) {
        key.accept();
        return true;
    }
    if (key.type() == QEvent::ShortcutOverride)
        return m_input->text().isEmpty() && isForDrawing(key);
    // The name of the file that holds copied entities answers no prompt.
    const bool isFilePasted = key.matches(QKeySequence::Paste) && !isTextOnClipboard();
    return isFilePasted || handleKey(key);
}

/// A history made lower goes on to show what was printed last, where it did so.
void CommandLine::keepEndShown()
{
    QScrollBar *bar = m_history->verticalScrollBar();
    if (bar->value() < bar->maximum())
        return;
    // The range is that of the new height only when the resizing is over.
    QMetaObject::invokeMethod(
        bar, [bar] { bar->setValue(bar->maximum()); }, Qt::QueuedConnection);
}

bool CommandLine::filterHistoryKey(QKeyEvent &key)
{
    if (key.type() == QEvent::KeyPress && key.matches(QKeySequence::Find)) {
        m_finder->show();
        m_finder->setFocus();
        m_finder->selectAll();
        return true;
    }
    // What is typed on the history is meant for the line; moving about and copying is not.
    const bool isMove = key.key() == Qt::Key_Up || key.key() == Qt::Key_Down;
    return key.type() == QEvent::KeyPress && !isMove && takeKey(&key);
}

bool CommandLine::handleKey(const QKeyEvent &event)
{
    if (m_entries->takeKey(event))
        return true;
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        enter();
        return true;
    case Qt::Key_Escape:
        m_input->clear();
        m_entries->reset();
        m_suggestions->offer({});
        emit cancelled();
        return true;
    case Qt::Key_Up:
        if (!m_suggestions->hasChoice() || !chooseName(-1))
            m_entries->recall(-1);
        return true;
    case Qt::Key_Down:
        if (!chooseName(1))
            m_entries->recall(1);
        return true;
    case Qt::Key_Tab:
        return chooseName(1);
    case Qt::Key_Backtab:
        return chooseName(-1);
    case Qt::Key_Space:
        if (!spaceEnters())
            return false;
        enter();
        return true;
    default:
        return false;
    }
}

bool CommandLine::spaceEnters() const
{
    if (m_space == Space::IsText || m_isUnfinished)
        return false;
    const QString text = m_input->text().trimmed();
    return !text.startsWith(u'(') && !text.startsWith(u'"') && !text.startsWith(u'!') && !text.startsWith(u'\'') &&
           m_input->cursorPosition() == m_input->text().size();
}

void CommandLine::enter()
{
    const QString text = m_input->text();
    m_input->clear();
    m_suggestions->offer({});
    m_entries->add(text);
    emit entered(text);
}

// Names that fit

void CommandLine::offerNames()
{
    m_typed = m_input->text();
    const bool isText = m_space == Space::IsText || m_isUnfinished || m_typed.isEmpty();
    m_suggestions->offer(isText || !m_names ? QList<Suggestion>() : m_names(m_typed));
}

void CommandLine::takeName(const QString &name)
{
    m_input->setText(m_typed.first(suggestedFrom(m_typed)) + name);
}

bool CommandLine::chooseName(int direction)
{
    const QString name = m_suggestions->choose(direction);
    if (!name.isEmpty())
        takeName(name);
    return !name.isEmpty();
}

// What was entered and printed before

void CommandLine::showSought(const QString &sought, bool isFound)
{
    m_suggestions->offer({});
    if (sought.isNull())
        return setPrompt(m_prompt);
    const QString text = isFound ? tr("Search what was entered: %1") : tr("Not found: %1");
    m_promptLabel->setText(text.arg(sought).toHtmlEscaped());
}

void CommandLine::showHistory()
{
    m_history->setFocus();
}

void CommandLine::buildFinder()
{
    m_finder->setObjectName(u"commandFinder"_s);
    m_finder->setPlaceholderText(tr("Find"));
    m_finder->setAccessibleName(tr("Find in what was printed"));
    m_finder->installEventFilter(this);
    m_finder->hide();
    connect(m_finder, &QLineEdit::returnPressed, this, &CommandLine::findText);
    connect(m_finder, &QLineEdit::textEdited, this, [this] {
        m_history->moveCursor(QTextCursor::End);
        findText();
    });
}

void CommandLine::findText()
{
    if (m_history->find(m_finder->text(), QTextDocument::FindBackward))
        return;
    m_history->moveCursor(QTextCursor::End);
    m_history->find(m_finder->text(), QTextDocument::FindBackward);
}

bool CommandLine::filterFinderKey(const QKeyEvent &key)
{
    if (key.key() != Qt::Key_Escape)
        return false;
    if (key.type() == QEvent::KeyPress) {
        m_finder->hide();
        m_history->setFocus();
    }
    return true;
}

} // namespace host::app
