#pragma once

#include "state/ToolDialog.h"

#include <memory>

class QPushButton;

namespace Ui {
class Dlg_QT_MultiViewSetup;
}
enum class UnitStyle;

/// The multi-view setup dialog, from which a sheet is set up step by step: a title block in paper space or model space,
/// and viewports that are created, aligned and scaled.
///
/// Each of its action buttons closes it with an action word: "INSERTTITLE" (the block's file is `titleblock` in the
/// folder `directory`, both written though they are labels), "CREATEVIEWPORTS", "ALIGNVIEWPORTS", "SCALEVIEWPORTS" or
/// "INSERTMSTITLE". Lisp does the work and calls again; the dialog then comes back as it was left. "CANCEL" is the
/// action from each showing on until a button is pressed.
///
/// | key | value |
/// |---|---|
/// | spacepaper, spacemodel | which half of the dialog is shown |
/// | pstitle, pscreate, psalign, psscale | which step, in paper space |
/// | directory, titleblock | folder and file name of the title block |
/// | titlex, titley, unitstitle | where it goes, as typed, and its units by name |
/// | oplay, layer | whether it gets a layer, and which |
/// | removetitles, removeviewports | what is removed before; the program reads the "_index" line |
/// | xref, limits | attach instead of insert; set the limits |
/// | singleviewp, arrayviewp, viewrows, viewcols, viewoffsetx, viewoffsety | the viewports, as typed |
/// | alignhor, alignver, ms_scale, ps_scale | how viewports are aligned and scaled |
/// | curscale, mswidth, msheight | scale factor and sheet size in model space, as typed |
///
/// The state is applied at the first showing only, where the folder begins with that of the starter title blocks.
/// Nothing that was typed is checked here: a number that is none is for the Lisp program to refuse. A folder that is
/// not there is told at each showing ("Path can`t be empty", "Cannot find the specified Path."), and the list stays as
/// it was.
class Dlg_QT_MultiViewSetup final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_MultiViewSetup(QWidget *parent = nullptr);
    ~Dlg_QT_MultiViewSetup() override;

protected:
    /// Lists the folder again: title blocks may have come since.
    void beforeShow() override;
    /// Puts the starter title blocks into the host's template folder, and fills lists before the state selects in them.
    void beforeFirstShow() override;
    /// Lisp performs one action after the other with what the user has set.
    Reentry reentry() const override { return Reentry::Nothing; }
    /// Sets the action "CANCEL".
    void afterShow() override;

private:
    /// Whenever an option is clicked: pages, what is enabled, scales, default button.
    void UpdateDialog();
    /// The factor of the only scale selected, else 1.0.
    void ShowCurScale();
    /// A title block can be inserted once one is selected.
    void SelectChanged();
    /// Has the user choose the folder of title blocks.
    void selDirect();
    // Each closes with the action of its name.
    /// Of several selected files the first of the table is inserted, and so it is without a selection.
    void _insertTitle();
    void _createViewports();
    void _alingViewports();
    void _scaleViewports();
    void _insertMSTitle();

    void setUpTables();
    void connectChoices();
    void connectActions();
    void fillCombos();

    /// The whole path, however the label shows it.
    QString folder() const;
    /// Also for the state file, which takes nothing from labels.
    void setFolder(const QString &folder);
    /// Lists the folder's title blocks, if the folder passes the check, and keeps the selection among them.
    void listTitleBlocks();
    /// None while no option is checked.
    UnitStyle unitStyle() const;
    /// Nothing when they are listed already, which keeps the selection.
    void listScales();
    /// The button that does what the shown page is for.
    QPushButton *pageAction() const;

    std::unique_ptr<Ui::Dlg_QT_MultiViewSetup> m_ui;
    UnitStyle m_listedStyle; ///< whose scales the table shows
};
