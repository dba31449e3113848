#include "platform/kernel/CKvUtils.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QPalette>

QIcon CKvUtils::icon(const QString &folder, const QString &name)
{
    const QString dark = QStringLiteral(":/images/svg_icons/dark/") + name + QStringLiteral(".svg");
    if (isDarkStyle() && QFileInfo::exists(dark))
        return QIcon(dark);
    for (const QString &suffix : {QStringLiteral(".svg"), QStringLiteral(".png")}) {
        const QString path = folder + u'/' + name + suffix;
        if (QFileInfo::exists(path))
            return QIcon(path);
    }
    return {};
}

bool CKvUtils::isDarkStyle()
{
    return QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
}
