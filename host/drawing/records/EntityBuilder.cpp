#include "host/drawing/records/EntityBuilder.h"

#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/EntityRules.h"
#include "host/drawing/records/Structure.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/tags/DrawingTexts.h"
#include "host/drawing/tags/GroupCodes.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

bool isNumber(const Field &field)
{
    return std::holds_alternative<double>(field.value) || std::holds_alternative<qint64>(field.value);
}

/// What a value of this code has to be, when it is not; empty when it is.
QString valueFault(const Field &field)
{
    switch (tagType(field.code)) {
    case TagType::Real:
        return isNumber(field) || (isPointCode(field.code) && isPoint(field)) ? QString()
                                                                              : DrawingTexts::tr("a number");
    case TagType::Int16:
    case TagType::Int32:
    case TagType::Int64:
    case TagType::Bool:
        return isNumber(field) ? QString() : DrawingTexts::tr("a number");
    case TagType::Handle:
        return std::holds_alternative<Handle>(field.value) || std::holds_alternative<QString>(field.value)
                   ? QString()
                   : DrawingTexts::tr("a handle");
    case TagType::Text:
        return std::holds_alternative<QString>(field.value) ? QString() : DrawingTexts::tr("a text");
    case TagType::Binary:
        break;
    }
    return {};
}

Field inForm(const Field &field, PointForm form)
{
    const bool isMainPoint = field.code >= 10 && field.code <= 18;
    if (!isPoint(field) || form == PointForm::AsGiven)
        return field;
    if (form == PointForm::Flat && isMainPoint)
        return {field.code, field.point().xy()};
    return {field.code, field.point()};
}

/// Type, handle, owner and {...} groups are not the caller's to say.
FieldList withoutHead(const FieldList &fields)
{
    FieldList body;
    bool isInGroup = false;
    bool isInHead = true;
    for (const Field &field : fields) {
        if (field.code == groupCode) {
            isInGroup = field.text().startsWith(u'{');
            continue;
        }
        isInHead = isInHead && field.code != subclassCode;
        const bool isHead = field.code == 0 || field.code == 5 || (field.code == 330 && isInHead);
        if (!isInGroup && !isHead)
            body.push_back(field);
    }
    return body;
}

bool has(const FieldList &fields, int code)
{
    return findField(fields, code) != nullptr;
}

bool hasRecord(const FieldList &fields)
{
    return std::any_of(fields.begin(), fields.end(), [](const Field &field) {
        return field.code == subclassCode && field.text() == "AcDbXrecord"_L1;
    });
}

bool isBuiltInLinetype(const QString &name)
{
    return name.isEmpty() || name.compare(u"ByLayer", Qt::CaseInsensitive) == 0 ||
           name.compare(u"ByBlock", Qt::CaseInsensitive) == 0 || name.compare(u"Continuous", Qt::CaseInsensitive) == 0;
}

} // namespace

EntityBuilder::EntityBuilder(const Drawing &drawing, FieldList fields) : m_drawing(drawing)
{
    const Field *type = findField(fields, 0);
    m_type = type ? type->text().trimmed().toUpper() : QString();
    m_rule = entityRule(m_type);
    fields = withoutHead(fields);
    const auto isXdata = [](const Field &field) { return field.code >= firstXdataCode; };
    const auto firstXdata = std::stable_partition(fields.begin(), fields.end(), std::not_fn(isXdata));
    m_xdata.assign(firstXdata, fields.end());
    fields.erase(firstXdata, fields.end());
    // An embedded object, or a record that an attribute has in its place, uses the codes of its own again: only the
    // given order keeps them apart.
    m_keepsOrder = !m_rule || has(fields, embeddedObjectCode) || hasRecord(fields);
    if (!m_keepsOrder || !hasMarkers(drawing))
        std::erase_if(fields, [](const Field &field) { return field.code == subclassCode; });
    m_fields = std::move(fields);
    check();
    if (isGood() && m_rule)
        complete();
}

void EntityBuilder::fail(const QString &text)
{
    if (m_error.isEmpty())
        m_error = u"%1: %2"_s.arg(m_type, text);
}

void EntityBuilder::check()
{
    if (m_type.isEmpty()) {
        m_error = DrawingTexts::tr("group 0 (the type) is missing");
        return;
    }
    if (!m_rule && !mayBeEntity(m_type))
        return fail(DrawingTexts::tr("this is no entity"));
    if (!m_rule && hasMarkers(m_drawing) && !has(m_fields, subclassCode))
        return fail(DrawingTexts::tr("this type is not known, and its subclass markers (group 100) are missing"));
    // What drawings of R12 have, those before have as well.
    const Version version = std::max(m_drawing.version(), Version::R12);
    if (m_rule && version < m_rule->since)
        return fail(DrawingTexts::tr("a drawing of this version has no such entity"));
    checkValues();
    if (isGood())
        checkReferences();
}

