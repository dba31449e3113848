#pragma once

#include "host/commands/common/TangentCircle.h"
#include "host/commands/curves/EditedPolyline.h"
#include "host/kernel/input/PromptReply.h"

namespace host::kernel {

class CommandContext;
class UserPlane;

/// One of the two entities that meet in a corner, as it was picked; in user coordinates.
struct CornerSide
{
    drawing::RecordId record = drawing::noRecord;
    TangentLine shape;                        ///< what meets the other side
    bool isCircle = false;                    ///< is not trimmed
    std::optional<EditedPolyline> polyline{}; ///< the shape is one of its stretches
    std::size_t stretch = 0;                  ///< which, by the vertex in front of it
};

/// Of a LINE, RAY, XLINE, ARC, CIRCLE or a stretch of a flat polyline in the user's plane; nothing for others.
/// An entity that was named without a point counts as picked in its middle.
std::optional<CornerSide> cornerSide(const drawing::Drawing &drawing, const UserPlane &plane,
                                     const PromptReply &picked);

/// The changes that make one corner, to be taken back together.
class CornerChanges
{
public:
    explicit CornerChanges(CommandContext &context) : m_context(context) {}

    void setFields(drawing::RecordId record, const drawing::FieldList &fields);
    void erase(drawing::RecordId record);
    void store(EditedPolyline polyline);
    /// Makes what fills the corner: with the look of both sides where they have the same, else as new entities get it.
    void create(drawing::FieldList fields, drawing::RecordId first, drawing::RecordId second);
    void takeBack();

private:
    CommandContext &m_context;
    std::vector<std::pair<drawing::RecordId, drawing::FieldList>> m_changed;
    std::vector<drawing::RecordId> m_made;
    std::vector<drawing::RecordId> m_erased;
};

/// Cuts a side off, or lets it go on, up to a point on it; what lies in the direction `kept` from there stays. Both in
/// user coordinates. Nothing happens to circles; polylines are not for this.
void trimSide(CornerChanges &changes, const drawing::Drawing &drawing, const UserPlane &plane, const CornerSide &side,
              drawing::Vec2 at, drawing::Vec2 kept);

} // namespace host::kernel
