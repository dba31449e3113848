#pragma once

#include "state/ToolDialog.h"

#include <memory>

class StyleTables;
namespace Ui {
class Dlg_QT_ExchangedDimensionStyle;
}

/// The dialog that exports dimension styles: which styles of a complete file, whose path the Lisp program gives under
/// "filedim", go into a file of the user's, and how much of their text styles with them.
///
/// It writes the file itself and closes without an action word; also where the file cannot be written, which leaves
/// what was there before.
class Dlg_QT_ExchangedDimensionStyle final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_ExchangedDimensionStyle(QWidget *parent = nullptr);
    ~Dlg_QT_ExchangedDimensionStyle() override;

protected:
    void afterShow() override;

private:
    void SelectExportFile();
    void styleSelect();

    bool mayWrite(const QString &chosen, const QString &path);
    /// False when nothing was written.
    bool writeStyles(const QString &path, const QStringList &names) const;

    std::unique_ptr<Ui::Dlg_QT_ExchangedDimensionStyle> m_ui;
    StyleTables *m_tables;
    QString m_sourceFile;
};