void EntityBuilder::checkValues()
{
    for (const int code : m_rule ? m_rule->required : std::vector<int>()) {
        const Field *field = findField(m_fields, code);
        if (!field)
            return fail(DrawingTexts::tr("group %1 is missing").arg(code));
        if (code >= 10 && code <= 18 && !isPoint(*field))
            return fail(DrawingTexts::tr("group %1 is not a point").arg(code));
    }
    for (const FieldList *fields : {&m_fields, &m_xdata}) {
        for (const Field &field : *fields) {
            if (const QString fault = valueFault(field); !fault.isEmpty())
                return fail(DrawingTexts::tr("group %1 is not %2").arg(field.code).arg(fault));
        }
    }
}

void EntityBuilder::checkReferences()
{
    if (const Field *linetype = findField(m_fields, 6);
        linetype && !isBuiltInLinetype(linetype->text()) &&
        !isValid(m_drawing.tables().find(TableKind::Linetype, linetype->text())))
        return fail(DrawingTexts::tr("linetype %1 is not in the drawing").arg(linetype->text()));
    const bool isText =
        m_type == u"TEXT" || m_type == u"MTEXT" || m_type == u"ATTRIB" || m_type == u"ATTDEF" || m_type == u"RTEXT";
    if (const Field *style = isText ? findField(m_fields, 7) : nullptr;
        style && !isValid(m_drawing.tables().find(TableKind::Style, style->text())))
        return fail(DrawingTexts::tr("text style %1 is not in the drawing").arg(style->text()));
    if (m_type == u"INSERT" && !isValid(m_drawing.blocks().find(findField(m_fields, 2)->text())))
        return fail(DrawingTexts::tr("block %1 is not in the drawing").arg(findField(m_fields, 2)->text()));
}

void EntityBuilder::complete()
{
    FieldList missing;
    std::copy_if(m_rule->defaults.begin(), m_rule->defaults.end(), std::back_inserter(missing),
                 [this](const Field &field) { return !has(m_fields, field.code); });
    m_fields.insert(m_fields.begin(), missing.begin(), missing.end());
    for (Field &field : m_fields)
        field = inForm(field, m_rule->points);
    if (m_rule->type != "LWPOLYLINE"_L1)
        return;
    const auto vertices = std::count_if(m_fields.begin(), m_fields.end(), [](const Field &f) { return f.code == 10; });
    setField(m_fields, 90, qint64(vertices));
    // Readers count on the number of vertices standing before the first of them, and on whole-polyline groups too.
    const auto isOfWhole = [](const Field &f) { return f.code == 90 || f.code == 70 || f.code == 43 || f.code == 38; };
    std::stable_partition(m_fields.begin(), m_fields.end(), isOfWhole);
}

FieldList EntityBuilder::build(FieldList head, Space space) const
{
    FieldList result = std::move(head);
    const bool withMarkers = hasMarkers(m_drawing);
    if (m_keepsOrder) {
        std::copy_if(m_fields.begin(), m_fields.end(), std::back_inserter(result),
                     [](const Field &field) { return field.code != 67; });
        const auto layer = std::find_if(result.begin(), result.end(), [](const Field &f) { return f.code == 8; });
        if (space == Space::Paper)
            result.insert(layer, {67, qint64(1)});
    } else {
        if (withMarkers)
            result.push_back({subclassCode, u"AcDbEntity"_s});
        if (space == Space::Paper)
            result.push_back({67, qint64(1)});
        if (!has(m_fields, 8))
            result.push_back({8, u"0"_s});
        std::copy_if(m_fields.begin(), m_fields.end(), std::back_inserter(result),
                     [](const Field &field) { return isCommonCode(field.code) && field.code != 67; });
        appendParts(result);
    }
    result.insert(result.end(), m_xdata.begin(), m_xdata.end());
    return result;
}

void EntityBuilder::appendParts(FieldList &result) const
{
    std::vector<EntityPart> parts = entityParts(*m_rule, m_fields);
    if (parts.empty())
        parts.push_back({{}, {}, true});
    const auto ownPart = [&parts](int code) -> const EntityPart * {
        const auto found = std::find_if(parts.begin(), parts.end(), [code](const EntityPart &part) {
            return std::find(part.codes.begin(), part.codes.end(), code) != part.codes.end();
        });
        return found == parts.end() ? nullptr : &*found;
    };
    for (const EntityPart &part : parts) {
        if (hasMarkers(m_drawing) && !part.marker.isEmpty())
            result.push_back({subclassCode, QString(part.marker)});
        for (const Field &field : m_fields) {
            const EntityPart *own = ownPart(field.code);
            if (!isCommonCode(field.code) && (own == &part || (!own && part.takesRest)))
                result.push_back(field);
        }
    }
}

} // namespace host::drawing
