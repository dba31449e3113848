#include "dialogs/patternhatch/MaskPatterns.h"

#include <QAction>
#include <QMenu>

namespace ortakit {

QString pickMaskPattern(QWidget *button)
{
    static constexpr const char *names[] = {
        "SOLID", "ANSI31", "ANSI32", "ANSI33", "ANSI34", "ANSI35", "ANSI36", "ANSI37", "ANSI38", "BRICK",
        "CROSS", "DASH",   "DOTS",   "EARTH",  "GRASS",  "GRATE",  "HEX",    "HONEY",  "HOUND",  "INSUL",
        "LINE",  "NET",    "NET3",   "PLAST",  "SQUARE", "STARS",  "TRIANG", "ZIGZAG",
    };
    QMenu menu(button);
    menu.setObjectName(QStringLiteral("maskPatterns"));
    for (const char *name : names)
        menu.addAction(QString::fromLatin1(name));
    const QAction *chosen = menu.exec(button->mapToGlobal(QPoint(0, button->height())));
    return chosen ? chosen->text() : QString();
}

} // namespace ortakit
