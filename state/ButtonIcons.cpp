#include "state/ButtonIcons.h"

#include "platform/kernel/CKvUtils.h"

#include <QAbstractButton>

namespace ortakit {

void decorateButtons(const QWidget &dialog)
{
    static constexpr struct
    {
        QLatin1String button;
        QLatin1String icon;
    } buttons[] = {
        {QLatin1String("acceptButton"), QLatin1String("ok")},
        {QLatin1String("ButtonCancel"), QLatin1String("cancel")},
        {QLatin1String("buttonHelp"), QLatin1String("help")},
    };
    for (const auto &[name, iconName] : buttons) {
        auto *button = dialog.findChild<QAbstractButton *>(name);
        const QIcon icon = button ? CKvUtils::icon(QStringLiteral(":/images/shared"), iconName) : QIcon();
        if (!icon.isNull())
            button->setIcon(icon);
    }
}

} // namespace ortakit
