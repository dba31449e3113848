#pragma once

#include "host/drawing/annotation/AnnotationScale.h"
#include "host/drawing/math/WorkBudget.h"
#include "host/drawing/records/Drawing.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/text/MacroExpression.h"
#include "host/view/build/BlockDisplay.h"
#include "host/view/build/DisplayBuilder.h"
#include "host/view/display/Appearance.h"
#include "host/view/display/DrawOrder.h"
#include "host/view/display/RasterFiles.h"
#include "host/view/display/RenderReport.h"
#include "host/view/display/StyleTable.h"
#include "host/view/text/Fonts.h"

#include <limits>
#include <optional>
#include <unordered_set>

namespace host::view {

/// For whose eyes extents are measured.
enum class Seen
{
    OnScreen, ///< layers that are on and thawed
    Plotted   ///< of those, the ones that are plotted
};

/// Where a space or block looks otherwise than it did.
struct Damage
{
    bool isEverywhere = false;
    std::vector<Box> boxes{}; ///< of records as they were and as they are
};

/// A drawing taken apart into shapes, kept and brought up to date record by record as the drawing changes.
///
/// Only blocks that are looked at are built. Looking at a scene brings it up to date; until then changes cost next to
/// nothing. Must not outlive its drawing.
///
/// Building goes through all records of a block and keeps a summary of each, some 70 bytes. Shapes are kept of what
/// cannot be made the same again: references, and what takes from the budget (pattern lines, pieces of splines: what is
/// made beyond the records' own points, for the whole scene, and coarser when that is used up). The shapes of all else,
/// most lines, curves and texts, are made when they are looked at: see shown().
///
/// User-interface thread only. While it builds a large block it has helpers make the summaries of types that are
/// Making::Anywhere, from the drawing and the numbers of layers and linetypes, which nobody changes meanwhile; the rest
/// it then makes itself in drawing order. So a scene is the same with any number of threads.
class Scene final : public drawing::DrawingObserver
{
public:
    static constexpr int modelSpace = 0;
    static constexpr int paperSpace = 1; ///< the current one of the paper spaces

    /// Follows the drawing's changes. `surroundings` is what expressions in it may ask for; without a function for
    /// variables they know those of the drawing itself.
    explicit Scene(drawing::Drawing &drawing, drawing::MacroSurroundings surroundings = {});
    /// For one look at a drawing that does not change meanwhile: it is not observed.
    explicit Scene(const drawing::Drawing &drawing, drawing::MacroSurroundings surroundings = {});
    /// Of a drawing that is seen in that of `host`, where its layers and linetypes have names behind `prefix`. The host
    /// must outlive it.
    Scene(const drawing::Drawing &drawing, drawing::MacroSurroundings surroundings, Scene &host, const QString &prefix);
    ~Scene() override;
    Scene(const Scene &) = delete;
    Scene &operator=(const Scene &) = delete;

    const drawing::Drawing &drawing() const { return m_drawing; }
    const drawing::MacroSurroundings &surroundings() const { return m_surroundings; }
    /// The scene that this one's drawing is seen in; null for one that is looked at itself.
    const Scene *host() const { return m_host; }
    /// Shared by all scenes that are seen in one.
    ExternalFiles &externalFiles() { return *m_externalFiles; }
    /// What the block shows where it stands for another drawing, which is opened by the first call; null for others.
    const ExternalView *external(int block);
    /// What comes from outside the drawing, the files and expressions of remote texts, the shape files,
    /// the pictures and other drawings, is read again before the next look.
    void regenerate();
    /// A number for a block by its name, whether or not there is such a block (yet). Layout blocks are spaces.
    int block(const QString &name);
    /// Numbers given out so far.
    std::size_t blockCount() const { return m_blocks.size(); }
    /// Whether the drawing has the block now; the two spaces always are.
    bool exists(int block) const;

    /// Brings everything that the block shows up to date. Cheap when nothing changed; after changes it costs by what
    /// changed, unless blocks, styles or the order of drawing are concerned.
    void prepare(int block);
    /// As of the last prepare(). The reference stays, its content changes with the next one.
    const BlockDisplay &display(int block) const { return *m_blocks[static_cast<std::size_t>(block)]; }
    /// What a record of a prepared block shows: the display that is kept of it, or one made now, in `made`. Holds until
    /// the next change is looked at, and as long as `made` does. About a microsecond for a line.
    const RecordDisplay &shown(const BlockDisplay &block, const RecordSummary &record, RecordDisplay &made);
    /// The style of all that the record shows, where it has one.
    const Style &styleOf(const RecordSummary &record) const { return m_styles[record.look]; }
    /// Places in a prepared block, in drawing order, of the records whose boxes touch the box as seen from above, lines
    /// without end among them. Of many records the first search after building makes an index. Of more than `most` only
    /// so many are found, or a few more.
    std::vector<std::uint32_t> recordsIn(int block, const Box &box,
                                         std::size_t most = std::numeric_limits<std::size_t>::max());
    /// Brings the block up to date and tells what has changed since this was asked before, of any block.
    Damage takeDamage(int block);
    /// How many threads may build, the caller's among them; at first as many as the machine has.
    void useThreads(int threads) { m_threads = threads; }
    // What the displays' numbers mean, up to date as the displays are.
    Appearance &appearance() { return m_appearance; }
    const Appearance &appearance() const { return m_appearance; }
    Fonts &fonts() { return *m_fonts; }
    drawing::ShapeFiles &shapes() { return m_shapes; }
    /// The annotation scale in use; looked up once.
    const drawing::AnnotationView &annotationView();
    RasterFiles &images() { return m_images; }

