// What a drawing is and holds, in lines.

#include "files/qt/VisibleText.h"
#include "host/app/batch/inspecting/DrawingFacts.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

constexpr qsizetype longestListing = 12; ///< names in a line; the object has all

QString factText(const char *text)
{
    return QCoreApplication::translate("Inspecting", text);
}

QString shortNumber(double value)
{
    return QString::number(value, 'g', 8);
}

QString boxText(const QJsonValue &value)
{
    QStringList corners;
    for (const QJsonValue &corner : value.toArray())
        corners.append(u"(%1,%2)"_s.arg(shortNumber(corner[0].toDouble()), shortNumber(corner[1].toDouble())));
    return corners.join(u'-');
}

QString firstNames(const QStringList &parts)
{
    if (parts.size() <= longestListing)
        return parts.join(", "_L1);
    return parts.first(longestListing).join(", "_L1) +
           factText(QT_TRANSLATE_NOOP("Inspecting", " and %1 more")).arg(parts.size() - longestListing);
}

/// "3: a, b, c"; empty for none.
QString withCount(const QStringList &parts)
{
    return parts.isEmpty() ? QString() : u"%1: %2"_s.arg(parts.size()).arg(firstNames(parts));
}

QString factOf(const QJsonValue &value)
{
    return files::visibleText(value.toString());
}

QString fileLine(const QJsonObject &facts)
{
    const QString code = factOf(facts[u"code"]);
    const QString version = factOf(facts[u"version"]);
    return QStringList{version.isEmpty() ? code : u"%1 (%2)"_s.arg(version, code), factOf(facts[u"form"]),
                       factOf(facts[u"encoding"]),
                       factText(QT_TRANSLATE_NOOP("Inspecting", "%1 bytes")).arg(facts[u"size"].toInteger())}
        .join(", "_L1);
}

QString savedLine(const QJsonObject &facts)
{
    QStringList parts;
    if (facts.contains(u"updated"_s))
        parts.append(factOf(facts[u"updated"]));
    if (facts.contains(u"savedBy"_s))
        parts.append(factText(QT_TRANSLATE_NOOP("Inspecting", "by %1")).arg(factOf(facts[u"savedBy"])));
    if (facts.contains(u"created"_s))
        parts.append(factText(QT_TRANSLATE_NOOP("Inspecting", "begun %1")).arg(factOf(facts[u"created"])));
    return parts.join(", "_L1);
}

QString extentsLine(const QJsonObject &extents)
{
    QStringList parts;
    if (extents.contains(u"measured"_s))
        parts.append(boxText(extents[u"measured"]));
    if (extents.contains(u"header"_s))
        parts.append(factText(QT_TRANSLATE_NOOP("Inspecting", "the file says %1")).arg(boxText(extents[u"header"])));
    return parts.join("; "_L1);
}

QString entitiesLine(const QJsonObject &entities)
{
    QStringList types;
    const QJsonObject byType = entities[u"byType"].toObject();
    for (const QString &type : byType.keys())
        types.append(u"%1 %2"_s.arg(files::visibleText(type)).arg(byType[type].toInteger()));
    QString line = QString::number(entities[u"count"].toInteger());
    if (!types.isEmpty())
        line += u": "_s + types.join(", "_L1);
    if (const qint64 inBlocks = entities[u"inBlocks"].toInteger(); inBlocks > 0)
        line += factText(QT_TRANSLATE_NOOP("Inspecting", "; %1 in blocks")).arg(inBlocks);
    return line;
}

QString layerText(const QJsonValue &layer)
{
    QString text = u"%1 %2"_s.arg(factOf(layer[u"name"])).arg(layer[u"entities"].toInteger());
    if (!layer[u"on"].toBool())
        text += factText(QT_TRANSLATE_NOOP("Inspecting", " off"));
    if (layer[u"frozen"].toBool())
        text += factText(QT_TRANSLATE_NOOP("Inspecting", " frozen"));
    if (layer[u"locked"].toBool())
        text += factText(QT_TRANSLATE_NOOP("Inspecting", " locked"));
    return text;
}

QString blockText(const QJsonValue &block)
{
    const QString inserts = u" \u00d7%1"_s.arg(block[u"inserts"].toInteger());
    return factOf(block[u"name"]) + inserts;
}

QString layoutText(const QJsonValue &layout)
{
    QString text = factOf(layout[u"name"]);
    const QJsonArray paper = layout[u"paper"].toArray();
    if (paper.size() == 2)
        text += u" %1\u00d7%2 mm"_s.arg(shortNumber(paper[0].toDouble()), shortNumber(paper[1].toDouble()));
    return text;
}

