#pragma once

#include "host/drawing/curves/Sections.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/running/Dialogue.h"

namespace host::kernel {

/// A curve with the place where it was picked.
struct PickedCurve
{
    drawing::RecordId entity = drawing::noRecord;
    drawing::EntityCurve curve;
    double parameter = 0.0; ///< nearest to where it was picked, as seen in the user's plane

    /// Whether the pick was nearer to the start than to the end, along the curve. A pick on an endless line is nearer
    /// to the start.
    bool isNearStart() const;
};

/// The curve of an entity, picked at a point.
std::optional<PickedCurve> curvePickedAt(CommandContext &context, drawing::RecordId entity, const drawing::Vec3 &point);
/// The curve that a reply to an entity prompt names. Nothing for a miss; for what is no curve, or on a locked layer,
/// the reason is told. `verb`: "TRIM", for the message.
std::optional<PickedCurve> pickedCurve(CommandContext &context, const PromptReply &reply, const QString &verb);

/// Asks for a curve until there is one; nothing for an empty answer and where the answers come from a program. The
/// keywords of the prompt end the asking too: `reply` says which.
struct CurveAnswer
{
    std::optional<PickedCurve> picked;
    PromptReply reply;
};
Dialogue<CurveAnswer> askCurve(CommandContext &context, QString prompt, QString verb);

/// The z axis of the user's coordinate system.
drawing::Vec3 userNormal(const CommandContext &context);

/// Parts of a curve in its place: the first keeps the entity where it can, see replaceCurve(). Nothing happens, and
/// false comes back, when a part cannot be made.
bool replaceByParts(CommandContext &context, drawing::RecordId entity,
                    const std::vector<std::pair<double, double>> &parts,
                    std::vector<drawing::RecordId> *made = nullptr);

/// A change of one curve that the user may take back while the command still runs.
struct CurveStep
{
    drawing::RecordId entity = drawing::noRecord;
    drawing::FieldList before;
    std::vector<drawing::RecordId> made; ///< what came beside it or in its place
};
void takeBack(CommandContext &context, const CurveStep &step);

} // namespace host::kernel
