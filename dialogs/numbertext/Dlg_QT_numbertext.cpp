#include "dialogs/numbertext/Dlg_QT_numbertext.h"

#include "ui_Dlg_QT_numbertext.h"

#include <QRadioButton>

namespace {

constexpr int mostDigits = 8;
constexpr int usualDigits = 3;

/// A width of numbers and what the number one looks like in it: "3 [001]".
QString digitsItem(int width)
{
    return QStringLiteral("%1 [%2]").arg(width).arg(1, width, 10, QLatin1Char('0'));
}

} // namespace

Dlg_QT_numbertext::Dlg_QT_numbertext(QWidget *parent)
    : ToolDialog(parent, QStringLiteral("numbertext")), m_ui(std::make_unique<Ui::Dlg_QT_numbertext>())
{
    m_ui->setupUi(this);
    setUpButtons(m_ui->ButtonCancel_2);
    for (int width = 1; width <= mostDigits; ++width)
        m_ui->cb_digits->addItem(digitsItem(width));
    m_ui->cb_digits->setCurrentText(digitsItem(usualDigits));

    for (const QRadioButton *placement :
         {m_ui->placement_sufix, m_ui->placement_replace, m_ui->placement_prefix, m_ui->placement_over})
        connect(placement, &QRadioButton::clicked, this, &Dlg_QT_numbertext::RefreshPages);
    connect(m_ui->acceptButton, &QPushButton::clicked, this, &Dlg_QT_numbertext::accept);
}

Dlg_QT_numbertext::~Dlg_QT_numbertext() = default;

void Dlg_QT_numbertext::afterShow()
{
    RefreshPages();
    m_ui->tx_init->setFocus();
    m_ui->tx_init->selectAll();
}

void Dlg_QT_numbertext::RefreshPages()
{
    if (m_ui->placement_prefix->isChecked() || m_ui->placement_sufix->isChecked())
        m_ui->pages->setCurrentWidget(m_ui->page);
    else if (m_ui->placement_replace->isChecked())
        m_ui->pages->setCurrentWidget(m_ui->page_2);
    else if (m_ui->placement_over->isChecked())
        m_ui->pages->setCurrentWidget(m_ui->page_3);
}
