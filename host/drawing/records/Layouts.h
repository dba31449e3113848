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

    // None of these looks at anything but LAYOUT objects, their dictionary and the blocks of spaces.
    /// Name of the layout whose paper space is in use; "Layout1" where the file does not say.
    QString paperName() const;
    /// That layout's object; noRecord in drawings without layouts.
    RecordId paperLayout() const;
    /// Name of the layout whose entities the BLOCK record holds, as its dictionary spells it; empty for a block of no
    /// layout.
    QString ofBlock(RecordId block) const;
    /// Name of the layout that an entity, or what it is a part of, stands in; empty within a block to insert. "Model"
    /// and the paper space in use are told by the entity's own group 67.
    QString ofEntity(RecordId entity) const;
    /// The blocks of all layouts, known by their names, in file order. Those of model space and of the paper space in
    /// use are empty, their entities standing in the ENTITIES section; others hold the layout's entities.
    std::vector<RecordId> blocks() const;

    // The sheet that is looked at and drawn on, which is no part of the file: it begins as the one in use, and is that
    // again when the chosen one is gone.
    /// The block with its entities; noRecord for the paper space in use, whose entities stand elsewhere.
    RecordId currentSheet() const;
    QString currentName() const;
    /// Its object; noRecord in drawings without layouts.
    RecordId currentLayout() const;
    /// By name in any letter case. False when no sheet has it.
    bool setCurrentSheet(const QString &name);
    /// The viewport of that sheet through which model space is worked on, no part of the file either; noRecord while
    /// the sheet itself is, and when the viewport is gone or another sheet was chosen.
    RecordId currentViewport() const;
    /// A VIEWPORT of the current sheet, or noRecord to work on the sheet itself.
    void setCurrentViewport(RecordId viewport) { m_viewport = viewport; }

private:
    struct Layout
    {
        QString name;
        RecordId record = noRecord;
    };
    /// What was read at the revisions below.
    struct Known
    {
        QHash<RecordId, Layout> byBlock; ///< by the BLOCK record
        Layout paper;
    };
    const Known &known() const;
    RecordId blockOf(const QString &name) const;
    Known read() const;

    Drawing &m_drawing;
    RecordId m_sheet = noRecord; ///< the block that was chosen; noRecord for the paper space in use
    RecordId m_viewport = noRecord;
    mutable Known m_known;
    mutable std::array<quint64, 3> m_revisions{~quint64(0)}; ///< of objects, and of the structure of tables and blocks
};

} // namespace host::drawing
