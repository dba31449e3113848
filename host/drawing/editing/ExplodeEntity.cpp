#include "host/drawing/editing/ExplodeEntity.h"

#include "host/drawing/editing/ExplodePolyline.h"
#include "host/drawing/editing/ExplodeRegion.h"
#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/geometry/TransformEntity.h"
#include "host/drawing/geometry/TransformFields.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/tags/DrawingTexts.h"
#include "host/drawing/tags/GroupCodes.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

constexpr int deepestPiece = 8; ///< pieces that are taken apart because they cannot be mapped

/// Where the pieces of an entity go: where it stands.
class PiecePlace
{
public:
    PiecePlace(Drawing &drawing, RecordId entity) : m_drawing(drawing), m_container(drawing.parent(entity))
    {
        m_isBlock = drawing.kind(m_container) == RecordKind::Block;
        m_space = m_isBlock ? Space::Model : drawing.entities().space(entity);
    }

    RecordId create(const FieldList &fields) const
    {
        Entities &entities = m_drawing.entities();
        return (m_isBlock ? entities.createInBlock(m_container, fields) : entities.create(fields, m_space)).record;
    }
    RecordId copy(RecordId entity) const
    {
        return m_isBlock ? copyEntityInto(m_drawing, entity, m_container) : copyEntityTo(m_drawing, entity, m_space);
    }

private:
    Drawing &m_drawing;
    RecordId m_container;
    bool m_isBlock = false;
    Space m_space = Space::Model;
};

/// The entities that a hatch was drawn round stay in the block: it follows them no more.
void freeHatch(Drawing &drawing, RecordId hatch)
{
    constexpr int followsCode = 71;
    constexpr int countCode = 97;
    FieldList fields = drawing.fields(hatch);
    setField(fields, followsCode, qint64(0));
    for (Field &field : fields)
        if (field.code == countCode)
            field.value = qint64(0);
    int markers = 0;
    std::erase_if(fields, [&](const Field &field) {
        markers += field.code == subclassCode ? 1 : 0;
        return field.code == ownerCode && markers > 1;
    });
    drawing.setFields(hatch, fields);
}

/// What is by block, and layer 0, becomes what the whole says.
void takeLook(Drawing &drawing, RecordId piece, const FieldList &whole)
{
    FieldList fields = drawing.fields(piece);
    const auto replace = [&](int code, bool isByBlock) {
        if (!isByBlock)
            return;
        std::erase_if(fields, [code](const Field &field) { return field.code == code; });
        if (const Field *own = findField(whole, code))
            fields.insert(std::ranges::find(fields, 8, &Field::code) + 1, *own);
    };
    const Field *layer = findField(fields, 8);
    const Field *colour = findField(fields, 62);
    const Field *linetype = findField(fields, 6);
    const Field *weight = findField(fields, 370);
    if (!layer)
        return;
    const bool isByBlock[] = {colour && colour->integer() == 0,
                              linetype && linetype->text().compare(u"ByBlock", Qt::CaseInsensitive) == 0,
                              weight && weight->integer() == -2};
    if (const Field *own = findField(whole, 8); own && layer->text() == u"0")
        setField(fields, 8, own->value);
    replace(62, isByBlock[0]);
    replace(6, isByBlock[1]);
    replace(370, isByBlock[2]);
    drawing.setFields(piece, fields);
}

class Explosion
{
public:
    Explosion(Drawing &drawing, RecordId entity, const ExplodeRules &rules, WorkBudget &work)
        : m_drawing(drawing), m_rules(rules), m_work(work), m_place(drawing, entity)
    {
    }

    ExplodeResult run(RecordId entity)
    {
        take(entity, {}, 0);
        return std::move(m_result);
    }

private:
    /// Takes it apart, the pieces mapped; false with a refusal when it stays whole.
    bool take(RecordId entity, const Matrix &matrix, int depth)
    {
        const QByteArrayView type = m_drawing.typeName(entity);
        if (type == "INSERT" || type == "ACAD_TABLE")
            return takeReference(entity, matrix, depth);
        if (type.endsWith("DIMENSION") && takePicture(entity, matrix, depth))
            return true;
        std::vector<FieldList> pieces = polylinePieces(m_drawing, entity);
        if (pieces.empty())
            pieces = regionPieces(m_drawing, entity);
        if (pieces.empty() && m_rules.shown)
            pieces = m_rules.shown(entity);
        for (const FieldList &piece : pieces)
            place(m_place.create(piece), matrix, depth);
        return !pieces.empty() || refuse(DrawingTexts::tr("%1 cannot be exploded.").arg(QLatin1StringView(type)));
    }

