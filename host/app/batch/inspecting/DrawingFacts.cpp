#include "host/app/batch/inspecting/DrawingFacts.h"

#include "host/app/batch/inspecting/NamedFileFacts.h"
#include "host/app/batch/inspecting/RecordCounts.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Layouts.h"
#include "host/drawing/records/PageSetup.h"
#include "host/drawing/records/Symbols.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/text/DateText.h"
#include "host/kernel/documents/ExpressionSurroundings.h"
#include "host/view/build/Scene.h"

#include <QFileInfo>
#include <QJsonArray>

#include <array>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

using drawing::Drawing;
using drawing::RecordId;

/// By $INSUNITS.
constexpr std::array unitWords = {
    "unitless",   "inches",      "feet",        "miles",      "millimeters",        "centimeters", "meters",
    "kilometers", "microinches", "mils",        "yards",      "angstroms",          "nanometers",  "microns",
    "decimeters", "decameters",  "hectometers", "gigameters", "astronomical units", "light years", "parsecs",
};

QString versionWord(drawing::Version version)
{
    using drawing::Version;
    static const std::pair<Version, const char *> names[] = {
        {Version::R12, "R12"},     {Version::R13, "R13"},     {Version::R14, "R14"},
        {Version::R2000, "R2000"}, {Version::R2004, "R2004"}, {Version::R2007, "R2007"},
        {Version::R2010, "R2010"}, {Version::R2013, "R2013"}, {Version::R2018, "R2018"},
    };
    for (const auto &[known, name] : names)
        if (known == version)
            return QString::fromLatin1(name);
    return {};
}

QJsonArray pointArray(const drawing::Vec3 &point)
{
    return {point.x, point.y, point.z};
}

QJsonObject countsObject(const QMap<QString, qint64> &counts)
{
    QJsonObject object;
    for (const auto &[name, count] : counts.asKeyValueRange())
        object.insert(name, count);
    return object;
}

void insertText(QJsonObject &object, const QString &key, const QString &text)
{
    if (!text.trimmed().isEmpty())
        object.insert(key, text);
}

void addFormat(QJsonObject &facts, const Drawing &drawing)
{
    facts.insert(u"version"_s, versionWord(drawing.version()));
    facts.insert(
        u"code"_s,
        drawing.header().text(u"$ACADVER", u"AC"_s + QString::number(int(drawing.version())).rightJustified(4, u'0')));
    facts.insert(u"form"_s, drawing.isFromDwg() ? u"DWG"_s : drawing.isBinaryFile() ? u"binary"_s : u"text"_s);
    facts.insert(u"encoding"_s,
                 drawing.codec().isUtf8() ? u"UTF-8"_s : drawing.header().text(u"$DWGCODEPAGE", u"ANSI_1252"_s));
    facts.insert(u"size"_s, QFileInfo(drawing.path()).size());
}

void addDate(QJsonObject &facts, const QString &key, const Drawing &drawing, QStringView variable)
{
    const double julian = drawing.header().real(variable);
    if (julian > 0.0)
        insertText(facts, key, drawing::dateText(julian, u"YYYY-MO-DDTHH:MM:SS").value_or(QString()));
}

/// Who wrote it, and what its properties say: of files older than R2004 a record of the drawing has them.
void addSummary(QJsonObject &facts, const Drawing &drawing)
{
    addDate(facts, u"created"_s, drawing, u"$TDCREATE");
    addDate(facts, u"updated"_s, drawing, u"$TDUPDATE");
    insertText(facts, u"savedBy"_s, drawing.header().text(u"$LASTSAVEDBY"));
    insertText(facts, u"project"_s, drawing.header().text(u"$PROJECTNAME"));
    // A variable from R2004 on, a value of a record before.
    static const std::pair<int, QString> properties[] = {
        {2, u"title"_s}, {3, u"subject"_s}, {4, u"author"_s}, {6, u"comments"_s}, {7, u"keywords"_s}};
    const auto record = drawing.dictionaries().xrecord(drawing.dictionaries().root(), u"DWGPROPS");
    for (const auto &[code, key] : properties) {
        const drawing::Field *field = record ? drawing::findField(*record, code) : nullptr;
        insertText(facts, key, field ? field->text() : drawing.header().text(u'$' + key.toUpper()));
    }
}

void addUnits(QJsonObject &facts, const Drawing &drawing)
{
    const qint64 unit = drawing.header().integer(u"$INSUNITS");
    const bool isKnown = unit >= 0 && unit < qint64(unitWords.size());
    facts.insert(u"units"_s, isKnown ? QString::fromLatin1(unitWords[size_t(unit)]) : QString::number(unit));
    facts.insert(u"measurement"_s, drawing.header().integer(u"$MEASUREMENT") == 1 ? u"metric"_s : u"imperial"_s);
}

/// What drawings that this one shows lack is told.
void addExtents(QJsonObject &facts, const Drawing &drawing, const drawing::ReadableFiles &readable)
{
    QJsonObject extents;
    const drawing::Vec3 low = drawing.header().point(u"$EXTMIN");
    const drawing::Vec3 high = drawing.header().point(u"$EXTMAX");
    if (drawing.header().get(u"$EXTMIN") && low.x <= high.x && low.y <= high.y)
        extents.insert(u"header"_s, QJsonArray{pointArray(low), pointArray(high)});
    view::Scene scene(drawing, kernel::expressionSurroundings(drawing, readable));
    const drawing::Box box = scene.extents(view::Scene::modelSpace);
    if (!box.isEmpty())
        extents.insert(u"measured"_s, QJsonArray{pointArray(box.low), pointArray(box.high)});
    facts.insert(u"extents"_s, extents);
}

