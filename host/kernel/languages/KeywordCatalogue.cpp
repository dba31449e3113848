#include "host/kernel/languages/KeywordCatalogue.h"

#include "host/kernel/input/Keywords.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace host::kernel {

namespace {

/// Where a prompt lists its options: what is in front of them, they, and what is behind.
struct PromptParts
{
    QString head;
    QStringList options;
    QString tail;
};

PromptParts partsOf(const QString &prompt)
{
    const qsizetype start = prompt.lastIndexOf(u'[');
    const qsizetype end = prompt.indexOf(u']', start);
    if (start < 0 || end < 0)
        return {prompt, {}, {}};
    return {prompt.first(start + 1), prompt.sliced(start + 1, end - start - 1).split(u'/'), prompt.sliced(end)};
}

/// What is typed of an option that explains itself: "Ttr" of "Ttr (tan tan radius)".
QString withoutExplanation(const QString &option)
{
    return option.section(QStringLiteral(" ("), 0, 0).trimmed();
}

/// The option of the prompt that a keyword is a word of ("Landing" of "leader Landing first"), before all one that it
/// is the first of; empty when it is of none.
QString optionOf(const QString &keyword, const QStringList &options)
{
    for (const QString &option : options)
        if (option.section(u' ', 0, 0) == keyword)
            return option;
    for (const QString &option : options)
        if (withoutExplanation(option).split(u' ').contains(keyword))
            return option;
    return {};
}

/// The keyword that an English default means, in the language: "Ja" for "Y", "Yes" and "<Yes>" of "[Yes/No]".
QString localDefault(const QString &shown, const PromptRequest &english, const QStringList &local)
{
    const QString name = shown.section(u' ', 0, 0);
    for (qsizetype i = 0; i < english.keywords.size(); ++i)
        if (matchKeyword(name, {english.keywords[i]}))
            return local[i];
    return shown;
}

/// `tail` with its default, which stands in angle brackets at the end, in the language.
QString localTail(const QString &tail, const PromptRequest &english, const QStringList &local)
{
    // French has a blank that does not break in front of the colon.
    static const QRegularExpression shownDefault(QStringLiteral("<([A-Za-z][A-Za-z ]*)>(?=\\s*:?\\s*$)"),
                                                 QRegularExpression::UseUnicodePropertiesOption);
    const QRegularExpressionMatch match = shownDefault.match(tail);
    if (!match.hasMatch())
        return tail;
    return tail.first(match.capturedStart(1)) + localDefault(match.captured(1), english, local) +
           tail.sliced(match.capturedEnd(1));
}

} // namespace

QString localKeyword(const QString &english, const QString &command)
{
    return QCoreApplication::translate("Keywords", english.toUtf8().constData(), command.toUtf8().constData());
}

PromptRequest inLanguage(PromptRequest request, const QString &command)
{
    const bool isTranslated = localKeyword(QStringLiteral("Yes")) != u"Yes";
    if (!isTranslated || request.keywords.isEmpty() || !request.answers.isEmpty())
        return request;
    PromptParts parts = partsOf(request.prompt);
    QStringList local;
    for (const QString &keyword : request.keywords) {
        const QString option = optionOf(keywordName(keyword), parts.options);
        const QString word = localKeyword(option.isEmpty() ? keywordName(keyword) : option, command);
        // A word that the language shares keeps its second spelling.
        local.append(word == keywordName(keyword) ? keyword : withoutExplanation(word));
    }
    const QString tail = localTail(parts.tail, request, local);
    for (QString &option : parts.options)
        option = localKeyword(option, command);
    request.prompt = parts.head + parts.options.join(u'/') + tail;
    request.answers = std::exchange(request.keywords, local);
    return request;
}

} // namespace host::kernel
