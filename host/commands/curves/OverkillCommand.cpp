#include "host/commands/Commands.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/common/KeptValues.h"
#include "host/commands/curves/CarrierUnion.h"
#include "host/drawing/curves/Carriers.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/tags/GroupCodes.h"
#include "host/kernel/languages/Texts.h"

#include <QSet>

#include <map>
#include <set>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::CarrierRange;
using drawing::EntityCurve;
using drawing::Field;
using drawing::FieldList;
using drawing::RecordId;

/// What counts as the same, and what is done with what is not quite.
struct OverkillSettings
{
    double tolerance = 1e-6;
    QSet<int> ignored; ///< group codes of properties that may differ
    bool takesOverlaps = true;
    bool takesEnds = true;
};

struct OverkillSession
{
    CommandContext &context;
    OverkillSettings settings;
    std::set<RecordId> erased;
    size_t duplicates = 0;
    size_t overlaps = 0;
};

/// The groups that say how an entity looks rather than where it is.
const QSet<int> &lookGroups()
{
    static const QSet<int> codes = {6, 8, 39, 48, 60, 62, 370, 390, 420, 430, 440};
    return codes;
}

/// A number as all have it that are the same within the tolerance, but for such at the border of two cells.
QString inCells(double value, double tolerance)
{
    return QString::number(std::round(value / tolerance) + 0.0, 'f', 0);
}

QString fieldKey(const Field &field, double tolerance)
{
    QString key = QString::number(field.code) + u'=';
    if (std::holds_alternative<drawing::Vec2>(field.value) || std::holds_alternative<drawing::Vec3>(field.value)) {
        const drawing::Vec3 point = field.point();
        return key + inCells(point.x, tolerance) + u',' + inCells(point.y, tolerance) + u',' +
               inCells(point.z, tolerance) + u'\n';
    }
    if (std::holds_alternative<double>(field.value))
        return key + inCells(field.real(), tolerance) + u'\n';
    if (std::holds_alternative<qint64>(field.value))
        return key + QString::number(field.integer()) + u'\n';
    return key + field.text() + u'\n';
}

/// All that tells an entity from others: its look, or everything but its handle and its owner.
QString keyOf(const OverkillSession &session, RecordId entity, bool ofLookAlone)
{
    QString key;
    const drawing::Drawing &drawing = session.context.drawing();
    const auto append = [&](RecordId record) {
        const FieldList fields = drawing.fields(record);
        for (auto field = fields.begin(); field != drawing::ownEnd(fields); ++field) {
            const bool isLook = lookGroups().contains(field->code);
            const bool isIdentity = field->code == 5 || field->code == 330 || field->code == 102;
            if (!session.settings.ignored.contains(field->code) && (isLook || (!ofLookAlone && !isIdentity)))
                key += fieldKey(*field, session.settings.tolerance);
        }
    };
    append(entity);
    if (!ofLookAlone)
        for (const RecordId child : drawing.children(entity))
            append(child);
    return key;
}

void eraseDuplicates(OverkillSession &session, const std::vector<RecordId> &entities)
{
    std::set<QString> known;
    for (const RecordId entity : entities) {
        if (known.insert(keyOf(session, entity, false)).second)
            continue;
        session.erased.insert(entity);
        ++session.duplicates;
    }
}

/// Parts of one carrier that make one run, the one that begins it first.
struct CarrierRun
{
    CurveParts parts;
    CarrierRange range;
};

/// Whether what begins at `from` belongs to a run that ends at `end`, with `slack` between.
bool goesOn(const OverkillSettings &settings, const CarrierRange &run, const CarrierRange &next, double slack)
{
    if (next.to <= run.to + slack)
        return true;
    return next.from < run.to - slack ? settings.takesOverlaps : settings.takesEnds && next.from <= run.to + slack;
}

std::vector<CarrierRun> runsOf(const OverkillSettings &settings, const CurveParts &parts, double slack)
{
    const bool isRound = parts.front().curve.kind() != EntityCurve::Kind::Line;
    const double start = parts.front().curve.startParameter();
    std::vector<CarrierRun> sorted;
    for (const CurvePart &part : parts) {
        CarrierRange range = rangeAlong(parts.front().curve, part.curve, settings.tolerance);
        const double turns = isRound ? std::floor((range.from - start + slack) / drawing::wholeTurn) : 0.0;
        range.from -= turns * drawing::wholeTurn;
        range.to -= turns * drawing::wholeTurn;
        sorted.push_back({{part}, range});
    }
    std::ranges::stable_sort(sorted, [&](const CarrierRun &a, const CarrierRun &b) {
        return std::abs(a.range.from - b.range.from) > slack ? a.range.from < b.range.from : a.range.to > b.range.to;
    });
    std::vector<CarrierRun> runs;
    for (CarrierRun &next : sorted) {
        if (runs.empty() || !goesOn(settings, runs.back().range, next.range, slack)) {
            runs.push_back(std::move(next));
            continue;
        }
        runs.back().parts.push_back(next.parts.front());
        runs.back().range.to = std::max(runs.back().range.to, next.range.to);
    }
    // The last one of a circle may run into the first one.
    if (isRound && runs.size() > 1) {
        const CarrierRange ahead{runs.front().range.from + drawing::wholeTurn,
                                 runs.front().range.to + drawing::wholeTurn};
        if (goesOn(settings, runs.back().range, ahead, slack)) {
            CurveParts &last = runs.back().parts;
            last.insert(last.end(), runs.front().parts.begin(), runs.front().parts.end());
            runs.erase(runs.begin());
        }
    }
    return runs;
}

