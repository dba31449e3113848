#include "platform/kernel/CKvUtils.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QHash>
#include <QIcon>
#include <QPalette>

namespace {

/// One icon for each file: a new one would bring new pictures into the cache of pixmaps with each showing of a dialog,
/// also of the same file.
QIcon iconOf(const QString &path)
{
    static QHash<QString, QIcon> icons;
    // They go with the application, which the pictures in them need.
    if (icons.isEmpty())
        qAddPostRoutine([] { icons.clear(); });
    const auto known = icons.constFind(path);
    return known != icons.cend() ? *known : *icons.insert(path, QIcon(path));
}

} // namespace

QIcon CKvUtils::icon(const QString &folder, const QString &name)
{
    const QString dark = QStringLiteral(":/images/svg_icons/dark/") + name + QStringLiteral(".svg");
    if (isDarkStyle() && QFileInfo::exists(dark))
        return iconOf(dark);
    for (const QString &suffix : {QStringLiteral(".svg"), QStringLiteral(".png")}) {
        const QString path = folder + u'/' + name + suffix;
        if (QFileInfo::exists(path))
            return iconOf(path);
    }
    return {};
}

bool CKvUtils::isDarkStyle()
{
    return QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
}
