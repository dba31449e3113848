#include "host/app/window/entry/LispConsole.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QScrollBar>
#include <QStringListModel>
#include <QTextBlock>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

constexpr int consoleLinesKept = 5000;
constexpr qsizetype consoleEntriesKept = 200;
/// The field grows up to this, then it scrolls.
constexpr int mostLinesShown = 8;
/// Of the list of names.
constexpr int mostNamesShown = 12;

QPlainTextEdit *consoleText(const QString &name, QWidget *parent)
{
    auto *text = new QPlainTextEdit(parent);
    text->setObjectName(name);
    text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    return text;
}

/// The word that the position lies in or behind.
QString wordAt(const QString &text, qsizetype position)
{
    static const QRegularExpression delimiter(u"[\\s()'\";]"_s);
    const qsizetype before = position > 0 ? text.lastIndexOf(delimiter, position - 1) : -1;
    const qsizetype behind = text.indexOf(delimiter, position);
    return text.sliced(before + 1, (behind < 0 ? text.size() : behind) - before - 1);
}

} // namespace

LispConsole::LispConsole(Names names, QWidget *parent)
    : QWidget(parent), m_names(std::move(names)), m_output(consoleText(u"consoleOutput"_s, this)),
      m_input(consoleText(u"consoleInput"_s, this)), m_help(new QLabel(this)), m_completer(new QCompleter(this)),
      m_candidates(new QStringListModel(m_completer)),
      m_entries(new EntryHistory({.text = [this] { return m_input->toPlainText(); },
                                  .show =
                                      [this](const QString &text) {
                                          m_input->setPlainText(text);
                                          m_input->moveCursor(QTextCursor::End);
                                      }},
                                 consoleEntriesKept, this))
{
    m_output->setReadOnly(true);
    m_output->setUndoRedoEnabled(false);
    m_output->setMaximumBlockCount(consoleLinesKept);
    m_output->setFocusPolicy(Qt::ClickFocus);
    m_input->setPlaceholderText(tr("A Lisp expression"));
    m_input->setAccessibleName(tr("Lisp expression"));
    m_input->installEventFilter(this);
    m_help->setObjectName(u"consoleHelp"_s);
    m_help->setTextFormat(Qt::PlainText);
    m_help->setContentsMargins(4, 0, 0, 0);
    // A long line is cut off rather than making the window wider.
    m_help->setMinimumWidth(1);
    buildCompleter();

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(2);
    layout->addWidget(m_output, 1);
    layout->addWidget(m_input);
    layout->addWidget(m_help);
    connect(m_input, &QPlainTextEdit::textChanged, this, &LispConsole::updateHeight);
    connect(m_input, &QPlainTextEdit::cursorPositionChanged, this, &LispConsole::updateHelp);
    connect(m_entries, &EntryHistory::seeking, this, [this](const QString &sought, bool isFound) {
        const QString text = isFound ? tr("Search what was entered: %1") : tr("Not found: %1");
        sought.isNull() ? updateHelp() : showHelp(text.arg(sought));
    });
    setFocusProxy(m_input);
    updateHeight();
}

void LispConsole::buildCompleter()
{
    m_completer->setModel(m_candidates);
    m_completer->setWidget(m_input);
    m_completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    m_completer->setMaxVisibleItems(mostNamesShown);
    m_completer->popup()->setObjectName(u"consoleNames"_s);
    m_completer->popup()->setFont(m_input->font());
    connect(m_completer, qOverload<const QString &>(&QCompleter::activated), this, &LispConsole::insertName);
    connect(m_completer, qOverload<const QString &>(&QCompleter::highlighted), this,
            [this](const QString &name) { showHelp(m_names.help(name)); });
}

void LispConsole::print(const QString &text)
{
    QTextCursor cursor(m_output->document());
    cursor.movePosition(QTextCursor::End);
    const bool isNewLineSpare = cursor.atBlockStart() && text.startsWith(u'\n');
    cursor.insertText(isNewLineSpare ? text.sliced(1) : text);
    m_output->verticalScrollBar()->setValue(m_output->verticalScrollBar()->maximum());
}

QString LispConsole::outputText() const
{
    return m_output->toPlainText();
}

