#pragma once

#include <QString>

class QWidget;

namespace ortakit {

/// What is asked when a file is there that would be written over.
enum class Overwriting
{
    Ask,
    /// The file is added to, or the caller asks.
    Silent
};

/// How the file picker looks and starts.
struct FilePickerOptions
{
    QString title;
    QString filter; ///< "Text files (*.txt);; All files (*.*)"
    /// A folder, or a file in one, whose name is then proposed; the host's default folder when there is no such folder.
    QString start = {};
    Overwriting overwriting = Overwriting::Ask;
};

/// Let the user choose an existing file, or a file to write to; empty when cancelled. What was typed is not completed
/// with the filter's extension.
///
/// The dialog has the object name "fileDialog". It is the system's own unless Qt::AA_DontUseNativeDialogs is set.
QString pickFileToOpen(QWidget *parent, const FilePickerOptions &options);
QString pickFileToSave(QWidget *parent, const FilePickerOptions &options);

/// `path`, or the host's default folder when it is empty or in no existing folder: where a picker can start.
QString pickerStart(const QString &path);

} // namespace ortakit
