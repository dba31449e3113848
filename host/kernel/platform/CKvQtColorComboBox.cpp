#include "platform/widgets/CKvQtColorComboBox.h"

#include "host/view/display/AciColor.h"

#include <QCoreApplication>
#include <QHash>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QStyleOptionComboBox>
#include <QStyledItemDelegate>

namespace {

constexpr int byBlock = 0;
constexpr int byLayer = 256;

/// The colour number an item's text says; -1 for other text.
int colorNumber(const QString &text)
{
    bool ok = false;
    const int number = text.toInt(&ok);
    return ok && number >= byBlock && number <= byLayer ? number : -1;
}

/// Shows the items of the list as swatch and name.
class ColorDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const int number = colorNumber(index.data().toString());
        if (number < 0)
            return;
        option->text = CKvQtColorComboBox::colorName(number);
        option->icon = CKvQtColorComboBox::colorSwatch(number);
        option->features |= QStyleOptionViewItem::HasDecoration;
        option->decorationSize = QSize(16, 16);
    }
};

QIcon madeSwatch(int index)
{
    QPixmap picture(16, 16);
    picture.fill(host::view::aciColor(index, host::view::shownGround()));
    QPainter painter(&picture);
    painter.setPen(Qt::darkGray);
    painter.drawRect(0, 0, 15, 15);
    QIcon icon(picture);
    // A selected row would tint it, and so show another colour.
    icon.addPixmap(picture, QIcon::Selected);
    return icon;
}

} // namespace

CKvQtColorComboBox::CKvQtColorComboBox(QWidget *parent) : QComboBox(parent)
{
    setItemDelegate(new ColorDelegate(this));
    setMinimumContentsLength(9);
    for (int index : {byLayer, byBlock, 1, 2, 3, 4, 5, 6, 7})
        addItem(QString::number(index));
}

int CKvQtColorComboBox::colorIndex() const
{
    return std::max(colorNumber(currentText()), 0);
}

void CKvQtColorComboBox::setColorIndex(int index)
{
    if (index < byBlock || index > byLayer)
        return;
    const QString text = QString::number(index);
    if (findText(text) < 0)
        addItem(text);
    setCurrentIndex(findText(text));
}

QString CKvQtColorComboBox::colorName(int index)
{
    static const char *const names[] = {
        QT_TRANSLATE_NOOP("CKvQtColorComboBox", "ByBlock"), QT_TRANSLATE_NOOP("CKvQtColorComboBox", "Red"),
        QT_TRANSLATE_NOOP("CKvQtColorComboBox", "Yellow"),  QT_TRANSLATE_NOOP("CKvQtColorComboBox", "Green"),
        QT_TRANSLATE_NOOP("CKvQtColorComboBox", "Cyan"),    QT_TRANSLATE_NOOP("CKvQtColorComboBox", "Blue"),
        QT_TRANSLATE_NOOP("CKvQtColorComboBox", "Magenta"), QT_TRANSLATE_NOOP("CKvQtColorComboBox", "White")};
    if (index == byLayer)
        return tr("ByLayer");
    if (index >= 0 && index < int(std::size(names)))
        return tr(names[index]);
    return tr("Color %1").arg(index);
}

QIcon CKvQtColorComboBox::colorSwatch(int index)
{
    // One for each color of the ground: each new icon would bring pictures of its own into the cache of pixmaps, and
    // this is called with each painting.
    static QHash<std::pair<int, QRgb>, QIcon> swatches;
    if (swatches.isEmpty())
        qAddPostRoutine([] { swatches.clear(); });
    const std::pair key(index, host::view::aciColor(index, host::view::shownGround()).rgba());
    const auto known = swatches.constFind(key);
    return known != swatches.cend() ? *known : *swatches.insert(key, madeSwatch(index));
}

void CKvQtColorComboBox::initStyleOption(QStyleOptionComboBox *option) const
{
    QComboBox::initStyleOption(option);
    const int number = colorNumber(currentText());
    if (number < 0)
        return;
    option->currentText = colorName(number);
    option->currentIcon = colorSwatch(number);
    option->iconSize = QSize(16, 16);
}
