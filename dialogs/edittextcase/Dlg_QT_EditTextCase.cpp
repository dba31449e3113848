#include "dialogs/edittextcase/Dlg_QT_EditTextCase.h"

#include "formats/TextCase.h"
#include "ui_Dlg_QT_EditTextCase.h"

#include <QRadioButton>

#include <iterator>

namespace {

struct Style
{
    ortakit::TextCase textCase;
    const char *modeName;
};

/// In the order of the buttons; the first one is mode number 1.
constexpr Style styles[] = {
    {ortakit::TextCase::Sentence, QT_TRANSLATE_NOOP("Dlg_QT_EditTextCase", "Sentence")},
    {ortakit::TextCase::Lower, QT_TRANSLATE_NOOP("Dlg_QT_EditTextCase", "Lower")},
    {ortakit::TextCase::Upper, QT_TRANSLATE_NOOP("Dlg_QT_EditTextCase", "Upper")},
    {ortakit::TextCase::Title, QT_TRANSLATE_NOOP("Dlg_QT_EditTextCase", "Title")},
    {ortakit::TextCase::Toggle, QT_TRANSLATE_NOOP("Dlg_QT_EditTextCase", "toGgle")},
};
constexpr int styleCount = int(std::size(styles));

QString current()
{
    return QStringLiteral("current");
}

} // namespace

Dlg_QT_EditTextCase::Dlg_QT_EditTextCase(QWidget *parent)
    : ToolDialog(parent, QStringLiteral("edittextcase")), m_ui(std::make_unique<Ui::Dlg_QT_EditTextCase>())
{
    m_ui->setupUi(this);
    setUpButtons();
    for (int mode = 1; mode <= styleCount; ++mode)
        connect(button(mode), &QRadioButton::toggled, this, &Dlg_QT_EditTextCase::UpdatePreview);
    connect(m_ui->okButton, &QPushButton::clicked, this, &Dlg_QT_EditTextCase::accept);
    connect(m_ui->cancelButton, &QPushButton::clicked, this, &Dlg_QT_EditTextCase::reject);
}

Dlg_QT_EditTextCase::~Dlg_QT_EditTextCase() = default;

QRadioButton *Dlg_QT_EditTextCase::button(int modeNumber) const
{
    QRadioButton *const buttons[] = {m_ui->radioButton1, m_ui->radioButton2, m_ui->radioButton3, m_ui->radioButton4,
                                     m_ui->radioButton5};
    return buttons[modeNumber - 1];
}

/// 0 when none is checked.
int Dlg_QT_EditTextCase::checkedMode() const
{
    for (int mode = 1; mode <= styleCount; ++mode) {
        if (button(mode)->isChecked())
            return mode;
    }
    return 0;
}

void Dlg_QT_EditTextCase::afterShow()
{
    bool isStyleGiven = false;
    for (int mode = 1; mode <= styleCount; ++mode)
        isStyleGiven |= !state().lookupInLastFile(button(mode)->objectName()).isEmpty();
    if (!isStyleGiven)
        preselect(state().lookupInLastFile(current()));
    UpdatePreview();
    if (const int mode = checkedMode())
        button(mode)->setFocus();
}

void Dlg_QT_EditTextCase::preselect(const QString &modeName)
{
    for (int mode = 1; mode <= styleCount; ++mode) {
        if (modeName == tr(styles[mode - 1].modeName))
            button(mode)->setChecked(true);
    }
}

void Dlg_QT_EditTextCase::UpdatePreview()
{
    const int mode = checkedMode();
    if (mode == 0)
        return m_ui->previewLabel->clear();
    const Style &style = styles[mode - 1];
    m_ui->previewLabel->setText(ortakit::inTextCase(m_ui->referenceEdit->text(), style.textCase));
    state().setWrittenValue(current(), tr(style.modeName));
}
