#include "state/pickers/FilePicker.h"

#include "state/pickers/FolderPicker.h"

#include <QDir>
#include <QFileDialog>

namespace ortakit {

namespace {

QString chooseFile(QFileDialog &dialog, QFileDialog::FileMode mode, QFileDialog::AcceptMode acceptMode)
{
    dialog.setObjectName(QStringLiteral("fileDialog"));
    dialog.setFileMode(mode);
    dialog.setAcceptMode(acceptMode);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace

QString pickerStart(const QString &path)
{
    const QFileInfo info(path);
    return !path.isEmpty() && (info.isDir() || info.dir().exists()) ? path : existingFolder({});
}

QString pickFileToOpen(QWidget *parent, const FilePickerOptions &options)
{
    QFileDialog dialog(parent, options.title, pickerStart(options.start), options.filter);
    return chooseFile(dialog, QFileDialog::ExistingFile, QFileDialog::AcceptOpen);
}

QString pickFileToSave(QWidget *parent, const FilePickerOptions &options)
{
    QFileDialog dialog(parent, options.title, pickerStart(options.start), options.filter);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, options.overwriting == Overwriting::Silent);
    return chooseFile(dialog, QFileDialog::AnyFile, QFileDialog::AcceptSave);
}

} // namespace ortakit
