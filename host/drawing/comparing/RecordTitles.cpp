#include "host/drawing/comparing/RecordTitles.h"

#include "files/qt/VisibleText.h"
#include "host/drawing/comparing/Comparison.h"
#include "host/drawing/comparing/PlacedFields.h"
#include "host/drawing/properties/EntityProperties.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/DimensionVariables.h"
#include "host/drawing/records/Layouts.h"
#include "host/drawing/records/Tables.h"

#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace host::drawing {

namespace {

constexpr int layerNameCode = 8;
constexpr int titleDigits = 8;

/// What people call groups of what is no entity.
struct TableGroup
{
    const char *type;
    int code;
    const char *name;
};

constexpr TableGroup tableGroups[] = {
    {"", 2, "Name"},
    {"", 70, "Flags"},
    {"BLOCK", 1, "Path"},
    {"BLOCK", 4, "Description"},
    {"BLOCK", 8, "Layer"},
    {"BLOCK", 10, "Origin"},
    {"LAYER", 6, "Linetype"},
    {"LAYER", 62, "Color"},
    {"LAYER", 290, "Plottable"},
    {"LAYER", 370, "LineWeight"},
    {"LAYER", 420, "TrueColor"},
    {"LTYPE", 3, "Description"},
    {"LTYPE", 40, "PatternLength"},
    {"LTYPE", 49, "Dash"},
    {"STYLE", 3, "FontFile"},
    {"STYLE", 4, "BigFontFile"},
    {"STYLE", 40, "Height"},
    {"STYLE", 41, "Width"},
    {"STYLE", 50, "ObliqueAngle"},
};

/// In which way an entity is found by its values.
enum class Look
{
    Ends,   ///< (0,0)-(1,1)
    Round,  ///< (0,0) radius 1
    Named,  ///< door at (0,0): group 2
    Written ///< "Text" at (0,0): group 1
};

struct LookOfType
{
    const char *type;
    Look look;
};

constexpr LookOfType looks[] = {
    {"ARC", Look::Round},     {"ATTDEF", Look::Written}, {"ATTRIB", Look::Written},
    {"CIRCLE", Look::Round},  {"INSERT", Look::Named},   {"LINE", Look::Ends},
    {"MTEXT", Look::Written}, {"TEXT", Look::Written},   {"TOLERANCE", Look::Written},
};

QString pointText(const Vec3 &point, int digits)
{
    const auto number = [digits](double value) { return QString::number(value + 0.0, 'g', digits); };
    QString text = u'(' + number(point.x) + u',' + number(point.y);
    if (point.z != 0.0)
        text += u',' + number(point.z);
    return text + u')';
}

QString quoted(const QString &text)
{
    return u'"' + files::visibleText(text) + u'"';
}

/// Where an entity is, in the values that say most of it.
QString whereabouts(const TagList &tags, QByteArrayView type)
{
    if (!tags.find(10))
        return {};
    const QString point = pointText(tags.point(10), titleDigits);
    const auto *const row = std::ranges::find(looks, type, &LookOfType::type);
    if (row == std::end(looks))
        return u"at "_s + point;
    switch (row->look) {
    case Look::Ends:
        return point + u'-' + pointText(tags.point(11), titleDigits);
    case Look::Round:
        return u"%1 radius %2"_s.arg(point, QString::number(tags.real(40), 'g', titleDigits));
    case Look::Named:
        return u"%1 at %2"_s.arg(files::visibleText(tags.text(2)), point);
    case Look::Written:
        break;
    }
    return u"%1 at %2"_s.arg(quoted(tags.text(1)), point);
}

QString placeWords(const Drawing &drawing, RecordId entity)
{
    const QString place = files::visibleText(placeName(drawing, entity));
    const RecordId container = drawing.parent(entity);
    if (drawing.kind(entity) == RecordKind::Child)
        return u"of %1 %2"_s.arg(QString::fromUtf8(drawing.typeName(container)), place);
    if (drawing.kind(container) == RecordKind::Block && drawing.layouts().ofBlock(container).isEmpty())
        return u"in block %1"_s.arg(place);
    return place == "Model"_L1 ? QString() : u"on sheet %1"_s.arg(place);
}

bool isDrawnKindOf(RecordKind kind)
{
    return kind == RecordKind::Entity || kind == RecordKind::Child;
}

/// "StartPoint=", "{NAME:330=".
QString groupLabel(RecordKind kind, QByteArrayView type, const PlacedField &placed)
{
    const QString name = placed.part.isEmpty() ? groupName(kind, type, placed.field.code) : QString();
    if (!name.isEmpty())
        return name + u'=';
    const QString part = placed.part.isEmpty() ? QString() : files::visibleText(QString::fromUtf8(placed.part)) + u':';
    return part + QString::number(placed.field.code) + u'=';
}

} // namespace

