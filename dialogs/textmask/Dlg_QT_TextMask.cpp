#include "dialogs/textmask/Dlg_QT_TextMask.h"

#include "platform/kernel/CKvDocument.h"
#include "state/widgets/DialogPicture.h"
#include "state/widgets/FullText.h"
#include "ui_Dlg_QT_TextMask.h"

#include <QRadioButton>

namespace {

constexpr qint16 hiddenFrames = 0;

/// Whether Lisp will read `text` as a distance: a number with a decimal point, whatever the user's locale, zero or
/// more. Infinity is a number to the conversion, but none that Lisp could draw with.
bool isDistance(const QString &text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && qIsFinite(number) && number >= 0;
}

} // namespace

Dlg_QT_TextMask::Dlg_QT_TextMask(QWidget *parent)
    : ToolDialog(parent, QStringLiteral("textmask")), m_ui(std::make_unique<Ui::Dlg_QT_TextMask>()),
      m_maskFrames(ACTIVE_DOCUMENT(), QStringLiteral("WIPEOUTFRAME")), m_savedFrames(m_maskFrames.value()),
      m_shownFrames(m_savedFrames)
{
    m_ui->setupUi(this);
    setUpButtons(m_ui->Helpbutton);
    new DialogPicture(m_ui->picture, QStringLiteral(":/images/textmask.png"));

    for (const QRadioButton *type : {m_ui->type_mask, m_ui->type_3dface, m_ui->type_solid})
        connect(type, &QRadioButton::clicked, this, &Dlg_QT_TextMask::updateDialog);
    connect(m_ui->acceptButton, &QPushButton::clicked, this, &Dlg_QT_TextMask::checkValues);
}

Dlg_QT_TextMask::~Dlg_QT_TextMask()
{
    m_maskFrames.setValue(m_savedFrames);
}

void Dlg_QT_TextMask::reject()
{
    m_maskFrames.setValue(m_shownFrames);
    ToolDialog::reject();
}

void Dlg_QT_TextMask::beforeShow()
{
    m_shownFrames = m_maskFrames.value();
}

void Dlg_QT_TextMask::afterShow()
{
    updateDialog();
    m_ui->offset->setFocus();
    m_ui->offset->selectAll();
}

void Dlg_QT_TextMask::updateDialog()
{
    m_maskFrames.setValue(m_ui->type_mask->isChecked() ? std::optional(hiddenFrames) : m_savedFrames);
    m_ui->label_9->setEnabled(m_ui->type_solid->isChecked());
    m_ui->color->setEnabled(m_ui->type_solid->isChecked());
}

void Dlg_QT_TextMask::checkValues()
{
    if (isDistance(ortakit::wholeText(*m_ui->offset))) {
        accept();
        return;
    }
    warn(tr("Wrong dimension value."), {}, tr("Must be positive or zero."));
    m_ui->offset->setFocus();
    m_ui->offset->selectAll();
}
