#include "host/app/window/files/FileActions.h"

#include "host/app/window/files/ClosingQuestion.h"
#include "host/app/workbench/DrawingPicture.h"
#include "host/drawing/dwg/DwgText.h"

#include <QAbstractButton>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace host::app {

QString FileActions::startFolder(const kernel::Document *document) const
{
    return document && !document->path().isEmpty() ? QFileInfo(document->path()).absolutePath() : QDir::currentPath();
}

void FileActions::complain(const QString &text)
{
    QMessageBox box(QMessageBox::Warning, u"Ortakit"_s, text, QMessageBox::Ok, &m_window);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

QStringList FileActions::pathsToOpen()
{
    return QFileDialog::getOpenFileNames(&m_window, tr("Open drawings"), startFolder(m_workbench.documents().active()),
                                         tr("Drawings (*.dxf *.dwg);;All files (*)"));
}

kernel::Document *FileActions::openFile(const QString &path)
{
    const QString file = QFileInfo(path).absoluteFilePath();
    kernel::OpenOutcome outcome = m_workbench.documents().open(file);
    if (outcome.holder) {
        const std::optional<kernel::OpenMode> mode = askToOpen(file, outcome.error);
        if (!mode)
            return nullptr;
        outcome = m_workbench.documents().open(file, *mode);
    }
    if (!outcome)
        complain(outcome.error);
    return outcome.document;
}

kernel::Document *FileActions::recoverFile(const QString &path)
{
    const kernel::OpenOutcome outcome = m_workbench.documents().openRecovered(QFileInfo(path).absoluteFilePath());
    if (!outcome)
        complain(outcome.error);
    return outcome.document;
}

kernel::Document *FileActions::openSample(const QString &path)
{
    const kernel::OpenOutcome outcome = m_workbench.documents().createFrom(path);
    if (!outcome)
        complain(outcome.error);
    return outcome.document;
}

kernel::Document *FileActions::openCopy(const kernel::RecoveryFile &copy)
{
    const kernel::OpenOutcome outcome = m_workbench.documents().openCopy(copy);
    if (!outcome)
        complain(outcome.error);
    return outcome.document;
}

int FileActions::choose(const QString &text, const QStringList &choices)
{
    QMessageBox box(QMessageBox::Warning, u"Ortakit"_s, text, QMessageBox::Cancel, &m_window);
    box.setTextFormat(Qt::PlainText);
    QList<QAbstractButton *> buttons;
    for (const QString &choice : choices)
        buttons.append(box.addButton(choice, QMessageBox::AcceptRole));
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    return static_cast<int>(buttons.indexOf(box.clickedButton()));
}

std::optional<kernel::OpenMode> FileActions::askToOpen(const QString &path, const QString &problem)
{
    const QString text = drawing::isDwgFile(path)
                             ? tr("%1\nIt is a DWG file: what you change here is saved under another name.")
                             : tr("%1\nWhat is saved here replaces what is saved there.");
    switch (choose(text.arg(problem), {tr("Open &read-only"), tr("Open &anyway")})) {
    case 0:
        return kernel::OpenMode::ReadOnly;
    case 1:
        return kernel::OpenMode::Anyway;
    default:
        return {};
    }
}

FileActions::Wish FileActions::askToWrite(const kernel::WriteObstacle &obstacle)
{
    QList<Wish> wishes = {Wish::OtherName};
    QStringList choices = {tr("Save under another &name...")};
    if (obstacle.mayBeOverruled()) {
        wishes.prepend(Wish::Overrule);
        choices.prepend(tr("Save &anyway"));
    }
    return wishes.value(choose(obstacle.text, choices), Wish::Nothing);
}

bool FileActions::save(kernel::Document &document)
{
    if (document.path().isEmpty())
        return saveAs(document);
    const auto obstacle = kernel::obstacleToWriting(document.path(), &m_workbench.session(), &document);
    switch (obstacle ? askToWrite(*obstacle) : Wish::Overrule) {
    case Wish::Nothing:
        return false;
    case Wish::OtherName:
        return saveAs(document);
    case Wish::Overrule:
        break;
    }
    return saveUnder(document, document.path(), obstacle ? kernel::Overrule::Obstacles : kernel::Overrule::Nothing);
}

bool FileActions::saveUnder(kernel::Document &document, const QString &path, kernel::Overrule overrule)
{
    const drawing::SaveResult result = document.saveAs(path, overrule);
    return result || saveElsewhere(document, result.error);
}

bool FileActions::saveElsewhere(kernel::Document &document, const QString &problem)
{
    const QString text = tr("%1\n\nThe drawing stays open.").arg(problem);
    return choose(text, {tr("Save &as...")}) == 0 && saveAs(document);
}

/// The dialog asks about the name as it was typed, which may become that of another file: its own question is off.
QString FileActions::fileToWrite(const QString &title, const QString &proposal, const QString &filter,
                                 const Completion &complete)
{
    QString start = proposal;
    while (true) {
        QFileDialog dialog(&m_window, title, start, filter);
        dialog.setObjectName(u"fileDialog"_s);
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setFileMode(QFileDialog::AnyFile);
        dialog.setOption(QFileDialog::DontConfirmOverwrite);
        if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
            return {};
        const QString path = complete(dialog.selectedFiles().constFirst());
        if (!QFileInfo::exists(path) || mayReplace(path))
            return path;
        start = path;
    }
}

bool FileActions::mayReplace(const QString &path)
{
    QMessageBox box(QMessageBox::Warning, u"Ortakit"_s,
                    tr("%1 already exists. Do you want to replace it?").arg(QDir::toNativeSeparators(path)),
                    QMessageBox::Yes | QMessageBox::No, &m_window);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

bool FileActions::saveAs(kernel::Document &document)
{
    QString proposal =
        QDir(startFolder(&document)).filePath(QFileInfo(document.title()).completeBaseName() + u".dxf"_s);
    while (true) {
        const QString path =
            fileToWrite(tr("Save drawing"), proposal, tr("DXF drawings (*.dxf)"), [](const QString &typed) {
                return QFileInfo(typed).suffix().isEmpty() ? typed + u".dxf"_s : typed;
            });
        if (path.isEmpty())
            return false;
        const auto obstacle = kernel::obstacleToWriting(path, &m_workbench.session(), &document);
        const Wish wish = obstacle ? askToWrite(*obstacle) : Wish::Overrule;
        if (wish == Wish::Nothing)
            return false;
        if (wish == Wish::Overrule)
            return saveUnder(document, path, obstacle ? kernel::Overrule::Obstacles : kernel::Overrule::Nothing);
        proposal = path;
    }
}

void FileActions::exportPicture(kernel::Document &document, const QString &extension)
{
    const QString proposal =
        QDir(startFolder(&document)).filePath(QFileInfo(document.title()).completeBaseName() + u'.' + extension);
    const QString path =
        fileToWrite(tr("Export picture"), proposal, tr("%1 pictures (*.%2)").arg(extension.toUpper(), extension),
                    [&extension](const QString &typed) {
                        const bool isIt = QFileInfo(typed).suffix().toLower() == extension;
                        return isIt ? typed : typed + u'.' + extension;
                    });
    if (path.isEmpty())
        return;
    const view::ExportResult written = writeDrawingPicture(document, path);
    if (!written)
        return complain(written.error);
    document.print(tr("\nWritten: %1\n").arg(QDir::toNativeSeparators(path)));
    if (!written.report.isWhole())
        document.print(tr("In the picture: %1\n").arg(written.report.missing()));
}

FileActions::Answer FileActions::askToSave(kernel::Document &document)
{
    if (!document.isModified())
        return Answer::GoOn;
    QMessageBox box(QMessageBox::Question, u"Ortakit"_s, tr("%1 was changed. Save it?").arg(document.title()),
                    QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, &m_window);
    box.setTextFormat(Qt::PlainText);
    const int button = box.exec();
    if (button == QMessageBox::No)
        return Answer::GoOn;
    return button == QMessageBox::Yes && save(document) ? Answer::GoOn : Answer::Stay;
}

FileActions::Answer FileActions::askToSave(const QList<kernel::Document *> &changed,
                                           const std::function<void(kernel::Document &)> &show)
{
    if (changed.isEmpty())
        return Answer::GoOn;
    ClosingQuestion question(changed, &m_window);
    const ClosingQuestion::Answer answer = question.ask();
    if (answer != ClosingQuestion::Answer::Save)
        return answer == ClosingQuestion::Answer::Discard ? Answer::GoOn : Answer::Stay;
    bool areSaved = true;
    for (kernel::Document *document : question.checked()) {
        show(*document);
        areSaved = save(*document) && areSaved;
    }
    return areSaved ? Answer::GoOn : Answer::Stay;
}

} // namespace host::app
