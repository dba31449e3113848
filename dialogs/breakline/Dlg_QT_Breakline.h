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
/// | key | value |
/// |---|---|
/// | lbtitleblock | whole path of the symbol's drawing |
/// | _dist_size, _dist_offset | lengths in drawing units |
/// | name | of the new symbol, without folder and extension; empty at each showing |
///
/// OK can be pressed while there is a file at the path; one that has gone since is told with "Cannot find the specified
/// drawing file.". A new symbol's name must be one that a file can have, and a drawing of that name is replaced only
/// after a question. The dialog itself writes no drawing.
class Dlg_QT_Breakline final : public ToolDialog
{
    Q_OBJECT

public:
    /// Makes the symbol folder, puts the starter symbols into it where it has no drawing, and begins with the zigzag of
    /// these; the path stays empty where there is none.
    explicit Dlg_QT_Breakline(QWidget *parent = nullptr);
    ~Dlg_QT_Breakline() override;

protected:
    /// The whole state after "CREATE", which brings the new symbol's path; otherwise all stays as the user left it.
    Reentry reentry() const override;
    void afterShow() override;

private:
    /// The symbol can be made as soon as it has a name; whether the name is good is looked at when it is made.
    void setName(const QString &name);
    void pressEnterforName();
    /// A chosen file that is not named like a drawing empties the field.
    void selectBlock();
    /// The slot of OK; nothing while the file field has the focus, whose Enter only takes the path.
    void CloseAccept();
    /// The slot of the button that closes with "CREATE".
    void CreateDesing();

    /// Preview and OK follow the file field.
    void refreshSymbol();
    void validateOk();
    bool hasSymbolFile() const;

    std::unique_ptr<Ui::Dlg_QT_Breakline> m_ui;
    /// Where symbols are kept; made by the constructor when it is missing.
    const QString m_symbolFolder;
    std::unique_ptr<ElidedPathField> m_file; ///< of LbTitleblock
};
