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
///
/// | key | value |
/// |---|---|
/// | txexport | path of the file, comes in and goes out |
/// | dimstylelength, dimstyle1 ...; textstylelength, textstyle1 ... | come in: the drawing's names |
/// | lststyles | goes out: ",Standard,ISO-25" |
/// | cbdimensionstyle, cbtextstyle | TRUE to overwrite what the drawing has |
///
/// Nothing selected is told with "No dimension style selected, please select a dimension style to import. ". The
/// drawing is not touched: reading the styles into it is the Lisp program's.
class Dlg_QT_ImportDimensionStyle final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_ImportDimensionStyle(QWidget *parent = nullptr);
    ~Dlg_QT_ImportDimensionStyle() override;

protected:
    /// Reads the file anew, so that the list is what the file holds now.
    void afterShow() override;

private:
    /// Has the user choose the file to import from.
    void SelectExportFile();
    /// What may be overwritten is asked about one style at a time: each selection unchecks both options, and of several
    /// styles both can be checked.
    void styleSelect();
    /// Nothing while the file field has the focus: its Enter only takes the path.
    void acceptDialog();

    void listStyles();
    /// Leaving the field with the path that is listed keeps list and selection.
    void listStylesOfNewPath();
    /// `usesExistingTextStyle`: the style names a text style that the drawing has.
    void offerOverwriting(const QString &style, bool usesExistingTextStyle);

    std::unique_ptr<Ui::Dlg_QT_ImportDimensionStyle> m_ui;
    StyleTables *m_tables; ///< owned by the dialog as its child
    /// The file whose styles are listed.
    QString m_listedFile;
    std::unique_ptr<ElidedPathField> m_file; ///< of txExport
};
