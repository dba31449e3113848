#include "host/app/window/panels/PropertyOrders.h"

#include "host/app/window/panels/LayerOrders.h"
#include "host/app/window/panels/PropertyTexts.h"
#include "host/commands/common/PropertyValues.h"
#include "host/kernel/documents/Document.h"

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

using drawing::PropertyKind;

PropertyOrder refusedOrder(const char *message, const QString &text)
{
    return {{}, QCoreApplication::translate("Properties", message).arg(text)};
}

bool isLogicalColour(const QString &text)
{
    return text.compare(u"ByLayer", Qt::CaseInsensitive) == 0 || text.compare(u"ByBlock", Qt::CaseInsensitive) == 0;
}

bool isListed(const QStringList &names, const QString &name)
{
    return names.contains(name, Qt::CaseInsensitive);
}

/// Why a name or word is no value; empty for one that is, and for kinds whose values are numbers.
PropertyOrder checkedWord(const drawing::Drawing &drawing, PropertyKind kind, const QString &text)
{
    if (kind == PropertyKind::Colour && !isLogicalColour(text) && !kernel::exactColour(text) &&
        kernel::colourNumber(text) == 0)
        return refusedOrder(QT_TRANSLATE_NOOP("Properties", "\"%1\" is no color."), text);
    if (kind == PropertyKind::Layer && !isListed(layerTexts(drawing), text))
        return refusedOrder(QT_TRANSLATE_NOOP("Properties", "There is no layer \"%1\"."), text);
    if (kind == PropertyKind::Linetype && !isListed(linetypeTexts(drawing), text))
        return refusedOrder(QT_TRANSLATE_NOOP("Properties", "There is no linetype \"%1\"."), text);
    if (kind == PropertyKind::Weight && !isListed(weightTexts(), text))
        return refusedOrder(QT_TRANSLATE_NOOP("Properties", "\"%1\" is no lineweight."), text);
    if (kind == PropertyKind::Transparency && transparencyWord(text).isEmpty())
        return refusedOrder(QT_TRANSLATE_NOOP("Properties", "\"%1\" is no transparency: ByLayer, ByBlock or 0 to 90."),
                            text);
    return {};
}

/// What CHPROP takes for a property of all entities; nothing for one that it does not know.
QStringList generalWords(const drawing::EntityProperty &property, const QString &text, const QString &number)
{
    const QByteArrayView name(property.name);
    if (name == "LinetypeScale")
        return {u"_ltScale"_s, number};
    if (name == "Thickness")
        return {u"_Thickness"_s, number};
    switch (property.kind) {
    case PropertyKind::Colour:
        return kernel::exactColour(text) ? QStringList{u"_Color"_s, u"_Truecolor"_s, text}
                                         : QStringList{u"_Color"_s, text};
    case PropertyKind::Layer:
        return {u"_LAyer"_s, text};
    case PropertyKind::Linetype:
        return {u"_LType"_s, text};
    case PropertyKind::Weight:
        return {u"_LWeight"_s, text.section(u' ', 0, 0)};
    case PropertyKind::Transparency:
        return {u"_TRansparency"_s, transparencyWord(text)};
    default:
        return {};
    }
}

bool isWordKind(PropertyKind kind)
{
    return kind == PropertyKind::Colour || kind == PropertyKind::Layer || kind == PropertyKind::Linetype ||
           kind == PropertyKind::Weight || kind == PropertyKind::Transparency;
}

/// What is chosen, each entity by itself: a value that one of them does not take leaves the others.
QString setterOf(const QString &name, const QString &value)
{
    return u"((lambda (s / i) (repeat (setq i (sslength s)) (setpropertyvalue (ssname s (setq i (1- i))) \"%1\" %2)))"
           " (ssget \"_I\"))"_s.arg(name, value);
}

} // namespace

PropertyOrder propertyOrder(const kernel::Document &document, const PropertyLine &line, const QString &text)
{
    const drawing::EntityProperty &property = drawing::entityProperties()[line.property];
    const PropertyOrder refusal = checkedWord(document.drawing(), property.kind, text);
    if (!refusal.error.isEmpty())
        return refusal;
    WrittenValue value;
    if (!isWordKind(property.kind))
        value = readValue(document, property, text);
    if (!value.error.isEmpty())
        return {{}, value.error};
    const QStringList words = property.type[0] == '\0' ? generalWords(property, text, value.lisp) : QStringList();
    if (!words.isEmpty())
        return {typedLine(QStringList{u"_CHPROP"_s} + words + QStringList{QString()}), {}};
    static constexpr const char *axes[] = {"/X", "/Y", "/Z"};
    const QString name =
        QString::fromLatin1(property.name) + (line.axis < 0 ? QString() : QString::fromLatin1(axes[line.axis]));
    return {setterOf(name, value.lisp), {}};
}

PropertyOrder variableOrder(const kernel::Document &document, const PropertyLine &line, const QString &text)
{
    const PropertyOrder refusal = checkedWord(document.drawing(), line.kind, text);
    if (!refusal.error.isEmpty())
        return refusal;
    const QString name = QString::fromLatin1(line.variable);
    if (line.kind == PropertyKind::Colour && kernel::exactColour(text))
        return refusedOrder(QT_TRANSLATE_NOOP("Properties", "%1: the current color is one of the table."), text);
    if (line.kind == PropertyKind::Weight)
        return {u"(setvar \"%1\" %2)"_s.arg(name).arg(weightOfText(text)), {}};
    if (line.kind != PropertyKind::Number && line.kind != PropertyKind::Length)
        return {u"(setvar \"%1\" %2)"_s.arg(name, lispText(text)), {}};
    const drawing::EntityProperty number{"",        line.kind == PropertyKind::Number ? "LinetypeScale" : "",
                                         0,         nullptr,
                                         nullptr,   drawing::PropertySection::General,
                                         line.kind, false};
    const WrittenValue value = readValue(document, number, text);
    return value.error.isEmpty() ? PropertyOrder{u"(setvar \"%1\" %2)"_s.arg(name, value.lisp), {}}
                                 : PropertyOrder{{}, value.error};
}

} // namespace host::app
