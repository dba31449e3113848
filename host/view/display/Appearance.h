#pragma once

#include "host/drawing/records/Symbols.h"
#include "host/drawing/references/PlotStyleFile.h"
#include "host/drawing/references/ShapeFiles.h"
#include "host/view/display/AciColor.h"
#include "host/view/display/Display.h"

#include <QColor>
#include <QHash>
#include <QSet>

#include <memory>
#include <optional>

namespace host::view {

/// One dash, gap (negative) or dot (0) of a linetype, and the text or shape set on it. Lengths are those of the
/// linetype's own units, which a scale makes into drawing units.
struct LinePatternElement
{
    double length = 0.0;
    QString text{};
    int font = 0;                    ///< of the text, in Fonts
    std::vector<Curve> shape{};      ///< at size 1; empty when there is none
    double size = 0.0;               ///< of the text's capitals, or of the shape
    double rotation = 0.0;           ///< radians
    bool isRotationAbsolute = false; ///< from the x axis of the screen; otherwise from the line
    Vec2 offset{};                   ///< from where the element ends: along the line and to its left

    bool hasSign() const { return !text.isEmpty() || !shape.empty(); }
};

/// A linetype ready for drawing. Without elements it is a full line.
struct LinePattern
{
    std::vector<LinePatternElement> elements{};
    double length = 0.0;      ///< of one repetition, positive when there are elements
    bool lacksShapes = false; ///< has shapes that are left out: their files are not found
};

/// What a layer gives to what lies on it. A layer that the drawing does not have looks like this.
struct LayerLook
{
    Colour colour{.kind = Colour::Kind::Index, .value = 7}; ///< an index or a true colour
    int linetype = 0;                                       ///< in the appearance; 0 is a full line
    int lineweight = Style::defaultWeight;                  ///< hundredths of a millimetre, or that constant
    bool isOff = false;
    bool isFrozen = false;
    bool isPlotted = true; ///< never for "Defpoints"
    int plotStyle = 0;     ///< a place among the drawing's plot style names
};

/// How a shape is drawn, with nothing left to look up.
struct ResolvedStyle
{
    QRgb colour = 0;
    int layer = 0;              ///< the insert's, for a shape on layer 0 within a block
    int linetype = 0;           ///< in the appearance; 0 is a full line
    int lineweight = 25;        ///< hundredths of a millimetre
    double linetypeScale = 1.0; ///< times everything but the block's own size; below 0 in units of the screen

    /// The same before plot styles: what is by block takes it from here.
    struct Unstyled
    {
        QRgb colour = 0;
        int index = 0; ///< of the colour; 0 for a true one
        int linetype = 0;
        int lineweight = 25;
        int plotStyle = 0; ///< a place among the drawing's plot style names
    };
    Unstyled own{};
};

class Fonts;

/// Plot styles with what they need to know of the device: units of the screen a millimetre of paper.
struct PlotLook
{
    std::shared_ptr<const drawing::PlotStyleTable> table{}; ///< null: none
    double unitsPerMillimetre = 1.0;
};

/// Layers and linetypes of a drawing, and the settings that change the look of everything. Entities name layers and
/// linetypes by a number from here; numbers stay the same when the tables change, so that a layer's new colour is seen
/// without building anything anew.
class Appearance
{
public:
    Appearance();
    /// Of a drawing that is seen in another one: its names are that one's, behind `prefix` and a bar, but for those
    /// that all drawings share. All else is the host's, which must outlive it.
    Appearance(Appearance &host, const QString &prefix) : m_host(&host), m_prefix(prefix) {}

    // The number of a name in any letter case, given out at the first asking whether or not the drawing has it.
    int layer(const QString &name); ///< "0" is 0
    /// "Continuous" is 0; an empty name and "ByLayer" give Style::byLayer, "ByBlock" Style::byBlock.
    int linetype(const QString &name);
    // The same for names that have a number already.
    std::optional<int> knownLayer(const QString &name) const;
    std::optional<int> knownLinetype(const QString &name) const;
    // References hold until the next new name or reload().
    const LayerLook &layerLook(int layer) const { return whole().m_layers[static_cast<std::size_t>(layer)]; }
    const LinePattern &pattern(int linetype) const { return whole().m_patterns[static_cast<std::size_t>(linetype)]; }

    /// Whether some pattern does.
    bool lacksShapes() const { return std::ranges::any_of(whole().m_patterns, &LinePattern::lacksShapes); }

