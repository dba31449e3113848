#pragma once

#include "host/drawing/math/WorkBudget.h"
#include "host/view/display/Appearance.h"
#include "host/view/display/CurveTrace.h"
#include "host/view/paint/LineDasher.h"
#include "host/view/paint/PixelCost.h"

#include <QPainterPath>

#include <functional>
#include <span>

namespace host::view {

class Scene;
struct BlockDisplay;
struct ExternalView;
struct RecordSummary;

/// Takes what a walk finds, in screen coordinates and in the order in which it is drawn. To one that knows neither
/// gradients nor pictures they are areas.
class DisplaySink
{
public:
    virtual ~DisplaySink() = default;
    /// What follows belongs to this record of the space that is walked. False: leave it out.
    virtual bool beginRecord(RecordId) { return true; }
    /// At least two points.
    virtual void line(std::span<const QPointF> points, const ResolvedStyle &style) = 0;
    /// What is too small to have a shape, points, and the dots of linetypes.
    virtual void dot(QPointF point, const ResolvedStyle &style) = 0;
    /// Closed contours with the fill rule set; cut off at the view where there is one.
    virtual void fill(const QPainterPath &area, FillKind kind, const ResolvedStyle &style) = 0;
    /// An area whose colours run into one another; `toScreen` maps the coordinates of the gradient.
    virtual void shade(const QPainterPath &area, const Gradient &gradient, const Matrix &toScreen,
                       const ResolvedStyle &style);
    /// A picture, of which the area is seen; `dots` is how many pixels of it are wanted across and up.
    virtual void image(const Raster &raster, const QPainterPath &area, const Matrix &toScreen, QSize dots,
                       const ResolvedStyle &style);
    /// `toScreen` maps the run's own coordinates.
    virtual void text(const TextRun &run, const Matrix &toScreen, const ResolvedStyle &style) = 0;
    /// Until the matching endClip() only what lies within the polygon is to be seen. Clips nest.
    virtual void beginClip(const QPolygonF &polygon) = 0;
    virtual void endClip() = 0;
};

/// How a walk looks at the scene; the scene itself is the same for all of them.
struct WalkOptions
{
    /// The part of the screen that is of interest. Nothing: everything, however far.
    std::optional<QRectF> view{};
    /// A part of the view: records that lie outside are left out, while those in it are shown as in the whole view.
    std::optional<QRectF> part{};
    Ground ground = Ground::Black;
    /// Dashes are laid out only where a view bounds their number; without one all lines are full.
    bool withLinetypes = true;
    /// What is smaller than a pixel becomes a dot.
    bool collapseSmall = true;
    /// Leaves out layers that are not plotted.
    bool plottedOnly = false;
    /// Lines and areas become pixels, which cost the more the larger they are.
    bool isRaster = false;
    /// How many pixels of a picture a unit of the screen can show.
    double dotsPerUnit = 1.0;
};

/// How much there was to show, in units of the budget, whether or not they were taken from it: about microseconds.
struct WalkEffort
{
    std::int64_t units = 0;
    std::int64_t records = 0;  ///< of the space, that were in view
    std::int64_t heaviest = 0; ///< units of one record of the space
};

/// Goes through the shapes of a space or block, opens the blocks it refers to, and hands out straight pieces, areas and
/// texts with everything resolved. Blocks that contain themselves are opened once.
///
/// What a space holds, and each block where it is met first, is shown whatever it costs. All that is multiplied takes
/// from the budget, and when that is used up lines are full instead of dashed, patterns have fewer lines, areas are
/// outlines, and blocks that were shown before are left out.
class SceneWalker
{
public:
    /// The scene must be prepared for the blocks walked.
    SceneWalker(Scene &scene, const WalkOptions &options, DisplaySink &sink, drawing::WorkBudget &work);

    /// Everything in the space or block that touches the view, in drawing order. Costs a look at the boxes of the
    /// records there, and what is seen of them.
    void walk(int block, const Matrix &toScreen);
    /// The same in pieces.
    void begin(int block, const Matrix &toScreen);
    /// Asks every hundred records whether to go on; without a question it goes on to the end. True there.
    bool goOn(const std::function<bool()> &mayGoOn = {});
    /// What was shown so far.
    const WalkEffort &effort() const { return m_effort; }
    /// One record of a block alone.
    void walkRecord(const BlockDisplay &block, const RecordSummary &record, const Matrix &toScreen);
    /// Whether part of what there is was left out or drawn coarser: the work was used up, or blocks are nested deeper
    /// than they are opened.
    bool wasCutShort() const { return m_isTooDeep || m_work.refusals() > m_refusalsBefore; }

private:
    /// Where a walk is: inside which reference, seen how.
    struct Context
    {
        Matrix map{};                          ///< from the block's coordinates to the screen
        const ResolvedStyle *insert = nullptr; ///< of the reference, for what is by block; null in the space itself
        const std::vector<int> *hiddenLayers = nullptr; ///< sorted; of the viewport that is looked through
        int depth = 0;                                  ///< references around this
        bool isRepeated = false; ///< what follows was shown before: all of it takes from the budget
    };

