#include "host/app/window/panels/LayerOrders.h"

#include "host/commands/common/PropertyValues.h"
#include "host/drawing/editing/RenameLayer.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/selection/Wildcard.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// A word that every prompt takes as it is. A name that ends in a blank would lose it, and "-" alone means something.
bool isPlainWord(const QString &word)
{
    static const QRegularExpression plain(
        uR"(^[\p{L}\p{N}_$`*.\-][\p{L}\p{N}_$|.,`#@\[\]*-]*( [\p{L}\p{N}_$|.,`#@\[\]*-]+)*$)"_s,
        QRegularExpression::UseUnicodePropertiesOption);
    return word.isEmpty() || plain.match(word).hasMatch();
}

QString patternOf(const std::vector<LayerRow> &layers)
{
    QStringList names;
    for (const LayerRow &row : layers)
        names.append(drawing::literalPattern(row.layer.name));
    return names.join(u',');
}

/// The option of -LAYER that makes a state, and what it asks before the names.
QStringList stateWords(LayerColumn column, bool state)
{
    switch (column) {
    case LayerColumn::Freeze:
        return {state ? u"_Thaw"_s : u"_Freeze"_s};
    case LayerColumn::Lock:
        return {state ? u"_Unlock"_s : u"_LOck"_s};
    case LayerColumn::Plot:
        return {u"_Plot"_s, state ? u"_Plot"_s : u"_No"_s};
    default:
        return {state ? u"_ON"_s : u"_OFF"_s};
    }
}

/// Nothing for what is no colour.
QStringList colourWords(const QString &value)
{
    if (kernel::exactColour(value))
        return {u"_Color"_s, u"_Truecolor"_s, value};
    const int number = kernel::colourNumber(value);
    return number == 0 ? QStringList() : QStringList{u"_Color"_s, QString::number(number)};
}

QStringList weightWords(QString value)
{
    if (value.compare(weightText(-3), Qt::CaseInsensitive) == 0 || value.compare(u"Default", Qt::CaseInsensitive) == 0)
        return {u"_LWeight"_s, u"_Default"_s};
    bool isNumber = false;
    const double millimetres = value.remove(u"mm"_s).trimmed().toDouble(&isNumber);
    if (!isNumber || !(millimetres >= 0.0 && millimetres <= 2.11))
        return {};
    return {u"_LWeight"_s, QString::number(millimetres)};
}

QStringList transparencyWords(QString value)
{
    bool isNumber = false;
    const int percent = value.remove(u'%').trimmed().toInt(&isNumber);
    return isNumber && percent >= 0 && percent <= 90 ? QStringList{u"_TRansparency"_s, QString::number(percent)}
                                                     : QStringList();
}

QStringList valueWords(LayerColumn column, const QString &value)
{
    switch (column) {
    case LayerColumn::Colour:
        return colourWords(value);
    case LayerColumn::Linetype:
        return value.trimmed().isEmpty() ? QStringList() : QStringList{u"_Ltype"_s, value.trimmed()};
    case LayerColumn::Lineweight:
        return weightWords(value);
    case LayerColumn::Transparency:
        return transparencyWords(value);
    case LayerColumn::Description:
        return {u"_Description"_s, value};
    default:
        return {};
    }
}

QString viewportLine(const std::vector<LayerRow> &layers, bool isThawed)
{
    return typedLine({u"_VPLAYER"_s, isThawed ? u"_Thaw"_s : u"_Freeze"_s, patternOf(layers), u"_Current"_s, {}});
}

/// -LAYER asks for each current layer that is turned off whether that is meant.
QStringList assurances(const std::vector<LayerRow> &layers, LayerColumn column, bool state)
{
    const bool isAsked = column == LayerColumn::On && !state &&
                         std::ranges::any_of(layers, [](const LayerRow &row) { return row.isCurrent; });
    return isAsked ? QStringList{u"_Yes"_s} : QStringList();
}

} // namespace

