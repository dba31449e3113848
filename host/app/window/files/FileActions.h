#pragma once

#include "host/app/workbench/Workbench.h"

#include <QCoreApplication>

#include <functional>

class QWidget;

namespace host::app {

/// What the File menu does, with its dialogs and messages. Outcomes that a person must know are told in a message box.
class FileActions
{
    Q_DECLARE_TR_FUNCTIONS(FileActions)

public:
    enum class Answer
    {
        GoOn,
        Stay
    };

    FileActions(Workbench &workbench, QWidget &window) : m_workbench(workbench), m_window(window) {}

    /// Asks for drawings to open; none when the user gave up.
    QStringList pathsToOpen();
    /// Null when it could not be opened, or the user gave up as another process has it open.
    kernel::Document *openFile(const QString &path);
    /// What is sound of a damaged file; null when that is nothing.
    kernel::Document *recoverFile(const QString &path);
    /// A new drawing with what the file holds; null when it could not be opened.
    kernel::Document *openSample(const QString &path);
    /// A copy that a killed program left; null when it could not be opened.
    kernel::Document *openCopy(const kernel::RecoveryFile &copy);
    /// Under its own name, or asking for one when it has none. False when it was not saved.
    bool save(kernel::Document &document);
    bool saveAs(kernel::Document &document);
    /// In a box, which waits for the user.
    void complain(const QString &text);
    /// Asks for a file and writes the drawing as png, svg or pdf there.
    void exportPicture(kernel::Document &document, const QString &extension);
    /// Of a changed drawing, whether to save it; saves it on Yes.
    Answer askToSave(kernel::Document &document);
    /// Of several changed ones, in one question; `show` is called for each that is about to be asked about by itself.
    /// Stays when one that was to be saved was not; others are saved then.
    Answer askToSave(const QList<kernel::Document *> &changed, const std::function<void(kernel::Document &)> &show);

private:
    /// What the name that was typed stands for: the file that would be written.
    using Completion = std::function<QString(const QString &typed)>;

    /// A file to write to, by its complete name; empty when the user gave up. Asks before an existing one is replaced.
    QString fileToWrite(const QString &title, const QString &proposal, const QString &filter,
                        const Completion &complete);
    bool mayReplace(const QString &path);
    /// What the user wants of a file that another program has open, or has changed.
    enum class Wish
    {
        Overrule,
        OtherName,
        Nothing
    };
    Wish askToWrite(const kernel::WriteObstacle &obstacle);
    std::optional<kernel::OpenMode> askToOpen(const QString &path, const QString &problem);
    /// Tells that it was not saved, and saves it under another name when the user wants that.
    bool saveElsewhere(kernel::Document &document, const QString &problem);
    bool saveUnder(kernel::Document &document, const QString &path, kernel::Overrule overrule);
    /// A box with a button for each choice; the number of the one that was pressed, -1 for Cancel.
    int choose(const QString &text, const QStringList &choices);
    QString startFolder(const kernel::Document *document) const;

    Workbench &m_workbench;
    QWidget &m_window;
};

} // namespace host::app
