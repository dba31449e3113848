#include "lispfuncs/KeywordRequest.h"

#include "lispfuncs/ArgumentValues.h"
#include "lispfuncs/Keywords.h"
#include "lispfuncs/LispCall.h"
#include "platform/kernel/CKvUserInput.h"

#include <algorithm>

namespace ortakit {

using namespace Qt::StringLiterals;

namespace {

/// Strings, T and nil among the arguments, in their order.
using Words = std::vector<const OdResBuf *>;

/// Takes bits and base point, and leaves the words.
Words takeNumbers(PromptKind kind, const OdResBuf *arguments, const CKvDocument &document, KeywordRequest &request)
{
    Words words;
    for (const OdResBuf *value = arguments; value; value = behindValue(value)) {
        const std::optional<OdGePoint3d> point = pointIn(value);
        if (isInteger(value))
            request.optionBits = int(value->getInteger());
        else if (point && kind == PromptKind::Point)
            request.base = document.userToWorld(*point);
        else if (isString(value) || isNil(value) || (isTrue(value) && kind == PromptKind::String))
            words.push_back(value);
        else
            failArgument("an argument is of a type that does not fit");
    }
    return words;
}

QStringList textsOf(const Words &words)
{
    QStringList texts;
    for (const OdResBuf *word : words)
        texts.append(word->getString());
    return texts;
}

QStringList stringsOf(const Words &words)
{
    Words strings;
    std::ranges::copy_if(words, std::back_inserter(strings), isString);
    return textsOf(strings);
}

/// The texts by their places: keywords, prompt and what follows it.
QStringList withKeywords(const QStringList &texts)
{
    // One text alone is the prompt.
    return texts.size() == 1 ? QStringList{QString(), texts.first()} : texts;
}

/// Keywords, prompt; nil in place of either.
QStringList pointTexts(const Words &words)
{
    const QStringList texts = stringsOf(words);
    const bool isKeywordsAlone = texts.size() == 1 && words.size() > 1 && isString(words.front());
    return isKeywordsAlone ? texts : withKeywords(texts);
}

/// Keywords, prompt, options, default; one text alone is the keywords unless it shows options itself.
QStringList keywordTexts(const Words &words)
{
    const QStringList texts = textsOf(words);
    const bool isPromptAlone = texts.size() == 1 && texts.first().contains(u'[');
    return isPromptAlone ? withKeywords(texts) : texts;
}

/// Keywords, prompt, default. T or nil stands between the keywords and the prompt; of two side by side the first is
/// in place of the keywords.
QStringList stringTexts(const Words &words, KeywordRequest &request)
{
    auto flag = std::ranges::find_if_not(words, isString);
    if (flag == words.end())
        return withKeywords(stringsOf(words));
    if (flag + 1 != words.end() && !isString(*(flag + 1)))
        ++flag;
    request.blanks = isTrue(*flag) ? Blanks::BelongToIt : Blanks::EndTheAnswer;
    const QStringList before = stringsOf({words.begin(), flag});
    const QStringList after = stringsOf({flag + 1, words.end()});
    if (after.isEmpty())
        return withKeywords(before);
    return QStringList{before.value(0)} + after;
}

QStringList textsFor(PromptKind kind, const Words &words, KeywordRequest &request)
{
    switch (kind) {
    case PromptKind::Point:
        return pointTexts(words);
    case PromptKind::String:
        return stringTexts(words, request);
    default:
        return keywordTexts(words);
    }
}

/// Most texts that a call can have.
qsizetype mostTexts(PromptKind kind)
{
    if (kind == PromptKind::Point)
        return 2;
    return kind == PromptKind::String ? 3 : 4;
}

} // namespace

KeywordRequest KeywordRequest::read(PromptKind kind, const OdResBuf *arguments, const CKvDocument &document)
{
    KeywordRequest request;
    const QStringList texts = textsFor(kind, takeNumbers(kind, arguments, document, request), request);
    if (texts.size() > mostTexts(kind))
        failArgument("there are more strings than the function takes");
    const PromptText prompt = parsePrompt(texts.value(1));
    request.prompt = prompt.cleaned.trimmed();
    request.keywords = splitKeywords(texts.value(0));
    if (kind == PromptKind::Keyword)
        request.options = texts.value(2);
    if (request.options.isEmpty() && !request.keywords.isEmpty())
        request.options = prompt.keywords.join(u'/');
    if (request.keywords.isEmpty())
        request.keywords = request.options.isEmpty() ? prompt.keywords : splitOptions(request.options);
    const QString defaultText = texts.value(mostTexts(kind) - 1);
    const bool hasDefault = kind != PromptKind::Point && !defaultText.isEmpty();
    request.defaultText = hasDefault ? defaultText : prompt.defaultText;
    return request;
}

void KeywordRequest::setOptions(CKvUserInput &input) const
{
    if (optionBits != 0 || !keywords.isEmpty())
        input.initget(optionBits, keywords);
}

OdString KeywordRequest::shown(const CKvUserInput &input) const
{
    if (prompt.isEmpty() && keywords.isEmpty() && defaultText.isEmpty())
        return {};
    if (options.isEmpty())
        return u'\n' + input.formatPrompt(prompt, defaultText);
    QString text = u"\n%1 [%2]"_s.arg(prompt, options);
    if (!defaultText.isEmpty())
        text += u" <%1>"_s.arg(defaultText);
    return text + u": "_s;
}

} // namespace ortakit
