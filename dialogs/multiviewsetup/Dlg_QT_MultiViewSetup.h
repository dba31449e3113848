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
/// The folder is at first that of the drawings to start from, with those that come along. One that is not there is
/// told, and the list stays as it was. Scales are those of the unit style that is chosen.
class Dlg_QT_MultiViewSetup final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_MultiViewSetup(QWidget *parent = nullptr);
    ~Dlg_QT_MultiViewSetup() override;

protected:
    void beforeShow() override;
    void beforeFirstShow() override;
    /// Lisp performs one action after the other with what the user has set.
    Reentry reentry() const override { return Reentry::Nothing; }
    void afterShow() override;

private:
    /// Shows the page of the chosen step, turns off what has no meaning, and makes the step's button the default one.
    void UpdateDialog();
    /// The factor of the selected scale; "1.0" without one.
    void ShowCurScale();
    void SelectChanged();
    void selDirect();
    // Each closes with the action of its name.
    void _insertTitle();
    void _createViewports();
    void _alingViewports();
    void _scaleViewports();
    void _insertMSTitle();

    void setUpTables();
    void connectChoices();
    void connectActions();
    void fillCombos();

    /// The whole path, whatever the label shows of it.
    QString folder() const;
    void setFolder(const QString &folder);
    /// Lists the folder's title blocks, if the folder passes the check, and keeps the selection among them.
    void listTitleBlocks();
    UnitStyle unitStyle() const;
    /// Keeps the selected scale while the style stays.
    void listScales();
    /// The button that does what the shown page is for.
    QPushButton *pageAction() const;

    std::unique_ptr<Ui::Dlg_QT_MultiViewSetup> m_ui;
    UnitStyle m_listedStyle; ///< whose scales are listed
};
