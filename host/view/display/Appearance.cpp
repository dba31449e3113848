#include "host/view/display/Appearance.h"

#include "host/drawing/editing/WipeoutFrame.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/selection/Wildcard.h"
#include "host/view/display/WideLine.h"
#include "host/view/text/Fonts.h"

#include <numbers>

namespace host::view {

using namespace Qt::StringLiterals;

namespace {

constexpr int continuous = 0;
constexpr std::size_t mostElements = 1000;
/// The oldest writers show the default weight as a hairline; a quarter of a millimetre is what it has been since.
constexpr int thickestWeight = 211;

double sanePositive(double value, double otherwise)
{
    return std::isfinite(value) && value > 0.0 && value < 1e12 ? value : otherwise;
}

std::optional<std::vector<Curve>> shapeCurves(const drawing::ShapeFile *file, std::optional<int> number)
{
    const auto lines = file && number ? drawing::shapeLines(*file, *number) : std::nullopt;
    if (!lines)
        return std::nullopt;
    std::vector<Curve> curves;
    for (const drawing::ShapeLine &line : *lines) {
        std::vector<PolylineVertex> vertices;
        for (const drawing::ShapeVertex &vertex : line)
            vertices.push_back({.at = {vertex.at.x, vertex.at.y, 0.0}, .bulge = vertex.bulge});
        curves.push_back(polylineCurve(vertices, false, Matrix{}));
    }
    return curves;
}

LinePatternElement readElement(const drawing::Drawing &drawing, const drawing::LinetypeDash &dash, Fonts &fonts,
                               drawing::ShapeFiles &shapes)
{
    LinePatternElement element{.length = std::isfinite(dash.length) ? dash.length : 0.0, .text = dash.text};
    if (dash.text.isEmpty() && dash.shape == 0)
        return element;
    const drawing::RecordId style = drawing.find(dash.style);
    const auto look = isValid(style) ? drawing::readTextStyle(drawing, style) : drawing::TextStyle{};
    element.size = sanePositive(dash.scale, 1.0);
    if (dash.shape != 0) {
        element.shape = shapeCurves(shapes.find(look.fontFile), dash.shape).value_or(std::vector<Curve>());
    } else {
        element.font = fonts.find({.name = look.fontFile, .isFile = true, .bigFont = look.bigFontFile});
        element.size *= look.fixedHeight > 0.0 ? look.fixedHeight : 1.0;
    }
    element.rotation = dash.rotation * std::numbers::pi / 180.0;
    element.isRotationAbsolute = dash.isRotationAbsolute;
    element.offset = dash.offset;
    return element;
}

/// So many per cent of the ink.
QColor screened(const QColor &ink, const QColor &ground, int part)
{
    const auto mixed = [part](int of, int in) { return (of * part + in * (100 - part) + 50) / 100; };
    return {mixed(ink.red(), ground.red()), mixed(ink.green(), ground.green()), mixed(ink.blue(), ground.blue())};
}

LinePattern plotPattern(const std::vector<double> &lengths)
{
    LinePattern pattern;
    for (const double length : lengths) {
        pattern.elements.push_back({.length = length});
        pattern.length += std::abs(length);
    }
    return pattern;
}

LinePattern readPattern(const drawing::Drawing &drawing, const drawing::Linetype &linetype, Fonts &fonts,
                        drawing::ShapeFiles &shapes)
{
    LinePattern pattern;
    for (const drawing::LinetypeDash &dash : linetype.dashes) {
        if (pattern.elements.size() == mostElements)
            break;
        pattern.elements.push_back(readElement(drawing, dash, fonts, shapes));
        pattern.length += std::abs(pattern.elements.back().length);
        pattern.lacksShapes |= dash.shape != 0 && pattern.elements.back().shape.empty();
    }
    if (!(pattern.length > 1e-12) || !std::isfinite(pattern.length))
        pattern.elements.clear();
    return pattern;
}

/// A drawing that does not say so shows the frames of pictures.
int imageFrame(const drawing::Drawing &drawing)
{
    const drawing::Dictionaries &dictionaries = drawing.dictionaries();
    const drawing::RecordId root = dictionaries.root();
    const drawing::RecordId settings = isValid(root) ? dictionaries.find(root, u"ACAD_IMAGE_VARS") : drawing::noRecord;
    return isValid(settings) ? static_cast<int>(drawing.tags(settings).integer(70, 1)) : 1;
}

} // namespace

Appearance::Appearance()
{
    layer(u"0"_s);
    linetype(u"Continuous"_s);
}

QString Appearance::nameOf(const QString &own) const
{
    static const QStringList shared = {u"0"_s, u"defpoints"_s, u"continuous"_s, u"bylayer"_s, u"byblock"_s, u""_s};
    // Those of drawings within have their own in front already.
    if (own.contains(u'|') || shared.contains(own, Qt::CaseInsensitive))
        return own;
    return m_prefix + u'|' + own;
}

std::optional<int> Appearance::knownLayer(const QString &name) const
{
    if (m_host)
        return whole().knownLayer(nameOf(name));
    const auto known = m_layerNumbers.constFind(name.toCaseFolded());
    return known != m_layerNumbers.constEnd() ? std::optional(*known) : std::nullopt;
}

int Appearance::layer(const QString &name)
{
    if (m_host)
        return whole().layer(nameOf(name));
    if (const auto known = knownLayer(name))
        return *known;
    m_layers.push_back({.isOff = isLeftOut(name)});
    return *m_layerNumbers.insert(name.toCaseFolded(), static_cast<int>(m_layers.size()) - 1);
}

void Appearance::readPlotStyles(const drawing::Drawing &drawing)
{
    m_plotStyles.clear();
    m_plotStyleNames = {u"Normal"_s};
    const drawing::Dictionaries &dictionaries = drawing.dictionaries();
    const RecordId root = dictionaries.root();
    const RecordId names = isValid(root) ? dictionaries.find(root, u"ACAD_PLOTSTYLENAME") : noRecord;
    if (!isValid(names))
        return;
    for (const drawing::Dictionaries::Entry &entry : dictionaries.entries(names)) {
        m_plotStyles.insert(entry.handle.value, static_cast<int>(m_plotStyleNames.size()));
        m_plotStyleNames.append(entry.name);
    }
}

bool Appearance::isLeftOut(const QString &layer) const
{
    return !m_shownLayers.isEmpty() && !drawing::matchesWildcard(layer, m_shownLayers);
}

std::optional<int> Appearance::knownLinetype(const QString &name) const
{
    if (m_host)
        return whole().knownLinetype(nameOf(name));
    const QString key = name.toCaseFolded();
    if (key.isEmpty() || key == "bylayer"_L1)
        return Style::byLayer;
    if (key == "byblock"_L1)
        return Style::byBlock;
    const auto known = m_linetypeNumbers.constFind(key);
    return known != m_linetypeNumbers.constEnd() ? std::optional(*known) : std::nullopt;
}

int Appearance::linetype(const QString &name)
{
    if (m_host)
        return whole().linetype(nameOf(name));
    if (const auto known = knownLinetype(name))
        return *known;
    m_patterns.emplace_back();
    return *m_linetypeNumbers.insert(name.toCaseFolded(), static_cast<int>(m_patterns.size()) - 1);
}

std::optional<std::vector<Curve>> Appearance::shapeNamed(const QString &name, drawing::ShapeFiles &shapes)
{
    if (const auto known = m_shapes.constFind(name); known != m_shapes.constEnd())
        return *known;
    std::optional<std::vector<Curve>> found;
    for (const QString &fileName : m_shapeFiles) {
        const drawing::ShapeFile *file = shapes.find(fileName);
        const auto number = file ? file->numberOf(name) : std::nullopt;
        if (number) {
            found = shapeCurves(file, number);
            break;
        }
    }
    return *m_shapes.emplace(name, std::move(found));
}

bool Appearance::reachesBeyondBoxes() const
{
    const auto hasSigns = [](const LinePattern &pattern) {
        return std::ranges::any_of(pattern.elements, &LinePatternElement::hasSign);
    };
    return pointMode() != 0 || std::ranges::any_of(whole().m_patterns, hasSigns);
}

LayerLook Appearance::readLook(const drawing::Drawing &drawing, const drawing::Layer &layer)
{
    LayerLook look{.linetype = std::max(continuous, linetype(layer.linetype)),
                   .lineweight = layer.lineweight,
                   .isOff = layer.isOff || whole().isLeftOut(m_host ? nameOf(layer.name) : layer.name),
                   .isFrozen = layer.isFrozen,
                   .isPlotted = layer.isPlotted,
                   .plotStyle = plotStyle(drawing.tags(layer.record).handle(390))};
    // What dimensions are measured from is never plotted, whatever its layer says.
    if (layer.name.compare("defpoints"_L1, Qt::CaseInsensitive) == 0)
        look.isPlotted = false;
    look.colour = layer.trueColour ? Colour{Colour::Kind::True, *layer.trueColour}
                                   : Colour{Colour::Kind::Index, static_cast<std::uint32_t>(layer.colour)};
    return look;
}

/// What the tables of the host have goes before what the drawing itself says.
void Appearance::addTo(Appearance &whole, const drawing::Drawing &drawing, Fonts &fonts, drawing::ShapeFiles &shapes)
{
    for (const drawing::RecordId entry : drawing.tables().entries(drawing::TableKind::Linetype)) {
        const drawing::Linetype read = drawing::readLinetype(drawing, entry);
        const int number = linetype(read.name);
        if (number > continuous && !whole.m_ownLinetypes.contains(number))
            whole.m_patterns[static_cast<std::size_t>(number)] = readPattern(drawing, read, fonts, shapes);
    }
    for (const drawing::Layer &read : drawing::allLayers(drawing)) {
        const int number = layer(read.name);
        if (number > 0 && !whole.m_ownLayers.contains(number))
            whole.m_layers[static_cast<std::size_t>(number)] = readLook(drawing, read);
    }
}

void Appearance::reload(const drawing::Drawing &drawing, Fonts &fonts, drawing::ShapeFiles &shapes)
{
    m_shapeFiles = drawing::shapeFileNames(drawing);
    m_shapes.clear();
    if (m_host)
        return addTo(whole(), drawing, fonts, shapes);
    readPlotStyles(drawing);
    m_ownLayers.clear();
    m_ownLinetypes.clear();
    std::ranges::fill(m_patterns, LinePattern{});
    for (const drawing::RecordId entry : drawing.tables().entries(drawing::TableKind::Linetype)) {
        const drawing::Linetype read = drawing::readLinetype(drawing, entry);
        const int number = linetype(read.name);
        m_ownLinetypes.insert(number);
        if (number > continuous)
            m_patterns[static_cast<std::size_t>(number)] = readPattern(drawing, read, fonts, shapes);
    }
    // By names that no linetype of a file can have.
    const auto &plotted = drawing::plotLinetypes();
    for (std::size_t i = 0; i < plotted.size(); ++i) {
        const int number = linetype(u"\n%1"_s.arg(i));
        m_patterns[static_cast<std::size_t>(number)] = plotPattern(plotted[i]);
        if (i == 0)
            m_firstPlotLinetype = number;
    }
    for (auto it = m_layerNumbers.cbegin(); it != m_layerNumbers.cend(); ++it)
        m_layers[static_cast<std::size_t>(*it)] = {.isOff = isLeftOut(it.key())};
    for (const drawing::Layer &read : drawing::allLayers(drawing)) {
        const int number = layer(read.name);
        m_ownLayers.insert(number);
        m_layers[static_cast<std::size_t>(number)] = readLook(drawing, read);
    }
    m_linetypeScale = sanePositive(drawing.header().real(u"$LTSCALE"_s, 1.0), 1.0);
    m_maskFrame = drawing::wipeoutFrame(drawing);
    m_imageFrame = imageFrame(drawing);
    m_pointMode = static_cast<int>(drawing.header().integer(u"$PDMODE"_s, 0));
    m_pointSize = drawing.header().real(u"$PDSIZE"_s, 0.0);
}

std::pair<QRgb, int> Appearance::color(const Colour &colour, int layer, const ResolvedStyle *insert,
                                       Ground ground) const
{
    constexpr int foreground = 7;
    const auto indexed = [ground](int index) { return std::pair(aciColor(index, ground).rgb(), index); };
    switch (colour.kind) {
    case Colour::Kind::ByBlock:
        return insert ? std::pair(insert->own.colour, insert->own.index) : indexed(foreground);
    case Colour::Kind::Index:
        return indexed(static_cast<int>(colour.value));
    case Colour::Kind::True:
        return {trueColor(static_cast<int>(colour.value)).rgb(), 0};
    case Colour::Kind::ByLayer:
        break;
    }
    const Colour &ofLayer = layerLook(layer).colour;
    return ofLayer.kind == Colour::Kind::ByLayer ? indexed(foreground) : color(ofLayer, layer, insert, ground);
}

ResolvedStyle Appearance::resolve(const Style &style, const ResolvedStyle *insert, Ground ground) const
{
    if (m_host)
        return whole().resolve(style, insert, ground);
    ResolvedStyle resolved;
    ResolvedStyle::Unstyled &own = resolved.own;
    resolved.layer = style.layer == 0 && insert ? insert->layer : style.layer;
    const LayerLook &look = layerLook(resolved.layer);
    std::tie(own.colour, own.index) = color(style.colour, resolved.layer, insert, ground);
    const auto chosen = [&](int value, int ofLayer, int ofInsert) {
        return value == Style::byLayer ? ofLayer : value == Style::byBlock ? ofInsert : value;
    };
    own.linetype = chosen(style.linetype, look.linetype, insert ? insert->own.linetype : continuous);
    const int weight =
        chosen(style.lineweight, look.lineweight, insert ? insert->own.lineweight : Style::defaultWeight);
    own.lineweight = weight < 0 ? m_defaultWeight : std::min(weight, thickestWeight);
    own.plotStyle = chosen(style.plotStyle, look.plotStyle, insert ? insert->own.plotStyle : 0);
    resolved.colour = own.colour;
    resolved.linetype = own.linetype;
    resolved.lineweight = own.lineweight;
    resolved.linetypeScale = m_linetypeScale * sanePositive(style.linetypeScale, 1.0);
    if (m_plotLook.table)
        applyPlotStyle(resolved, ground);
    return resolved;
}

void Appearance::applyPlotStyle(ResolvedStyle &style, Ground ground) const
{
    const drawing::PlotStyleTable &table = *m_plotLook.table;
    const drawing::PlotStyle *plot =
        table.isByColour() ? table.ofColour(style.own.index) : table.named(m_plotStyleNames.value(style.own.plotStyle));
    if (!plot)
        return;
    QColor colour(style.colour);
    // Black is the ink of paper; on a black ground that is white.
    if (plot->colour)
        colour = *plot->colour == 0 ? aciColor(7, ground) : trueColor(static_cast<int>(*plot->colour));
    if (plot->isGrey)
        colour = QColor::fromRgb(qGray(colour.rgb()), qGray(colour.rgb()), qGray(colour.rgb()));
    style.colour = screened(colour, groundColor(ground), plot->screening).rgb();
    if (plot->lineweight >= 0)
        style.lineweight = plot->lineweight;
    if (plot->linetype > 0 && m_firstPlotLinetype > 0) {
        style.linetype = m_firstPlotLinetype + plot->linetype;
        style.linetypeScale = -m_plotLook.unitsPerMillimetre;
    } else if (plot->linetype == 0) {
        style.linetype = continuous;
    }
}

} // namespace host::view
