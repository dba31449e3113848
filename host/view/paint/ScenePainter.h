#pragma once

#include "host/view/build/Scene.h"
#include "host/view/paint/SceneWalker.h"
#include "host/view/paint/ViewTransform.h"

#include <QColor>
#include <QPainter>
#include <QPainterPath>

#include <functional>
#include <memory>
#include <optional>
#include <unordered_set>

namespace host::view {

using RecordSet = std::unordered_set<RecordId>;

/// Hears where a clip begins and ends, between what is painted.
class ClipMarks
{
public:
    virtual ~ClipMarks() = default;
    virtual void begin(QPainter &painter, const QPainterPath &clip) = 0;
    virtual void end(QPainter &painter) = 0;
};

/// How all records look, in place of what they are.
struct UniformLook
{
    QColor colour;
    int weight = 0; ///< of lines, hundredths of a millimetre
    bool isDashed = false;
};

/// Sets of records, and what hears of clips, are not owned and must outlive the painting.
struct PaintOptions
{
    Ground ground = Ground::Black;
    bool fillGround = true;                 ///< paints the ground first; otherwise what is there shines through
    bool antialias = false;                 ///< of lines; texts and areas are always smooth
    double pixelsPerMillimetre = 0.0;       ///< lines get their weight; 0: all are as thin as can be
    bool textAsLetters = false;             ///< texts stay letters where the painter writes a file; else outlines
    ClipMarks *clips = nullptr;             ///< told of clips, for painters that cannot clip
    bool plottedOnly = false;               ///< leaves out layers that are not for plotting
    const RecordSet *only = nullptr;        ///< draws no other records of the space than these
    const RecordSet *except = nullptr;      ///< does not draw these records of the space
    const RecordSet *highlighted = nullptr; ///< records of the space drawn dashed in `highlight`
    QColor highlight{0x4f, 0xa3, 0xff};
    std::optional<UniformLook> look{}; ///< pictures of files keep theirs; nothing is highlighted then
    /// The part of the screen to be painted, which then looks as if all was; nothing: all of it. Whole pixels.
    std::optional<QRectF> part{};
    std::int64_t work = 0; ///< granted for what is multiplied; 0: as much as goes with the painter
};

struct PaintResult
{
    bool isCutShort = false; ///< there was more than is drawn in one go: some is missing or coarser than it should be
    WalkEffort effort{};
};

/// The painting of a space or block, in slices: begun by the constructor, which paints the ground, and gone on with
/// until it is done. The painter belongs to it meanwhile; painter, scene and what the options point to must outlive it,
/// and the drawing must not change.
class ScenePainting
{
public:
    ScenePainting(QPainter &painter, Scene &scene, int block, const ViewTransform &view, const PaintOptions &options);
    ~ScenePainting();
    ScenePainting(const ScenePainting &) = delete;
    ScenePainting &operator=(const ScenePainting &) = delete;

    /// Goes on for as long as `mayGoOn` says, which is asked every hundred records; without it to the end. True when
    /// all is done.
    bool paint(const std::function<bool()> &mayGoOn = {});
    /// Of what was painted so far.
    PaintResult result() const;
    /// See paintRecord().
    static void paintAlone(QPainter &painter, Scene &scene, int block, RecordId record, const ViewTransform &view,
                           const PaintOptions &options);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

/// Draws a space or block as the view shows it. The painter's units are taken for pixels; its pen, brush and clip are
/// as before afterwards. Prepares the block. Costs a look at the boxes of the records in view and time by what these
/// show; what is multiplied is bounded (see drawing::WorkBudget), less where the painter writes a file of lines.
PaintResult paintScene(QPainter &painter, Scene &scene, int block, const ViewTransform &view,
                       const PaintOptions &options = {});

/// Draws one record of a space or block by itself, as paintScene() does with it alone in `options.only`, but without a
/// look at any other. Nothing where the block does not have it.
void paintRecord(QPainter &painter, Scene &scene, int block, RecordId record, const ViewTransform &view,
                 const PaintOptions &options);

} // namespace host::view
