#pragma once

#include "formats/UserReport.h"
#include "state/ToolDialog.h"

#include <memory>

namespace Ui {
class Dlg_QT_ExportInfo;
}

/// Takes a problem report from the user and writes it to a text file, with what a Lisp program found out about the
/// system. Closes with no action word.
///
/// Each showing begins with numbered lines for the steps that lead to the problem, and with the system information of
/// the file. OK asks for the report's file and closes whether or not one was chosen and could be written, which the
/// host tells of: the Lisp programs expect the dialog to end there. The report is UTF-8 with the line ends of the
/// platform.
class Dlg_QT_ExportInfo final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_ExportInfo(QWidget *parent = nullptr);
    ~Dlg_QT_ExportInfo() override;

    /// The file with the system information, read with each showing; empty for none.
    void setSystemFile(const QString &path) { m_systemFile = path; }
    /// The file that was chosen last, whether or not it could be written; empty when choosing was cancelled.
    QString reportFile() const { return m_reportFile; }

protected:
    void afterShow() override;

private:
    /// What the fields hold, whole where they show less.
    ortakit::UserReport report() const;
    void clickOK();

    std::unique_ptr<Ui::Dlg_QT_ExportInfo> m_ui;
    QString m_systemFile;
    QString m_reportFile;
};