QString typedLine(const QStringList &words)
{
    if (std::ranges::all_of(words, isPlainWord))
        return words.join(u'\n') + u'\n';
    QStringList texts;
    for (const QString &word : words)
        texts.append(lispText(word));
    return u"(command "_s + texts.join(u' ') + u')';
}

QString lispText(const QString &text)
{
    return u'"' + QString(text).replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s) + u'"';
}

QString obstacleToChanging(const drawing::Drawing &drawing, const LayerRow &row, LayerColumn column,
                           const QString &value)
{
    if (drawing.version() < layerColumn(column).since ||
        (column == LayerColumn::Colour && kernel::exactColour(value) && drawing.version() < drawing::Version::R2004))
        return layersText("A drawing of this version has no such property of layers.");
    if (column == LayerColumn::Freeze && row.isCurrent && value == layerStateText(column, false))
        return layersText("\"%1\" is the current layer and cannot be frozen.").arg(row.layer.name);
    return {};
}

QString layerChangeLine(const std::vector<LayerRow> &layers, LayerColumn column, const QString &value)
{
    if (layers.empty())
        return {};
    const bool isState = layerColumn(column).isState;
    const bool state = value.compare(layerStateText(column, true), Qt::CaseInsensitive) == 0;
    if (isState && !state && value.compare(layerStateText(column, false), Qt::CaseInsensitive) != 0)
        return {};
    if (column == LayerColumn::Viewport)
        return viewportLine(layers, state);
    const QStringList change = isState ? stateWords(column, state) : valueWords(column, value);
    if (change.isEmpty())
        return {};
    return typedLine(QStringList{u"_-LAYER"_s} + change + QStringList{patternOf(layers)} +
                     assurances(layers, column, state) + QStringList{QString()});
}

QString layerRenameLine(const QString &from, const QString &to)
{
    return typedLine({u"_-LAYER"_s, u"_Rename"_s, from, to, {}});
}

QString layerCurrentLine(const QString &name)
{
    return typedLine({u"_-LAYER"_s, u"_Set"_s, name, {}});
}

QString layerDeleteLine(const QStringList &names)
{
    QStringList patterns;
    for (const QString &name : names)
        patterns.append(drawing::literalPattern(name));
    return typedLine({u"_-PURGE"_s, u"_LAyers"_s, patterns.join(u','), u"_No"_s});
}

QString layerNewLine(const QString &name, const LayerRow *model, drawing::Version version)
{
    QStringList words = {u"_-LAYER"_s, u"_New"_s, name};
    const QString pattern = drawing::literalPattern(name);
    const auto give = [&](LayerColumn column, const QString &value) {
        if (const QStringList change = valueWords(column, value);
            !change.isEmpty() && version >= layerColumn(column).since)
            words += change + QStringList{pattern};
    };
    if (model) {
        give(LayerColumn::Colour, colourText(model->layer.colour, model->layer.trueColour));
        // Those of other files are not for layers of this one.
        if (!model->layer.linetype.contains(u'|'))
            give(LayerColumn::Linetype, model->layer.linetype);
        give(LayerColumn::Lineweight, weightText(model->layer.lineweight));
    }
    return typedLine(words + QStringList{QString()});
}

QString freeLayerName(const drawing::Drawing &drawing)
{
    for (int number = 1;; ++number)
        if (const QString name = u"Layer%1"_s.arg(number);
            !drawing::isValid(drawing.tables().find(drawing::TableKind::Layer, name)))
            return name;
}

QString obstacleToRenaming(const drawing::Drawing &drawing, const QString &from, const QString &to)
{
    if (from == u"0")
        return layersText("Layer \"0\" keeps its name.");
    if (from.contains(u'|'))
        return layersText("\"%1\" belongs to an external reference.").arg(from);
    if (!drawing::isSymbolName(to, drawing.version()))
        return layersText("\"%1\" cannot be the name of a layer.").arg(to);
    const bool isTaken = drawing::isValid(drawing.tables().find(drawing::TableKind::Layer, to));
    return isTaken && from.compare(to, Qt::CaseInsensitive) != 0
               ? layersText("There is a layer \"%1\" already.").arg(to)
               : QString();
}

} // namespace host::app