    void walkBlock(const BlockDisplay &block, const Context &context);
    /// The model space of another drawing.
    void walkExternal(const ExternalView &external, const Context &context);
    void walkDisplay(const BlockDisplay &block, const RecordSummary &record, const Context &context);
    /// What is too small to have a shape, without looking at its shapes; false where these are needed for that.
    bool showAsDot(const RecordSummary &record, QPointF at, const Context &context);
    /// Places of the records that the view may see, in drawing order; nothing where that may be most of them.
    std::optional<std::vector<std::uint32_t>> seenPlaces(const BlockDisplay &block, const Matrix &map) const;
    /// With `dot` given all shows as a dot there, in the style of the first that is seen.
    void walkItems(const std::vector<DisplayItem> &items, const Context &context, std::optional<QPointF> dot);
    /// What decides whether a record is shown at all.
    const std::optional<QRectF> &seenPart() const { return m_options.part ? m_options.part : m_options.view; }
    /// By its layer: off, frozen, not plotted, or hidden in the viewport.
    bool isHidden(const ResolvedStyle &style, bool isReference, const Context &context) const;
    /// Whether nothing in the box is in the view; `reach`, if given, is the box on the screen, unless it is empty.
    bool isOutside(const Box &box, const Matrix &map, QRectF *reach) const;

    // But for references, in SceneWalkerShapes.cpp.
    void show(const Stroke &stroke, const ResolvedStyle &style, const Context &context);
    void show(const Fill &fill, const ResolvedStyle &style, const Context &context);
    void show(const Segments &segments, const ResolvedStyle &style, const Context &context);
    void show(const Endless &line, const ResolvedStyle &style, const Context &context);
    void show(const PointMark &mark, const ResolvedStyle &style, const Context &context);
    void show(const std::unique_ptr<TextRun> &run, const ResolvedStyle &style, const Context &context);
    void show(const std::unique_ptr<Raster> &raster, const ResolvedStyle &style, const Context &context);
    void show(const std::unique_ptr<Reference> &reference, const ResolvedStyle &style, const Context &context);

    /// The cells that the view sees; all but the first are repeated.
    void showArray(const Reference &reference, const BlockDisplay &block, const ResolvedStyle &style,
                   const Context &context);
    void showCell(const Reference &reference, const BlockDisplay &block, const ResolvedStyle &style,
                  const Context &context);
    /// Takes the units from the budget where what follows is repeated; false when it has not so many left.
    bool mayGoOn(const Context &context, std::int64_t units);
    /// Units of work to draw it whole: its pieces, and its pixels where lines become pixels.
    std::int64_t unitsOf(const Track &track) const;
    bool canDash(const LineDasher &dasher, const Stroke &stroke);
    /// 1 for all lines of a pattern, 2 for every other, and so on, as the budget allows.
    std::size_t strideOf(const Segments &segments, const Context &context);
    void emitOutlines(const std::vector<Curve> &contours, const ResolvedStyle &style, const Context &context);
    /// The contours as the view sees them, with what filling them takes; those thinner than a pixel are added to
    /// `edges` as well, if given. Nothing when the work is used up.
    std::optional<std::pair<QPainterPath, std::int64_t>> areaOf(const std::vector<Curve> &contours,
                                                                const Context &context, std::vector<Track> *edges);
    QSize dotsOf(const Matrix &toScreen) const;
    /// The parts in the view, as full lines.
    void emitTrack(const Track &track, const ResolvedStyle &style);
    void emitDashes(const Track &track, bool isOneRun, const LineDasher &dasher, const ResolvedStyle &style);
    DashOutput dashOutput(const ResolvedStyle &style);
    /// A text or shape in a linetype.
    void emitSign(const LinePatternElement &element, const Matrix &toScreen, const ResolvedStyle &style);
    /// `size`: half of the mark's, in pixels; `mode` as in the header variable PDMODE.
    void emitMarkShape(QPointF at, double size, int mode, const ResolvedStyle &style);

    Scene &m_scene;
    const WalkOptions m_options;
    DisplaySink &m_sink;
    drawing::WorkBudget &m_work;
    const std::int64_t m_refusalsBefore; ///< of the budget, which others may have used before
    const PixelCost m_cost;
    bool m_isTooDeep = false; ///< blocks were nested deeper than they are opened
    // The walk under way.
    const BlockDisplay *m_walked = nullptr;
    Matrix m_toScreen;
    std::optional<std::vector<std::uint32_t>> m_places; ///< nothing: all of the block
    std::size_t m_next = 0;
    WalkEffort m_effort;
    std::int64_t m_pieces = 0;   ///< shown without taking from the budget
    std::vector<char> m_isOpen;  ///< by block
    std::vector<char> m_isShown; ///< by block: it was met
    Track m_track;               ///< the line under way; kept for its memory
};

} // namespace host::view
