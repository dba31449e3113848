#include "dialogs/convertnotes/DLG_QT_ConvertNotes.h"

#include "ui_DLG_QT_ConvertNotes.h"

DLG_QT_ConvertNotes::DLG_QT_ConvertNotes(QWidget *parent)
    : ToolDialog(parent, QStringLiteral("convertsimplenotes")), m_ui(std::make_unique<Ui::DLG_QT_ConvertNotes>())
{
    m_ui->setupUi(this);
    setUpButtons();
    connect(m_ui->acceptButton, &QPushButton::clicked, this, &DLG_QT_ConvertNotes::accept);
}

DLG_QT_ConvertNotes::~DLG_QT_ConvertNotes() = default;

void DLG_QT_ConvertNotes::afterShow()
{
    m_ui->keepfonts->setFocus();
}
