#pragma once

#include "host/drawing/records/Drawing.h"

#include <optional>
#include <vector>

namespace host::drawing {

/// A tab of the drawing: model space or a sheet.
struct LayoutTab
{
    QString name;
    RecordId record = noRecord; ///< the LAYOUT object; noRecord for what a drawing older than R2000 has
    RecordId block = noRecord;  ///< the BLOCK that stands for its space; noRecord when the file has none
    qint64 order = 0;           ///< place among the tabs, model space at 0

    bool isModel() const { return name.compare(u"Model", Qt::CaseInsensitive) == 0; }
};

/// The tabs in their order. A drawing older than R2000 has no layouts: its paper space counts as "Layout1".
std::vector<LayoutTab> layoutTabs(const Drawing &drawing);

/// The tab of that name in any letter case; nothing when there is none.
std::optional<LayoutTab> findLayout(const Drawing &drawing, const QString &name);

/// What is drawn on a layout, in drawing order. Of the sheet in use and of model space that stands in the ENTITIES
/// section, of other sheets in their blocks.
std::vector<RecordId> layoutEntities(const Drawing &drawing, const LayoutTab &layout);

/// Adds the LAYOUT object for a space whose block is there, with the page of a plotter that does not exist; each leads
/// to the other. `order` 0 is model space.
RecordId addLayout(Drawing &drawing, const QString &name, const QString &spaceBlock, qint64 order);

/// Adds an empty sheet with its block as the last tab. noRecord before R2000, where a drawing has one sheet.
RecordId addSheet(Drawing &drawing, const QString &name);

/// Moves a tab to another place.
void setOrder(Drawing &drawing, const LayoutTab &layout, qint64 order);

} // namespace host::drawing
