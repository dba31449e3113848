#include "host/app/workbench/Suggestions.h"

#include "host/app/workbench/LispNames.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandTable.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/kernel/variables/VariableHelp.h"
#include "host/lisp/Interpreter.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>
#include <tuple>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

bool isExpression(const QString &typed)
{
    return typed.trimmed().startsWith(u'(') || typed.startsWith(u'!');
}

/// How much of the typed text is prefixes that say how a command is to be found.
qsizetype prefixLength(const QString &typed)
{
    qsizetype length = 0;
    while (length < typed.size() && QStringLiteral("_.'").contains(typed[length]))
        ++length;
    return length;
}

QString commandHelp(const QString &name)
{
    const kernel::CommandRow *row = kernel::CommandTable::find(name);
    return row ? kernel::HelpLines::tr(row->help) : QString();
}

/// All names of one place that begin alike.
class NamesThatFit
{
public:
    NamesThatFit(kernel::Document &document, const QString &word) : m_document(document), m_word(word) {}

    QList<Suggestion> run(qsizetype most)
    {
        // What there is in place of commands may have changed in its file.
        m_document.commandOfAlias(m_word);
        for (const kernel::CommandRow &row : kernel::CommandTable::all())
            add(QString::fromLatin1(row.name), Kind::Command);
        for (const QString &name : programCommands(m_document))
            add(name, Kind::Program);
        const kernel::AliasTable &aliases = m_document.session().aliases().table();
        for (auto alias = aliases.begin(); alias != aliases.end(); ++alias)
            add(alias.key(), Kind::Alias);
        for (const QString &name : m_document.variables().names())
            add(name, Kind::Variable);
        return best(most);
    }

private:
    enum class Kind
    {
        Command,
        Program,
        Alias,
        Variable
    };
    struct Found
    {
        QString name;
        Kind kind;
    };

    void add(const QString &name, Kind kind)
    {
        if (!name.startsWith(m_word, Qt::CaseInsensitive) || m_seen.contains(name))
            return;
        m_seen.insert(name);
        m_found.append({name, kind});
    }

    QList<Suggestion> best(qsizetype most)
    {
        // Whole words first, then what does something; there are many variables that few people know.
        const auto rank = [this](const Found &each) {
            return std::tuple(each.name.size() != m_word.size(), each.kind == Kind::Variable);
        };
        std::ranges::sort(m_found, [&rank](const Found &a, const Found &b) {
            return std::tuple(rank(a), a.name) < std::tuple(rank(b), b.name);
        });
        QList<Suggestion> suggestions;
        for (const Found &each : m_found.first(std::min(most, m_found.size())))
            suggestions.append({each.name, helpOf(each)});
        return suggestions;
    }

    QString helpOf(const Found &found) const
    {
        switch (found.kind) {
        case Kind::Command:
            return commandHelp(found.name);
        case Kind::Program:
            return QCoreApplication::translate("Suggestions", "command of a program");
        case Kind::Variable:
            return kernel::HelpLines::tr(kernel::variableHelp(found.name));
        case Kind::Alias:
            break;
        }
        const QString command = m_document.session().aliases().table().value(found.name);
        return u"%1: %2"_s.arg(command, commandHelp(command));
    }

    kernel::Document &m_document;
    const QString m_word;
    QSet<QString> m_seen;
    QList<Found> m_found;
};

QList<Suggestion> lispSuggestions(kernel::Document &document, const QString &typed, qsizetype most)
{
    QList<Suggestion> suggestions;
    const QStringList names = completionOf(document, typed).names;
    for (const QString &name : names.first(std::min(most, names.size())))
        suggestions.append({name, helpOnName(document, name).trimmed().replace(u'\n', u' ').simplified()});
    return suggestions;
}

} // namespace

QStringList programCommands(kernel::Document &document)
{
    QStringList names;
    for (const lisp::Symbol *symbol : document.interpreter().symbols().all())
        if (symbol->name().starts_with("C:") && symbol->name().size() > 2 && !symbol->value().isNil())
            names.append(QString::fromStdString(symbol->name().substr(2)));
    names.sort();
    return names;
}

qsizetype suggestedFrom(const QString &typed)
{
    if (!isExpression(typed))
        return prefixLength(typed);
    qsizetype start = typed.size();
    while (start > 0 && !QStringLiteral("()'\";! \t").contains(typed[start - 1]))
        --start;
    return start;
}

QList<Suggestion> suggestionsAt(kernel::Document &document, const QString &typed, qsizetype most)
{
    const QString word = typed.sliced(suggestedFrom(typed));
    if (word.trimmed().isEmpty() || word.contains(u' '))
        return {};
    if (isExpression(typed))
        return lispSuggestions(document, typed.startsWith(u'!') ? typed.sliced(1) : typed, most);
    return NamesThatFit(document, word).run(most);
}

QList<Suggestion> suggestedKeywords(const QStringList &keywords, const QString &typed)
{
    QList<Suggestion> suggestions;
    if (typed.isEmpty() || !(typed.front().isLetter() || typed.front() == u'_'))
        return suggestions;
    const QString word = typed.sliced(prefixLength(typed));
    for (const QString &keyword : keywords) {
        const QStringList spellings = keyword.split(u',');
        const bool fits = std::ranges::any_of(
            spellings, [&](const QString &each) { return each.startsWith(word, Qt::CaseInsensitive); });
        if (fits)
            suggestions.append({spellings.first(), {}});
    }
    return suggestions;
}

} // namespace host::app
