#pragma once

#include "host/drawing/math/WorkBudget.h"
#include "host/view/display/Appearance.h"
#include "host/view/display/CurveTrace.h"
#include "host/view/paint/LineDasher.h"
#include "host/view/paint/PixelCost.h"

#include <QPainterPath>

#include <span>

namespace host::view {

class Scene;
struct BlockDisplay;

/// Takes what a walk finds, in screen coordinates and in the order in which it is drawn.
class DisplaySink
{
public:
    virtual ~DisplaySink() = default;
    /// What follows belongs to this record of the space that is walked. False: leave it out.
    virtual bool beginRecord(RecordId) { return true; }
    /// At least two points.
    virtual void line(std::span<const QPointF> points, const ResolvedStyle &style) = 0;
    virtual void dot(QPointF point, const ResolvedStyle &style) = 0;
    virtual void fill(const QPainterPath &area, FillKind kind, const ResolvedStyle &style) = 0;
    /// `toScreen` maps the run's own coordinates.
    virtual void text(const TextRun &run, const Matrix &toScreen, const ResolvedStyle &style) = 0;
    /// Until the matching endClip() only what lies within the polygon is to be seen. Clips nest.
    virtual void beginClip(const QPolygonF &polygon) = 0;
    virtual void endClip() = 0;
};

struct WalkOptions
{
    /// The part of the screen that is of interest. Nothing: everything, however far.
    std::optional<QRectF> view{};
    Ground ground = Ground::Black;
    bool withLinetypes = true;
    /// What is smaller than a pixel becomes a dot.
    bool collapseSmall = true;
    bool plottedOnly = false;
    /// Lines and areas become pixels, which cost the more the larger they are.
    bool isRaster = false;
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

    void walk(int block, const Matrix &toScreen);
    /// One record of a block alone.
    void walkRecord(const RecordDisplay &record, const Matrix &toScreen);
    /// Whether part of what there is was left out or drawn coarser: the work was used up, or blocks are nested deeper
    /// than they are opened.
    bool wasCutShort() const { return m_isTooDeep || m_work.refusals() > m_refusalsBefore; }

private:
    struct Context
    {
        Matrix map{};
        const ResolvedStyle *insert = nullptr;
        const std::vector<int> *hiddenLayers = nullptr;
        int depth = 0;
        bool isRepeated = false; ///< what follows was shown before: all of it takes from the budget
    };

    void walkBlock(const BlockDisplay &block, const Context &context);
    void walkDisplay(const RecordDisplay &record, const Context &context);
    void walkItems(const std::vector<DisplayItem> &items, const Context &context, std::optional<QPointF> dot);
    bool isHidden(const ResolvedStyle &style, const Shape &shape, const Context &context) const;
    bool isOutside(const Box &box, const Matrix &map, QRectF *reach) const;

    // But for references, in SceneWalkerShapes.cpp.
    void show(const Stroke &stroke, const ResolvedStyle &style, const Context &context);
    void show(const Fill &fill, const ResolvedStyle &style, const Context &context);
    void show(const Segments &segments, const ResolvedStyle &style, const Context &context);
    void show(const Endless &line, const ResolvedStyle &style, const Context &context);
    void show(const PointMark &mark, const ResolvedStyle &style, const Context &context);
    void show(const std::unique_ptr<TextRun> &run, const ResolvedStyle &style, const Context &context);
    void show(const std::unique_ptr<Reference> &reference, const ResolvedStyle &style, const Context &context);

    void showArray(const Reference &reference, const BlockDisplay &block, const ResolvedStyle &style,
                   const Context &context);
    void showCell(const Reference &reference, const BlockDisplay &block, const ResolvedStyle &style,
                  const Context &context);
    bool mayGoOn(const Context &context, std::int64_t units);
    std::int64_t unitsOf(const Track &track) const;
    bool canDash(const LineDasher &dasher, const Stroke &stroke);
    std::size_t strideOf(const Segments &segments, const Context &context);
    void emitOutlines(const Fill &fill, const ResolvedStyle &style, const Context &context);
    void emitTrack(const Track &track, const ResolvedStyle &style);
    void emitDashes(const Track &track, bool isOneRun, const LineDasher &dasher, const ResolvedStyle &style);
    DashOutput dashOutput(const ResolvedStyle &style);
    void emitSign(const LinePatternElement &element, const Matrix &toScreen, const ResolvedStyle &style);
    void emitMarkShape(QPointF at, double size, int mode, const ResolvedStyle &style);

    Scene &m_scene;
    const WalkOptions m_options;
    DisplaySink &m_sink;
    drawing::WorkBudget &m_work;
    const std::int64_t m_refusalsBefore;
    const PixelCost m_cost;
    bool m_isTooDeep = false;
    std::vector<char> m_isOpen;  ///< by block
    std::vector<char> m_isShown; ///< by block: it was met
    Track m_track;
};

} // namespace host::view
