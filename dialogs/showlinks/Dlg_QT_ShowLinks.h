#pragma once

#include "formats/LinkFile.h"
#include "state/ToolDialog.h"

#include <QUrl>

#include <memory>

namespace Ui {
class Dlg_QT_ShowLinks;
}

/// The link viewer: the links that entities of the drawing carry, to open, edit, remove and find in the drawing.
///
/// The links come from the link file, whose path the Lisp program gives in the state file as "linkfile"; the path is
/// all that stands behind the first "=" of that line. It is never seen, but kept in a widget of that name, so that the
/// state file has the line and the action whatever else is empty. The dialog writes the same file:
///
/// | action | the link file holds | what Lisp does |
/// |---|---|---|
/// | OK | all links, then the removed entities | gives the entities these URLs, takes the links of the removed ones |
/// | SHOWENTITY | the selected links | shows their entities and calls again |
///
/// The file is read when the tool is started, which is at the first showing, at each behind one that ended with Close
/// or was cancelled, and where Lisp has set the action to START, as it does when a run before this one did not come
/// back. Coming back from Show Entity the table stays as it was, unless Lisp has set the action to RETURN: then the
/// file is read again. Which links were removed is kept over that, but for those that are listed then.
///
/// A link file that is there and could not be read is not written over, and one that cannot be written stays as it was;
/// the command line tells either, and the action word is what was meant. The file keeps its encoding as long as that
/// has all characters.
class Dlg_QT_ShowLinks final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_ShowLinks(QWidget *parent = nullptr);
    ~Dlg_QT_ShowLinks() override;

    /// However it ended, but for Show Entity, the next showing starts anew.
    void done(int result) override;

protected:
    /// Sets the action "CANCEL", which no state file ever gets.
    void beforeShow() override;
    void afterShow() override;
    void changeEvent(QEvent *event) override;

private:
    /// Hands the one selected link to the desktop. All but links to pages are asked about first, programs with a
    /// warning; what leads nowhere or is refused is told with "Unable to display the link.".
    void showUrl();
    /// After a question. The drawing keeps the links until the program takes them at OK.
    void removeSelected();
    /// Closes with "SHOWENTITY".
    void showEntity();
    /// In the URLs of the selected rows; upper and lower case differ.
    void replace();
    /// The slot of Close, which is this dialog's OK.
    void CloseDialog();
    void SelectChanged();
    void ClickHeaderTable(int column);

    void setUpTable();
    void connectWidgets();
    void setIcons();
    /// Where relative links lead from; empty for a drawing that was never saved.
    static QString drawingFolder();
    bool mayOpen(const QUrl &target);
    QString action() const;
    bool isReturning() const;
    /// The whole value, whatever "=" is in it.
    QString linkFile() const;
    void loadLinks();
    QList<int> allRows() const;
    ortakit::Link linkAt(int row) const;
    /// Replaces the link file, all of it or nothing.
    void writeLinks(const QList<int> &rows, const QStringList &removed) const;

    std::unique_ptr<Ui::Dlg_QT_ShowLinks> m_ui;
    /// The entities of the rows that were removed since the tool was started.
    QStringList m_removed;
    ortakit::LinkEncoding m_encoding = ortakit::LinkEncoding::Utf8; ///< of the link file as it was read
    QString m_unread;         ///< why the link file that is there could not be read
    bool m_isStarting = true; ///< the next showing reads the link file
};
