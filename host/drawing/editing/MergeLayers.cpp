#include "host/drawing/editing/MergeLayers.h"

#include "host/drawing/editing/RenameLayer.h"
#include "host/drawing/editing/UnusedNames.h"
#include "host/drawing/editing/Viewports.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/tags/DrawingTexts.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace host::drawing {

namespace {

constexpr int entityLayerCode = 8;

/// Viewports forget layers that are taken out: a reference to nothing is a fault of the file.
void forgetInViewports(Drawing &drawing, const QHash<QString, QString> &names)
{
    for (RecordId id = drawing.first(); isValid(id); id = drawing.next(id)) {
        if (drawing.kind(id) != RecordKind::Entity || !drawing.isType(id, "VIEWPORT"))
            continue;
        QStringList frozen = layersFrozenIn(drawing, id);
        if (frozen.removeIf([&](const QString &name) { return names.contains(name.toCaseFolded()); }) > 0)
            setLayersFrozenIn(drawing, id, frozen);
    }
}

QHash<QString, QString> foldedNames(const QStringList &names, const QString &into)
{
    QHash<QString, QString> map;
    for (const QString &name : names)
        map.insert(name.toCaseFolded(), into);
    return map;
}

} // namespace

QString obstacleToRemovingLayer(const Drawing &drawing, const QString &name)
{
    const RecordId entry = drawing.tables().find(TableKind::Layer, name);
    if (!isValid(entry))
        return DrawingTexts::tr("Cannot find layer \"%1\".").arg(name);
    if (name == u"0" || name.compare(u"Defpoints", Qt::CaseInsensitive) == 0)
        return DrawingTexts::tr("Layer \"%1\" is needed by every drawing.").arg(name);
    if (drawing.header().text(u"$CLAYER", u"0"_s).compare(name, Qt::CaseInsensitive) == 0)
        return DrawingTexts::tr("Layer \"%1\" is the current layer.").arg(name);
    return name.contains(u'|') ? DrawingTexts::tr("Layer \"%1\" belongs to an external reference.").arg(name)
                               : QString();
}

void mergeLayers(Drawing &drawing, const QStringList &names, const QString &into)
{
    const JournalGroup group(drawing.journal(), {});
    const QHash<QString, QString> map = foldedNames(names, into);
    std::vector<NamedThing> doomed;
    for (const QString &name : names)
        if (const RecordId entry = drawing.tables().find(TableKind::Layer, name); isValid(entry))
            doomed.push_back({entry, name});
    forgetInViewports(drawing, map);
    replaceLayerNames(drawing, map);
    eraseNamed(drawing, NamedKind::Layers, doomed);
}

int eraseLayers(Drawing &drawing, const QStringList &names)
{
    const JournalGroup group(drawing.journal(), {});
    const QHash<QString, QString> map = foldedNames(names, u"0"_s);
    std::vector<RecordId> doomed;
    for (RecordId id = drawing.first(); isValid(id); id = drawing.next(id))
        if (drawing.kind(id) == RecordKind::Entity &&
            map.contains(drawing.tags(id).text(entityLayerCode, u"0"_s).toCaseFolded()))
            doomed.push_back(id);
    for (const RecordId id : doomed)
        drawing.dictionaries().setErasedWithOwned(id, true);
    mergeLayers(drawing, names, u"0"_s);
    return int(doomed.size());
}

} // namespace host::drawing
