#pragma once

#include "host/view/display/Display.h"
#include "host/view/text/Fonts.h"

#include <QPointF>
#include <QRectF>

#include <functional>
#include <span>

namespace host::view {

/// The lines of a text in a stroke font, each of at least two points in pixels. Arcs are divided as finely as the size
/// asks for, from the pieces that the letters keep for small ones. Letters that nobody sees on the screen are left out.
/// The points hold during the call only.
void forEachTextStroke(const Fonts &fonts, const TextRun &run, const Matrix &toScreen, const QRectF &screen,
                       const std::function<void(std::span<const QPointF>)> &draw);

} // namespace host::view
