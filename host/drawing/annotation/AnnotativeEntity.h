#pragma once

#include "host/drawing/annotation/AnnotationScale.h"
#include "host/drawing/math/WorkBudget.h"

#include <optional>
#include <vector>

namespace host::drawing {

/// How an entity of model space shows at the annotation scale in use.
///
/// An annotative entity has representations, one a scale, below its extension dictionary; what its own record holds is
/// the default one. Of TEXT, ATTRIB, MTEXT and INSERT the representation of the scale in use says place, rotation and
/// extent, and heights grow from those of the default one by how the two scales differ. Other types are only hidden.
class AnnotativeEntity
{
public:
    /// `tags` are those of the record and must stay. Costs next to nothing for an entity without an extension
    /// dictionary; dictionaries that are larger than drawings have them take from `work`, and when that is used up the
    /// entity stays as it is.
    AnnotativeEntity(const Drawing &drawing, const AnnotationView &view, RecordId entity, const TagList &tags,
                     WorkBudget &work);
    AnnotativeEntity(const AnnotativeEntity &) = delete;
    AnnotativeEntity &operator=(const AnnotativeEntity &) = delete;

    /// It has no representation for the scale, and such entities are not shown.
    bool isHidden() const { return m_isHidden; }
    /// What to read in place of the record's own tags; those themselves where nothing differs. Valid as long as this.
    const TagList &tags() const { return m_changed ? *m_changed : m_own; }

private:
    struct Representation
    {
        RecordId record = noRecord;
        RecordId scale = noRecord;
    };
    void look(const Drawing &drawing, const AnnotationView &view, RecordId dictionary);
    void change(const Drawing &drawing, const Representation &current, const Representation &standard);

    const TagList &m_own;
    bool m_isHidden = false;
    std::optional<TagList> m_changed;
    std::vector<QByteArray> m_values; ///< what the changed tags have
};

} // namespace host::drawing
