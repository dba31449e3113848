#pragma once

#include "host/kernel/documents/Document.h"

namespace host::kernel {

// The view that commands work on: what the window shows, or, where model space is worked on through a viewport of the
// sheet, what that viewport shows. The latter is a change of the drawing.

/// The centre in world coordinates of the model or the sheet. `pixels` of a viewport has its proportions.
ViewState currentView(const Document &document);
void showCurrentView(Document &document, const ViewState &view);
/// A view of all of a box with a margin; as it was for an empty box.
ViewState fittedTo(ViewState view, const drawing::Box &box);
/// All of a box, with a margin, as Document::zoomTo(); an empty one shows what was shown.
void showBox(Document &document, const drawing::Box &box);
/// Shows the current viewport in so many units of the sheet for one of the model. False where there is no viewport.
bool showAtSheetScale(Document &document, double factor);

/// The point that commands take for one that the window shows: where model space is worked on through a viewport, the
/// point of the model that is seen there, otherwise itself.
drawing::Vec3 workedPoint(const Document &document, const drawing::Vec3 &shown);
/// The other way round: where the window shows a point that commands work with.
drawing::Vec3 shownPoint(const Document &document, const drawing::Vec3 &worked);
/// As workedPoint() for a length.
double workedLength(const Document &document, double shown);

/// Remembers the view for the next showFormerView(); of a viewport undoing serves for that.
void rememberCurrentView(Document &document, const ViewState &before);

} // namespace host::kernel
