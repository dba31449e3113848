#include "host/app/workbench/LispNames.h"

#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandTable.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/kernel/variables/VariableHelp.h"
#include "host/lisp/Interpreter.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// Where a line of Lisp ends: in a string, a comment, or between.
struct LineEnd
{
    bool isInString = false;
    bool isInComment = false;
    bool isInBlock = false; ///< a comment that goes over several lines
    qsizetype wordStart = 0;
    QString function; ///< of the innermost list that is open, in capitals; of a string: that in front of it
    bool isInList = false;
};

bool endsWord(QChar c)
{
    return c.isSpace() || QStringLiteral("()'\";").contains(c);
}

/// Walks over a text up to its end.
class EndFinder
{
public:
    explicit EndFinder(const QString &text) : m_text(text) {}

    LineEnd run()
    {
        for (m_next = 0; m_next < m_text.size(); ++m_next) {
            if (m_end.isInString)
                takeInString();
            else if (endsWord(m_text[m_next]))
                takeDelimiter(m_text[m_next]);
        }
        m_end.isInList = !m_open.isEmpty();
        m_end.function = m_open.isEmpty() ? QString() : m_open.last();
        return m_end;
    }

private:
    void takeInString()
    {
        if (m_text[m_next] == u'\\')
            ++m_next;
        else if (m_text[m_next] == u'"')
            endWord(false);
    }

    void takeDelimiter(QChar c)
    {
        // The first word of a list is what it calls.
        if (!m_open.isEmpty() && m_open.last().isNull() && m_next > m_end.wordStart)
            m_open.last() = m_text.mid(m_end.wordStart, m_next - m_end.wordStart).toUpper();
        if (c == u'(')
            m_open.append(QString());
        else if (c == u')' && !m_open.isEmpty())
            m_open.removeLast();
        else if (c == u';')
            skipComment();
        endWord(c == u'"');
    }

    void skipComment()
    {
        const bool isBlock = QStringView(m_text).sliced(m_next).startsWith(u";|"_s);
        const qsizetype end = isBlock ? m_text.indexOf(u"|;"_s, m_next + 2) : m_text.indexOf(u'\n', m_next);
        m_end.isInComment = end < 0;
        m_end.isInBlock = isBlock && end < 0;
        m_next = end < 0 ? m_text.size() : end + (isBlock ? 1 : 0);
    }

    void endWord(bool beginsString)
    {
        m_end.isInString = beginsString;
        m_end.wordStart = std::min(m_next + 1, m_text.size());
    }

    const QString &m_text;
    qsizetype m_next = 0;
    LineEnd m_end;
    QStringList m_open; ///< what the open lists call, as far as it was written
};

QStringList symbolNames(kernel::Document &document)
{
    QStringList names;
    for (const lisp::Symbol *symbol : document.interpreter().symbols().all()) {
        if (!symbol->value().isNil())
            names.append(QString::fromStdString(symbol->name()).toLower());
    }
    return names;
}

QStringList commandNames()
{
    QStringList names;
    for (const kernel::CommandRow &row : kernel::CommandTable::all())
        names.append(QString::fromLatin1(row.name));
    return names;
}

/// All names of the kind that a place takes.
QStringList namesFor(kernel::Document &document, const LineEnd &end)
{
    if (end.isInComment)
        return {};
    if (!end.isInString)
        return symbolNames(document);
    if (end.function == "GETVAR"_L1 || end.function == "SETVAR"_L1)
        return document.variables().names();
    return end.function == "COMMAND"_L1 || end.function == "COMMAND-S"_L1 || end.function == "VL-CMDF"_L1
               ? commandNames()
               : QStringList();
}

QString functionHelp(kernel::Document &document, const QString &upperName)
{
    const std::vector<lisp::FunctionEntry> functions = document.interpreter().functions();
    const auto found = std::ranges::find(functions, upperName.toStdString(), &lisp::FunctionEntry::name);
    if (found == functions.end())
        return {};
    const QString name = upperName.toLower();
    if (found->kind == lisp::FunctionEntry::Kind::User) {
        const QString place = u"  %1:%2\n"_s.arg(QString::fromStdString(found->file)).arg(found->line);
        return u"%1 %2\n"_s.arg(name, QString::fromStdString(found->parameters).toLower()) +
               (found->line > 0 ? place : QString());
    }
    QString call = u'(' + name;
    if (!found->usage.empty())
        call += u' ' + QString::fromStdString(found->usage);
    call += u")\n"_s;
    return found->help.empty() ? call : call + u"  "_s + QString::fromStdString(found->help) + u'\n';
}

} // namespace

QString Completion::commonStart() const
{
    if (names.isEmpty())
        return {};
    QString common = names.first();
    for (const QString &name : names) {
        while (!name.startsWith(common, Qt::CaseInsensitive))
            common.chop(1);
    }
    return common;
}

Completion completionOf(kernel::Document &document, const QString &text)
{
    const LineEnd end = EndFinder(text).run();
    Completion completion{.start = end.wordStart, .names = {}};
    const QString word = text.mid(end.wordStart);
    for (const QString &name : namesFor(document, end)) {
        if (name.startsWith(word, Qt::CaseInsensitive))
            completion.names.append(name);
    }
    completion.names.sort();
    return completion;
}

bool isWhole(const QString &text)
{
    const LineEnd end = EndFinder(text).run();
    return !end.isInString && !end.isInList && !end.isInBlock;
}

QString calledAt(const QString &text)
{
    return EndFinder(text).run().function;
}

QString helpOnName(kernel::Document &document, const QString &name)
{
    const QString upper = name.trimmed().toUpper();
    QString text = functionHelp(document, upper);
    if (const kernel::CommandRow *command = kernel::CommandTable::find(upper); command && !upper.isEmpty())
        text += u"command %1\n  %2\n"_s.arg(QString::fromLatin1(command->name), kernel::HelpLines::tr(command->help));
    if (document.variables().names().contains(upper))
        text += u"system variable %1\n  %2\n"_s.arg(upper, kernel::HelpLines::tr(kernel::variableHelp(upper)));
    return text;
}

} // namespace host::app
