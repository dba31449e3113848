#include "host/app/window/panels/PropertyTexts.h"

#include "host/app/window/panels/LayerModel.h"
#include "host/app/window/panels/LayerOrders.h"
#include "host/app/window/panels/LayerRows.h"
#include "host/app/window/panels/StateIcons.h"
#include "host/commands/common/PropertyValues.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Tables.h"
#include "host/kernel/documents/CurrentProperties.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/Units.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/view/display/AciColor.h"

#include <QComboBox>

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

using drawing::EntityProperty;
using drawing::FieldValue;
using drawing::PropertyKind;

QString propertyText(const char *text)
{
    return QCoreApplication::translate("Properties", text);
}

QString directionText(const kernel::UnitFormat &format, double radians)
{
    const double turned = format.isClockwise ? format.angleBase - radians : radians - format.angleBase;
    return format.exactAngle(kernel::normalizedAngle(turned));
}

double coordinateOf(const FieldValue &value, int axis)
{
    const drawing::Vec3 point = drawing::Field{0, value}.point();
    return axis == 0 ? point.x : axis == 1 ? point.y : point.z;
}

QString lispReal(double value)
{
    const QString text = QString::number(value, 'g', 17);
    return text.contains(u'.') || text.contains(u'e') ? text : text + u".0"_s;
}

WrittenValue wrong(const char *message, const QString &text)
{
    return {{}, propertyText(message).arg(text)};
}

/// Sizes that must be more than nothing.
bool isSize(const EntityProperty &property)
{
    static const QSet<QByteArrayView> names = {"Radius",      "Height",      "TextHeight",    "Size",
                                               "WidthFactor", "RadiusRatio", "LinetypeScale", "PatternScale"};
    return names.contains(property.name);
}

WrittenValue readReal(const EntityProperty &property, std::optional<double> value, const QString &text)
{
    const bool isAngle = property.kind == PropertyKind::Angle || property.kind == PropertyKind::Direction;
    if (!value || !std::isfinite(*value))
        return wrong(isAngle ? QT_TRANSLATE_NOOP("Properties", "\"%1\" is no angle.")
                             : QT_TRANSLATE_NOOP("Properties", "\"%1\" is no number."),
                     text);
    if (isSize(property) && *value <= 0.0)
        return wrong(QT_TRANSLATE_NOOP("Properties", "%1: it must be more than 0."), text);
    if (QByteArrayView(property.name).startsWith("ScaleFactor") && *value == 0.0)
        return wrong(QT_TRANSLATE_NOOP("Properties", "%1: it must not be 0."), text);
    return {lispReal(*value), {}};
}

QStringList namesIn(const drawing::Drawing &drawing, drawing::TableKind kind)
{
    QStringList names;
    for (const drawing::RecordId entry : drawing.tables().entries(kind))
        names.append(drawing.tables().name(entry));
    std::ranges::sort(names, [](const QString &left, const QString &right) { return isNaturallyLess(left, right); });
    return names;
}

} // namespace

QString variesText()
{
    return propertyText(QT_TRANSLATE_NOOP("Properties", "*varies*"));
}

QString surveyedText(const kernel::Document &document, PropertyKind kind, const SurveyedValue &value, int axis)
{
    if (value.varies)
        return variesText();
    return value.common ? valueText(document, kind, *value.common, axis) : QString();
}

QString valueText(const kernel::Document &document, PropertyKind kind, const FieldValue &value, int axis)
{
    const kernel::UnitFormat format = kernel::UnitFormat::of(document.variables());
    const drawing::Field field{0, value};
    switch (kind) {
    case PropertyKind::Number:
        return QString::number(field.real(), 'g', 10);
    case PropertyKind::Whole:
        return QString::number(field.integer());
    case PropertyKind::Length:
        return format.exactLength(field.real());
    case PropertyKind::Angle:
        return format.exactAngle(field.real() * drawing::radians);
    case PropertyKind::Direction:
        return directionText(format, field.real() * drawing::radians);
    case PropertyKind::Point:
        return format.exactLength(coordinateOf(value, axis));
    case PropertyKind::Vector:
        return QString::number(coordinateOf(value, axis), 'g', 10);
    case PropertyKind::Weight:
        return entityWeightText(int(field.integer()));
    case PropertyKind::Transparency:
        return transparencyText(field.integer());
    default:
        return field.text();
    }
}

