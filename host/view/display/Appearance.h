#pragma once

#include "host/drawing/records/Symbols.h"
#include "host/drawing/references/ShapeFiles.h"
#include "host/view/display/AciColor.h"
#include "host/view/display/Display.h"

#include <QColor>
#include <QHash>

namespace host::view {

/// One dash, gap (negative) or dot (0) of a linetype, and the text or shape set on it.
struct LinePatternElement
{
    double length = 0.0;
    QString text{};
    int font = 0;
    std::vector<Curve> shape{}; ///< at size 1; empty when there is none
    double size = 0.0;          ///< of the text's capitals, or of the shape
    double rotation = 0.0;      ///< radians
    bool isRotationAbsolute = false;
    Vec2 offset{};

    bool hasSign() const { return !text.isEmpty() || !shape.empty(); }
};

/// A linetype ready for drawing. Without elements it is a full line.
struct LinePattern
{
    std::vector<LinePatternElement> elements{};
    double length = 0.0;      ///< of one repetition, positive when there are elements
    bool lacksShapes = false; ///< has shapes that are left out: their files are not found
};

struct LayerLook
{
    Colour colour{.kind = Colour::Kind::Index, .value = 7};
    int linetype = 0;
    int lineweight = Style::defaultWeight;
    bool isOff = false;
    bool isFrozen = false;
    bool isPlotted = true;
};

/// How a shape is drawn, with nothing left to look up.
struct ResolvedStyle
{
    QRgb colour = 0;
    int layer = 0;
    int linetype = 0;           ///< in the appearance; 0 is a full line
    int lineweight = 25;        ///< hundredths of a millimetre
    double linetypeScale = 1.0; ///< times everything but the block's own size
};

class Fonts;

/// Layers and linetypes of a drawing, and the settings that change the look of everything. Entities name layers and
/// linetypes by a number from here; numbers stay the same when the tables change.
class Appearance
{
public:
    Appearance();

    int layer(const QString &name);
    int linetype(const QString &name);
    const LayerLook &layerLook(int layer) const { return m_layers[static_cast<std::size_t>(layer)]; }
    const LinePattern &pattern(int linetype) const { return m_patterns[static_cast<std::size_t>(linetype)]; }

    /// Reads layers, linetypes and settings again.
    void reload(const drawing::Drawing &drawing, Fonts &fonts, drawing::ShapeFiles &shapes);
    /// The shape of this name in the first of the drawing's shape files that has it, at size 1; nothing when none has.
    std::optional<std::vector<Curve>> shapeNamed(const QString &name, drawing::ShapeFiles &shapes);

    /// `insert` is what the insert that the shape is seen through was resolved to; null outside blocks.
    ResolvedStyle resolve(const Style &style, const ResolvedStyle *insert, Ground ground) const;

    /// Whether the frames of masks are seen on the screen, and on paper.
    bool showsMaskFrames(bool isPlotted) const { return m_maskFrame != 0 && !(isPlotted && m_maskFrame == 2); }
    double linetypeScale() const { return m_linetypeScale; }
    int pointMode() const { return m_pointMode; }
    double pointSize() const { return m_pointSize; }

private:
    QRgb color(const Colour &colour, int layer, const ResolvedStyle *insert, Ground ground) const;

    QHash<QString, int> m_layerNumbers;
    std::vector<LayerLook> m_layers;
    QHash<QString, int> m_linetypeNumbers;
    std::vector<LinePattern> m_patterns;
    QStringList m_shapeFiles; ///< that styles of the drawing name
    QHash<QString, std::optional<std::vector<Curve>>> m_shapes;
    double m_linetypeScale = 1.0;
    int m_maskFrame = 1; ///< see drawing::wipeoutFrame()
    int m_pointMode = 0;
    double m_pointSize = 0.0;
};

} // namespace host::view
