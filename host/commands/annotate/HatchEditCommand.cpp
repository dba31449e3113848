#include "host/commands/Commands.h"
#include "host/commands/annotate/HatchDialogue.h"
#include "host/commands/common/EntityEdits.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Reactors.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::Field;
using drawing::FieldList;
using drawing::RecordId;

namespace {

/// Where the groups behind the boundary begin: the style (75).
FieldList::iterator lookBegin(FieldList &fields)
{
    return std::ranges::find_if(fields, [](const Field &field) { return field.code == 75; });
}

double realBehind(const FieldList &fields, FieldList::const_iterator from, int code, double otherwise)
{
    const auto found =
        std::find_if(from, drawing::ownEnd(fields), [code](const Field &field) { return field.code == code; });
    return found == drawing::ownEnd(fields) ? otherwise : found->real();
}

/// The look that a record has.
HatchLook lookOf(CommandContext &context, FieldList &fields)
{
    HatchLook look = currentHatchSettings(context.document()).look;
    const auto from = lookBegin(fields);
    const Field *name = drawing::findField(fields, 2);
    const int type = static_cast<int>(realBehind(fields, from, 76, 1.0));
    if (name)
        look.pattern = type == 0 ? u"U"_s : name->text();
    const UserPlane plane(context.document());
    look.angle = (realBehind(fields, from, 52, 0.0) - plane.objectDegrees(0.0)) * drawing::radians;
    const double scale = realBehind(fields, from, 41, 1.0);
    (look.isOwnLines() ? look.spacing : look.scale) = scale > 0.0 ? scale : 1.0;
    look.isDouble = realBehind(fields, from, 77, 0.0) != 0.0;
    look.style = static_cast<IslandStyle>(std::clamp(static_cast<int>(realBehind(fields, from, 75, 0.0)), 0, 2));
    return look;
}

/// Puts another look in place of the one that the record has: name, solid or not, and all from 75 up to the seeds.
bool setLook(CommandContext &context, RecordId hatch, const HatchLook &look)
{
    FieldList fields = context.drawing().fields(hatch);
    const drawing::Box box = context.document().boxes().box(hatch);
    const auto lines = hatchLookFields(context, look, (box.high - box.low).xy().length());
    if (!lines)
        return false;
    for (const Field &name : hatchNameFields(look))
        drawing::setField(fields, name.code, name.value);
    const auto begin = lookBegin(fields);
    // The size of a pixel (47) and the seeds (98) stay, and so does a gradient behind them.
    const auto end = std::find_if(begin, drawing::ownEnd(fields),
                                  [](const Field &field) { return field.code == 47 || field.code == 98; });
    const auto place = fields.erase(begin, end);
    fields.insert(place, lines->begin(), lines->end());
    context.drawing().setFields(hatch, fields);
    return true;
}

/// Lets the hatch stay as it is whatever becomes of its boundary.
void disassociate(drawing::Drawing &drawing, RecordId hatch)
{
    FieldList fields = drawing.fields(hatch);
    const auto look = lookBegin(fields);
    const auto paths = std::find_if(fields.begin(), look, [](const Field &field) { return field.code == 91; });
    std::vector<drawing::Handle> sources;
    FieldList kept(fields.begin(), paths);
    for (auto at = paths; at != look; ++at) {
        if (at->code == 330)
            sources.push_back(at->handle());
        else
            kept.push_back(at->code == 97 && at + 1 != look && (at + 1)->code == 330 ? Field{97, qint64(0)} : *at);
    }
    kept.insert(kept.end(), look, fields.end());
    drawing::setField(kept, 71, qint64(0));
    drawing.setFields(hatch, kept);
    for (const drawing::Handle source : sources)
        if (const RecordId record = drawing.find(source); drawing.isAlive(record))
            drawing::removeReactor(drawing, record, drawing.handle(hatch));
}

/// Layer, colour and transparency of the settings for a hatch that is there.
void setCommonFields(drawing::Drawing &drawing, RecordId hatch, const FieldList &common)
{
    if (common.empty())
        return;
    FieldList fields = drawing.fields(hatch);
    const auto marker = std::ranges::find_if(
        fields, [](const Field &field) { return field.code == 100 && field.text() == u"AcDbHatch"; });
    auto place = marker;
    for (const Field &field : common) {
        const auto own = std::find_if(fields.begin(), place, [&](const Field &f) { return f.code == field.code; });
        if (own != place)
            own->value = field.value;
        else
            place = fields.insert(place, field) + 1;
    }
    drawing.setFields(hatch, fields);
}

Dialogue<RecordId> askHatch(CommandContext &context)
{
    for (;;) {
        const PromptReply picked = co_await context.entity(Commands::tr("Select hatch object: "));
        if (picked.isMiss)
            continue;
        if (picked.entities.empty())
            co_return drawing::noRecord;
        if (context.drawing().isType(picked.entities.front(), "HATCH"))
            co_return editable(context, picked.entities).empty() ? drawing::noRecord : picked.entities.front();
        if (context.refuse(Commands::tr("Object selected is not a hatch.")))
            co_return drawing::noRecord;
    }
}

// A hatch, then what of it changes.
CommandTask editHatch(CommandContext &context)
{
    const RecordId hatch = co_await askHatch(context);
    if (!isValid(hatch))
        co_return;
    const PromptReply option = co_await context.keyword(
        Commands::tr("Enter hatch option [DIsassociate/Style/Properties/Origin/ANnotative/hatch "
                     "COlor/LAyer/Transparency] <Properties>: "),
        u"DIsassociate Style Properties Origin ANnotative COlor LAyer Transparency"_s, u"Properties"_s);
    if (option.text == u"DIsassociate") {
        disassociate(context.drawing(), hatch);
        co_return;
    }
    FieldList fields = context.drawing().fields(hatch);
    HatchSettings settings = currentHatchSettings(context.document());
    settings.look = lookOf(context, fields);
    settings.entity.clear();
    if (option.text == u"Style") {
        co_await askIslandStyle(context, settings.look);
    } else if (!option.hasValue() || option.text == u"Properties") {
        if (!co_await askHatchPattern(context, settings.look))
            co_return;
    } else {
        co_await askHatchProperty(context, settings, option.text);
        if (context.hasFailed() || option.text != u"Origin") {
            setCommonFields(context.drawing(), hatch, settings.entity);
            co_return;
        }
    }
    setLook(context, hatch, settings.look);
}

} // namespace

std::vector<CommandRow> hatchEditCommands()
{
    return {{"-HATCHEDIT", editHatch, "Changes pattern, style and layer of a hatch"},
            {"HATCHEDIT", editHatch, "Changes pattern, style and layer of a hatch"}};
}

} // namespace host::kernel
