#pragma once

#include "state/ToolDialog.h"
#include "state/widgets/ElidedPathField.h"

#include <memory>

namespace Ui {
class Dlg_QT_Breakline;
}

/// The break line dialog: which drawing holds the symbol, how large it is drawn and how much stays free beside it; or
/// the name of a symbol yet to be made from entities of the drawing.
///
/// Closes with the action "OK" (draw with what the state file says) or "CREATE" (make the symbol `name` in the symbol
/// folder, write its path to `LbTitleblock` and call again). Shown after "CREATE" it takes the state's values anew.
///
/// "OK" needs a file that is there; whether it can be read as a drawing is left to the drawing of the line. "CREATE"
/// needs a name that may be one of a file and that no other symbol has, unless the user agrees that it is replaced.
/// Sizes are in drawing units.
class Dlg_QT_Breakline final : public ToolDialog
{
    Q_OBJECT

public:
    /// Makes the folder for symbols with those that come along where they are missing. The first of all showings begins
    /// with the symbol "zigzag.dxf" when it is there.
    explicit Dlg_QT_Breakline(QWidget *parent = nullptr);
    ~Dlg_QT_Breakline() override;

protected:
    Reentry reentry() const override;
    void afterShow() override;

private:
    /// Symbols can only be made under a name.
    void setName(const QString &name);
    void pressEnterforName();
    void selectBlock();
    /// Closes with "OK".
    void CloseAccept();
    /// Closes with "CREATE".
    void CreateDesing();

    /// Shows the drawing of the symbol's file.
    void refreshSymbol();
    void validateOk();
    bool hasSymbolFile() const;

    std::unique_ptr<Ui::Dlg_QT_Breakline> m_ui;
    /// Where symbols are kept; made by the constructor when it is missing.
    const QString m_symbolFolder;
    std::unique_ptr<ElidedPathField> m_file;
};
