#include "host/app/window/canvas/SnapMenu.h"

#include "host/app/window/canvas/PointerMarks.h"
#include "host/drawing/geometry/SnapPoints.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// A line of the menus: a kind of snap, or another word that a prompt for points takes.
struct SnapLine
{
    int kind; ///< drawing::SnapKind; 0 for a word that is none
    const char *word;
    const char *text;
};

constexpr SnapLine snapLines[] = {
    {drawing::SnapEndPoint, "_end", QT_TRANSLATE_NOOP("SnapMenu", "&Endpoint")},
    {drawing::SnapMidPoint, "_mid", QT_TRANSLATE_NOOP("SnapMenu", "&Midpoint")},
    {drawing::SnapCentre, "_cen", QT_TRANSLATE_NOOP("SnapMenu", "&Center")},
    {drawing::SnapNode, "_nod", QT_TRANSLATE_NOOP("SnapMenu", "N&ode")},
    {drawing::SnapQuadrant, "_qua", QT_TRANSLATE_NOOP("SnapMenu", "&Quadrant")},
    {drawing::SnapIntersection, "_int", QT_TRANSLATE_NOOP("SnapMenu", "&Intersection")},
    {drawing::SnapApparentIntersection, "_app", QT_TRANSLATE_NOOP("SnapMenu", "&Apparent intersection")},
    {drawing::SnapExtension, "_ext", QT_TRANSLATE_NOOP("SnapMenu", "E&xtension")},
    {drawing::SnapInsertion, "_ins", QT_TRANSLATE_NOOP("SnapMenu", "In&sertion point")},
    {drawing::SnapPerpendicular, "_per", QT_TRANSLATE_NOOP("SnapMenu", "&Perpendicular")},
    {drawing::SnapTangent, "_tan", QT_TRANSLATE_NOOP("SnapMenu", "&Tangent")},
    {drawing::SnapNearest, "_nea", QT_TRANSLATE_NOOP("SnapMenu", "Nea&rest")},
    {0, "_non", QT_TRANSLATE_NOOP("SnapMenu", "&None")},
    {0, "m2p", QT_TRANSLATE_NOOP("SnapMenu", "Mid&way between two points")},
    {0, "_from", QT_TRANSLATE_NOOP("SnapMenu", "&From a point")},
};

QMenu *emptySnapMenu(QWidget *owner, const QString &name)
{
    auto *menu = new QMenu(owner);
    menu->setObjectName(name);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    return menu;
}

QAction *addSnapLine(QMenu &menu, const SnapLine &line)
{
    QAction *action = menu.addAction(QCoreApplication::translate("SnapMenu", line.text));
    if (line.kind != 0)
        action->setIcon(snapIcon(line.kind, menu.devicePixelRatioF()));
    return action;
}

} // namespace

QMenu *runningSnapMenu(int modes, QWidget *owner, std::function<void(int kind, bool on)> changed)
{
    QMenu *menu = emptySnapMenu(owner, u"runningSnaps"_s);
    for (const SnapLine &line : snapLines) {
        if (line.kind == 0)
            continue;
        QAction *action = addSnapLine(*menu, line);
        // A style shows either the icon or the check mark.
        action->setIcon({});
        action->setCheckable(true);
        action->setChecked((modes & line.kind) != 0);
        QObject::connect(action, &QAction::triggered, owner,
                         [changed, kind = line.kind](bool on) { changed(kind, on); });
    }
    return menu;
}

QMenu *nextPointMenu(QWidget *owner, std::function<void(const QString &word)> chosen)
{
    QMenu *menu = emptySnapMenu(owner, u"nextPoint"_s);
    for (const SnapLine &line : snapLines) {
        if (&line == std::ranges::find(snapLines, 0, &SnapLine::kind))
            menu->addSeparator();
        QObject::connect(addSnapLine(*menu, line), &QAction::triggered, owner,
                         [chosen, word = QString::fromLatin1(line.word)] { chosen(word); });
    }
    return menu;
}

} // namespace host::app
