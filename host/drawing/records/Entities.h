#pragma once

#include "host/drawing/records/Drawing.h"

#include <optional>

namespace host::drawing {

class EntityBuilder;

/// The two halves of the ENTITIES section (group 67).
enum class Space
{
    Model,
    Paper ///< of the layout in use; the sheets at rest are blocks (see Layouts)
};

/// The colour index of an entity that takes the colour of its layer.
inline constexpr int colourByLayer = 256;

/// What came of making an entity.
struct CreateResult
{
    RecordId record = noRecord;
    QString error; ///< why there is none: "LINE: group 11 is missing"

    explicit operator bool() const { return isValid(record); }
};

/// The entities of a drawing: in model space, in paper space and in blocks. Each change is one step of the journal, or
/// a part of the group that is open.
class Entities
{
public:
    explicit Entities(Drawing &drawing) : m_drawing(drawing) {}

    /// In file order, those with children once. Other layouts than the current paper space are blocks. Looks at the
    /// tags of every entity.
    std::vector<RecordId> inSpace(Space space) const;
    /// The ENTITIES section in file order, both spaces; what is erased is left out.
    std::vector<RecordId> all() const;
    /// A child is where its POLYLINE or INSERT is; Model for what stands in a block.
    Space space(RecordId entity) const;
    /// The next entity of the drawing in file order, going into children and their end marker as well, blocks left out;
    /// from noRecord the first.
    RecordId nextOfAll(RecordId entity) const;
    /// VERTEX records of a POLYLINE, ATTRIB records of an INSERT; none for other entities. The SEQEND is
    /// drawing.endOf().
    std::vector<RecordId> children(RecordId entity) const { return m_drawing.children(entity); }

    /// Makes an entity from fields as Lisp has them: type in group 0; neither handle, owner nor subclass markers are
    /// needed, and those given are replaced. Markers go where the type wants them, a missing layer is "0". Fails with
    /// a sentence when a group that the type cannot do without is missing, or a value has the wrong type.
    CreateResult create(const FieldList &fields, Space space = Space::Model);
    /// As create(), as the last entity of a block. An ATTDEF marks the block as one with attributes.
    CreateResult createInBlock(RecordId block, const FieldList &fields);
    /// A POLYLINE with VERTEX children or an INSERT with ATTRIB children; the SEQEND is made here. `children` may end
    /// with one. Their type may be left out. Nothing is made when one of them is refused.
    CreateResult createComplex(const FieldList &head, const std::vector<FieldList> &children,
                               Space space = Space::Model);
    CreateResult createComplexInBlock(RecordId block, const FieldList &head, const std::vector<FieldList> &children);

    /// Gives an entity other fields, as entmod has them: groups may come in any order that Lisp hands out, markers are
    /// put right. The type cannot change. Layers and applications that the fields name are made; linetypes, text styles
    /// and blocks must be there. The error, a sentence as of create(), is empty when all went well; otherwise nothing
    /// changed.
    QString modify(RecordId entity, const FieldList &fields);

    /// Whether this program knows the subclass markers of a type (in upper case), and so can make one in any version
    /// that has it.
    static bool canCreate(QStringView type);

private:
    struct Place;
    Place placeIn(Space space) const;
    Place placeInBlock(RecordId block) const;
    CreateResult createAt(const Place &place, const FieldList &head, const std::vector<FieldList> *children);
    QString checkChildren(const QString &type, const FieldList &head, const std::vector<FieldList> *children,
                          std::vector<EntityBuilder> &parts) const;
    RecordId insertBuilt(const EntityBuilder &entity, const Place &place, RecordId parent, RecordId after,
                         RecordKind kind, Handle owner);
    void markWithAttributes(RecordId block);

    Drawing &m_drawing;
};

} // namespace host::drawing
