#include "host/app/window/files/PrintDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QSpinBox>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

constexpr int previewDelay = 120;

drawing::Vec2 pointIn(const QString &text)
{
    return {text.section(u',', 0, 0).toDouble(), text.section(u',', 1, 1).toDouble()};
}

QString cornerText(const drawing::Vec2 &point)
{
    return u"%1,%2"_s.arg(QString::number(point.x, 'g', 12), QString::number(point.y, 'g', 12));
}

/// Chooses the entry with this data, added where there is none.
void chooseData(QComboBox &box, const QString &data)
{
    if (box.findData(data) < 0)
        box.addItem(data, data);
    box.setCurrentIndex(box.findData(data));
}

template <class Widget>
Widget *printWidget(Widget *widget, const char *name)
{
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

} // namespace

PrintDialog::PrintDialog(kernel::Document &document, const QString &layout, Purpose purpose, QWidget *parent)
    : QDialog(parent), m_document(document), m_layout(layout),
      m_device(printWidget(new QComboBox(this), "printDevice")),
      m_paper(printWidget(new QComboBox(this), "printPaper")),
      m_orientation(printWidget(new QComboBox(this), "printOrientation")),
      m_area(printWidget(new QComboBox(this), "printArea")), m_low(printWidget(new QLineEdit(this), "printLow")),
      m_high(printWidget(new QLineEdit(this), "printHigh")), m_scale(printWidget(new QComboBox(this), "printScale")),
      m_centred(printWidget(new QCheckBox(tr("&Centred"), this), "printCentred")),
      m_offset(printWidget(new QLineEdit(this), "printOffset")),
      m_styles(printWidget(new QComboBox(this), "printStyles")),
      m_lineweights(printWidget(new QCheckBox(tr("&Lineweights"), this), "printLineweights")),
      m_copies(printWidget(new QSpinBox(this), "printCopies")),
      m_keep(printWidget(new QCheckBox(tr("&Remember in the layout"), this), "printKeep")),
      m_preview(printWidget(new QLabel(this), "printPreview"))
{
    setObjectName(u"printDialog"_s);
    setWindowTitle(purpose == Purpose::Print ? tr("Print %1").arg(layout) : tr("Page setup of %1").arg(layout));
    fillChoices(layout.compare(u"Model"_s, Qt::CaseInsensitive) == 0);
    m_preview->setAccessibleName(tr("Preview"));
    m_preview->setAlignment(Qt::AlignCenter);
    m_preview->setMinimumSize(320, 320);
    auto *form = new QFormLayout;
    build(*form, purpose);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    if (purpose == Purpose::Print)
        buttons->button(QDialogButtonBox::Ok)->setText(tr("&Print"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *halves = new QHBoxLayout;
    halves->addLayout(form);
    halves->addWidget(m_preview, 1);
    auto *column = new QVBoxLayout(this);
    column->addLayout(halves, 1);
    column->addWidget(buttons);
    resize(820, 480);
    show(settingsOfPage(document, layout));
    m_previewTimer.setSingleShot(true);
    m_previewTimer.setInterval(previewDelay);
    connect(&m_previewTimer, &QTimer::timeout, this, &PrintDialog::updatePreview);
    for (QComboBox *box : findChildren<QComboBox *>())
        connect(box, &QComboBox::currentTextChanged, this, &PrintDialog::follow);
    for (QLineEdit *line : {m_low, m_high, m_offset})
        connect(line, &QLineEdit::textChanged, this, &PrintDialog::follow);
    for (QCheckBox *box : {m_centred, m_lineweights})
        connect(box, &QCheckBox::toggled, this, &PrintDialog::follow);
    follow();
}

void PrintDialog::fillChoices(bool isModel)
{
    for (const auto &file : {u"PDF"_s, u"PNG"_s, u"SVG"_s})
        m_device->addItem(tr("%1 file").arg(file), file);
    for (const QString &printer : QPrinterInfo::availablePrinterNames())
        m_device->addItem(printer, printer);
    for (const auto &paper : {u"A4"_s, u"A3"_s, u"A2"_s, u"A1"_s, u"A0"_s, u"ANSI-A"_s, u"ANSI-B"_s, u"ANSI-C"_s})
        m_paper->addItem(paper, paper);
    m_orientation->addItem(tr("Landscape"), true);
    m_orientation->addItem(tr("Portrait"), false);
    m_area->addItem(tr("What is shown"), u"Display"_s);
    m_area->addItem(tr("All"), u"Extents"_s);
    if (isModel)
        m_area->addItem(tr("Limits"), u"Limits"_s);
    else
        m_area->addItem(tr("The layout's sheet"), u"Layout"_s);
    m_area->addItem(tr("Window"), u"Window"_s);
    m_scale->setEditable(true);
    m_scale->addItem(tr("Fit"), u"Fit"_s);
    for (const int units : {1, 2, 5, 10, 20, 50, 100, 200, 500, 1000})
        m_scale->addItem(u"1:%1"_s.arg(units), u"1:%1"_s.arg(units));
    m_styles->addItem(tr("As the layout says"), QString());
    m_styles->addItem(tr("Colours"), u"."_s);
    m_styles->addItem(tr("Black and white"), u"monochrome.ctb"_s);
    m_styles->addItem(tr("Greys"), u"grayscale.ctb"_s);
    m_copies->setRange(1, 99);
}

void PrintDialog::build(QFormLayout &form, Purpose purpose)
{
    form.addRow(tr("&Device"), m_device);
    form.addRow(tr("P&aper"), m_paper);
    form.addRow(tr("&Orientation"), m_orientation);
    form.addRow(tr("A&rea"), m_area);
    form.addRow(tr("Lower left corner"), m_low);
    form.addRow(tr("Upper right corner"), m_high);
    form.addRow(tr("&Scale"), m_scale);
    form.addRow(QString(), m_centred);
    form.addRow(tr("O&ffset (mm)"), m_offset);
    form.addRow(tr("Colo&urs"), m_styles);
    form.addRow(QString(), m_lineweights);
    form.addRow(tr("Cop&ies"), m_copies);
    form.addRow(QString(), m_keep);
    if (purpose == Purpose::Print)
        return;
    m_keep->setChecked(true);
    for (QWidget *widget :
         {static_cast<QWidget *>(m_device), static_cast<QWidget *>(m_copies), static_cast<QWidget *>(m_keep)})
        form.setRowVisible(widget, false);
}

void PrintDialog::show(const PrintSettings &settings)
{
    chooseData(*m_device, settings.device);
    chooseData(*m_paper, settings.paper);
    m_orientation->setCurrentIndex(settings.isAcross ? 0 : 1);
    chooseData(*m_area, settings.area);
    m_low->setText(cornerText(settings.window.low.xy()));
    m_high->setText(cornerText(settings.window.high.xy()));
    m_scale->setCurrentText(settings.scale == u"Fit" ? tr("Fit") : settings.scale);
    m_centred->setChecked(!settings.offset);
    m_offset->setText(cornerText(settings.offset.value_or(drawing::Vec2{})));
    m_lineweights->setChecked(settings.hasLineweights);
}

PrintSettings PrintDialog::settings() const
{
    PrintSettings settings;
    settings.layout = m_layout;
    settings.device = m_device->currentData().toString();
    settings.paper = m_paper->currentData().toString();
    settings.isAcross = m_orientation->currentData().toBool();
    settings.area = m_area->currentData().toString();
    const drawing::Vec2 low = pointIn(m_low->text());
    const drawing::Vec2 high = pointIn(m_high->text());
    settings.window = {{low.x, low.y, 0.0}, {high.x, high.y, 0.0}};
    const QString scale = m_scale->currentText();
    settings.scale = scale == tr("Fit") ? u"Fit"_s : scale.trimmed();
    if (!m_centred->isChecked())
        settings.offset = pointIn(m_offset->text());
    settings.styles = m_styles->currentData().toString();
    settings.hasLineweights = m_lineweights->isChecked();
    settings.copies = m_copies->value();
    return settings;
}

bool PrintDialog::isKept() const
{
    return m_keep->isChecked();
}

void PrintDialog::follow()
{
    const PrintSettings now = settings();
    m_low->setEnabled(now.area == u"Window");
    m_high->setEnabled(now.area == u"Window");
    m_offset->setEnabled(!m_centred->isChecked());
    m_copies->setEnabled(!now.isFile());
    m_previewTimer.start();
}

void PrintDialog::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    m_previewTimer.start();
}

void PrintDialog::updatePreview()
{
    QString problem;
    const double ratio = devicePixelRatioF();
    QImage page = previewPage(m_document, settings(), (m_preview->size() - QSize(8, 8)) * ratio, problem);
    if (page.isNull()) {
        m_preview->setText(problem);
        return;
    }
    QPainter(&page).drawRect(page.rect().adjusted(0, 0, -1, -1));
    QPixmap shown = QPixmap::fromImage(page);
    shown.setDevicePixelRatio(ratio);
    m_preview->setPixmap(shown);
}

} // namespace host::app
