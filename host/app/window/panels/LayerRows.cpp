#include "host/app/window/panels/LayerRows.h"

#include "host/drawing/editing/Viewports.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Tables.h"
#include "host/kernel/documents/CurrentSpace.h"

#include <QSet>

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

using drawing::Version;

constexpr int applicationCode = 1001;
constexpr int bookCode = 430;

/// What extended data holds under this code of an application, the last of several.
const drawing::Tag *extendedTag(const drawing::TagList &tags, QByteArrayView application, int code)
{
    const drawing::Tag *found = nullptr;
    bool isInside = false;
    for (const drawing::Tag &tag : tags) {
        if (tag.code == applicationCode)
            isInside = tag.trimmed().compare(application, Qt::CaseInsensitive) == 0;
        else if (isInside && tag.code == code)
            found = &tag;
    }
    return found;
}

LayerRow readLayerRow(const drawing::Drawing &drawing, drawing::RecordId entry)
{
    LayerRow row{.layer = drawing::readLayer(drawing, entry), .colourBook = {}, .description = {}};
    const drawing::TagList tags = drawing.tags(entry);
    row.colourBook = tags.text(bookCode);
    if (const drawing::Tag *stored = extendedTag(tags, "AcCmTransparency", 1071))
        row.transparency = transparencyPercent(stored->integer().value_or(0));
    if (const drawing::Tag *text = extendedTag(tags, "AcAecLayerStandard", 1000))
        row.description = tags.decoded(*text);
    return row;
}

QString percentText(const LayerRow &row)
{
    return QString::number(row.transparency);
}

QString colourOfRow(const LayerRow &row)
{
    return row.colourBook.isEmpty() ? colourText(row.layer.colour, row.layer.trueColour) : row.colourBook;
}

template <LayerColumn column>
QString stateOfRow(const LayerRow &row)
{
    return layerStateText(column, layerState(row, column));
}

// In the order of LayerColumn.
const LayerColumnRow columnRows[] = {
    {QT_TRANSLATE_NOOP("Layers", "Name"), [](const LayerRow &row) { return row.layer.name; }, Version::R12, false},
    {QT_TRANSLATE_NOOP("Layers", "On"), stateOfRow<LayerColumn::On>, Version::R12, true},
    {QT_TRANSLATE_NOOP("Layers", "Freeze"), stateOfRow<LayerColumn::Freeze>, Version::R12, true},
    {QT_TRANSLATE_NOOP("Layers", "Lock"), stateOfRow<LayerColumn::Lock>, Version::R12, true},
    {QT_TRANSLATE_NOOP("Layers", "Plot"), stateOfRow<LayerColumn::Plot>, Version::R2000, true},
    {QT_TRANSLATE_NOOP("Layers", "Color"), colourOfRow, Version::R12, false},
    {QT_TRANSLATE_NOOP("Layers", "Linetype"), [](const LayerRow &row) { return row.layer.linetype; }, Version::R12,
     false},
    {QT_TRANSLATE_NOOP("Layers", "Lineweight"), [](const LayerRow &row) { return weightText(row.layer.lineweight); },
     Version::R2000, false},
    {QT_TRANSLATE_NOOP("Layers", "Transparency"), percentText, Version::R2004, false},
    {QT_TRANSLATE_NOOP("Layers", "Description"), [](const LayerRow &row) { return row.description; }, Version::R2000,
     false},
    {QT_TRANSLATE_NOOP("Layers", "Viewport"), stateOfRow<LayerColumn::Viewport>, Version::R12, true},
};
static_assert(std::size(columnRows) == layerColumns);

/// What a state is called when it is on and off.
std::pair<const char *, const char *> stateNames(LayerColumn column)
{
    switch (column) {
    case LayerColumn::Freeze:
    case LayerColumn::Viewport:
        return {QT_TRANSLATE_NOOP("Layers", "thawed"), QT_TRANSLATE_NOOP("Layers", "frozen")};
    case LayerColumn::Lock:
        return {QT_TRANSLATE_NOOP("Layers", "unlocked"), QT_TRANSLATE_NOOP("Layers", "locked")};
    case LayerColumn::Plot:
        return {QT_TRANSLATE_NOOP("Layers", "plots"), QT_TRANSLATE_NOOP("Layers", "no plot")};
    default:
        return {QT_TRANSLATE_NOOP("Layers", "on"), QT_TRANSLATE_NOOP("Layers", "off")};
    }
}

} // namespace

int transparencyPercent(qint64 stored)
{
    constexpr qint64 isNumber = 0x02000000;
    return (stored & isNumber) == 0 ? 0 : int(std::lround((255 - double(stored & 255)) / 2.55));
}

QString layersText(const char *text)
{
    return QCoreApplication::translate("Layers", text);
}

bool LayerRow::operator==(const LayerRow &other) const
{
    const auto parts = [](const LayerRow &row) {
        const drawing::Layer &layer = row.layer;
        return std::tuple(layer.record, layer.name, layer.colour, layer.trueColour, layer.linetype, layer.lineweight,
                          layer.isOff, layer.isFrozen, layer.isLocked, layer.isPlotted, row.colourBook,
                          row.transparency, row.description, row.isCurrent, row.isFrozenInViewport);
    };
    return parts(*this) == parts(other);
}

std::vector<LayerRow> layerRows(const drawing::Drawing &drawing)
{
    const QString current = drawing.header().text(u"$CLAYER", u"0"_s).toCaseFolded();
    QSet<QString> frozen;
    if (const drawing::RecordId viewport = kernel::currentViewport(drawing); drawing::isValid(viewport))
        for (const QString &name : drawing::layersFrozenIn(drawing, viewport))
            frozen.insert(name.toCaseFolded());
    std::vector<LayerRow> rows;
    for (const drawing::RecordId entry : drawing.tables().entries(drawing::TableKind::Layer)) {
        LayerRow &row = rows.emplace_back(readLayerRow(drawing, entry));
        const QString name = row.layer.name.toCaseFolded();
        row.isCurrent = name == current;
        row.isFrozenInViewport = frozen.contains(name);
    }
    return rows;
}

const LayerColumnRow &layerColumn(LayerColumn column)
{
    return columnRows[int(column)];
}

bool layerState(const LayerRow &row, LayerColumn column)
{
    switch (column) {
    case LayerColumn::Freeze:
        return !row.layer.isFrozen;
    case LayerColumn::Lock:
        return !row.layer.isLocked;
    case LayerColumn::Plot:
        return row.layer.isPlotted;
    case LayerColumn::Viewport:
        return !row.isFrozenInViewport;
    default:
        return !row.layer.isOff;
    }
}

QString layerStateText(LayerColumn column, bool state)
{
    const auto [on, off] = stateNames(column);
    return layersText(state ? on : off);
}

bool isReferenced(const LayerRow &row)
{
    return row.layer.name.contains(u'|');
}

QString colourText(int index, const std::optional<quint32> &exact)
{
    static const QStringList names = {u"red"_s,  u"yellow"_s,  u"green"_s, u"cyan"_s,
                                      u"blue"_s, u"magenta"_s, u"white"_s};
    if (exact)
        return u"%1,%2,%3"_s.arg(*exact >> 16 & 255).arg(*exact >> 8 & 255).arg(*exact & 255);
    return index >= 1 && index <= names.size() ? names[index - 1] : QString::number(index);
}

QString weightText(int weight)
{
    return weight < 0 ? layersText("Default") : u"%1 mm"_s.arg(weight / 100.0, 0, 'f', 2);
}

} // namespace host::app
