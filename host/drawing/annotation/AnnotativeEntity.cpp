#include "host/drawing/annotation/AnnotativeEntity.h"

#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/tags/GroupCodes.h"

#include <map>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

/// Groups of an entity and what stands for them in its representations.
struct RepresentedType
{
    QByteArrayView type;
    std::vector<std::pair<int, int>> taken; ///< code of the entity, code of the representation
    std::vector<int> scaled;                ///< lengths; where the representation has none of its own
    bool hasRotation = true;                ///< group 50 of both
};

const RepresentedType *representedType(QByteArrayView type)
{
    static const std::vector<RepresentedType> types = {
        {"TEXT", {{10, 10}, {11, 11}, {72, 70}}, {40}},
        {"ATTRIB", {{10, 10}, {11, 11}, {72, 70}}, {40}},
        {"MTEXT", {{10, 11}, {11, 10}, {41, 40}, {71, 70}}, {40}, false},
        {"INSERT", {{10, 10}, {41, 41}, {42, 42}, {43, 43}}, {41, 42, 43}},
    };
    const auto found = std::ranges::find(types, type, &RepresentedType::type);
    return found == types.end() ? nullptr : &*found;
}

bool hasExtension(const TagList &tags)
{
    return std::ranges::any_of(tags,
                               [](const Tag &tag) { return tag.code == 102 && tag.trimmed() == "{ACAD_XDICTIONARY"; });
}

/// Many entities may name one large dictionary.
RecordId findGranted(const Drawing &drawing, RecordId dictionary, QStringView name, WorkBudget &work)
{
    constexpr std::size_t usual = 300;
    if (!isValid(dictionary))
        return noRecord;
    if (work.left() <= 0) {
        work.refuse();
        return noRecord;
    }
    if (const std::size_t size = drawing.tags(dictionary).size(); size > usual)
        work.charge(static_cast<std::int64_t>(size));
    return drawing.dictionaries().find(dictionary, name);
}

/// The part of a representation that its type has, behind that for all types.
TagList representedData(const TagList &representation)
{
    const auto scale = std::ranges::find(representation, 340, &Tag::code);
    return TagList({scale == representation.end() ? scale : scale + 1, representation.end()}, representation.codec());
}

QByteArray numberText(double value)
{
    return QByteArray::number(value, 'g', 17);
}

/// The values that take the place of an entity's own.
class ReplacedGroups
{
public:
    void set(int code, const QByteArray &value) { m_values[code] = value; }
    void setPoint(int code, const Vec3 &point)
    {
        set(code, numberText(point.x));
        set(code + 10, numberText(point.y));
        set(code + 20, numberText(point.z));
    }
    void leaveOut(int code) { m_leftOut.push_back(code); }

    bool replaces(int code) const { return m_values.contains(code) || std::ranges::count(m_leftOut, code) > 0; }
    const std::map<int, QByteArray> &values() const { return m_values; }

private:
    std::map<int, QByteArray> m_values; // x before y before z
    std::vector<int> m_leftOut;
};

void takeGroups(ReplacedGroups &groups, const RepresentedType &type, const TagList &own, const TagList &data)
{
    for (const auto &[code, from] : type.taken) {
        const Tag *tag = data.find(from);
        if (tag && isPointCode(code))
            groups.setPoint(code, data.point(from, own.point(code)));
        else if (tag)
            groups.set(code, tag->trimmed().toByteArray());
    }
}

/// Lengths without a value of their own. A factor that a record leaves out is 1, as heights are.
void scaleGroups(ReplacedGroups &groups, const RepresentedType &type, const TagList &own, double ratio)
{
    for (const int code : type.scaled) {
        if (!groups.replaces(code))
            groups.set(code, numberText(own.real(code, 1.0) * ratio));
    }
}

