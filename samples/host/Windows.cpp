// What dialogs derive from and consist of: the base class, message boxes, the three widgets, icons.

#include "Supply.h"
#include "platform/kernel/CKvDialog.h"
#include "platform/kernel/CKvMessageBox.h"
#include "platform/kernel/CKvUtils.h"
#include "platform/widgets/CKvQtColorComboBox.h"
#include "platform/widgets/CKvQtDialogButtonBox.h"
#include "platform/widgets/CKvQtUnitSpinBox.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPalette>
#include <QPixmap>
#include <QtMath>

// [dialog]
CKvDialog::CKvDialog(QWidget *parent) : QDialog(parent)
{
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}

CKvDialog::~CKvDialog() = default;
// [/dialog]

namespace sample {

namespace {

CKvMessageBox::Button runBox(QMessageBox::Icon icon, QWidget *parent, const QString &title, const QString &text,
                             CKvMessageBox::Buttons buttons, const QString &explanation = {})
{
    QMessageBox box(icon, title, text, buttons, parent);
    box.setInformativeText(explanation);
    box.setTextFormat(Qt::PlainText);
    const auto answer = CKvMessageBox::Button(box.exec());
    if (buttons.testFlag(answer))
        return answer;
    return buttons.testFlag(QMessageBox::No) ? QMessageBox::No : box.standardButton(box.buttons().constLast());
}

} // namespace

} // namespace sample

CKvMessageBox::Button CKvMessageBox::information(QWidget *parent, const QString &title, const QString &text,
                                                 Buttons buttons)
{
    return sample::runBox(QMessageBox::Information, parent, title, text, buttons);
}

CKvMessageBox::Button CKvMessageBox::warning(QWidget *parent, const QString &title, const QString &text,
                                             Buttons buttons, const QString &explanation)
{
    return sample::runBox(QMessageBox::Warning, parent, title, text, buttons, explanation);
}

CKvMessageBox::Button CKvMessageBox::critical(QWidget *parent, const QString &title, const QString &text,
                                              Buttons buttons)
{
    return sample::runBox(QMessageBox::Critical, parent, title, text, buttons);
}

CKvMessageBox::Button CKvMessageBox::question(QWidget *parent, const QString &title, const QString &text,
                                              Buttons buttons)
{
    return sample::runBox(QMessageBox::Question, parent, title, text, buttons);
}

bool CKvUtils::isDarkStyle()
{
    return QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
}

QIcon CKvUtils::icon(const QString &folder, const QString &name)
{
    if (!sample::isSupplied("CKvUtils::icon"))
        return {};
    // The pictures are resources of the module's file.
    for (const char *suffix : {".svg", ".png"}) {
        const QString path = folder + u'/' + name + QString::fromLatin1(suffix);
        if (QFileInfo::exists(path))
            return QIcon(path);
    }
    return {};
}

CKvQtDialogButtonBox::CKvQtDialogButtonBox(QWidget *parent) : QDialogButtonBox(parent) {}

void CKvQtDialogButtonBox::showEvent(QShowEvent *event)
{
    QDialogButtonBox::showEvent(event);
}

CKvQtColorComboBox::CKvQtColorComboBox(QWidget *parent) : QComboBox(parent)
{
    for (int index : {256, 0, 1, 2, 3, 4, 5, 6, 7})
        setColorIndex(index);
    setCurrentIndex(0);
}

int CKvQtColorComboBox::colorIndex() const
{
    const int index = currentText().toInt();
    return index >= 0 && index <= 256 ? index : 0;
}

void CKvQtColorComboBox::setColorIndex(int index)
{
    if (index < 0 || index > 256)
        return;
    if (findText(QString::number(index)) < 0)
        addItem(colorSwatch(index), QString::number(index));
    setCurrentText(QString::number(index));
}

QString CKvQtColorComboBox::colorName(int index)
{
    static const char *const names[] = {"ByBlock", "Red", "Yellow", "Green", "Cyan", "Blue", "Magenta", "White"};
    if (index == 256)
        return tr("ByLayer");
    return index >= 0 && index < 8 ? tr(names[index]) : tr("Color %1").arg(index);
}

QIcon CKvQtColorComboBox::colorSwatch(int index)
{
    static constexpr QRgb colors[] = {0xffffff, 0xff0000, 0xffff00, 0x00ff00, 0x00ffff, 0x0000ff, 0xff00ff, 0xffffff};
    QPixmap picture(16, 16);
    picture.fill(index < 8 ? QColor(colors[index]) : QColor(Qt::gray));
    return QIcon(picture);
}

void CKvQtColorComboBox::initStyleOption(QStyleOptionComboBox *option) const
{
    QComboBox::initStyleOption(option);
    option->currentText = colorName(colorIndex());
}

CKvQtUnitSpinBox::CKvQtUnitSpinBox(QWidget *parent) : QDoubleSpinBox(parent)
{
    setLocale(QLocale::c());
}

void CKvQtUnitSpinBox::setUnitType(int type)
{
    constexpr int enoughForRadians = 12;
    m_unitType = type;
    if (isAngle())
        setDecimals(enoughForRadians);
}

void CKvQtUnitSpinBox::setUnitValue(double value)
{
    setValue(value);
}

void CKvQtUnitSpinBox::setDatabase(OdDbDatabase *database)
{
    m_database = database; // whose units this host does not know: lengths are plain numbers
}

QString CKvQtUnitSpinBox::textFromValue(double value) const
{
    return QString::number(isAngle() ? qRadiansToDegrees(value) : value, 'g', 12);
}

double CKvQtUnitSpinBox::valueFromText(const QString &text) const
{
    bool isNumber = false;
    const double number = QLocale::c().toDouble(text.trimmed(), &isNumber);
    if (!isNumber || !qIsFinite(number))
        return m_defaultValue;
    return isAngle() ? qDegreesToRadians(number) : number;
}

QValidator::State CKvQtUnitSpinBox::validate(QString &text, int &) const
{
    bool isNumber = false;
    QLocale::c().toDouble(text.trimmed(), &isNumber);
    return isNumber ? QValidator::Acceptable : QValidator::Intermediate;
}

void CKvQtUnitSpinBox::fixup(QString &text) const
{
    if (text.trimmed().isEmpty())
        text = textFromValue(m_defaultValue);
}
