#pragma once

#include "formats/AliasFile.h"
#include "state/ToolDialog.h"

#include <memory>

namespace Ui {
class Dlg_QT_EditAlias;
}

/// The alias editor: the table of what may be typed in place of commands, from the host's alias file each time it is
/// shown. An alias that another row has is refused. What the table holds is written by Save and OK, to the alias file
/// or to the file that was exported to since the dialog was shown.
///
/// The alias file is "alias.xml" in the user's support folder (see ortakit::AliasFile for what is kept beside it when
/// it was damaged). Lisp gives the dialog nothing and gets nothing: it closes with no action word, and the state file
/// has no key that a program needs. A changed alias counts from the next command on.
///
/// | when | what the user is told |
/// |---|---|
/// | the alias of another row is typed | "This alias already begin used for other command."; it is taken back |
/// | Save or OK would write over a damaged file | a question, which the user may refuse |
/// | Save, Export, Import | each says when it failed, Save and Export also when not |
/// | OK cannot write | the command line says why, and the dialog closes |
///
/// Cancel drops what was not saved. Rows whose command or alias is empty are shown and printed, but not written.
class Dlg_QT_EditAlias final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_EditAlias(QWidget *parent = nullptr);
    ~Dlg_QT_EditAlias() override;

    /// Delete and F2 on the table; the editor of a cell keeps its keys.
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    /// Reads the alias file. What is wrong with it is told once the dialog is on the screen.
    void beforeShow() override;
    void afterShow() override;
    void changeEvent(QEvent *event) override;

private:
    /// Begins an empty row at the top and its editing.
    void AddAlias();
    /// Asks about each selected cell, so twice about a row with both selected.
    void delAlias();
    /// Removes all rows after one question; the file keeps them until Save or OK.
    void cleanAlias();
    void saveAlias();
    /// From here on the chosen file is the one that Save and OK write.
    void exportAlias();
    /// Replaces all rows. The alias file stays the one to be written; a bad file leaves the table as it is.
    void importAlias();
    void printAlias();
    /// Refuses a text that is the alias of another row, in any mix of cases.
    void aliasChanged(int row, int column);
    /// Remembers what an alias cell holds, for when its next text is refused.
    void aliasclick(int row, int column);
    void ClickHeaderTable(int column);
    void SelectChanged();
    /// The slot of OK; stays open when the text being typed is refused or the user keeps a damaged file.
    void CerrarDialogo();

    void connectWidgets();
    void setIcons();
    void showAliasFile();
    void fillTable(const QList<ortakit::CommandAlias> &aliases);
    QString cellText(int row, int column) const;
    QList<ortakit::CommandAlias> tableAliases() const;
    /// Whether the file may be written: the user is asked about one that could not be read whole.
    bool mayWrite();
    /// False when the file could not be written, which the command line tells.
    bool writeTable();
    bool isAliasOfOther(const QString &text, int row) const;
    /// To be called before the table is used: a cell may still be edited. False when its text was refused.
    bool takesOpenEdit();
    /// Queued; nothing when the dialog has been closed by then.
    void reportErrorSoon(const QString &text);

    std::unique_ptr<Ui::Dlg_QT_EditAlias> m_ui;
    ortakit::AliasFile m_aliasFile; ///< the one that Save and OK write
    /// What an alias cell held before it was edited.
    QString m_previousAlias;
    /// The table is changed by the dialog; nothing is checked.
    bool m_isFilling = false;
    bool m_hasExportFailed = false; ///< the last export since the showing; OK then tells of its own failure, too
    /// Set when a change was refused.
    bool m_wasRefused = false;
};