/// The new groups stand where the type's own begin. An embedded object, which has the columns of a text, is left to
/// that of the representation.
std::vector<Tag> replacedTags(const TagList &own, const ReplacedGroups &groups, std::vector<QByteArray> &values,
                              const TagList *embedded)
{
    for (const auto &[code, value] : groups.values())
        values.push_back(value);
    std::vector<Tag> tags;
    bool isOfType = false;
    BraceDepth braces;
    for (const Tag &tag : own.own()) {
        const bool isInside = braces.isInside(tag);
        if (isInside || !isOfType || !groups.replaces(tag.code))
            tags.push_back(tag);
        if (isInside || isOfType || tag.code != subclassCode || tag.trimmed() == "AcDbEntity")
            continue;
        isOfType = true;
        auto value = values.begin();
        for (const auto &[code, text] : groups.values())
            tags.push_back({.code = code, .value = *value++, .whole = {}});
    }
    auto rest = own.begin() + static_cast<std::ptrdiff_t>(own.own().size());
    if (embedded) {
        tags.push_back({.code = 101, .value = "Embedded Object", .whole = {}});
        tags.insert(tags.end(), embedded->begin(), embedded->end());
        rest = std::find_if(rest, own.end(), [](const Tag &tag) { return tag.code >= 1000; });
    }
    tags.insert(tags.end(), rest, own.end());
    return tags;
}

} // namespace

AnnotativeEntity::AnnotativeEntity(const Drawing &drawing, const AnnotationView &view, RecordId entity,
                                   const TagList &tags, WorkBudget &work)
    : m_own(tags)
{
    if (view.scale.isEmpty() || !hasExtension(tags))
        return;
    const RecordId extension = drawing.dictionaries().extensionDictionary(entity);
    const RecordId data = findGranted(drawing, extension, u"AcDbContextDataManager", work);
    const RecordId scales = findGranted(drawing, data, u"ACDB_ANNOTATIONSCALES", work);
    if (!isValid(scales))
        return;
    // More than any drawing has scales is damage, and dear to look through for every entity.
    constexpr std::size_t most = 3000;
    const std::size_t size = drawing.tags(scales).size();
    if (size > most) {
        work.charge(static_cast<std::int64_t>(size));
        work.refuse();
        return;
    }
    look(drawing, view, scales);
}

void AnnotativeEntity::look(const Drawing &drawing, const AnnotationView &view, RecordId dictionary)
{
    Representation current;
    Representation standard;
    bool hasAny = false;
    for (const Dictionaries::Entry &entry : drawing.dictionaries().entries(dictionary)) {
        if (!isValid(entry.record))
            continue;
        const TagList tags = drawing.tags(entry.record);
        const RecordId scale = drawing.find(tags.handle(340));
        if (!drawing.isAlive(scale) || !drawing.isType(scale, "SCALE"))
            continue;
        hasAny = true;
        const Representation found{entry.record, scale};
        if (tags.integer(290) != 0)
            standard = found;
        if (drawing.tags(scale).text(300) == view.scale)
            current = found;
    }
    m_isHidden = hasAny && !isValid(current.record) && !view.showsAll;
    if (isValid(current.record) && current.record != standard.record)
        change(drawing, current, standard);
}

void AnnotativeEntity::change(const Drawing &drawing, const Representation &current, const Representation &standard)
{
    const RepresentedType *type = representedType(m_own[0].trimmed());
    if (!type)
        return;
    const TagList data = representedData(drawing.tags(current.record));
    double ratio = 1.0;
    double turned = 0.0;
    if (isValid(standard.record)) {
        const auto from = scaleFactor(drawing.tags(standard.scale));
        const auto to = scaleFactor(drawing.tags(current.scale));
        ratio = from && to ? *to / *from : 1.0;
        turned = representedData(drawing.tags(standard.record)).real(50);
    }
    ReplacedGroups groups;
    takeGroups(groups, *type, m_own, data);
    scaleGroups(groups, *type, m_own, ratio);
    // The direction of a paragraph takes the place of its angle.
    if (!type->hasRotation)
        groups.leaveOut(50);
    else if (data.find(50) && data.real(50) != turned)
        groups.set(50, numberText(data.real(50)));
    const bool isParagraph = m_own[0].trimmed() == "MTEXT";
    const std::size_t end = m_own.own().size();
    const bool hasColumns = data.integer(71) != 0 || (end < m_own.size() && m_own[end].code == 101);
    m_changed.emplace(replacedTags(m_own, groups, m_values, isParagraph && hasColumns ? &data : nullptr),
                      m_own.codec());
}

} // namespace host::drawing
