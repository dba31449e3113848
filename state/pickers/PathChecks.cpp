#include "state/pickers/PathChecks.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

namespace ortakit {

namespace {

constexpr QStringView forbiddenCharacters = u"<>/\\\":;?*|,='";

QString emptyFileNameText()
{
    return QCoreApplication::translate("LispExtension", "Filename can`t be empty");
}

} // namespace

NameProblem checkNewDrawingName(const QString &name, const QString &path)
{
    if (name.isEmpty())
        return NameProblem::Empty;
    if (std::any_of(name.cbegin(), name.cend(), [](QChar c) { return forbiddenCharacters.contains(c); }))
        return NameProblem::ForbiddenCharacters;
    return QFileInfo::exists(path) ? NameProblem::FileExists : NameProblem::None;
}

PathProblem checkFolder(const QString &path)
{
    if (path.isEmpty())
        return PathProblem::Empty;
    return QFileInfo(path).isDir() ? PathProblem::None : PathProblem::Missing;
}

PathProblem checkFile(const QString &path)
{
    if (path.isEmpty())
        return PathProblem::Empty;
    const QFileInfo file(path);
    return file.exists() && !file.isDir() ? PathProblem::None : PathProblem::Missing;
}

QString nameProblemText(NameProblem problem, const QString &name)
{
    switch (problem) {
    case NameProblem::None:
        return {};
    case NameProblem::Empty:
        return emptyFileNameText();
    case NameProblem::ForbiddenCharacters:
        return QCoreApplication::translate("LispExtension",
                                           "The following characters are not valid in File names: <>/\\\":;?*|,='");
    case NameProblem::FileExists:
        return QCoreApplication::translate("LispExtension",
                                           "Drawing symbol \"%1\" already exists. Do you want to replace it?")
            .arg(name);
    }
    Q_UNREACHABLE();
}

QString folderProblemText(PathProblem problem)
{
    switch (problem) {
    case PathProblem::None:
        return {};
    case PathProblem::Empty:
        return QCoreApplication::translate("LispExtension", "Path can`t be empty");
    case PathProblem::Missing:
        return QCoreApplication::translate("LispExtension", "Cannot find the specified Path.");
    }
    Q_UNREACHABLE();
}

QString fileProblemText(PathProblem problem)
{
    switch (problem) {
    case PathProblem::None:
        return {};
    case PathProblem::Empty:
        return emptyFileNameText();
    case PathProblem::Missing:
        return QCoreApplication::translate("LispExtension", "Cannot find the specified file.");
    }
    Q_UNREACHABLE();
}

} // namespace ortakit