/// Lines on one line and arcs on one circle that overlap, or meet, become one.
void uniteOverlaps(OverkillSession &session, const std::vector<RecordId> &entities)
{
    std::map<QString, CurveParts> byLook;
    for (const RecordId entity : entities) {
        if (session.erased.contains(entity))
            continue;
        if (std::optional<EntityCurve> curve = EntityCurve::ofEntity(session.context.drawing(), entity))
            byLook[keyOf(session, entity, true)].push_back({entity, std::move(*curve)});
    }
    for (const auto &[look, parts] : byLook) {
        std::vector<EntityCurve> curves;
        for (const CurvePart &part : parts)
            curves.push_back(part.curve);
        for (const std::vector<size_t> &group : drawing::groupsByCarrier(curves, session.settings.tolerance)) {
            CurveParts members;
            for (const size_t number : group)
                members.push_back(parts[number]);
            const bool isLine = members.front().curve.kind() == EntityCurve::Kind::Line;
            const double unit = isLine ? 1.0 : members.front().curve.pieces().front().xAxis().length();
            for (const CarrierRun &run : runsOf(session.settings, members, session.settings.tolerance / unit)) {
                if (run.parts.size() < 2 || !uniteOnCarrier(session.context, run.parts))
                    continue;
                for (size_t i = 1; i < run.parts.size(); ++i)
                    session.erased.insert(run.parts[i].entity);
                session.overlaps += run.parts.size() - 1;
            }
        }
    }
}

Dialogue<bool> askIgnored(CommandContext &context, OverkillSettings &settings)
{
    static const std::vector<std::pair<QString, QSet<int>>> properties = {
        {u"ALl"_s, lookGroups()}, {u"Color"_s, {62, 420, 430}}, {u"LAyer"_s, {8}},
        {u"LType"_s, {6}},        {u"ltScale"_s, {48}},         {u"LWeight"_s, {370}},
        {u"Thickness"_s, {39}},   {u"TRansparency"_s, {440}},   {u"Plotstyle"_s, {390}},
        {u"None"_s, {}},
    };
    QStringList names;
    for (const auto &[name, codes] : properties)
        names.append(name);
    const QString prompt = Commands::tr("Enter property to ignore [%1]").arg(names.join(u'/'));
    const QString chosen = co_await askUsualOption(context, prompt, u"None"_s);
    for (const auto &[name, codes] : properties)
        if (name == chosen)
            settings.ignored = codes.isEmpty() ? QSet<int>() : settings.ignored + codes;
    co_return true;
}

/// The options, until Done.
Dialogue<OverkillSettings> askOverkillSettings(CommandContext &context)
{
    OverkillSettings settings;
    for (;;) {
        const QString prompt = Commands::tr("Enter an option to change [Done/Ignore/Tolerance/Overlaps/Endtoend]");
        const QString option = co_await askUsualOption(context, prompt, u"Done"_s);
        if (option == u"Done")
            co_return settings;
        if (option == u"Ignore") {
            co_await askIgnored(context, settings);
        } else if (option == u"Tolerance") {
            constexpr double leastTolerance = 1e-9;
            const double asked =
                co_await askUsualLength(context, Commands::tr("Specify tolerance"), settings.tolerance);
            settings.tolerance = std::max(asked, leastTolerance);
        } else if (option == u"Overlaps") {
            settings.takesOverlaps = co_await askYesNo(context, Commands::tr("Combine lines and arcs that overlap?"),
                                                       settings.takesOverlaps);
        } else {
            settings.takesEnds = co_await askYesNo(
                context, Commands::tr("Combine lines and arcs that meet end to end?"), settings.takesEnds);
        }
    }
}

// What is there twice goes; lines and arcs that overlap or meet become one.
CommandTask overkill(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    const std::vector<RecordId> entities = editable(context, chosen.entities);
    if (entities.empty())
        co_return;
    const OverkillSettings settings = co_await askOverkillSettings(context);
    OverkillSession session{context, settings, {}};
    eraseDuplicates(session, entities);
    uniteOverlaps(session, entities);
    eraseAll(context, {session.erased.begin(), session.erased.end()});
    context.print(Commands::tr("\n%1 duplicate(s) deleted").arg(session.duplicates));
    context.print(Commands::tr("\n%1 overlapping object(s) or segment(s) deleted").arg(session.overlaps));
}

} // namespace

std::vector<CommandRow> overkillCommands()
{
    constexpr const char *help = "erases what is there twice and makes one of lines and arcs that overlap";
    return {{"-OVERKILL", overkill, help}, {"OVERKILL", overkill, help}};
}

} // namespace host::kernel
