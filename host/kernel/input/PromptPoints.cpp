// How a prompt gets its points: typed, shown, or put together from others.

#include "host/drawing/math/Finite.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/input/HandAim.h"
#include "host/kernel/input/ObjectSnap.h"
#include "host/kernel/input/PointAim.h"
#include "host/kernel/input/PointEntry.h"
#include "host/kernel/input/PromptDialogue.h"
#include "host/kernel/input/SnapModes.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/kernel/variables/SystemVariables.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Vec3;

QString snapPrompt(int kinds)
{
    using namespace drawing;
    constexpr int towards = SnapPerpendicular | SnapTangent | SnapNearest | SnapParallel;
    return kinds & towards ? Kernel::tr(" to ") : Kernel::tr(" of ");
}

} // namespace

PromptDialogue::Reading PromptDialogue::read(const PointAnswer &answer)
{
    if (!takesPoints(m_request.kind) && m_request.kind != PromptKind::Entity && m_request.kind != PromptKind::Selection)
        return refuse();
    return takeGiven(answer.point, answer.isByHand ? Origin::Pointer : Origin::Program);
}

bool PromptDialogue::takePointWord(const QString &text)
{
    if (!takesPoints(m_request.kind) || !(m_assembly.takeWord(text) || lockDirection(text)))
        return false;
    askForPart();
    return true;
}

bool PromptDialogue::takeSnapWord(const QString &text)
{
    const bool picks = m_request.kind == PromptKind::Entity || m_request.kind == PromptKind::Selection;
    const std::optional<int> kinds = takesPoints(m_request.kind) || picks ? parseSnapModes(text) : std::nullopt;
    if (!kinds)
        return false;
    m_snaps = kinds;
    askForPart();
    return true;
}

bool PromptDialogue::lockDirection(const QString &text)
{
    // Where an angle is asked for, "<30" would be one.
    const bool mayBe = m_request.kind == PromptKind::Point && text.startsWith(u'<') && userBase();
    const std::optional<double> angle =
        mayBe ? UnitFormat::of(m_document.variables()).parseDirection(text.mid(1)) : std::nullopt;
    if (!angle)
        return false;
    m_assembly.lockDirection(*angle);
    m_document.print(Kernel::tr("\nAngle Override: ") + text.mid(1));
    return true;
}

void PromptDialogue::askForPart()
{
    m_part.reset();
    if (!m_assembly.isOpen() && !m_snaps)
        return;
    m_part = m_request;
    m_part->snaps = m_snaps;
    if (m_assembly.isOpen()) {
        m_part->kind = PromptKind::Point;
        m_part->prompt = m_assembly.prompt();
        m_part->keywords.clear();
        m_part->defaultText.clear();
    }
    if (m_snaps)
        m_part->prompt = snapPrompt(*m_snaps);
    if (const std::optional<Vec3> base = m_assembly.base())
        m_part->base = toWorld(m_document, *base);
}

PromptDialogue::Reading PromptDialogue::readPart(const QString &text)
{
    if (text.isEmpty()) {
        const std::optional<Vec3> point = m_assembly.takeEnter();
        return point ? takeAssembled(point) : refuse();
    }
    if (takePointWord(text) || takeSnapWord(text))
        return {};
    const std::optional<double> number = UnitFormat::of(m_document.variables()).parseLength(text);
    if (number && std::isfinite(*number) && m_assembly.isCoordinateMissing())
        return takeAssembled(m_assembly.takeCoordinate(*number));
    if (const std::optional<Vec3> point = typedPoint(text))
        return takeGiven(*point, m_typedBy);
    if (const std::optional<Vec3> point = directDistance(text))
        return takeAssembled(m_assembly.take(*point, userBase()));
    return refuse();
}

std::optional<Vec3> PromptDialogue::userBase() const
{
    if (const std::optional<Vec3> base = m_assembly.base())
        return base;
    return m_request.base ? std::optional(toUser(m_document, *m_request.base)) : std::nullopt;
}

