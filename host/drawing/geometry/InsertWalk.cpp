#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/records/Blocks.h"

#include <numbers>

// What block references show, nested ones opened.

namespace host::drawing {

namespace {

bool isReference(QByteArrayView type)
{
    return type == "INSERT" || type == "ACAD_TABLE" || type.endsWith("DIMENSION");
}

class InsertWalk
{
public:
    InsertWalk(const Drawing &drawing, WorkBudget &work, const std::function<bool(const VisitedEntity &)> &visitor)
        : m_drawing(drawing), m_work(work), m_visitor(visitor)
    {
    }

    void visit(RecordId entity, const Matrix &transform)
    {
        if (!m_inserts.empty() && !mayGoOn())
            return;
        if (!isReference(m_drawing.typeName(entity))) {
            m_isStopped = !m_visitor({entity, transform, m_inserts});
            return;
        }
        if (m_inserts.size() >= deepestNesting)
            return;
        m_inserts.push_back(entity);
        open(entity, transform);
        m_inserts.pop_back();
    }

private:
    bool mayGoOn()
    {
        m_isStopped = m_isStopped || !m_work.take(1);
        return !m_isStopped;
    }

    void open(RecordId insert, const Matrix &transform)
    {
        const TagList tags = m_drawing.tags(insert);
        const RecordId block = m_drawing.blocks().find(tags.text(2));
        const bool isInsert = m_drawing.isType(insert, "INSERT");
        if (isValid(block) && isInsert)
            visitCells(block, tags, transform);
        else if (isValid(block) && m_drawing.isType(insert, "ACAD_TABLE"))
            visitBlock(block, transform * insertTransform(m_drawing, tags));
        else if (isValid(block)) // the picture of a dimension stands in world coordinates
            visitBlock(block, transform);
        for (const RecordId child : isInsert ? m_drawing.children(insert) : std::vector<RecordId>())
            visit(child, transform);
    }

    void visitCells(RecordId block, const TagList &tags, const Matrix &transform)
    {
        const auto columns = static_cast<int>(std::clamp<qint64>(tags.integer(70, 1), 1, 32767));
        const auto rows = static_cast<int>(std::clamp<qint64>(tags.integer(71, 1), 1, 32767));
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column) {
                if (!mayGoOn())
                    return;
                visitBlock(block, transform * insertTransform(m_drawing, tags, column, row));
            }
        }
    }

    void visitBlock(RecordId block, const Matrix &transform)
    {
        const bool isInItself = std::find(m_blocks.begin(), m_blocks.end(), block) != m_blocks.end();
        if (isInItself)
            return;
        m_blocks.push_back(block);
        for (RecordId entity = m_drawing.firstChild(block); isValid(entity) && !m_isStopped;
             entity = m_drawing.nextSibling(entity)) {
            if (!m_drawing.isType(entity, "ATTDEF"))
                visit(entity, transform);
        }
        m_blocks.pop_back();
    }

    const Drawing &m_drawing;
    WorkBudget &m_work;
    const std::function<bool(const VisitedEntity &)> &m_visitor;
    std::vector<RecordId> m_inserts;
    std::vector<RecordId> m_blocks; ///< those being visited
    bool m_isStopped = false;
};

} // namespace

Matrix insertTransform(const Drawing &drawing, const TagList &insert, int column, int row)
{
    const RecordId block = drawing.blocks().find(insert.text(2));
    const Vec3 base = isValid(block) ? drawing.tags(block).point(10) : Vec3{};
    const double angle = insert.real(50) * std::numbers::pi / 180.0;
    const Vec3 scale{insert.real(41, 1.0), insert.real(42, 1.0), insert.real(43, 1.0)};
    const Vec3 cell{column * insert.real(44), row * insert.real(45), 0.0};
    return Matrix::fromExtrusion(insert.point(210, {0.0, 0.0, 1.0})) * Matrix::translation(insert.point(10)) *
           Matrix::rotation(angle) * Matrix::translation(cell) * Matrix::scaling(scale) *
           Matrix::translation(base * -1.0);
}

void visitInserted(const Drawing &drawing, RecordId insert, WorkBudget &work,
                   const std::function<bool(const VisitedEntity &)> &visitor)
{
    InsertWalk(drawing, work, visitor).visit(insert, {});
}

} // namespace host::drawing
