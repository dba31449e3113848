#pragma once

#include "host/drawing/records/Drawing.h"

#include <QHash>

#include <array>

namespace host::drawing {

/// The layouts of a drawing: "Model", the one whose paper space is in use, and those that rest in blocks. Constant cost
/// once looked at, until names, blocks or objects change.
class Layouts
{
public:
    explicit Layouts(Drawing &drawing) : m_drawing(drawing) {}

    /// Name of the layout whose paper space is in use; "Layout1" where the file does not say.
    QString paperName() const;
    /// That layout's object; noRecord in drawings without layouts.
    RecordId paperLayout() const;
    /// Name of the layout whose entities the block holds; empty for a block of no layout.
    QString ofBlock(RecordId block) const;
    /// Name of the layout that an entity, or what it is a part of, stands in; empty within a block to insert.
    QString ofEntity(RecordId entity) const;
    /// The blocks of all layouts. Those of model space and of the paper space in use are empty, others hold the
    /// layout's entities.
    std::vector<RecordId> blocks() const;

private:
    struct Layout
    {
        QString name;
        RecordId record = noRecord;
    };
    struct Known
    {
        QHash<RecordId, Layout> byBlock;
        Layout paper;
    };
    const Known &known() const;
    Known read() const;

    Drawing &m_drawing;
    mutable Known m_known;
    mutable std::array<quint64, 3> m_revisions{~quint64(0)};
};

} // namespace host::drawing
