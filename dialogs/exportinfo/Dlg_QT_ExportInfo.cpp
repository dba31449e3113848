#include "dialogs/exportinfo/Dlg_QT_ExportInfo.h"

#include "formats/FileWriting.h"
#include "state/host/CommandLineText.h"
#include "state/pickers/FilePicker.h"
#include "state/widgets/FullText.h"
#include "ui_Dlg_QT_ExportInfo.h"

#include <QFontDatabase>

Dlg_QT_ExportInfo::Dlg_QT_ExportInfo(QWidget *parent)
    : ToolDialog(parent, QStringLiteral("exportInfo")), m_ui(std::make_unique<Ui::Dlg_QT_ExportInfo>())
{
    m_ui->setupUi(this);
    setUpButtons();
    m_ui->lstInfo->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont)); // it stands in columns
    connect(m_ui->acceptButton, &QPushButton::clicked, this, &Dlg_QT_ExportInfo::clickOK);
}

Dlg_QT_ExportInfo::~Dlg_QT_ExportInfo() = default;

void Dlg_QT_ExportInfo::afterShow()
{
    m_ui->steps->setPlainText(QStringLiteral("1. \r\n2. \r\n3. \r\n4. \r\n5. \r\n... \r\n"));
    m_ui->lstInfo->setPlainText(ortakit::readSystemInformation(m_systemFile));
    m_ui->lineEdit->setFocus();
}

ortakit::UserReport Dlg_QT_ExportInfo::report() const
{
    return {.name = ortakit::wholeText(*m_ui->lineEdit),
            .email = ortakit::wholeText(*m_ui->lineEdit_2),
            .phone = ortakit::wholeText(*m_ui->lineEdit_3),
            .issue = m_ui->textEdit_2->toPlainText(),
            .steps = m_ui->steps->toPlainText(),
            .system = m_ui->lstInfo->toPlainText()};
}

void Dlg_QT_ExportInfo::clickOK()
{
    // Of a text with three dots in it the stored one is saved.
    for (QLineEdit *field : {m_ui->lineEdit, m_ui->lineEdit_2, m_ui->lineEdit_3})
        ortakit::storeFullText(*field, ortakit::wholeText(*field));

    const QByteArray text = ortakit::userReportText(report()).toUtf8();
    m_reportFile = ortakit::pickFileToSave(
        this, {.title = tr("Export information"), .filter = tr("Text files (*.txt)"), .start = QStringLiteral(".")});
    // That a report was saved is said whether or not it was: the Lisp programs expect the dialog to end here.
    if (!m_reportFile.isEmpty())
        ortakit::replaceFileOrTell(m_reportFile, ortakit::withPlatformLineEnds(text));
    accept();
}