void addCounts(QJsonObject &facts, const RecordCounts &counts, const Drawing &drawing)
{
    facts.insert(u"entities"_s, QJsonObject{{u"count"_s, counts.entities},
                                            {u"inBlocks"_s, counts.inBlocks},
                                            {u"byType"_s, countsObject(counts.byType)},
                                            {u"byLayer"_s, countsObject(counts.byLayer)}});
    facts.insert(u"proxies"_s, counts.proxies);
    const drawing::Handle seed =
        drawing::Handle::fromText(drawing.header().text(u"$HANDSEED")).value_or(drawing::Handle{});
    facts.insert(u"handles"_s, QJsonObject{{u"used"_s, counts.withHandle},
                                           {u"missing"_s, counts.withoutHandle},
                                           {u"twice"_s, counts.sameHandle},
                                           {u"next"_s, seed.isNull() ? QString() : seed.toString()},
                                           {u"isNextFree"_s, seed.value > counts.highest.value}});
}

QJsonArray layersArray(const Drawing &drawing, const RecordCounts &counts)
{
    QJsonArray layers;
    for (const drawing::Layer &layer : drawing::allLayers(drawing))
        layers.append(QJsonObject{{u"name"_s, layer.name},
                                  {u"color"_s, layer.colour},
                                  {u"linetype"_s, layer.linetype},
                                  {u"on"_s, !layer.isOff},
                                  {u"frozen"_s, layer.isFrozen},
                                  {u"locked"_s, layer.isLocked},
                                  {u"plotted"_s, layer.isPlotted},
                                  {u"entities"_s, counts.onLayer.value(layer.name.toCaseFolded())}});
    return layers;
}

QJsonArray blocksArray(const Drawing &drawing, const RecordCounts &counts)
{
    QJsonArray blocks;
    for (const RecordId id : drawing.blocks().all()) {
        const drawing::Block block = drawing.blocks().read(id);
        if (block.isLayout())
            continue;
        QJsonObject object{{u"name"_s, block.name},
                           {u"entities"_s, counts.byContainer.value(id)},
                           {u"inserts"_s, counts.inserts.value(block.name.toCaseFolded())},
                           {u"anonymous"_s, block.isAnonymous()}};
        if (block.isExternal())
            object.insert(u"file"_s, block.externalPath);
        blocks.append(object);
    }
    return blocks;
}

QJsonArray layoutsArray(const Drawing &drawing, const RecordCounts &counts)
{
    QJsonArray layouts;
    for (const drawing::LayoutTab &tab : drawing::layoutTabs(drawing)) {
        const drawing::PageSetup page = drawing::readPageSetup(drawing, tab);
        QJsonObject object{{u"name"_s, tab.name}};
        if (page.hasPaper())
            object.insert(u"paper"_s, QJsonArray{page.paper.x, page.paper.y});
        insertText(object, u"plotStyles"_s, page.styleSheet);
        const bool isInUse = tab.name.compare(drawing.layouts().paperName(), Qt::CaseInsensitive) == 0;
        object.insert(u"entities"_s, (tab.isModel() ? counts.modelSpace
                                      : isInUse     ? counts.paperSpace
                                                    : 0) +
                                         (isValid(tab.block) ? counts.byContainer.value(tab.block) : 0));
        layouts.append(object);
    }
    return layouts;
}

QJsonArray stylesArray(const Drawing &drawing)
{
    QJsonArray styles;
    for (const RecordId id : drawing.tables().entries(drawing::TableKind::Style)) {
        const drawing::TextStyle style = drawing::readTextStyle(drawing, id);
        QJsonObject object{{u"name"_s, style.name},
                           {u"file"_s, style.fontFile},
                           {u"height"_s, style.fixedHeight},
                           {u"width"_s, style.widthFactor},
                           {u"shapes"_s, style.isShapeFile}};
        insertText(object, u"bigFont"_s, style.bigFontFile);
        styles.append(object);
    }
    return styles;
}

QJsonArray namesArray(const Drawing &drawing, drawing::TableKind kind)
{
    QJsonArray names;
    for (const RecordId id : drawing.tables().entries(kind))
        names.append(drawing.tables().name(id));
    return names;
}

QJsonArray classesArray(const Drawing &drawing)
{
    QJsonArray classes;
    const RecordId section = drawing.sectionRecord(drawing::Section::Classes);
    if (isValid(section))
        for (const RecordId id : drawing.children(section)) {
            const drawing::TagList tags = drawing.tags(id);
            classes.append(
                QJsonObject{{u"name"_s, tags.text(1)}, {u"class"_s, tags.text(2)}, {u"count"_s, tags.integer(91)}});
        }
    return classes;
}

} // namespace

QJsonObject drawingFacts(const Drawing &drawing, const drawing::ReadableFiles &readable)
{
    const RecordCounts counts = countRecords(drawing);
    QJsonObject facts;
    addFormat(facts, drawing);
    addSummary(facts, drawing);
    addUnits(facts, drawing);
    addExtents(facts, drawing, readable);
    addCounts(facts, counts, drawing);
    facts.insert(u"layers"_s, layersArray(drawing, counts));
    facts.insert(u"blocks"_s, blocksArray(drawing, counts));
    facts.insert(u"layouts"_s, layoutsArray(drawing, counts));
    facts.insert(u"textStyles"_s, stylesArray(drawing));
    facts.insert(u"linetypes"_s, namesArray(drawing, drawing::TableKind::Linetype));
    facts.insert(u"dimensionStyles"_s, namesArray(drawing, drawing::TableKind::DimStyle));
    facts.insert(u"classes"_s, classesArray(drawing));
    facts.insert(u"fonts"_s, fontFacts(drawing, readable));
    facts.insert(u"references"_s, referenceFacts(drawing, readable));
    return facts;
}

} // namespace host::app
