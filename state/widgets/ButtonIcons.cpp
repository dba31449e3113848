#include "state/widgets/ButtonIcons.h"

#include "platform/kernel/CKvUtils.h"

#include <QAbstractButton>
#include <QIcon>

namespace ortakit {

QAbstractButton *findButton(const QWidget &dialog, QLatin1String name)
{
    for (auto *button : dialog.findChildren<QAbstractButton *>()) {
        if (button->objectName().compare(name, Qt::CaseInsensitive) == 0)
            return button;
    }
    return nullptr;
}

void decorateButtons(const QWidget &dialog)
{
    static constexpr struct
    {
        QLatin1String button;
        QLatin1String icon;
    } buttons[] = {
        {QLatin1String("acceptButton"), QLatin1String("ok")},
        {QLatin1String("okButton"), QLatin1String("ok")},
        {QLatin1String("cancelButton"), QLatin1String("cancel")},
        {QLatin1String("ButtonCancel"), QLatin1String("cancel")},
        {QLatin1String("buttonHelp"), QLatin1String("help")},
    };
    for (const auto &[name, iconName] : buttons)
        decorateButton(findButton(dialog, name), iconName);
}

void decorateButton(QAbstractButton *button, const QString &icon)
{
    const QIcon found = button ? CKvUtils::icon(QStringLiteral(":/images/shared"), icon) : QIcon();
    if (!found.isNull())
        button->setIcon(found);
}

} // namespace ortakit