    bool takeReference(RecordId insert, const Matrix &matrix, int depth)
    {
        const TagList tags = m_drawing.tags(insert);
        const std::optional<Block> block = m_drawing.blocks().get(tags.text(2));
        if (!block)
            return refuse(DrawingTexts::tr("Block \"%1\" is missing.").arg(tags.text(2)));
        if (block->isExternal())
            return refuse(DrawingTexts::tr("An external reference cannot be exploded."));
        if (isValid(block->tableEntry) && m_drawing.tags(block->tableEntry).integer(280, 1) == 0)
            return refuse(DrawingTexts::tr("Block \"%1\" may not be exploded.").arg(block->name));
        if (!m_rules.takesUneven && isUneven(tags))
            return refuse(DrawingTexts::tr("The scales of block \"%1\" differ.").arg(block->name));
        const std::vector<RecordId> contents = m_drawing.children(block->record);
        const bool isArray = m_drawing.isType(insert, "INSERT");
        const qint64 columns = isArray ? std::clamp<qint64>(tags.integer(70, 1), 1, 32767) : 1;
        const qint64 rows = isArray ? std::clamp<qint64>(tags.integer(71, 1), 1, 32767) : 1;
        if (!m_work.take(columns * rows * static_cast<qint64>(contents.size() + 1)))
            return refuse(DrawingTexts::tr("Too many entities would come of it."));
        for (qint64 row = 0; row < rows; ++row)
            for (qint64 column = 0; column < columns; ++column)
                placeContents(contents, matrix * insertTransform(m_drawing, tags, int(column), int(row)), depth);
        return true;
    }

    static bool isUneven(const TagList &insert)
    {
        const double x = std::abs(insert.real(41, 1.0));
        const auto differs = [x](double scale) { return std::abs(std::abs(scale) - x) > 1e-9 * x; };
        return differs(insert.real(42, 1.0)) || differs(insert.real(43, 1.0));
    }

    void placeContents(const std::vector<RecordId> &contents, const Matrix &matrix, int depth)
    {
        for (const RecordId entity : contents) {
            const RecordId copy = m_place.copy(entity);
            if (isValid(copy) && m_drawing.isType(copy, "HATCH"))
                freeHatch(m_drawing, copy);
            place(copy, matrix, depth);
        }
    }

    /// The picture stands where the dimension does.
    bool takePicture(RecordId dimension, const Matrix &matrix, int depth)
    {
        const FieldList whole = m_drawing.fields(dimension);
        const Field *name = findField(whole, 2);
        const RecordId block = name ? m_drawing.blocks().find(name->text()) : noRecord;
        if (!isValid(block) || !isValid(m_drawing.firstChild(block)))
            return false;
        for (const RecordId entity : m_drawing.children(block)) {
            const RecordId copy = m_place.copy(entity);
            if (isValid(copy))
                takeLook(m_drawing, copy, whole);
            place(copy, matrix, depth);
        }
        return true;
    }

    void place(RecordId piece, const Matrix &matrix, int depth)
    {
        if (!isValid(piece)) {
            ++m_result.leftOut;
        } else if (matrix == Matrix() || transformEntity(m_drawing, piece, matrix)) {
            m_result.pieces.push_back(piece);
        } else {
            placeChanged(piece, matrix, depth);
            m_drawing.setErased(piece, true);
        }
    }

    /// In place of a piece that the map makes another kind of thing.
    void placeChanged(RecordId piece, const Matrix &matrix, int depth)
    {
        FieldList ellipse = ellipseOf(m_drawing.fields(piece));
        const RecordId made = !ellipse.empty() && transformFields(ellipse, matrix) ? m_place.create(ellipse) : noRecord;
        if (isValid(made)) {
            m_result.pieces.push_back(made);
        } else if (!ellipse.empty() || depth >= deepestPiece || !take(piece, matrix, depth + 1)) {
            ++m_result.leftOut;
            m_result.refusal.clear();
        }
    }

    bool refuse(const QString &reason)
    {
        m_result.refusal = reason;
        return false;
    }

    Drawing &m_drawing;
    const ExplodeRules &m_rules;
    WorkBudget &m_work;
    PiecePlace m_place;
    ExplodeResult m_result;
};

} // namespace

ExplodeResult explodeEntity(Drawing &drawing, RecordId entity, const ExplodeRules &rules, WorkBudget &work)
{
    const JournalGroup group(drawing.journal(), {});
    ExplodeResult result = Explosion(drawing, entity, rules, work).run(entity);
    if (result)
        drawing.dictionaries().setErasedWithOwned(entity, true);
    return result;
}

} // namespace host::drawing
