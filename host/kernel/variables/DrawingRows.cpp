// What the drawing itself keeps: in its header, in the object of a setting, and what follows from its tables.

#include "host/drawing/annotation/AnnotationScale.h"
#include "host/drawing/editing/WipeoutFrame.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/text/DrawingVariables.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/variables/VariableRows.h"

namespace host::kernel {

using namespace rows;
using namespace Qt::StringLiterals;
using drawing::TableKind;
using drawing::Vec2;
using drawing::Vec3;
using enum drawing::Version;

namespace {

constexpr double unbounded = 1e99;
constexpr double leastScale = 1e-99;
constexpr int shortest = -32768;
constexpr int longest = 32767;

/// The entry's name as its table spells it.
template <TableKind kind>
std::optional<VariableValue> nameInTable(const Document &document, const VariableValue &value)
{
    const drawing::Tables &tables = document.drawing().tables();
    const drawing::RecordId record = tables.find(kind, std::get<QString>(value));
    return isValid(record) ? std::optional<VariableValue>(tables.name(record)) : std::nullopt;
}

/// Nothing is drawn on a frozen layer, nor on one of another drawing.
std::optional<VariableValue> drawableLayer(const Document &document, const VariableValue &value)
{
    constexpr int isFrozenBit = 1;
    const drawing::RecordId layer = document.drawing().tables().find(TableKind::Layer, std::get<QString>(value));
    if (!isValid(layer) || (document.drawing().tags(layer).integer(70) & isFrozenBit) != 0)
        return std::nullopt;
    const QString name = document.drawing().tables().name(layer);
    return name.contains(u'|') ? std::nullopt : std::optional<VariableValue>(name);
}

/// The spelling of the two names that stand for no linetype of their own; empty for others.
QString logicalName(const QString &name)
{
    for (const QString &known : {u"ByLayer"_s, u"ByBlock"_s})
        if (known.compare(name, Qt::CaseInsensitive) == 0)
            return known;
    return {};
}

std::optional<VariableValue> usableLinetype(const Document &document, const VariableValue &value)
{
    const QString logical = logicalName(std::get<QString>(value));
    return logical.isEmpty() ? nameInTable<TableKind::Linetype>(document, value)
                             : std::optional<VariableValue>(logical);
}

VariableValue currentLinetype(const Document &document)
{
    const QString name = document.drawing().header().text(u"$CELTYPE", u"ByLayer"_s);
    const QString logical = logicalName(name.isEmpty() ? u"ByLayer"_s : name);
    return logical.isEmpty() ? name : logical;
}

void setCurrentLinetype(Document &document, const VariableValue &value)
{
    document.drawing().header().set(u"$CELTYPE", drawing::Field{6, std::get<QString>(value)});
}

VariableValue currentColour(const Document &document)
{
    return drawing::colourText(document.drawing().header().integer(u"$CECOLOR", 256));
}

/// The colour's number by its name, BYLAYER and BYBLOCK among them; nothing for what is no colour.
std::optional<int> colourByName(const QString &name)
{
    static const QStringList names = {u"BYBLOCK"_s, u"RED"_s,  u"YELLOW"_s,  u"GREEN"_s,
                                      u"CYAN"_s,    u"BLUE"_s, u"MAGENTA"_s, u"WHITE"_s};
    if (name == u"BYLAYER"_s)
        return 256;
    if (const qsizetype number = names.indexOf(name); number >= 0)
        return static_cast<int>(number);
    bool isNumber = false;
    const int number = name.toInt(&isNumber);
    return isNumber && number >= 0 && number <= 256 ? std::optional(number) : std::nullopt;
}

/// CECOLOR is text to programs and a number in the file.
std::optional<VariableValue> colourName(const Document &, const VariableValue &value)
{
    const std::optional<int> number = colourByName(std::get<QString>(value).trimmed().toUpper());
    return number ? std::optional<VariableValue>(drawing::colourText(*number)) : std::nullopt;
}

void setCurrentColour(Document &document, const VariableValue &value)
{
    document.drawing().header().set(u"$CECOLOR", drawing::Field{62, qint64(*colourByName(std::get<QString>(value)))});
}

std::optional<VariableValue> nameOfLayout(const Document &document, const VariableValue &value)
{
    const QString name = layoutName(document.drawing(), std::get<QString>(value));
    return name.isEmpty() ? std::nullopt : std::optional<VariableValue>(name);
}

VariableValue annotationScaleValue(const Document &document)
{
    return 1.0 / drawing::annotationFactor(document.drawing());
}

std::optional<VariableValue> named(const Document &, const VariableValue &value)
{
    return std::get<QString>(value).trimmed().isEmpty() ? std::nullopt : std::optional(value);
}

/// Layer, style, colour and the like of what is made next.
VariableRows currentThings()
{
    return {checked(drawableLayer, inHeader("CLAYER", 8, text("0"))),
            checked(usableLinetype, settable(setCurrentLinetype, text(""), computed("CELTYPE", currentLinetype))),
            checked(colourName, settable(setCurrentColour, text(""), computed("CECOLOR", currentColour))),
            checked(nameInTable<TableKind::Style>, inHeader("TEXTSTYLE", 7, text("Standard"))),
            checked(nameOfLayout, settable(
                                      [](Document &document, const VariableValue &value) {
                                          setCurrentLayout(document.drawing(), std::get<QString>(value));
                                      },
                                      text(""),
                                      computed("CTAB",
                                               [](const Document &document) -> VariableValue {
                                                   return currentLayout(document.drawing());
                                               }))),
            since(R13, inHeader("CELTSCALE", 40, 1.0, leastScale, unbounded)),
            since(R2000, inHeader("CELWEIGHT", 370, -1, -3, 211)),
            kept("CETRANSPARENCY", text("ByLayer")),
            since(R13, inHeader("CMLJUST", 70, 0, 0, 2)),
            since(R13, metric(20.0, inHeader("CMLSCALE", 40, 1.0))),
            since(R13, inHeader("CMLSTYLE", 2, text("Standard"))),
            kept("CMATERIAL", text("ByLayer")),
            kept("CPLOTSTYLE", text("ByColor")),
            inDictionary("CTABLESTYLE", text("Standard")),
            kept("CVIEWDETAILSTYLE", text("Imperial24")),
            kept("CVIEWSECTIONSTYLE", text("Imperial24")),
            inHeader("ELEVATION", 40, 0.0),
            inHeader("THICKNESS", 40, 0.0),
            inHeader("TRACEWID", 40, 0.05, 0, unbounded),
            metric(2.5, inHeader("TEXTSIZE", 40, 0.2, leastScale, unbounded)),
            inHeader("PLINEWID", 40, 0.0, 0, unbounded),
            since(R13, inHeader("PLINEGEN", 70, 0, 0, 1))};
}

VariableRows unitsAndLimits()
{
    return {inHeader("ANGBASE", 50, 0.0),
            inHeader("ANGDIR", 70, 0, 0, 1),
            inHeader("AUNITS", 70, 0, 0, 4),
            inHeader("AUPREC", 70, 0, 0, 8),
            inHeader("INSBASE", 10, Vec3{}),
            since(R2000, inHeader("INSUNITS", 70, 0, 0, 24)),
            inHeader("LIMCHECK", 70, 0, 0, 1),
            metric(Vec2{420.0, 297.0}, inHeader("LIMMAX", 10, Vec2{12.0, 9.0})),
            inHeader("LIMMIN", 10, Vec2{}),
            inHeader("LUNITS", 70, 2, 1, 5),
            inHeader("LUPREC", 70, 4, 0, 8),
            since(R14, inHeader("MEASUREMENT", 70, 0, 0, 1)),
            inHeader("UNITMODE", 70, 0, 0, 1),
            inHeader("USERI1", 70, 0, shortest, longest),
            inHeader("USERI2", 70, 0, shortest, longest),
            inHeader("USERI3", 70, 0, shortest, longest),
            inHeader("USERI4", 70, 0, shortest, longest),
            inHeader("USERI5", 70, 0, shortest, longest),
            inHeader("USERR1", 40, 0.0),
            inHeader("USERR2", 40, 0.0),
            inHeader("USERR3", 40, 0.0),
            inHeader("USERR4", 40, 0.0),
            inHeader("USERR5", 40, 0.0)};
}

/// How the drawing is shown and what it does by itself.
VariableRows drawingSwitches()
{
    return {inHeader("ATTMODE", 70, 1, 0, 2),
            inHeader("CHAMFERA", 40, 0.0, 0, unbounded),
            inHeader("CHAMFERB", 40, 0.0, 0, unbounded),
            since(R13, inHeader("CHAMFERC", 40, 0.0, 0, unbounded)),
            since(R13, inHeader("CHAMFERD", 40, 0.0, 0, 6.283185307179586)),
            since(R2000, inHeader("ENDCAPS", 280, 0, 0, 3)),
            since(R2000, inHeader("EXTNAMES", 290, 1, 0, 1)),
            inHeader("FILLETRAD", 40, 0.0, 0, unbounded),
            inHeader("FILLMODE", 70, 1, 0, 1),
            since(R2000, inHeader("HYPERLINKBASE", 1, text(""))),
            since(R2004, inHeader("INDEXCTL", 280, 0, 0, 3)),
            since(R2000, inHeader("JOINSTYLE", 280, 0, 0, 3)),
            inHeader("LTSCALE", 40, 1.0, leastScale, unbounded),
            since(R2000, inHeader("LWDISPLAY", 290, 0, 0, 1)),
            inHeader("MAXACTVP", 70, 64, 2, 64),
            inHeader("MIRRTEXT", 70, 0, 0, 1),
            since(R2000, inHeader("OLESTARTUP", 290, 0, 0, 1)),
            inHeader("ORTHOMODE", 70, 0, 0, 1),
            inHeader("PDMODE", 70, 0, 0, 127),
            inHeader("PDSIZE", 40, 0.0),
            since(R2004, inHeader("PROJECTNAME", 1, text(""))),
            since(R14, inHeader("PROXYGRAPHICS", 70, 1, 0, 1)),
            since(R13, inHeader("PSLTSCALE", 70, 1, 0, 1)),
            since(R2000, inHeader("PSTYLEMODE", 290, 1, 0, 1)),
            ofUser("PSTYLEPOLICY", 1, 0, 1),
            since(R2000, inHeader("PSVPSCALE", 40, 0.0, 0, unbounded)),
            inHeader("QTEXTMODE", 70, 0, 0, 1),
            inHeader("REGENMODE", 70, 1, 0, 1),
            inHeader("SKETCHINC", 40, 0.1, 0, unbounded),
            inHeader("SKPOLY", 70, 0, 0, 2),
            since(R2004, inHeader("SORTENTS", 280, 127, 0, 127)),
            inHeader("SPLFRAME", 70, 0, 0, 1),
            inHeader("SPLINESEGS", 70, 8, -32768, 32767),
            inHeader("SPLINETYPE", 70, 6, 5, 6),
            inHeader("TILEMODE", 70, 1, 0, 1),
            since(R13, inHeader("TREEDEPTH", 70, 3020, -32768, 32767)),
            inHeader("USRTIMER", 70, 1, 0, 1),
            inHeader("VISRETAIN", 70, 1, 0, 1),
            since(R2004, inHeader("XCLIPFRAME", 290, 2, 0, 2)),
            since(R2000, inHeader("XEDIT", 290, 1, 0, 1)),
            since(R2007, inHeader("DGNFRAME", 280, 2, 0, 2)),
            since(R2007, inHeader("DWFFRAME", 280, 2, 0, 2))};
}

/// What the drawing keeps among its objects.
VariableRows settingObjects()
{
    return {{"WIPEOUTFRAME", VariablePlace::Computed, VariableAccess::ReadWrite, 1, 0, 2, 0,
             [](const Document &document) -> VariableValue { return drawing::wipeoutFrame(document.drawing()); }},
            checked(named, inDictionary("CANNOSCALE", text("1:1"))),
            computed("CANNOSCALEVALUE", annotationScaleValue),
            inDictionary("ANNOALLVISIBLE", 1, 0, 1),
            kept("ANNOAUTOSCALE", -4, -4, 4),
            ofUser("ANNOTATIVEDWG", 0, 0, 1),
            inDictionary("FRAME", 3, 0, 3),
            inDictionary("IMAGEFRAME", 1, 0, 2),
            inDictionary("PDFFRAME", 1, 0, 2),
            inDictionary("IMAGEQUALITY", 1, 0, 1),
            inDictionary("MSLTSCALE", 1, 0, 1),
            inDictionary("MSOLESCALE", 1.0),
            inDictionary("MTEXTDETECTSPACE", 1, 0, 1),
            kept("MLEADERSTYLE", text("Standard")),
            inDictionary("XREFREGAPPCTL", 0, 0, 1)};
}

} // namespace

VariableRows drawingRows()
{
    VariableRows all = currentThings();
    for (const VariableRows &group : {unitsAndLimits(), drawingSwitches(), settingObjects()})
        all.insert(all.end(), group.begin(), group.end());
    return all;
}

} // namespace host::kernel
