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
/// A row is a command and an alias of it; an alias is compared in any mix of cases. Files that were damaged are shown
/// as far as they can be read and are written only after a question, when the old one is kept beside the new one. A
/// file that cannot be read at all, or not written, is told in a message and the table stays as it is.
class Dlg_QT_EditAlias final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_EditAlias(QWidget *parent = nullptr);
    ~Dlg_QT_EditAlias() override;

    /// Delete and F2 on the table.
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void beforeShow() override;
    void afterShow() override;
    void changeEvent(QEvent *event) override;

private:
    /// Puts an empty row on top and lets the user fill it.
    void AddAlias();
    /// Asks for each selected cell's row.
    void delAlias();
    /// Asks once, for all rows.
    void cleanAlias();
    void saveAlias();
    void exportAlias();
    void importAlias();
    void printAlias();
    /// Puts back what a cell held when another row has that alias.
    void aliasChanged(int row, int column);
    /// Keeps in mind what the cell holds, which is about to be edited.
    void aliasclick(int row, int column);
    void ClickHeaderTable(int column);
    void SelectChanged();
    /// OK: writes and closes, also when the file could not be written.
    void CerrarDialogo();

    void connectWidgets();
    void setIcons();
    void showAliasFile();
    void fillTable(const QList<ortakit::CommandAlias> &aliases);
    QString cellText(int row, int column) const;
    QList<ortakit::CommandAlias> tableAliases() const;
    /// Whether the file may be written: the user is asked about one that could not be read whole.
    bool mayWrite();
    bool writeTable();
    bool isAliasOfOther(const QString &text, int row) const;
    bool takesOpenEdit();
    void reportErrorSoon(const QString &text);

    std::unique_ptr<Ui::Dlg_QT_EditAlias> m_ui;
    ortakit::AliasFile m_aliasFile;
    /// What an alias cell held before it was edited.
    QString m_previousAlias;
    /// The table is changed by the dialog; nothing is checked.
    bool m_isFilling = false;
    /// Set when a change was refused.
    bool m_hasExportFailed = false;
    bool m_wasRefused = false;
};
