#pragma once

#include "host/dcl/widgets/TileControl.h"

namespace host::dcl {

class TileMetrics;

/// An image, or an image button, whose action gets the point that was clicked.
class ImageControl final : public TileControl
{
public:
    ImageControl(const Tile &tile, const TileMetrics &metrics);
    ImageTile *image() const override;
    void flipHighlight() override;
    /// What a double click does beyond the action.
    void setOnDoubleClick(std::function<void(const ImageControl &)> onDoubleClick)
    {
        m_onDoubleClick = std::move(onDoubleClick);
    }

private:
    ImageControl(const Tile &tile, ImageTile *image);

    std::function<void(const ImageControl &)> m_onDoubleClick;
};

} // namespace host::dcl