    // These prepare the block.
    /// Of what can be seen of the space or block; empty when that is nothing. Lines without end do not count. Goes
    /// through the summaries of all records that are shown.
    Box extents(int block, Seen seen = Seen::OnScreen);
    /// Of the block and all that it shows through references. `isCutShort` tells of the building, not of the painting.
    RenderReport report(int block);
    /// The summary of a record of that space; null when it has none. Constant cost; holds until the next change is
    /// looked at.
    const RecordSummary *find(int block, RecordId record);
    /// The display of one entity by itself, whether or not its space is built. What it refers to is up to date then.
    RecordDisplay buildAlone(RecordId record);
    /// Number of records that were built so far, for measuring; looking at them does not count.
    qint64 builtRecords() const { return m_builtRecords; }

    void recordChanged(RecordId record, drawing::RecordChange change, drawing::ChangeCause cause) override;

private:
    struct Changes
    {
        std::unordered_set<RecordId> records;  ///< whose display is out of date
        std::unordered_set<RecordId> appeared; ///< of these, the ones that may be new
        bool order = false;                    ///< blocks have other members, or other order of drawing
        bool tables = false;
        bool everything = false;
        bool any() const { return order || tables || everything || !records.empty(); }
    };

    // In SceneChanges.cpp, up to replace(). What the observer hears is only noted; applyChanges() acts on it at
    // the next look. The usual edits, records changed, erased, brought back or added at the end, cost by their number;
    // anything that concerns order or names goes through all blocks that are built.
    void markEntity(RecordId record, drawing::RecordChange change);
    bool hasChangedSpace(RecordId entity) const;
    void applyChanges();
    void forgetEverything();
    void rebuildMembers();
    void rebuildChanged();
    void rebuildChanged(BlockDisplay &block, std::uint32_t place);
    bool isInItsPlace(const BlockDisplay &block, std::uint32_t place) const;
    void appendRun(RecordId first);
    BlockDisplay *ownerOf(RecordId entity);
    /// The place of a record in the block that it belongs to; nothing where that is not built or does not have it.
    std::optional<std::uint32_t> placeIn(const BlockDisplay &block, RecordId record) const;
    void rememberPlace(RecordId record, const BlockDisplay &block, std::size_t place);
    void replace(BlockDisplay &block, std::uint32_t place, RecordSummary summary);

    // In SceneBuilding.cpp, up to forget().
    void build(BlockDisplay &block);
    /// Until no display refers to a block that is not built.
    void buildWaiting();
    std::vector<RecordId> members(const BlockDisplay &block) const;
    RecordSummary buildSummary(RecordId record);
    RecordDisplay buildRecord(RecordId record);
    RecordSummary keep(RecordDisplay display);
    void forget(RecordSummary &record);

    void begin();
    void reloadStyles();
    bool hasChangedExternals() const;
    void forgetExternals();
    static void release(BlockDisplay &block);
    void damage(BlockDisplay &block, const RecordSummary &record);
    void updateBoxes();
    std::vector<std::size_t> blocksShownBy(std::size_t block) const;
    void updateBox(BlockDisplay &block);
    void updateBox(BlockDisplay &block, std::uint32_t place);
    bool lacksPatternShapes(const BlockDisplay &block, const RecordSummary &record);
    void countInto(RenderReport &report, const BlockDisplay &block);

    const drawing::Drawing &m_drawing;
    drawing::MacroSurroundings m_surroundings;
    drawing::Drawing *m_followed = nullptr; ///< the drawing where its changes are observed
    Scene *m_host = nullptr;
    std::shared_ptr<ExternalFiles> m_externalFiles;
    std::shared_ptr<Fonts> m_fonts; ///< the host's, where there is one
    drawing::ShapeFiles m_shapes;
    RasterFiles m_images;
    Appearance m_appearance;
    std::vector<std::unique_ptr<BlockDisplay>> m_blocks; ///< by number; they keep their place in memory
    QHash<QString, int> m_blockNumbers;                  ///< by names in folded case
    std::vector<int> m_waiting;          ///< blocks that displays refer to and that may have to be built
    std::vector<qint8> m_spaces;         ///< by record: 1 + the space it was last seen in
    std::vector<std::uint32_t> m_places; ///< by record: its place in its block, if that has it there
    StyleTable m_styles;
    StyleNames m_names{m_appearance};
    std::vector<std::unique_ptr<RecordDisplay>> m_kept; ///< by the numbers in summaries; null where one is free
    std::vector<std::uint32_t> m_freeKept;
    int m_threads;
    bool m_isDamagedEverywhere = true;
    Changes m_changes;
    bool m_boxesStale = false;
    std::optional<drawing::AnnotationView> m_annotationView; ///< nothing: to be read again
    std::optional<SortHandles> m_sortHandles;                ///< nothing: to be read again
    qint64 m_builtRecords = 0;
    drawing::WorkBudget m_ownWork{drawing::displayWork};
    drawing::WorkBudget &m_work = m_ownWork; ///< the host's, where there is one
};

} // namespace host::view
