#include "host/kernel/input/UserInput.h"

#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/input/Keywords.h"
#include "host/kernel/input/PromptDialogue.h"
#include "host/kernel/input/Units.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/TransparentCall.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/lisp/Error.h"

#include <algorithm>
#include <utility>

namespace host::kernel {

namespace {

std::optional<drawing::Vec3> vector(const std::optional<OdGePoint3d> &point)
{
    return point ? std::optional(drawing::Vec3{point->x, point->y, point->z}) : std::nullopt;
}

PromptRequest requestFor(PromptKind kind, const OdString &prompt)
{
    PromptRequest request;
    request.kind = kind;
    request.prompt = prompt;
    return request;
}

PromptReply refusedReply()
{
    PromptReply reply;
    reply.kind = ReplyKind::Cancelled;
    reply.isRefused = true;
    return reply;
}

} // namespace

void UserInput::refuseInDialog() const
{
    if (m_document.isDialogOpen())
        throw lisp::Error("function refused: a dialog is open");
}

PromptReply UserInput::ask(const PromptRequest &request)
{
    refuseInDialog();
    PromptDialogue dialogue(m_document, request);
    return ask(dialogue, request.endsWhenRefused ? WhenRefused::EndBeforeMore : WhenRefused::AskAgain);
}

PromptReply UserInput::ask(PromptDialogue &dialogue, WhenRefused whenRefused)
{
    for (;;) {
        const bool isSilent = isAnsweredSilently();
        if (!isSilent)
            m_document.printPrompt(dialogue.request().prompt);
        const InputAnswer answer = nextAnswer(dialogue.request());
        if (!isSilent)
            echo(answer);
        if (const std::optional<QString> called = transparentCall(answer, dialogue.request())) {
            runTransparent(m_document, *called, dialogue.request());
            continue;
        }
        if (std::optional<PromptReply> reply = dialogue.offer(answer))
            return *reply;
        if (dialogue.wasRefused() && whenRefused == WhenRefused::EndBeforeMore &&
            !m_document.session().input().isEmpty())
            return refusedReply();
    }
}

void UserInput::dropTypedAhead()
{
    InputQueue &queue = m_document.session().input();
    if (queue.isEmpty())
        return;
    queue.clear();
    m_document.print(Kernel::tr("\nThe rest of what was typed ahead is left out.\n"));
}

bool UserInput::isAnsweredSilently() const
{
    const bool isAnsweredByProgram = !m_given.empty() && m_given.front();
    return isAnsweredByProgram && m_document.variables().integer(u"CMDECHO", 1) == 0;
}

std::optional<InputAnswer> UserInput::takeGiven()
{
    if (m_given.empty())
        return std::nullopt;
    const std::optional<InputAnswer> answer = std::move(m_given.front());
    m_given.pop_front();
    return answer;
}

InputAnswer UserInput::nextAnswer(const PromptRequest &request)
{
    refuseInDialog();
    if (const std::optional<InputAnswer> answer = takeGiven())
        return *answer;
    Session &session = m_document.session();
    // Not behind feeding: what the user does next is for the next prompt, and nobody would take it here.
    if (!session.input().isEmpty() && session.isStopWanted()) {
        session.input().clear();
        return CancelAnswer{.isFinal = true};
    }
    for (;;) {
        if (!session.input().isEmpty())
            if (std::optional<InputAnswer> answer = session.input().take(request))
                return *answer;
        InputFeeder *feeder = session.feeder();
        const bool isFed = feeder && feeder->feed(request, session.input()) == FeedResult::Supplied;
        if (!isFed || session.input().isEmpty()) {
            m_document.print(
                Kernel::tr("\nNobody is there to answer \"%1\": cancelled.\n").arg(request.prompt.trimmed()));
            return CancelAnswer{.isFinal = true};
        }
    }
}

void UserInput::echo(const InputAnswer &answer)
{
    if (const auto *text = std::get_if<TextAnswer>(&answer))
        m_document.print(text->text + u'\n');
    else if (std::holds_alternative<CancelAnswer>(answer))
        m_document.print(Kernel::tr("*Cancel*\n"));
    else
        m_document.print(QStringLiteral("\n"));
}

void UserInput::initget(int bits, const QStringList &keywords)
{
    m_bits = bits & 0xffff; // what lies above is not for programs
    m_keywords = keywords;
    m_keywords.removeAll(QString());
    // "Ja Nein _Yes No": from the underscore on it is what programs are told.
    const auto first = std::ranges::find_if(m_keywords, [](const QString &word) { return word.startsWith(u'_'); });
    m_answers = m_keywords.mid(first - m_keywords.begin());
    m_keywords.resize(m_keywords.size() - m_answers.size());
    for (QString &answer : m_answers)
        answer.remove(0, answer.startsWith(u'_') ? 1 : 0);
    if (m_keywords.isEmpty())
        m_keywords = std::exchange(m_answers, {});
}

void UserInput::applyOptions(PromptRequest &request)
{
    request.bits = m_bits;
    request.keywords = m_keywords;
    request.answers = m_answers;
    forgetOptions();
}

void UserInput::forgetOptions()
{
    m_bits = 0;
    m_keywords.clear();
    m_answers.clear();
}

OdString UserInput::formatPrompt(const OdString &prompt, const OdString &defaultText) const
{
    return kernel::formatPrompt(prompt, m_keywords, defaultText);
}

OdString UserInput::lengthText(double length) const
{
    return UnitFormat::of(m_document.variables()).exactLength(length);
}

OdString UserInput::angleText(double angle) const
{
    return UnitFormat::of(m_document.variables()).exactAngle(angle);
}

int UserInput::askFor(PromptRequest request, PromptReply &reply)
{
    applyOptions(request);
    m_input.clear();
    reply = ask(request);
    switch (reply.kind) {
    case ReplyKind::Value:
        return kRtNormal;
    case ReplyKind::Empty:
        return request.defaultText.isEmpty() ? kRtNone : kRtNormal;
    case ReplyKind::Keyword:
        m_input = reply.text;
        return kRtKeyword;
    case ReplyKind::Cancelled:
        break;
    }
    return kRtCancel;
}

PromptReply UserInput::askForEntity(const QString &prompt)
{
    PromptReply reply;
    askFor(requestFor(PromptKind::Entity, prompt), reply);
    return reply;
}

int UserInput::dragToPoint(const QString &prompt, const drawing::Vec3 &base, std::vector<drawing::RecordId> entities,
                           drawing::Vec3 &point)
{
    PromptRequest request = requestFor(PromptKind::Point, prompt);
    request.base = base;
    request.dragged = movedBy(std::move(entities), base);
    PromptReply reply;
    const int result = askFor(std::move(request), reply);
    if (reply.hasValue())
        point = reply.point;
    return result;
}

int UserInput::getInteger(const OdString &prompt, bool hasDefault, qint32 &value)
{
    PromptRequest request = requestFor(PromptKind::Integer, prompt);
    request.defaultText = hasDefault ? QString::number(value) : QString();
    PromptReply reply;
    const int result = askFor(std::move(request), reply);
    if (reply.hasValue())
        value = reply.integer;
    return result;
}

int UserInput::askForReal(PromptKind kind, const OdString &prompt, const std::optional<OdGePoint3d> &base,
                          bool hasDefault, double &value)
{
    PromptRequest request = requestFor(kind, prompt);
    request.base = vector(base);
    if (hasDefault)
        request.defaultText = kind == PromptKind::Angle ? angleText(value) : lengthText(value);
    PromptReply reply;
    const int result = askFor(std::move(request), reply);
    if (reply.hasValue())
        value = reply.real;
    return result;
}

int UserInput::getReal(const OdString &prompt, bool hasDefault, double &value)
{
    return askForReal(PromptKind::Real, prompt, {}, hasDefault, value);
}

int UserInput::getDistance(const OdString &prompt, const std::optional<OdGePoint3d> &base, bool hasDefault,
                           double &value)
{
    return askForReal(PromptKind::Distance, prompt, base, hasDefault, value);
}

int UserInput::getAngle(const OdString &prompt, const std::optional<OdGePoint3d> &base, bool hasDefault, double &value)
{
    return askForReal(PromptKind::Angle, prompt, base, hasDefault, value);
}

int UserInput::askForPoint(PromptKind kind, const OdString &prompt, const std::optional<OdGePoint3d> &base,
                           OdGePoint3d &value)
{
    PromptRequest request = requestFor(kind, prompt);
    request.base = vector(base);
    PromptReply reply;
    const int result = askFor(std::move(request), reply);
    if (reply.hasValue())
        value = {reply.point.x, reply.point.y, reply.point.z};
    return result;
}

int UserInput::getPoint(const OdString &prompt, const std::optional<OdGePoint3d> &base, OdGePoint3d &value)
{
    return askForPoint(PromptKind::Point, prompt, base, value);
}

int UserInput::getCorner(const OdString &prompt, const OdGePoint3d &base, OdGePoint3d &value)
{
    return askForPoint(PromptKind::Corner, prompt, base, value);
}

int UserInput::getString(const OdString &prompt, bool allowSpaces, OdString &value)
{
    PromptRequest request = requestFor(PromptKind::String, prompt);
    request.allowSpaces = allowSpaces;
    PromptReply reply;
    const int result = askFor(std::move(request), reply);
    if (reply.hasValue())
        value = reply.text;
    else if (reply.kind == ReplyKind::Keyword)
        value.clear();
    return reply.isEmpty() ? kRtNormal : result;
}

int UserInput::getKeyword(const OdString &prompt, OdString &value)
{
    PromptRequest request = requestFor(PromptKind::Keyword, prompt);
    request.defaultText = value;
    PromptReply reply;
    const int result = askFor(std::move(request), reply);
    if (reply.hasValue())
        value = reply.text;
    else if (reply.kind == ReplyKind::Keyword)
        value.clear();
    return result;
}

} // namespace host::kernel