std::optional<Vec3> PromptDialogue::directDistance(const QString &text) const
{
    const std::optional<Vec3> base = userBase();
    const bool isText = (m_request.bits & AnyText) && !(m_request.bits & DistanceFirst) && !m_assembly.isOpen();
    if (request().kind != PromptKind::Point || !base || isText)
        return {};
    const std::optional<double> distance = UnitFormat::of(m_document.variables()).parseLength(text);
    if (!distance || !std::isfinite(*distance))
        return {};
    if (const std::optional<Vec3> locked = m_assembly.direction())
        return *base + *locked * *distance;
    return *base + aimedDirection(*base) * *distance;
}

Vec3 PromptDialogue::aimedDirection(const Vec3 &base) const
{
    const PointAim &aim = m_document.aim();
    const HandAim hand(m_document);
    if (aim.lockedAngle)
        return {std::cos(*aim.lockedAngle), std::sin(*aim.lockedAngle), 0.0};
    if (aim.pointer)
        return aim.from(base, toUser(m_document, hand.find(*aim.pointer, request()).point));
    const bool isOrtho = m_document.variables().integer(u"ORTHOMODE") != 0;
    return isOrtho ? normalized(hand.straightened(aim.direction)) : aim.direction;
}

std::optional<Vec3> PromptDialogue::typedPoint(const QString &text) const
{
    const SystemVariables &variables = m_document.variables();
    PointContext context{UnitFormat::of(variables), variables.point(u"LASTPOINT"), variables.real(u"ELEVATION")};
    context.last = userBase().value_or(context.last);
    const std::optional<TypedPoint> typed = parsePoint(text, context);
    if (!typed)
        return {};
    return typed->isWorld ? typed->point : toWorld(m_document, typed->point);
}

PromptDialogue::Reading PromptDialogue::takeGiven(const Vec3 &world, Origin origin)
{
    // A program may work out what is no place.
    if (!isFinite(world))
        return refuse();
    Vec3 place = world;
    bool isSnapped = false;
    if (const QString refusal = snap(place, origin, isSnapped); !refusal.isEmpty())
        return {{}, refusal};
    if (origin == Origin::Pointer) {
        const HandAim hand(m_document);
        place = isSnapped ? hand.lockedFrom(place, request()) : hand.constrained(place, request()).point;
    }
    emit m_document.session().input().pointShown(place);
    // What goes nowhere else stays the number it was.
    if (!m_assembly.isOpen() && !m_assembly.isDirectionLocked()) {
        askForPart();
        return takePoint(place);
    }
    return takeAssembled(m_assembly.take(toUser(m_document, place), userBase()));
}

bool PromptDialogue::isSnapped(Origin origin) const
{
    if (m_request.kind == PromptKind::Entity || m_request.kind == PromptKind::Selection)
        return false;
    constexpr int exceptInScripts = 2;
    const int rule = m_document.variables().integer(u"OSNAPCOORD", exceptInScripts);
    return origin == Origin::Pointer || rule == 0 || (rule == exceptInScripts && origin == Origin::Script);
}

QString PromptDialogue::snap(Vec3 &world, Origin origin, bool &hasMoved)
{
    const std::optional<int> wanted = std::exchange(m_snaps, std::nullopt);
    if (!wanted && !isSnapped(origin))
        return {};
    const ObjectSnap snaps(m_document);
    const std::optional<Vec3> base = userBase();
    const auto found = snaps.find(world, wanted.value_or(snaps.runningModes()),
                                  base ? std::optional(toWorld(m_document, *base)) : std::nullopt);
    if (found) {
        world = found->point;
        hasMoved = true;
    } else if (wanted && *wanted != 0) {
        askForPart();
        return Kernel::tr("No %1 found for specified point.").arg(snapModeName(*wanted));
    }
    return {};
}

PromptDialogue::Reading PromptDialogue::takeAssembled(const std::optional<Vec3> &user)
{
    askForPart();
    return user ? takePoint(toWorld(m_document, *user)) : Reading{};
}

void PromptDialogue::keepDirection(const Vec3 &user)
{
    if (!m_request.base)
        return;
    const Vec3 away = user - toUser(m_document, *m_request.base);
    if (away.length() > 0.0 && std::isfinite(away.length()))
        m_document.aim().direction = normalized(away);
}

} // namespace host::kernel