QString groupName(RecordKind kind, QByteArrayView type, int code)
{
    if (isDrawnKindOf(kind)) {
        for (const EntityProperty &property : entityProperties())
            if (property.code == code && hasProperty(type, property))
                return QString::fromLatin1(property.name);
        return {};
    }
    if (type == "DIMSTYLE")
        for (const DimensionVariable &variable : dimensionVariables())
            if (variable.styleCode == code)
                return QString::fromLatin1(variable.name);
    const bool isNamed = kind == RecordKind::TableEntry || kind == RecordKind::Block;
    for (const TableGroup &row : tableGroups)
        if (row.code == code && (type == row.type || (isNamed && row.type[0] == '\0')))
            return QString::fromLatin1(row.name);
    return {};
}

QString valueText(const FieldValue &value)
{
    constexpr int exact = QLocale::FloatingPointShortest;
    if (const auto *number = std::get_if<double>(&value))
        return QString::number(*number + 0.0, 'g', exact);
    if (const auto *whole = std::get_if<qint64>(&value))
        return QString::number(*whole);
    if (const auto *text = std::get_if<QString>(&value))
        return quoted(*text);
    if (const auto *handle = std::get_if<Handle>(&value))
        return handle->toString();
    if (const auto *bytes = std::get_if<QByteArray>(&value))
        return u"<%1 bytes %2>"_s.arg(bytes->size()).arg(QString::fromLatin1(bytes->left(16).toHex()));
    return pointText(Field{0, value}.point(), exact);
}

RecordTitles::RecordTitles(const Drawing &drawing) : m_drawing(drawing)
{
    for (RecordId id = drawing.first(); isValid(id); id = drawing.next(id))
        if (drawing.kind(id) == RecordKind::Object && drawing.typeName(id).endsWith("DICTIONARY"))
            for (const Dictionaries::Entry &entry : drawing.dictionaries().entries(id))
                if (isValid(entry.record))
                    m_entryNames.insert(entry.record, entry.name);
}

QString RecordTitles::name(RecordId record) const
{
    const QString type = files::visibleText(QString::fromUtf8(m_drawing.typeName(record)));
    const auto named = [&type](const QString &name) {
        return name.isEmpty() ? type : type + u' ' + files::visibleText(name);
    };
    switch (m_drawing.kind(record)) {
    case RecordKind::Variable:
        return type;
    case RecordKind::Class:
        return named(m_drawing.tags(record).text(1));
    case RecordKind::TableEntry:
        return named(m_drawing.tables().name(record));
    case RecordKind::Block:
        return named(m_drawing.blocks().name(record));
    default: {
        const QString handle = m_drawing.handle(record).toString();
        const QString entry = m_entryNames.value(record);
        return named(m_drawing.handle(record).isNull() ? entry : entry.isEmpty() ? handle : handle + u' ' + entry);
    }
    }
}

QString RecordTitles::title(RecordId record) const
{
    QString text = name(record);
    if (!isDrawnKindOf(m_drawing.kind(record)))
        return text;
    const TagList tags = m_drawing.tags(record);
    text += u" on layer "_s + files::visibleText(tags.text(layerNameCode, u"0"_s));
    for (const QString &words : {placeWords(m_drawing, record), whereabouts(tags, m_drawing.typeName(record))})
        if (!words.isEmpty())
            text += u' ' + words;
    return text;
}

QString RecordTitles::line(RecordId record, IgnoredKinds ignored) const
{
    QString text = name(record);
    const RecordKind kind = m_drawing.kind(record);
    if (isDrawnKindOf(kind))
        if (const QString place = placeWords(m_drawing, record); !place.isEmpty())
            text += u' ' + place;
    const bool isVariable = kind == RecordKind::Variable;
    for (const PlacedField &placed : placedFields(m_drawing, record, ignored))
        text += u' ' + (isVariable ? QString() : groupLabel(kind, m_drawing.typeName(record), placed)) +
                valueText(placed.field.value);
    return text;
}

} // namespace host::drawing
