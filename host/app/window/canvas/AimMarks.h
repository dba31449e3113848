#pragma once

#include "host/app/window/canvas/AimTyping.h"
#include "host/kernel/input/HandAim.h"
#include "host/view/display/AciColor.h"
#include "host/view/paint/ViewTransform.h"

class QPainter;

namespace host::app {

/// The canvas that marks are painted on.
struct AimScreen
{
    view::ViewTransform view;
    QSize size; ///< pixels
    view::Ground ground = view::Ground::Black;
};

/// What is typed at the command line while aiming, and for which field.
struct AimEntry
{
    AimField field = AimField::Length;
    QString text;
};

/// Shows why a point lies where it does: the sign and name of an object snap, or the ray of polar tracking with length
/// and angle; AUTOSNAP says which of these are wanted. Of a prompt with a base also length and angle of the rubber
/// band, in fields that say what is typed and what is locked, while DYNMODE is above 0.
void paintAim(QPainter &painter, kernel::Document &document, const kernel::PromptRequest &request,
              const kernel::HandPoint &aim, const AimScreen &screen, const AimEntry &entry);

} // namespace host::app