    /// Whether records may be seen outside of their boxes: as marks of points, or by texts and shapes on lines.
    bool reachesBeyondBoxes() const;

    /// Reads layers, linetypes and settings again. Of a linetype the first thousand elements count. One that is seen in
    /// another drawing adds what that does not have itself.
    void reload(const drawing::Drawing &drawing, Fonts &fonts, drawing::ShapeFiles &shapes);
    /// The shape of this name in the first of the drawing's shape files that has it, at size 1; nothing when none has.
    std::optional<std::vector<Curve>> shapeNamed(const QString &name, drawing::ShapeFiles &shapes);

    /// Only layers whose names match the pattern (see drawing::matchesWildcard()) are to be seen, the others are off;
    /// empty: all. Holds from the next reload().
    void showOnly(const QString &layers) { m_shownLayers = layers; }

    /// What resolve() makes of everything from now on.
    void setPlotLook(PlotLook look) { m_plotLook = std::move(look); }
    /// The weight of what has the default one, hundredths of a millimetre; 25 until set.
    void setDefaultWeight(int weight) { m_defaultWeight = weight; }
    /// The place of the plot style name whose handle the drawing's dictionary has; 0 for one that it has not.
    int plotStyle(drawing::Handle handle) const { return m_plotStyles.value(handle.value, 0); }

    /// `insert` is what the insert that the shape is seen through was resolved to; null outside blocks, where "by
    /// block" is colour 7, a full line and the default weight. Constant cost: it is done anew at every look.
    ResolvedStyle resolve(const Style &style, const ResolvedStyle *insert, Ground ground) const;

    /// Whether the frames of masks are seen on the screen, and on paper.
    bool showsMaskFrames(bool isPlotted) const { return isFrameShown(whole().m_maskFrame, isPlotted); }
    /// The same of pictures.
    bool showsImageFrames(bool isPlotted) const { return isFrameShown(whole().m_imageFrame, isPlotted); }
    double linetypeScale() const { return whole().m_linetypeScale; } ///< $LTSCALE, positive
    int pointMode() const { return whole().m_pointMode; }            ///< $PDMODE
    double pointSize() const
    {
        return whole().m_pointSize;
    } ///< $PDSIZE: drawing units; below 0 per cent of the view, 0 five of them

private:
    const Appearance &whole() const { return m_host ? m_host->whole() : *this; }
    Appearance &whole() { return m_host ? m_host->whole() : *this; }
    static bool isFrameShown(int setting, bool isPlotted) { return setting != 0 && !(isPlotted && setting == 2); }
    /// As the host's tables have it.
    QString nameOf(const QString &own) const;
    LayerLook readLook(const drawing::Drawing &drawing, const drawing::Layer &layer);
    void addTo(Appearance &whole, const drawing::Drawing &drawing, Fonts &fonts, drawing::ShapeFiles &shapes);
    bool isLeftOut(const QString &layer) const;
    /// The colour with its index.
    std::pair<QRgb, int> color(const Colour &colour, int layer, const ResolvedStyle *insert, Ground ground) const;
    void readPlotStyles(const drawing::Drawing &drawing);
    void applyPlotStyle(ResolvedStyle &style, Ground ground) const;

    Appearance *m_host = nullptr; ///< has all that follows but the prefix; null for a drawing by itself
    QString m_prefix;
    QSet<int> m_ownLayers;    ///< that the drawing itself has
    QSet<int> m_ownLinetypes; ///< likewise
    QHash<QString, int> m_layerNumbers;
    std::vector<LayerLook> m_layers;
    QHash<QString, int> m_linetypeNumbers;
    std::vector<LinePattern> m_patterns;
    QStringList m_shapeFiles; ///< that styles of the drawing name
    QHash<QString, std::optional<std::vector<Curve>>> m_shapes;
    QString m_shownLayers;
    PlotLook m_plotLook;
    QHash<quint64, int> m_plotStyles; ///< by handle, places in the names
    QStringList m_plotStyleNames;     ///< the first stands for those that are not known
    int m_firstPlotLinetype = 0;      ///< in m_patterns; 0: they are not there
    int m_defaultWeight = 25;
    double m_linetypeScale = 1.0;
    int m_maskFrame = 1;  ///< see drawing::wipeoutFrame()
    int m_imageFrame = 1; ///< likewise, of the drawing's RASTERVARIABLES
    int m_pointMode = 0;
    double m_pointSize = 0.0;
};

} // namespace host::view
