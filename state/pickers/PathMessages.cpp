#include "state/pickers/PathMessages.h"

#include "platform/kernel/CKvMessageBox.h"
#include "state/pickers/PathChecks.h"

#include <QMessageBox>

namespace ortakit {

namespace {

bool warnOf(QWidget *parent, const QString &text, const QString &title)
{
    if (text.isEmpty())
        return true;
    CKvMessageBox::warning(parent, title, text);
    return false;
}

} // namespace

bool acceptsNewDrawingName(QWidget *parent, const QString &name, const QString &path, const QString &title)
{
    const NameProblem problem = checkNewDrawingName(name, path);
    const QString text = nameProblemText(problem, name);
    if (problem == NameProblem::FileExists)
        return CKvMessageBox::question(parent, title, text) == QMessageBox::Yes;
    return warnOf(parent, text, title);
}

bool acceptsFolder(QWidget *parent, const QString &path, const QString &title)
{
    return warnOf(parent, folderProblemText(checkFolder(path)), title);
}

bool acceptsFile(QWidget *parent, const QString &path, const QString &title)
{
    return warnOf(parent, fileProblemText(checkFile(path)), title);
}

} // namespace ortakit