QString LispConsole::helpText() const
{
    return m_help->text();
}

bool LispConsole::eventFilter(QObject *object, QEvent *event)
{
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (object == m_input && isKey && filterKey(static_cast<QKeyEvent &>(*event)))
        return true;
    return QWidget::eventFilter(object, event);
}

bool LispConsole::filterKey(QKeyEvent &key)
{
    // Seeking is meant here, though a menu has the key too.
    if (key.type() == QEvent::ShortcutOverride && key.key() == Qt::Key_R && key.modifiers() == Qt::ControlModifier) {
        key.accept();
        return true;
    }
    // With nothing written, undoing means the drawing: the field must not claim the keys.
    if (key.type() == QEvent::ShortcutOverride)
        return m_input->document()->isEmpty() && (key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo));
    if (m_completer->popup()->isVisible()) {
        static const QList<int> keysOfList = {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Tab};
        if (!keysOfList.contains(key.key()))
            m_completer->popup()->hide();
        else
            return false;
    }
    return handleKey(key);
}

bool LispConsole::handleKey(const QKeyEvent &key)
{
    if (m_entries->takeKey(key))
        return true;
    switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return takeReturn();
    case Qt::Key_Up:
        return recall(-1);
    case Qt::Key_Down:
        return recall(1);
    case Qt::Key_Tab:
        complete();
        return true;
    case Qt::Key_Escape:
        m_input->clear();
        m_entries->reset();
        emit cancelled();
        return true;
    default:
        return false;
    }
}

bool LispConsole::takeReturn()
{
    const QString text = m_input->toPlainText();
    if (!isWhole(text))
        return false;
    m_input->clear();
    if (text.trimmed().isEmpty())
        return true;
    m_entries->add(text);
    print(u"\nlisp> "_s + QString(text).replace(u'\n', u"\n    > "_s) + u'\n');
    emit entered(text);
    return true;
}

bool LispConsole::recall(int direction)
{
    const int line = m_input->textCursor().blockNumber();
    if (direction < 0 ? line > 0 : line + 1 < m_input->blockCount())
        return false;
    m_entries->recall(direction);
    return true;
}

QString LispConsole::textBeforeCursor() const
{
    return m_input->toPlainText().first(m_input->textCursor().position());
}

void LispConsole::complete()
{
    const QString before = textBeforeCursor();
    const Completion completion = m_names.complete(before);
    const QString common = completion.commonStart();
    if (common.isEmpty())
        return;
    if (completion.names.size() == 1 || common.size() > before.size() - completion.start)
        return insertName(common);
    m_candidates->setStringList(completion.names);
    m_completer->setCompletionPrefix({});
    const QAbstractItemView &list = *m_completer->popup();
    QRect place = m_input->cursorRect();
    place.setWidth(list.sizeHintForColumn(0) + list.verticalScrollBar()->sizeHint().width() + 4 * list.frameWidth());
    m_completer->complete(place);
    m_completer->popup()->setCurrentIndex(m_completer->completionModel()->index(0, 0));
}

void LispConsole::insertName(const QString &name)
{
    QTextCursor cursor = m_input->textCursor();
    const int start = static_cast<int>(m_names.complete(textBeforeCursor()).start);
    cursor.setPosition(start, QTextCursor::KeepAnchor);
    cursor.insertText(name);
    m_input->setTextCursor(cursor);
}

void LispConsole::showHelp(const QString &text)
{
    // The lines are short; beside each other they leave the place to what is written.
    m_help->setText(text.trimmed().replace(u'\n', u' ').simplified());
    m_help->setToolTip(m_help->text());
}

void LispConsole::updateHelp()
{
    const QString help = m_names.help(wordAt(m_input->toPlainText(), m_input->textCursor().position()));
    showHelp(help.isEmpty() ? m_names.help(calledAt(textBeforeCursor())) : help);
}

void LispConsole::updateHeight()
{
    const int lines = std::clamp(m_input->blockCount(), 1, mostLinesShown);
    const double margins = 2.0 * (m_input->document()->documentMargin() + m_input->frameWidth());
    m_input->setFixedHeight(lines * m_input->fontMetrics().lineSpacing() + static_cast<int>(margins) + 1);
}

} // namespace host::app
