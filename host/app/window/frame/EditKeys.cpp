#include "host/app/window/frame/EditKeys.h"

#include "host/app/window/frame/Menus.h"

#include <QAction>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace host::app {

void keepEditKeysTo(const QList<QWidget *> &places, const Menus &menus)
{
    static const QStringList names = {u"_CUTCLIP"_s,    u"_COPYCLIP"_s,   u"_COPYBASE"_s, u"_PASTECLIP"_s,
                                      u"_PASTEBLOCK"_s, u"eraseChosen"_s, u"chooseAll"_s, u"markNext"_s};
    for (const QString &name : names) {
        QAction *action = menus.find(name);
        if (!action)
            continue;
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        for (QWidget *place : places)
            place->addAction(action);
    }
}

} // namespace host::app
