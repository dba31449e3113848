#pragma once

#include "state/ToolDialog.h"
#include "state/widgets/ElidedPathField.h"

#include <memory>

class StyleTables;
namespace Ui {
class Dlg_QT_ImportDimensionStyle;
}

/// The dialog that imports dimension styles: which styles of a file, and whether those and the text styles that the
/// drawing has already are overwritten. The Lisp program gives the drawing's names as the lists "dimstyle" and
/// "textstyle" (see DialogState::lookupList()).
///
/// Closes without an action word. The state file then holds under "lststyles" the names of the chosen styles in the
/// order of the selection, each with "," before it.
class Dlg_QT_ImportDimensionStyle final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_ImportDimensionStyle(QWidget *parent = nullptr);
    ~Dlg_QT_ImportDimensionStyle() override;

protected:
    void afterShow() override;

private:
    void SelectExportFile();
    void styleSelect();
    void acceptDialog();

    void listStyles();
    void listStylesOfNewPath();
    void offerOverwriting(const QString &style, bool usesExistingTextStyle);

    std::unique_ptr<Ui::Dlg_QT_ImportDimensionStyle> m_ui;
    StyleTables *m_tables;
    /// The file whose styles are listed.
    QString m_listedFile;
    std::unique_ptr<ElidedPathField> m_file;
};