QString foundText(const QJsonValue &file)
{
    QString text = factOf(file[u"name"]);
    if (file.toObject().contains(u"kind"_s))
        text = factOf(file[u"kind"]) + u' ' + text;
    if (file[u"found"].toBool())
        return text;
    return text + (file.toObject().contains(u"replacedBy"_s)
                       ? factText(QT_TRANSLATE_NOOP("Inspecting", " (not found: %1)")).arg(factOf(file[u"replacedBy"]))
                       : factText(QT_TRANSLATE_NOOP("Inspecting", " (not found)")));
}

template <typename Text>
QString listLine(const QJsonValue &list, Text text)
{
    QStringList parts;
    for (const QJsonValue &item : list.toArray())
        parts.append(text(item));
    return withCount(parts);
}

QString handlesLine(const QJsonObject &handles)
{
    const qint64 used = handles[u"used"].toInteger();
    if (used == 0)
        return factText(QT_TRANSLATE_NOOP("Inspecting", "none"));
    QString line = QString::number(used);
    if (const qint64 missing = handles[u"missing"].toInteger(); missing > 0)
        line += factText(QT_TRANSLATE_NOOP("Inspecting", ", %1 records without")).arg(missing);
    if (const qint64 twice = handles[u"twice"].toInteger(); twice > 0)
        line += factText(QT_TRANSLATE_NOOP("Inspecting", ", %1 twice")).arg(twice);
    if (!handles[u"isNextFree"].toBool() && !handles[u"next"].toString().isEmpty())
        line += factText(QT_TRANSLATE_NOOP("Inspecting", ", the next one (%1) is taken")).arg(factOf(handles[u"next"]));
    return line;
}

} // namespace

QString factsText(const QJsonObject &facts)
{
    const auto names = [](const QJsonValue &name) { return factOf(name); };
    const auto styles = [](const QJsonValue &style) { return factOf(style[u"name"]); };
    const auto classes = [](const QJsonValue &entry) { return factOf(entry[u"name"]); };
    const qint64 proxies = facts[u"proxies"].toInteger();
    const std::pair<const char *, QString> rows[] = {
        {QT_TRANSLATE_NOOP("Inspecting", "format"), fileLine(facts)},
        {QT_TRANSLATE_NOOP("Inspecting", "title"), factOf(facts[u"title"])},
        {QT_TRANSLATE_NOOP("Inspecting", "author"), factOf(facts[u"author"])},
        {QT_TRANSLATE_NOOP("Inspecting", "saved"), savedLine(facts)},
        {QT_TRANSLATE_NOOP("Inspecting", "units"), factOf(facts[u"units"]) + u", "_s + factOf(facts[u"measurement"])},
        {QT_TRANSLATE_NOOP("Inspecting", "extents"), extentsLine(facts[u"extents"].toObject())},
        {QT_TRANSLATE_NOOP("Inspecting", "entities"), entitiesLine(facts[u"entities"].toObject())},
        {QT_TRANSLATE_NOOP("Inspecting", "layers"), listLine(facts[u"layers"], layerText)},
        {QT_TRANSLATE_NOOP("Inspecting", "blocks"), listLine(facts[u"blocks"], blockText)},
        {QT_TRANSLATE_NOOP("Inspecting", "layouts"), listLine(facts[u"layouts"], layoutText)},
        {QT_TRANSLATE_NOOP("Inspecting", "text styles"), listLine(facts[u"textStyles"], styles)},
        {QT_TRANSLATE_NOOP("Inspecting", "fonts"), listLine(facts[u"fonts"], foundText)},
        {QT_TRANSLATE_NOOP("Inspecting", "linetypes"), listLine(facts[u"linetypes"], names)},
        {QT_TRANSLATE_NOOP("Inspecting", "dimensions"), listLine(facts[u"dimensionStyles"], names)},
        {QT_TRANSLATE_NOOP("Inspecting", "files"), listLine(facts[u"references"], foundText)},
        {QT_TRANSLATE_NOOP("Inspecting", "classes"), listLine(facts[u"classes"], classes)},
        {QT_TRANSLATE_NOOP("Inspecting", "proxies"), proxies > 0 ? QString::number(proxies) : QString()},
        {QT_TRANSLATE_NOOP("Inspecting", "handles"), handlesLine(facts[u"handles"].toObject())},
    };
    constexpr int labelWidth = 14;
    QString text;
    for (const auto &[label, line] : rows)
        if (!line.isEmpty())
            text += u"  "_s + factText(label).leftJustified(labelWidth) + line + u'\n';
    return text;
}

} // namespace host::app
