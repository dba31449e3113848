#include "host/drawing/editing/NameClashes.h"

#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Tables.h"

#include <QSet>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

/// The values under a group code, texts in one case: they are names of linetypes and of files.
std::vector<FieldValue> valuesOf(const FieldList &fields, int code)
{
    std::vector<FieldValue> values;
    for (const Field &field : fields) {
        if (field.code == code)
            values.push_back(tagType(code) == TagType::Text ? FieldValue(field.text().toCaseFolded()) : field.value);
    }
    return values;
}

/// The groups that say what the entries of a table look like; none where all groups do.
std::vector<int> definingCodes(TableKind kind)
{
    switch (kind) {
    case TableKind::Layer:
        return {62, 6, 370, 420};
    case TableKind::Linetype:
        return {49, 74, 9, 46, 50};
    case TableKind::Style:
        return {3, 4, 40, 41, 50, 71};
    default:
        return {};
    }
}

/// An entity's fields that say what is drawn.
FieldList drawnFields(const Drawing &drawing, RecordId entity)
{
    FieldList drawn;
    bool isInGroup = false;
    for (Field &field : drawing.fields(entity)) {
        if (field.code == 102)
            isInGroup = field.text().startsWith(u'{');
        const bool isLink = tagType(field.code) == TagType::Handle || field.code == 102 || field.code == 100;
        if (!isInGroup && !isLink)
            drawn.push_back(std::move(field));
    }
    return drawn;
}

std::vector<RecordId> withParts(const Drawing &drawing, RecordId block)
{
    std::vector<RecordId> all;
    for (const RecordId entity : drawing.children(block)) {
        all.push_back(entity);
        const std::vector<RecordId> parts = drawing.children(entity);
        all.insert(all.end(), parts.begin(), parts.end());
    }
    return all;
}

class BlockComparison
{
public:
    BlockComparison(const Drawing &one, const Drawing &other) : m_one(one), m_other(other) {}

    bool isDifferent(RecordId block, RecordId otherBlock)
    {
        m_waiting.emplace_back(block, otherBlock);
        while (!m_waiting.empty()) {
            const auto [next, other] = m_waiting.back();
            m_waiting.pop_back();
            if (isDifferentAlone(next, other))
                return true;
        }
        return false;
    }

private:
    /// The blocks within are left to wait, so that a chain of any length is compared.
    bool isDifferentAlone(RecordId block, RecordId otherBlock)
    {
        const Block one = m_one.blocks().read(block);
        const Block other = m_other.blocks().read(otherBlock);
        // What is being compared already, or was found alike, makes no difference.
        const QString key = one.name.toCaseFolded() + u'/' + other.name.toCaseFolded();
        if (m_compared.contains(key))
            return false;
        m_compared.insert(key);
        if (!(one.basePoint == other.basePoint) || one.externalPath != other.externalPath)
            return true;
        const std::vector<RecordId> parts = withParts(m_one, block);
        const std::vector<RecordId> otherParts = withParts(m_other, otherBlock);
        return !std::equal(parts.begin(), parts.end(), otherParts.begin(), otherParts.end(),
                           [this](RecordId a, RecordId b) { return isSame(a, b); });
    }

    bool isSame(RecordId entity, RecordId otherEntity)
    {
        FieldList fields = drawnFields(m_one, entity);
        FieldList otherFields = drawnFields(m_other, otherEntity);
        if (!m_one.isType(entity, "INSERT") || !m_other.isType(otherEntity, "INSERT"))
            return fields == otherFields;
        const RecordId block = takeBlock(m_one, fields);
        const RecordId otherBlock = takeBlock(m_other, otherFields);
        const bool areThere = isValid(block) && isValid(otherBlock);
        if (areThere)
            m_waiting.emplace_back(block, otherBlock);
        return fields == otherFields && areThere == (isValid(block) || isValid(otherBlock));
    }

    /// The block that a reference names. Of an anonymous one the name means nothing: it is taken out.
    static RecordId takeBlock(const Drawing &drawing, FieldList &fields)
    {
        Field *name = findField(fields, 2);
        if (!name)
            return noRecord;
        const RecordId block = drawing.blocks().find(name->text());
        name->value = name->text().startsWith(u'*') ? QString() : name->text().toCaseFolded();
        return block;
    }

    const Drawing &m_one;
    const Drawing &m_other;
    QSet<QString> m_compared;
    std::vector<std::pair<RecordId, RecordId>> m_waiting;
};

} // namespace

/// Whether two entries of the same name look different. What only one of them says does not count: versions differ in
/// that, and so do programs in what they leave unsaid.
bool lookDifferent(TableKind kind, const FieldList &one, const FieldList &other)
{
    std::vector<int> codes = definingCodes(kind);
    if (kind == TableKind::DimStyle) {
        for (const Field &field : one) {
            // Texts are names and markers here, handles mean something in their own drawing only, 70 is the flags.
            const TagType type = tagType(field.code);
            if (type != TagType::Handle && type != TagType::Text && field.code != 70)
                codes.push_back(field.code);
        }
    }
    return std::any_of(codes.begin(), codes.end(), [&](int code) {
        const std::vector<FieldValue> values = valuesOf(one, code);
        const std::vector<FieldValue> others = valuesOf(other, code);
        return !values.empty() && !others.empty() && values != others;
    });
}

bool drawDifferently(const Drawing &drawing, RecordId block, const Drawing &other, RecordId otherBlock)
{
    return BlockComparison(drawing, other).isDifferent(block, otherBlock);
}

} // namespace host::drawing
