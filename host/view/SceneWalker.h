#pragma once

#include "host/view/Appearance.h"
#include "host/view/CurveTrace.h"
#include "host/view/LineDasher.h"

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
    /// The walk ends after so many shapes: blocks nested many times over multiply beyond all bounds.
    std::int64_t mostShapes = 4'000'000;
};

/// Goes through the shapes of a space or block, opens the blocks it refers to, and hands out straight pieces, areas and
/// texts with everything resolved. Blocks that contain themselves are opened once.
class SceneWalker
{
public:
    /// The scene must be prepared for the blocks walked.
    SceneWalker(Scene &scene, const WalkOptions &options, DisplaySink &sink);

    void walk(int block, const Matrix &toScreen);
    /// One record of a block alone.
    void walkRecord(const RecordDisplay &record, const Matrix &toScreen);
    /// Whether the bound on shapes was reached and part of the drawing is missing.
    bool wasCutShort() const { return m_left <= 0; }

private:
    struct Context
    {
        Matrix map{};
        const ResolvedStyle *insert = nullptr;
        const std::vector<int> *hiddenLayers = nullptr;
        int depth = 0;
    };

    void walkBlock(const BlockDisplay &block, const Context &context);
    void walkDisplay(const RecordDisplay &record, const Context &context);
    void walkItems(const std::vector<DisplayItem> &items, const Context &context, std::optional<QPointF> dot);
    bool isHidden(const ResolvedStyle &style, const Shape &shape, const Context &context) const;
    bool isOutside(const Box &box, const Matrix &map, QRectF *reach) const;

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
    void emitTrack(const Track &track, const ResolvedStyle &style);
    void emitDashes(const Track &track, bool isOneRun, const LineDasher &dasher, const ResolvedStyle &style);
    DashOutput dashOutput(const ResolvedStyle &style);
    void emitSign(const LinePatternElement &element, const Matrix &toScreen, const ResolvedStyle &style);
    void emitMarkShape(QPointF at, double size, int mode, const ResolvedStyle &style);

    Scene &m_scene;
    const WalkOptions m_options;
    DisplaySink &m_sink;
    std::int64_t m_left;
    std::vector<char> m_isOpen; ///< by block
    Track m_track;
};

} // namespace host::view
