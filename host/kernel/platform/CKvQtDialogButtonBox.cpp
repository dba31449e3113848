#include "platform/widgets/CKvQtDialogButtonBox.h"

#include "platform/kernel/CKvUtils.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QIcon>

namespace {

struct ButtonIcon
{
    QDialogButtonBox::StandardButton button;
    QLatin1String icon;
};

constexpr ButtonIcon buttonIcons[] = {
    {QDialogButtonBox::Ok, QLatin1String("ok")},
    {QDialogButtonBox::Cancel, QLatin1String("cancel")},
    {QDialogButtonBox::Close, QLatin1String("cancel")},
    {QDialogButtonBox::Help, QLatin1String("help")},
};

} // namespace

CKvQtDialogButtonBox::CKvQtDialogButtonBox(QWidget *parent) : QDialogButtonBox(parent) {}

void CKvQtDialogButtonBox::showEvent(QShowEvent *event)
{
    QDialogButtonBox::showEvent(event);
    for (const auto &[standard, name] : buttonIcons) {
        QAbstractButton *const found = button(standard);
        const QIcon icon = found ? CKvUtils::icon(QStringLiteral(":/images/shared"), name) : QIcon();
        if (!icon.isNull())
            found->setIcon(icon);
    }
}
