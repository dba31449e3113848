#pragma once

#include "host/app/window/files/FilePictures.h"
#include "host/kernel/files/RecoveryCopy.h"

#include <QDialog>

class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace host::app {

/// What a program that ended without closing them left of drawings: each with its picture, when the copy was made, the
/// file it belongs to and whether that has changed since. All are checked at first.
///
/// Accepted: those that are checked are to be opened. Rejected, by "Later" or Esc: all stay for the next start. What is
/// discarded, after a question, is gone at once.
class RecoveryDialog final : public QDialog
{
    Q_OBJECT

public:
    /// `files` is not empty.
    RecoveryDialog(const QList<kernel::RecoveryFile> &files, QWidget *parent);

    /// Those that are checked, in their order in the list.
    QList<kernel::RecoveryFile> chosen() const;

private:
    QTreeWidgetItem *addRow(const kernel::RecoveryFile &file);
    void showPicture(const QString &path, const QImage &picture);
    void discard();
    void updateButtons();

    QList<kernel::RecoveryFile> m_files;
    QTreeWidget *m_list;
    QPushButton *m_open;
    QPushButton *m_discard;
    FilePictures m_pictures;
};

} // namespace host::app
