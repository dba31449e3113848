#include "lispfuncs/AskUser.h"

#include "lispfuncs/Translated.h"
#include "platform/kernel/CKvUserInput.h"

#include <algorithm>

namespace ortakit {

namespace {

void offerDefaultAsKeyword(CKvUserInput &input, const PromptRequest &request)
{
    QStringList keywords = request.prompt.keywords;
    keywords.append(translated("Enter to %1").arg(request.prompt.defaultText.toLower()));
    input.initget(request.optionBits, keywords);
}

/// For the kinds whose value is a number: whether an empty answer means the default. Otherwise a default that is there
/// is offered by name.
bool hasNumericDefault(CKvUserInput &input, const PromptRequest &request)
{
    const QString &text = request.prompt.defaultText;
    if (isNumericDefault(text))
        return true;
    if (!text.isEmpty())
        offerDefaultAsKeyword(input, request);
    return false;
}

/// The prompt with its default as the user sees it: a number as `text` writes what an empty answer gives.
template <class Text>
OdString formatted(const CKvUserInput &input, const PromptText &prompt, bool hasDefault, const Text &text)
{
    return input.formatPrompt(prompt.cleaned, hasDefault ? text() : prompt.defaultText);
}

int askInteger(CKvUserInput &input, const PromptRequest &request, PromptAnswer &answer)
{
    const bool hasDefault = hasNumericDefault(input, request);
    if (hasDefault)
        answer.integer = qint32(std::clamp(request.prompt.defaultText.toDouble(), -2147483648.0, 2147483647.0));
    const auto text = [&] { return OdString::number(answer.integer); };
    return input.getInteger(formatted(input, request.prompt, hasDefault, text), hasDefault, answer.integer);
}

int askReal(CKvUserInput &input, const PromptRequest &request, PromptAnswer &answer)
{
    const bool hasDefault = hasNumericDefault(input, request);
    if (hasDefault)
        answer.real = request.prompt.defaultText.toDouble();
    return input.getReal(input.formatPrompt(request.prompt.cleaned, request.prompt.defaultText), hasDefault,
                         answer.real);
}

int askDistance(CKvUserInput &input, const PromptRequest &request, PromptAnswer &answer)
{
    const bool hasDefault = hasNumericDefault(input, request);
    if (hasDefault)
        answer.real = request.prompt.defaultText.toDouble();
    const auto text = [&] { return input.lengthText(answer.real); };
    return input.getDistance(formatted(input, request.prompt, hasDefault, text), request.base, hasDefault, answer.real);
}

/// A default angle is in radians, as the answer.
int askAngle(CKvUserInput &input, const PromptRequest &request, PromptAnswer &answer)
{
    const bool hasDefault = hasNumericDefault(input, request);
    if (hasDefault)
        answer.real = request.prompt.defaultText.toDouble();
    const auto text = [&] { return input.angleText(answer.real); };
    return input.getAngle(formatted(input, request.prompt, hasDefault, text), request.base, hasDefault, answer.real);
}

int askPoint(CKvUserInput &input, const PromptRequest &request, PromptAnswer &answer)
{
    if (!request.prompt.defaultText.isEmpty())
        offerDefaultAsKeyword(input, request);
    return input.getPoint(request.prompt.given, request.base, answer.point);
}

int askCorner(CKvUserInput &input, const PromptRequest &request, PromptAnswer &answer)
{
    if (!request.prompt.defaultText.isEmpty())
        offerDefaultAsKeyword(input, request);
    return input.getCorner(request.prompt.given, request.base.value_or(OdGePoint3d{}), answer.point);
}

int askString(CKvUserInput &input, const PromptRequest &request, PromptAnswer &answer)
{
    answer.string = request.prompt.defaultText;
    return input.getString(input.formatPrompt(request.prompt.cleaned, request.prompt.defaultText),
                           request.blanks == Blanks::BelongToIt, answer.string);
}

int askKeyword(CKvUserInput &input, const PromptRequest &request, PromptAnswer &answer)
{
    PromptText prompt = request.prompt;
    if (prompt.cleaned.isEmpty())
        prompt.cleaned = translated("Specify option");
    answer.string = prompt.defaultText;
    return input.getKeyword(input.formatPrompt(prompt.cleaned, prompt.defaultText), answer.string);
}

struct Asker
{
    PromptKind kind;
    int (*ask)(CKvUserInput &input, const PromptRequest &request, PromptAnswer &answer);
};

constexpr Asker askers[] = {
    {PromptKind::Integer, askInteger}, {PromptKind::String, askString}, {PromptKind::Point, askPoint},
    {PromptKind::Keyword, askKeyword}, {PromptKind::Real, askReal},     {PromptKind::Distance, askDistance},
    {PromptKind::Corner, askCorner},   {PromptKind::Angle, askAngle},
};

} // namespace

PromptAnswer askUser(CKvUserInput &input, const PromptRequest &request)
{
    input.initget(request.optionBits, request.prompt.keywords);
    const auto *asker = std::ranges::find(askers, request.kind, &Asker::kind);
    PromptAnswer answer;
    answer.code = asker->ask(input, request, answer);
    return answer;
}

} // namespace ortakit
