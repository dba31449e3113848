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
/// | key | value |
/// |---|---|
/// | lineedit, lineedit_2, lineedit_3 | name, e-mail and telephone of the user, kept for the next report |
///
/// The problem, its steps and the system information are in the report only. No field has to be filled in. OK asks for
/// the file and then closes with acceptance whatever came of it: also when no file was chosen, and when it could not be
/// written, which the command line tells and which leaves an older file as it was. The report is UTF-8 with the
/// platform's line ends.
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
    /// Begins the steps anew and reads the system information; all else stays from the last report.
    void afterShow() override;

private:
    /// What the fields say now, those that show a text shortened with the whole of it.
    ortakit::UserReport report() const;
    void clickOK();

    std::unique_ptr<Ui::Dlg_QT_ExportInfo> m_ui;
    QString m_systemFile; ///< of the last call
    QString m_reportFile;
};
