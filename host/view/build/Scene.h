#pragma once

#include "host/drawing/math/WorkBudget.h"
#include "host/drawing/records/Drawing.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/text/MacroExpression.h"
#include "host/view/display/Appearance.h"
#include "host/view/display/Display.h"
#include "host/view/display/DrawOrder.h"
#include "host/view/display/RenderReport.h"
#include "host/view/text/Fonts.h"

#include <optional>
#include <unordered_set>

namespace host::view {

enum class Seen
{
    OnScreen, ///< layers that are on and thawed
    Plotted   ///< of those, the ones that are plotted
};

/// The display of a space or of a block definition.
struct BlockDisplay
{
    int number = 0; ///< in the scene
    QString name{};
    std::vector<RecordDisplay> records{}; ///< in drawing order
    Box box{};
    bool isEndless = false;
    bool isBuilt = false;
};

/// A drawing taken apart into shapes, kept and brought up to date record by record as the drawing changes.
///
/// Only blocks that are looked at are built. Looking at a scene brings it up to date; until then changes cost next to
/// nothing. Must not outlive its drawing.
class Scene final : public drawing::DrawingObserver
{
public:
    static constexpr int modelSpace = 0;
    static constexpr int paperSpace = 1; ///< the current one of the paper spaces

    /// Follows the drawing's changes. `surroundings` is what expressions in it may ask for; without a function for
    /// variables they know those of the drawing itself.
    explicit Scene(drawing::Drawing &drawing, drawing::MacroSurroundings surroundings = {});
    /// For one look at a drawing that does not change meanwhile.
    explicit Scene(const drawing::Drawing &drawing, drawing::MacroSurroundings surroundings = {});
    ~Scene() override;
    Scene(const Scene &) = delete;
    Scene &operator=(const Scene &) = delete;

    const drawing::Drawing &drawing() const { return m_drawing; }
    const drawing::MacroSurroundings &surroundings() const { return m_surroundings; }
    /// What comes from outside the drawing, the files and expressions of remote texts and the shape files, is read
    /// again before the next look.
    void regenerate();
    /// A number for a block by its name, whether or not there is such a block (yet). Layout blocks are spaces.
    int block(const QString &name);
    std::size_t blockCount() const { return m_blocks.size(); }
    bool exists(int block) const;

    /// Brings everything that the block shows up to date. Cheap when nothing changed.
    void prepare(int block);
    /// As of the last prepare().
    const BlockDisplay &display(int block) const { return *m_blocks[static_cast<std::size_t>(block)]; }
    Appearance &appearance() { return m_appearance; }
    const Appearance &appearance() const { return m_appearance; }
    Fonts &fonts() { return m_fonts; }
    drawing::ShapeFiles &shapes() { return m_shapes; }

    /// Of what can be seen of the space or block. Lines without end do not count.
    Box extents(int block, Seen seen = Seen::OnScreen);
    RenderReport report(int block);
    /// The display of a record of that space; null when it has none.
    const RecordDisplay *find(int block, RecordId record);
    /// The display of one entity by itself, whether or not its space is built. What it refers to is up to date then.
    RecordDisplay buildAlone(RecordId record);
    /// Number of records whose display was built so far, for measuring.
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

    // Up to rememberSpace() in SceneChanges.cpp.
    void markEntity(RecordId record, drawing::RecordChange change);
    bool hasChangedSpace(RecordId entity) const;
    void applyChanges();
    void forgetEverything();
    void rebuildMembers();
    void rebuildChanged();
    void rebuildChanged(BlockDisplay &block);
    void appendRun(RecordId first);
    BlockDisplay *ownerOf(RecordId entity);
    void rememberSpace(RecordId record, const BlockDisplay &block);
    void build(BlockDisplay &block);
    void buildWaiting();
    std::vector<RecordId> members(const BlockDisplay &block) const;
    RecordDisplay buildRecord(RecordId record);
    void forget(const RecordDisplay &display);
    void updateBoxes();
    std::vector<std::size_t> blocksShownBy(std::size_t block) const;
    void updateBox(BlockDisplay &block);
    void updateBox(RecordDisplay &record) const;
    bool lacksPatternShapes(const RecordDisplay &record) const;
    void countInto(RenderReport &report, const BlockDisplay &block) const;

    const drawing::Drawing &m_drawing;
    drawing::MacroSurroundings m_surroundings;
    drawing::Drawing *m_followed = nullptr;
    Fonts m_fonts;
    drawing::ShapeFiles m_shapes;
    Appearance m_appearance;
    std::vector<std::unique_ptr<BlockDisplay>> m_blocks;
    QHash<QString, int> m_blockNumbers;
    std::vector<int> m_waiting;  ///< blocks that displays refer to and that may have to be built
    std::vector<qint8> m_spaces; ///< by record: 1 + the space it was last seen in
    Changes m_changes;
    bool m_boxesStale = false;
    std::optional<SortHandles> m_sortHandles;
    qint64 m_builtRecords = 0;
    drawing::WorkBudget m_work{drawing::displayWork};
};

} // namespace host::view
