// The ways to draw an arc of a polyline. All of them start where the last segment ended; points are in the user's
// plane.

#include "host/commands/draw/PolylineArcs.h"

#include "host/commands/common/CircleGeometry.h"
#include "host/commands/common/UserPlane.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::Vec2;
using drawing::Vec3;

namespace {

/// Asks with a rubber band from the end of the polyline, and reads points in its plane.
class ArcPrompts
{
public:
    ArcPrompts(CommandContext &context, const PolylineDraft &draft)
        : m_context(context), m_plane(context.document()), m_from(draft.last()),
          m_base(m_plane.worldFromUser({m_from.x, m_from.y, draft.height})), m_direction(draft.direction())
    {
    }

    Vec2 from() const { return m_from; }
    double direction() const { return m_direction; }
    Vec2 flat(const PromptReply &reply) const { return m_plane.userFromWorld(reply.point).xy(); }
    CommandContext::Reply point(const QString &prompt) { return m_context.neededPoint(prompt, m_base); }
    /// An included angle: negative to the right.
    CommandContext::Reply angle(const QString &prompt)
    {
        return m_context.angle(prompt, {}, m_base, {}, SignedAngle | NoEmptyAnswer | NoZero);
    }
    CommandContext::Reply length(const QString &prompt)
    {
        return m_context.distance(prompt, {}, m_base, {}, NoEmptyAnswer | NoZero);
    }
    CommandContext::Reply tangent(const QString &prompt)
    {
        return m_context.orientation(prompt, {}, m_base, {}, NoEmptyAnswer);
    }
    /// The direction of the arc's chord, which is that of the polyline so far when it is not said.
    CommandContext::Reply chordDirection()
    {
        const QString usual = m_context.shownAngle(m_direction);
        return m_context.orientation(Commands::tr("Specify direction of chord for arc <%1>: ").arg(usual), {}, m_base,
                                     usual);
    }
    MaybeArc impossible()
    {
        m_context.refuse(Commands::tr("There is no such arc."));
        return {};
    }
    /// The arc to a point, checked.
    MaybeArc arc(Vec2 to, double bulge)
    {
        const bool isArc = std::isfinite(bulge) && std::abs(bulge) < 1e9 && (to - m_from).length() > 0.0;
        return isArc ? MaybeArc(ArcSegment{to, bulge}) : impossible();
    }

private:
    CommandContext &m_context;
    UserPlane m_plane;
    Vec2 m_from;
    Vec3 m_base;
    double m_direction;
};

/// The arc round a centre, so far to the left.
MaybeArc arcAround(ArcPrompts &prompts, Vec2 centre, double turn)
{
    return prompts.arc(turnedRound(prompts.from(), centre, turn), bulgeOfAngle(turn));
}

/// The arc with a radius and an angle whose chord runs in a direction.
MaybeArc arcOnChord(ArcPrompts &prompts, double radius, double turn, double chordDirection)
{
    const double chord = 2.0 * std::abs(radius * std::sin(turn / 2.0));
    return prompts.arc(prompts.from() + polar(chordDirection, chord), bulgeOfAngle(turn));
}

Dialogue<MaybeArc> askByAngle(CommandContext &context, ArcPrompts &prompts)
{
    const PromptReply angle = co_await prompts.angle(Commands::tr("Specify included angle: "));
    const double turn = angle.real;
    PromptReply end = co_await prompts.point(Commands::tr("Specify endpoint of arc or [CEnter/Radius]: "));
    if (end.isKeyword(u"CEnter")) {
        end = co_await context.neededPoint(Commands::tr("Specify center point of arc: "));
        co_return arcAround(prompts, prompts.flat(end), turn);
    }
    if (end.isKeyword(u"Radius")) {
        const PromptReply radius = co_await prompts.length(Commands::tr("Specify radius of arc: "));
        const PromptReply chord = co_await prompts.chordDirection();
        const double direction = chord.hasValue() ? chord.real : prompts.direction();
        co_return arcOnChord(prompts, radius.real, turn, direction);
    }
    co_return prompts.arc(prompts.flat(end), bulgeOfAngle(turn));
}

Dialogue<MaybeArc> askByCentre(CommandContext &context, ArcPrompts &prompts)
{
    const PromptReply given = co_await prompts.point(Commands::tr("Specify center point of arc: "));
    const Vec2 centre = prompts.flat(given);
    const PromptReply end =
        co_await context.neededPoint(Commands::tr("Specify endpoint of arc or [Angle/Length]: "), given.point);
    if (end.isKeyword(u"Angle")) {
        const PromptReply angle = co_await prompts.angle(Commands::tr("Specify included angle: "));
        co_return arcAround(prompts, centre, angle.real);
    }
    if (end.isKeyword(u"Length")) {
        const PromptReply chord = co_await prompts.length(Commands::tr("Specify length of chord: "));
        const double sine = chord.real / 2.0 / (prompts.from() - centre).length();
        co_return std::abs(sine) <= 1.0 ? arcAround(prompts, centre, 2.0 * std::asin(sine)) : prompts.impossible();
    }
    co_return arcAround(prompts, centre, turnAround(centre, prompts.from(), prompts.flat(end)));
}

Dialogue<MaybeArc> askByDirection(CommandContext &, ArcPrompts &prompts)
{
    const PromptReply tangent =
        co_await prompts.tangent(Commands::tr("Specify the tangent direction for the start point of arc: "));
    const PromptReply end = co_await prompts.point(Commands::tr("Specify endpoint of the arc: "));
    co_return prompts.arc(prompts.flat(end), bulgeAlong(prompts.from(), tangent.real, prompts.flat(end)));
}

Dialogue<MaybeArc> askByRadius(CommandContext &, ArcPrompts &prompts)
{
    const PromptReply radius = co_await prompts.length(Commands::tr("Specify radius of arc: "));
    const PromptReply end = co_await prompts.point(Commands::tr("Specify endpoint of arc or [Angle]: "));
    if (end.isKeyword(u"Angle")) {
        const PromptReply angle = co_await prompts.angle(Commands::tr("Specify included angle: "));
        const PromptReply chord = co_await prompts.chordDirection();
        const double direction = chord.hasValue() ? chord.real : prompts.direction();
        co_return arcOnChord(prompts, radius.real, angle.real, direction);
    }
    const Vec2 chord = prompts.flat(end) - prompts.from();
    const double sine = chord.length() / 2.0 / std::abs(radius.real);
    if (!(sine <= 1.0))
        co_return prompts.impossible();
    // Of the two short arcs the one that goes on in the direction so far; a negative radius means the long one.
    const double turn = radius.real < 0.0 ? 2.0 * M_PI - 2.0 * std::asin(sine) : 2.0 * std::asin(sine);
    const bool isLeft = cross(polar(prompts.direction(), 1.0), chord) >= 0.0;
    co_return prompts.arc(prompts.flat(end), bulgeOfAngle(isLeft ? turn : -turn));
}

Dialogue<MaybeArc> askBySecondPoint(CommandContext &context, ArcPrompts &prompts)
{
    const PromptReply between = co_await prompts.point(Commands::tr("Specify second point on arc: "));
    const PromptReply end = co_await context.neededPoint(Commands::tr("Specify end point of arc: "), between.point);
    const double bulge = bulgeThrough(prompts.from(), prompts.flat(between), prompts.flat(end));
    co_return prompts.arc(prompts.flat(end), bulge);
}

struct Way
{
    QStringView option;
    Dialogue<MaybeArc> (*ask)(CommandContext &context, ArcPrompts &prompts);
};

constexpr Way ways[] = {
    {u"Angle", askByAngle},   {u"CEnter", askByCentre},      {u"Direction", askByDirection},
    {u"Radius", askByRadius}, {u"Second", askBySecondPoint},
};

} // namespace

Dialogue<MaybeArc> askArc(CommandContext &context, const PolylineDraft &draft, const QString &option)
{
    ArcPrompts prompts(context, draft);
    for (const Way &way : ways)
        if (way.option == option)
            co_return co_await way.ask(context, prompts);
    co_return std::nullopt;
}

} // namespace host::kernel
