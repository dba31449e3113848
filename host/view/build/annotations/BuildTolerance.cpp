#include "host/drawing/annotation/DimensionStyle.h"
#include "host/drawing/annotation/ToleranceText.h"
#include "host/view/build/BuildMText.h"
#include "host/view/build/annotations/AnnotationParts.h"
#include "host/view/build/annotations/ToleranceFrame.h"
#include "host/view/display/MapShapes.h"

namespace host::view {

using drawing::TagList;
using drawing::ToleranceCell;
using drawing::TolerancePiece;

namespace {

/// Puts cells down from left to right.
class ToleranceDrawer
{
public:
    ToleranceDrawer(BuildContext &context, const Matrix &frame, const ToleranceLook &look)
        : m_context(context), m_frame(frame), m_look(look)
    {
    }

    /// `y` is the middle of the row.
    void addRow(const std::vector<ToleranceCell> &row, double y)
    {
        m_x = 0.0;
        m_y = y;
        addLine(0.0, 0.0);
        for (const ToleranceCell &cell : row) {
            const double from = m_x;
            m_x += margin();
            for (const TolerancePiece &piece : cell)
                piece.symbol ? addSymbol(*piece.symbol) : addText(piece.text, 1.0, m_x);
            // A cell is a square at least.
            m_x = std::max(m_x + margin(), from + rowHeight());
            addLine(m_x, m_x);
        }
        const double half = rowHeight() / 2.0;
        addPath(m_context, {place(0.0, -half), place(m_x, -half)}, m_look.lines);
        addPath(m_context, {place(0.0, half), place(m_x, half)}, m_look.lines);
    }

    double rowHeight() const { return 2.0 * m_look.height; }

private:
    double margin() const { return m_look.height / 2.0; }
    Vec3 place(double x, double y) const { return m_frame.point({x, m_y + y, 0.0}); }

    void addLine(double from, double to)
    {
        addPath(m_context, {place(from, -rowHeight() / 2.0), place(to, rowHeight() / 2.0)}, m_look.lines);
    }

    void addSymbol(const drawing::ToleranceSymbol &symbol)
    {
        const double size = m_look.height;
        const Matrix placement =
            m_frame * Matrix::translation({m_x, m_y - size / 2.0, 0.0}) * Matrix::scaling({size, size, size});
        for (Path line : symbol.lines) {
            mapPath(line, placement);
            addPath(m_context, std::move(line), m_look.letters);
        }
        const double from = m_x;
        if (!symbol.letter.isNull())
            addText(QString(symbol.letter), 0.7, from + 0.3 * size);
        m_x = from + symbol.width * size;
    }

    /// Moves on by what the letters take.
    void addText(const QString &text, double factor, double from)
    {
        constexpr int middleLeft = 3;
        const std::size_t first = m_context.display.items.size();
        const Matrix frame = m_frame * Matrix::translation({from, m_y, 0.0});
        BuildContext part = contextWithStyle(m_context, m_look.letters);
        addMText(
            part,
            {.frame = frame, .height = m_look.height * factor, .attachment = middleLeft, .styleName = m_look.textStyle},
            text, {});
        const Box box = boxSince(m_context, first, frame);
        m_x = from + (box.isEmpty() ? 0.0 : std::max(box.high.x, 0.0));
    }

    BuildContext &m_context;
    const Matrix &m_frame;
    const ToleranceLook &m_look;
    double m_x = 0.0;
    double m_y = 0.0;
};

} // namespace

bool addToleranceFrame(BuildContext &context, const QString &text, const Matrix &frame, const ToleranceLook &look)
{
    const auto rows = drawing::toleranceRows(text);
    if (rows.empty() || !isUsable(frame.origin) || !isUsable(look.height) || !(look.height > 0.0))
        return false;
    ToleranceDrawer drawer(context, frame, look);
    double y = 0.0;
    for (const auto &row : rows) {
        drawer.addRow(row, y);
        y -= drawer.rowHeight();
    }
    return true;
}

bool buildTolerance(BuildContext &context, const TagList &tags)
{
    const drawing::DimensionStyle style = readDimensionStyle(context.drawing, tags);
    const ToleranceLook look{.height = style.textHeight * style.scale,
                             .textStyle = style.textStyle,
                             .lines = styleWithColour(context.style, colourFromIndex(style.lineColour)),
                             .letters = styleWithColour(context.style, colourFromIndex(style.textColour))};
    const Vec3 normal = tags.point(210, {0.0, 0.0, 1.0});
    const Vec3 along = tags.point(11, Matrix::fromExtrusion(normal).direction({1.0, 0.0, 0.0}));
    return addToleranceFrame(context, tags.text(1), planeFrame(tags.point(10), along, normal), look);
}

} // namespace host::view