WrittenValue readValue(const kernel::Document &document, const EntityProperty &property, const QString &text)
{
    const kernel::UnitFormat format = kernel::UnitFormat::of(document.variables());
    switch (property.kind) {
    case PropertyKind::Whole: {
        bool isWhole = false;
        const int value = text.trimmed().toShort(&isWhole);
        return isWhole ? WrittenValue{QString::number(value), {}}
                       : wrong(QT_TRANSLATE_NOOP("Properties", "\"%1\" is no whole number."), text);
    }
    case PropertyKind::Angle:
        return readReal(property, format.parseAngle(text.trimmed()), text);
    case PropertyKind::Direction:
        return readReal(property, format.parseDirection(text.trimmed()), text);
    case PropertyKind::Text:
    case PropertyKind::TextStyle:
    case PropertyKind::DimensionStyle:
        return {lispText(text), {}};
    default:
        return readReal(property, format.parseLength(text.trimmed()), text);
    }
}

QString entityColourText(int index)
{
    if (index == drawing::colourByLayer)
        return u"ByLayer"_s;
    return index == 0 ? u"ByBlock"_s : colourText(index, {});
}

QString colourOfVariable(const QString &text)
{
    if (text.compare(u"BYLAYER", Qt::CaseInsensitive) == 0)
        return entityColourText(drawing::colourByLayer);
    return entityColourText(text.compare(u"BYBLOCK", Qt::CaseInsensitive) == 0 ? 0 : kernel::colourNumber(text));
}

QIcon colourTextIcon(const QString &text)
{
    if (const std::optional<qint64> exact = kernel::exactColour(text))
        return colourIcon(view::trueColor(int(*exact)));
    const int number = kernel::colourNumber(text);
    return number == 0 ? stateIcon(StateMark::None) : colourIcon(view::aciColor(number, view::shownGround()));
}

void fillColours(QComboBox &box)
{
    constexpr int lastColour = 9;
    for (const int index : {int(drawing::colourByLayer), 0})
        box.addItem(stateIcon(StateMark::None), entityColourText(index));
    for (int index = 1; index <= lastColour; ++index)
        box.addItem(colourTextIcon(colourText(index, {})), colourText(index, {}));
    box.addItem(stateIcon(StateMark::None), propertyText(QT_TRANSLATE_NOOP("Properties", "Other...")), u"choose"_s);
}

QString entityWeightText(int weight)
{
    return weight == -1 ? u"ByLayer"_s : weight == -2 ? u"ByBlock"_s : weightText(weight);
}

int weightOfText(const QString &text)
{
    for (const int weight : {-1, -2, -3})
        if (text.compare(entityWeightText(weight), Qt::CaseInsensitive) == 0)
            return weight;
    return kernel::nearestWeight(text.section(u' ', 0, 0).toDouble());
}

QStringList weightTexts()
{
    QStringList texts = {entityWeightText(-1), entityWeightText(-2), entityWeightText(-3)};
    for (const int weight : kernel::lineweights())
        texts.append(entityWeightText(weight));
    return texts;
}

QString transparencyText(qint64 stored)
{
    if (stored == 0)
        return u"ByLayer"_s;
    return stored == kernel::transparencyByBlock ? u"ByBlock"_s : QString::number(transparencyPercent(stored));
}

QString transparencyWord(const QString &text)
{
    for (const QString &word : {u"ByLayer"_s, u"ByBlock"_s})
        if (text.trimmed().compare(word, Qt::CaseInsensitive) == 0)
            return word;
    bool isNumber = false;
    const int percent = QString(text).remove(u'%').trimmed().toInt(&isNumber);
    return isNumber && percent >= 0 && percent <= 90 ? QString::number(percent) : QString();
}

QStringList linetypeTexts(const drawing::Drawing &drawing)
{
    QStringList names = namesIn(drawing, drawing::TableKind::Linetype);
    names.removeIf([](const QString &name) {
        return name.compare(u"ByLayer", Qt::CaseInsensitive) == 0 || name.compare(u"ByBlock", Qt::CaseInsensitive) == 0;
    });
    return QStringList{u"ByLayer"_s, u"ByBlock"_s} + names;
}

QStringList layerTexts(const drawing::Drawing &drawing)
{
    return namesIn(drawing, drawing::TableKind::Layer);
}

} // namespace host::app
