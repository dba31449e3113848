#pragma once

#include "host/drawing/records/Entities.h"

#include <optional>

namespace host::kernel {

/// Whether TILEMODE shows model space by itself rather than a sheet.
bool isModelTab(const drawing::Drawing &drawing);

/// The space that is worked on: model space, by itself or through a viewport of the sheet, or the sheet that was chosen
/// last.
drawing::Space currentSpace(const drawing::Drawing &drawing);

/// Name of the layout tab that is current: "Model" or that of the sheet.
QString currentLayout(const drawing::Drawing &drawing);

/// The layout's name as the drawing spells it; empty for a name of none.
QString layoutName(const drawing::Drawing &drawing, const QString &name);

/// Makes a layout current by its name. Of the drawing nothing changes but TILEMODE: which sheet it is that is current
/// is known to this program alone. False when there is no such layout.
bool setCurrentLayout(drawing::Drawing &drawing, const QString &name);

/// The viewport of the current sheet through which model space is worked on; noRecord on the sheet itself and where
/// model space is shown by itself.
drawing::RecordId currentViewport(const drawing::Drawing &drawing);
/// As CVPORT has it: 1 on the sheet itself, that of the viewport, 2 where model space is shown by itself.
int currentViewportNumber(const drawing::Drawing &drawing);
/// The viewport of that number on the current sheet, where it is on; noRecord for the sheet itself and model space, and
/// nothing for a number of none.
std::optional<drawing::RecordId> viewportNumbered(const drawing::Drawing &drawing, int number);

/// The block of the current layout where its entities stand in it; noRecord for those in the ENTITIES section.
drawing::RecordId restingSheet(const drawing::Drawing &drawing);

/// Name of the block that holds what is drawn on the current layout: "*Model_Space", "*Paper_Space" ...
QString currentSpaceBlock(const drawing::Drawing &drawing);

// What is drawn on the current layout, where new entities go, "all" and picks look.
/// In file order. Looks at every entity, but for a sheet that rests in its block.
std::vector<drawing::RecordId> currentEntities(const drawing::Drawing &drawing);
/// As Entities::create() and createComplex(); without children a simple entity.
drawing::CreateResult createOnCurrent(drawing::Drawing &drawing, const drawing::FieldList &fields,
                                      const std::vector<drawing::FieldList> &children = {});
/// A copy of an entity from anywhere; noRecord when it cannot be copied.
drawing::RecordId copyToCurrent(drawing::Drawing &drawing, drawing::RecordId entity);

/// A corner of the limits of the sheet that is current: the lower left under group 10, the upper right under 11.
/// Nothing in drawings without layouts.
std::optional<drawing::Vec2> layoutLimit(const drawing::Drawing &drawing, int code);
void setLayoutLimit(drawing::Drawing &drawing, int code, const drawing::Vec2 &corner);
/// Whether that sheet is the one whose limits the header repeats.
bool isSheetInHeader(const drawing::Drawing &drawing);

} // namespace host::kernel
