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
///
/// | key | value |
/// |---|---|
/// | filedim | comes in: path of the complete file; one that cannot be read lists no styles |
/// | rbfulltext, rbnametext | TRUE for the text styles whole, or their names only |
/// | exportfile | goes out: path of the user's file, ".dim" added where it was missing |
/// | exportedstyles | goes out: number of styles in it; empty when it could not be written |
///
/// Without a selected style it says "No dimension style selected, please select a dimension style to export. " and
/// stays open.
class Dlg_QT_ExchangedDimensionStyle final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_ExchangedDimensionStyle(QWidget *parent = nullptr);
    ~Dlg_QT_ExchangedDimensionStyle() override;

protected:
    /// Reads the complete file; each selection of one style reads it again.
    void afterShow() override;

private:
    /// The slot of the Export button, which takes the place of an OK.
    void SelectExportFile();
    /// The variables are those of the only style selected; of several, none are shown.
    void styleSelect();

    /// Asks about a file whose name became another one by its extension: the file picker knew nothing of that one.
    bool mayWrite(const QString &chosen, const QString &path);
    /// False when nothing was written.
    bool writeStyles(const QString &path, const QStringList &names) const;

    std::unique_ptr<Ui::Dlg_QT_ExchangedDimensionStyle> m_ui;
    StyleTables *m_tables; ///< owned by the dialog as its child
    QString m_sourceFile;  ///< the complete file, as of the last showing
};
