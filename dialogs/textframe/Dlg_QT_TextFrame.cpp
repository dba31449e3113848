#include "dialogs/textframe/Dlg_QT_TextFrame.h"

#include "state/widgets/DialogPicture.h"
#include "ui_Dlg_QT_TextFrame.h"

#include <QDoubleValidator>
#include <QLocale>
#include <QRadioButton>
#include <QValidator>

namespace {

/// Takes what Lisp reads as one number: digits and a decimal point, but no separator of thousands, at which Lisp would
/// stop reading.
QValidator *makeOffsetValidator(QObject *parent)
{
    auto *validator = new QDoubleValidator(parent);
    validator->setBottom(0);
    validator->setNotation(QDoubleValidator::StandardNotation);
    QLocale lisp = QLocale::c();
    lisp.setNumberOptions(QLocale::OmitGroupSeparator | QLocale::RejectGroupSeparator);
    validator->setLocale(lisp);
    return validator;
}

} // namespace

Dlg_QT_TextFrame::Dlg_QT_TextFrame(QWidget *parent)
    : ToolDialog(parent, QStringLiteral("textframe")), m_ui(std::make_unique<Ui::Dlg_QT_TextFrame>())
{
    m_ui->setupUi(this);
    setUpButtons();
    new DialogPicture(m_ui->picture, QStringLiteral(":/images/textmask.png"));
    m_ui->offset->setValidator(makeOffsetValidator(m_ui->offset));

    for (const QRadioButton *choice : {m_ui->type_slot, m_ui->type_rectangle, m_ui->type_circle, m_ui->constant,
                                       m_ui->variable, m_ui->bk_transparent, m_ui->bk_hatch})
        connect(choice, &QRadioButton::clicked, this, &Dlg_QT_TextFrame::updateDialog);
    connect(m_ui->acceptButton, &QPushButton::clicked, this, &Dlg_QT_TextFrame::accept);
}

Dlg_QT_TextFrame::~Dlg_QT_TextFrame() = default;

void Dlg_QT_TextFrame::afterShow()
{
    updateDialog();
    m_ui->offset->setFocus();
    m_ui->offset->selectAll();
}

void Dlg_QT_TextFrame::updateDialog()
{
    // A circle has one size, so there is nothing to choose that stays.
    m_ui->groupConstant->setEnabled(!m_ui->type_circle->isChecked() && !m_ui->variable->isChecked());
    m_ui->txbk->setEnabled(m_ui->bk_hatch->isChecked());
    m_ui->color->setEnabled(m_ui->bk_hatch->isChecked());
}
