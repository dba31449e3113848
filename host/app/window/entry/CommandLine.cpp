#include "host/app/window/entry/CommandLine.h"

#include "host/app/window/entry/PromptText.h"

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
      m_input(new QLineEdit(this))
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
    m_input->installEventFilter(this);

    auto *line = new QHBoxLayout;
    line->addWidget(m_promptLabel);
    line->addWidget(m_input, 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(2);
    layout->addWidget(m_history, 1);
    layout->addLayout(line);

    connect(m_promptLabel, &QLabel::linkActivated, this,
            [this](const QString &link) { emit optionPicked(linkAnswer(link)); });
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

void CommandLine::setEntries(const QStringList &entries)
{
    m_entries = entries;
    m_recalled = m_entries.size();
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
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride) {
        auto *key = static_cast<QKeyEvent *>(event);
        if (object == m_input ? filterInputKey(*key) : filterHistoryKey(*key))
            return true;
    }
    return QWidget::eventFilter(object, event);
}

bool CommandLine::filterInputKey(const QKeyEvent &key)
{
    if (key.type() == QEvent::ShortcutOverride)
        return m_input->text().isEmpty() && isForDrawing(key);
    return handleKey(key);
}

bool CommandLine::filterHistoryKey(QKeyEvent &key)
{
    // What is typed on the history is meant for the line; moving about and copying is not.
    const bool isMove = key.key() == Qt::Key_Up || key.key() == Qt::Key_Down;
    return key.type() == QEvent::KeyPress && !isMove && takeKey(&key);
}

bool CommandLine::handleKey(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        enter();
        return true;
    case Qt::Key_Escape:
        m_input->clear();
        m_recalled = m_entries.size();
        emit cancelled();
        return true;
    case Qt::Key_Up:
        recall(-1);
        return true;
    case Qt::Key_Down:
        recall(1);
        return true;
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
    if (!text.trimmed().isEmpty() && (m_entries.isEmpty() || m_entries.constLast() != text)) {
        m_entries.append(text);
        if (m_entries.size() > entriesKept)
            m_entries.removeFirst();
    }
    m_recalled = m_entries.size();
    m_draft.clear();
    emit entered(text);
}

void CommandLine::recall(int direction)
{
    const qsizetype wanted = std::clamp<qsizetype>(m_recalled + direction, 0, m_entries.size());
    if (wanted == m_recalled)
        return;
    if (m_recalled == m_entries.size())
        m_draft = m_input->text();
    m_recalled = wanted;
    m_input->setText(wanted == m_entries.size() ? m_draft : m_entries[wanted]);
}

} // namespace host::app
