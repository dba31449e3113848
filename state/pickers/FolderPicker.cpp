#include "state/pickers/FolderPicker.h"

#include "platform/kernel/CKvSystemServices.h"

#include <QCoreApplication>
#include <QFileDialog>

namespace ortakit {

QString existingFolder(const QString &folder)
{
    if (!folder.isEmpty() && QFileInfo(folder).isDir())
        return folder;
    const CKvSystemServices *services = GetKvSystemServices();
    return services ? services->defaultFolder() : QString();
}

QString pickFolder(QWidget *parent, const QString &start, const QString &title, const QString &acceptText)
{
    const QString caption = title.isEmpty() ? QCoreApplication::translate("LispExtension", "Select folder") : title;
    QFileDialog dialog(parent, caption, existingFolder(start));
    dialog.setObjectName(QStringLiteral("folderDialog"));
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    if (!acceptText.isEmpty())
        dialog.setLabelText(QFileDialog::Accept, acceptText);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return dialog.selectedFiles().value(0);
}

} // namespace ortakit
