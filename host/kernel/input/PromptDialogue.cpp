#include "host/kernel/input/PromptDialogue.h"

#include "host/drawing/math/Finite.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/AnswerFromValue.h"
#include "host/kernel/input/Keywords.h"
#include "host/kernel/input/Picker.h"
#include "host/kernel/input/PointAim.h"
#include "host/kernel/input/PointEntry.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/lisp/Interpreter.h"

#include <cmath>

namespace host::kernel {

namespace {

using drawing::Vec3;

/// Of prompts that have options beside what they ask for; empty of the others.
QString refusalWithOptions(PromptKind kind)
{
    switch (kind) {
    case PromptKind::Integer:
        return Kernel::tr("Requires an integer value or option keyword.");
    case PromptKind::Real:
        return Kernel::tr("Requires numeric value or option keyword.");
    case PromptKind::Distance:
        return Kernel::tr("Requires numeric distance, two points, or option keyword.");
    case PromptKind::Angle:
    case PromptKind::Orientation:
        return Kernel::tr("Requires valid numeric angle, two points, or option keyword.");
    case PromptKind::Point:
    case PromptKind::Corner:
        return Kernel::tr("Point or option keyword required.");
    default:
        return {};
    }
}

QString refusalText(PromptKind kind)
{
    switch (kind) {
    case PromptKind::Integer:
        return Kernel::tr("Requires an integer value.");
    case PromptKind::Real:
        return Kernel::tr("Requires numeric value.");
    case PromptKind::Distance:
        return Kernel::tr("Requires numeric distance or two points.");
    case PromptKind::Angle:
    case PromptKind::Orientation:
        return Kernel::tr("Requires valid numeric angle or two points.");
    case PromptKind::Keyword:
        return Kernel::tr("Invalid option keyword.");
    case PromptKind::Selection:
        return Kernel::tr("Expects a point or %1.");
    case PromptKind::Command:
    case PromptKind::String:
    case PromptKind::Event:
        return Kernel::tr("Invalid input.");
    case PromptKind::Point:
    case PromptKind::Corner:
    case PromptKind::Entity:
        break;
    }
    return Kernel::tr("Invalid point.");
}

PromptReply replyOf(ReplyKind kind, const QString &text = {})
{
    PromptReply reply;
    reply.kind = kind;
    reply.text = text;
    return reply;
}

bool isTextual(PromptKind kind)
{
    return kind == PromptKind::String || kind == PromptKind::Command;
}

bool isAngle(PromptKind kind)
{
    return kind == PromptKind::Angle || kind == PromptKind::Orientation;
}

} // namespace

PromptDialogue::PromptDialogue(Document &document, PromptRequest request)
    : m_document(document), m_request(std::move(request))
{
    m_document.aim().unlock();
}

std::optional<PromptReply> PromptDialogue::offer(const InputAnswer &answer)
{
    const Reading reading = std::visit([this](const auto &given) { return read(given); }, answer);
    m_wasRefused = !reading.refusal.isEmpty();
    if (m_wasRefused)
        m_document.mutter(u'\n' + reading.refusal);
    return reading.reply;
}

PromptDialogue::Reading PromptDialogue::read(const CancelAnswer &)
{
    return {replyOf(ReplyKind::Cancelled), {}};
}

PromptDialogue::Reading PromptDialogue::read(const TextAnswer &answer)
{
    const QString text = isTextual(m_request.kind) ? answer.text : answer.text.trimmed();
    m_typedBy = answer.isFromScript ? Origin::Script : Origin::Keyboard;
    if (!text.isEmpty() && m_request.forCommand && (text.startsWith(u'(') || text.startsWith(u'!')))
        return readEvaluated(text);
    return m_assembly.isOpen() ? readPart(text) : readText(text);
}

PromptDialogue::Reading PromptDialogue::readText(const QString &text)
{
    if (text.isEmpty())
        return readEmpty();
    if (const auto keyword = keywordFor(m_request, text))
        return {replyOf(m_request.kind == PromptKind::Keyword ? ReplyKind::Value : ReplyKind::Keyword, *keyword), {}};
    if (takePointWord(text) || takeSnapWord(text))
        return {};
    Reading reading = readValue(text);
    if (!reading.reply && !reading.refusal.isEmpty() && (m_request.bits & AnyText))
        return {replyOf(ReplyKind::Keyword, text), {}};
    return reading;
}

PromptDialogue::Reading PromptDialogue::readEmpty()
{
    const bool mayBeEmpty = !(m_request.bits & NoEmptyAnswer) || !m_request.defaultText.isEmpty();
    if (!mayBeEmpty && m_request.kind != PromptKind::String)
        return refuse();
    if (m_request.kind == PromptKind::Entity)
        m_document.variables().setInternally(u"ERRNO", emptyAnswer);
    return {replyOf(ReplyKind::Empty), {}};
}

PromptDialogue::Reading PromptDialogue::readEvaluated(const QString &expression)
{
    // "!name" is the value of a variable.
    const QString form = expression.startsWith(u'!') ? expression.mid(1) : expression;
    const lisp::Outcome outcome = m_document.interpreter().run(form.toStdString());
    if (!outcome.ok())
        return {{}, QString::fromStdString(outcome.error->summary())};
    const std::optional<InputAnswer> answer = answerFromValue(m_document, outcome.value);
    if (!answer)
        return refuse();
    const auto *text = std::get_if<TextAnswer>(&*answer);
    if (text && (text->text.startsWith(u'(') || text->text.startsWith(u'!')))
        return readValue(text->text);
    return std::visit([this](const auto &given) { return read(given); }, *answer);
}

PromptDialogue::Reading PromptDialogue::readValue(const QString &text)
{
    switch (m_request.kind) {
    case PromptKind::Integer:
        return readInteger(text);
    case PromptKind::Real:
        return readReal(text);
    case PromptKind::String:
    case PromptKind::Command:
        return {replyOf(ReplyKind::Value, text), {}};
    case PromptKind::Keyword:
        return refuse();
    default:
        break;
    }
    if (const std::optional<Vec3> point = typedPoint(text))
        return takeGiven(*point, m_typedBy);
    if (const std::optional<Vec3> point = directDistance(text))
        return takeAssembled(m_assembly.take(*point, userBase()));
    if (m_request.kind == PromptKind::Distance)
        return readReal(text);
    return isAngle(m_request.kind) ? readAngle(text) : refuse();
}

PromptDialogue::Reading PromptDialogue::readInteger(const QString &text)
{
    bool isInteger = false;
    PromptReply reply;
    reply.integer = text.toInt(&isInteger);
    return isInteger ? checkNumber(reply.integer, reply) : refuse();
}

PromptDialogue::Reading PromptDialogue::readReal(const QString &text)
{
    const std::optional<double> value = UnitFormat::of(m_document.variables()).parseLength(text);
    if (!value || !std::isfinite(*value))
        return refuse();
    PromptReply reply;
    reply.real = *value;
    return checkNumber(reply.real, reply);
}

PromptDialogue::Reading PromptDialogue::checkNumber(double value, PromptReply reply)
{
    if (!std::isfinite(value))
        return refuse();
    if ((m_request.bits & NoZero) && value == 0.0)
        return {{}, Kernel::tr("Value must be nonzero.")};
    if ((m_request.bits & NoNegative) && value < 0.0)
        return {{}, Kernel::tr("Value must not be negative.")};
    return {std::move(reply), {}};
}

PromptDialogue::Reading PromptDialogue::readAngle(const QString &text)
{
    const UnitFormat units = UnitFormat::of(m_document.variables());
    const std::optional<double> direction = units.parseDirection(text);
    if (!direction)
        return refuse();
    PromptReply reply;
    reply.real = normalizedAngle(m_request.kind == PromptKind::Orientation ? *direction : *direction - units.angleBase);
    if (m_request.bits & SignedAngle) {
        const bool isNegative = text.startsWith(u'-');
        const double size = units.parseAngle(isNegative ? text.mid(1) : text).value_or(0.0);
        reply.real = isNegative == units.isClockwise ? size : -size;
    }
    return checkNumber(reply.real, reply);
}

PromptDialogue::Reading PromptDialogue::takePoint(const Vec3 &world)
{
    if (m_request.kind == PromptKind::Entity || m_request.kind == PromptKind::Selection)
        return pickAt(world);
    if (!isFinite(world))
        return refuse();
    if (isOutsideLimits(world))
        return {{}, Kernel::tr("**Outside limits")};
    m_document.aim().unlock();
    const OdGePoint3d user = m_document.worldToUser({world.x, world.y, world.z});
    keepDirection({user.x, user.y, user.z});
    m_document.variables().setInternally(u"LASTPOINT", Vec3{user.x, user.y, user.z});
    if (m_request.kind == PromptKind::Distance || isAngle(m_request.kind))
        return takeSecondPoint(world);
    PromptReply reply;
    reply.point = world;
    return {reply, {}};
}

PromptDialogue::Reading PromptDialogue::takeSecondPoint(const Vec3 &world)
{
    if (!m_request.base) {
        m_request.base = world;
        m_request.prompt = Kernel::tr("\nSpecify second point: ");
        return {};
    }
    const OdGePoint3d from = m_document.worldToUser({m_request.base->x, m_request.base->y, m_request.base->z});
    const OdGePoint3d to = m_document.worldToUser({world.x, world.y, world.z});
    PromptReply reply;
    reply.isShown = true;
    if (m_request.kind == PromptKind::Distance) {
        const double rise = (m_request.bits & FlatDistance) ? 0.0 : to.z - from.z;
        reply.real = std::hypot(to.x - from.x, to.y - from.y, rise);
        return checkNumber(reply.real, reply);
    }
    const double absolute = std::atan2(to.y - from.y, to.x - from.x);
    const double base = m_request.kind == PromptKind::Orientation ? 0.0 : m_document.variables().real(u"ANGBASE");
    reply.real = normalizedAngle(absolute - base);
    return {reply, {}};
}

PromptDialogue::Reading PromptDialogue::pickAt(const Vec3 &world)
{
    PromptReply reply;
    reply.point = world;
    const drawing::RecordId entity = Picker(m_document).entityAt(world);
    if (isValid(entity))
        reply.entities.push_back(entity);
    else if (m_request.kind == PromptKind::Entity) {
        m_document.variables().setInternally(u"ERRNO", pickMissed);
        reply.kind = ReplyKind::Empty;
        reply.isMiss = true;
    }
    return {reply, {}};
}

PromptDialogue::Reading PromptDialogue::read(const EntityAnswer &answer)
{
    if (m_request.kind != PromptKind::Entity && m_request.kind != PromptKind::Selection)
        return read(PointAnswer{answer.point, false});
    // Of a selection an erased entity is just not found.
    if (m_request.kind == PromptKind::Entity && !m_document.drawing().isAlive(answer.entity))
        return refuse();
    if (!isFinite(answer.point))
        return refuse();
    PromptReply reply;
    reply.entities.push_back(answer.entity);
    reply.point = answer.point;
    return {reply, {}};
}

PromptDialogue::Reading PromptDialogue::read(const EntitiesAnswer &answer)
{
    // Where one entity is asked for, a set of one stands for it.
    if (m_request.kind == PromptKind::Entity && answer.entities.size() == 1)
        return read(EntityAnswer{answer.entities.front(), {}});
    if (m_request.kind != PromptKind::Selection)
        return refuse();
    PromptReply reply;
    reply.entities = answer.entities;
    reply.steps = answer.steps;
    reply.isSet = true;
    std::erase_if(reply.entities, [this](drawing::RecordId id) { return !m_document.drawing().isAlive(id); });
    return {reply, {}};
}

PromptDialogue::Reading PromptDialogue::read(const WindowAnswer &answer)
{
    if (m_request.kind != PromptKind::Selection)
        return refuse();
    PromptReply reply;
    reply.isWindow = true;
    reply.point = answer.first;
    reply.corner = answer.second;
    return {reply, {}};
}

PromptDialogue::Reading PromptDialogue::refuse() const
{
    const QString withOptions = m_request.keywords.isEmpty() ? QString() : refusalWithOptions(m_request.kind);
    const QString refusal = withOptions.isEmpty() ? refusalText(m_request.kind) : withOptions;
    return {{}, m_request.kind == PromptKind::Selection ? refusal.arg(m_request.keywords.join(u'/')) : refusal};
}

bool PromptDialogue::isOutsideLimits(const Vec3 &world) const
{
    const SystemVariables &variables = m_document.variables();
    if ((m_request.bits & OutsideLimits) || variables.integer(u"LIMCHECK") == 0)
        return false;
    const Vec3 low = variables.point(u"LIMMIN");
    const Vec3 high = variables.point(u"LIMMAX");
    return world.x < low.x || world.y < low.y || world.x > high.x || world.y > high.y;
}

} // namespace host::kernel
