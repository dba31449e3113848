// (load_dialog) and (unload_dialog): where dialog files are found, and whether expressions in them may run.

#include "files/TemporaryFolder.h"
#include "files/TextEncoding.h"
#include "files/qt/Files.h"
#include "host/functions/FunctionGroups.h"
#include "host/functions/OpenDialogs.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/lisp/Interpreter.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <unistd.h>

namespace host::kernel {

using namespace Qt::StringLiterals;

namespace {

using lisp::Arguments;
using lisp::Value;

constexpr qint64 largestDialogFile = 4 * 1024 * 1024;
constexpr qsizetype mostProblemsTold = 20;
/// From this audit level on, an author wants to see what does no harm.
constexpr int levelOfWarnings = 2;

/// The folder of the program that calls, by itself or in an action of its dialog; empty when it was typed.
QString folderOfCaller(const lisp::Interpreter &interpreter, OpenDialogs &dialogs)
{
    const QString file = QString::fromStdString(interpreter.sourceOfCall());
    if (QDir::isAbsolutePath(file))
        return QFileInfo(file).absolutePath();
    const OpenDialog *dialog = dialogs.current();
    return dialog && !dialog->eventKey.isEmpty() ? dialog->folder : QString();
}

/// The file that a program means, with or without its extension: in the trusted folders, beside the program itself,
/// then wherever files of data are.
QString dialogFile(Document &document, const QString &asked, const QString &callersFolder)
{
    QString name = QString(asked).replace(u'\\', u'/');
    if (!name.endsWith(".dcl"_L1, Qt::CaseInsensitive))
        name += u".dcl"_s;
    if (!QDir::isAbsolutePath(name)) {
        if (const QString found = document.session().trustedFolders().findTrusted(document, name); !found.isEmpty())
            return found;
        const QString beside = callersFolder + u'/' + name;
        if (!callersFolder.isEmpty() && QFileInfo(beside).isFile())
            return QDir::cleanPath(beside);
    }
    return document.findFile(name);
}

/// Programs write dialog files to the folder for temporary files: this process's own, where nobody else may look, or
/// the system's. There others write too, and mail programs put drawings with what came beside them.
bool isOwnTemporary(const QFileInfo &file, const Document &document)
{
    const QString folder = file.canonicalPath();
    const auto isFolder = [&folder](const QString &path) { return folder == QFileInfo(path).canonicalFilePath(); };
    if (isFolder(files::fromNativePath(files::temporaryFolder())))
        return true;
    const bool isBesideDrawing = !document.path().isEmpty() && isFolder(QFileInfo(document.path()).path());
    const bool isOwn =
        file.ownerId() == geteuid() && !(file.permissions() & QFileDevice::WriteOther) && !file.isSymLink();
    return isFolder(QDir::tempPath()) && isOwn && !isBesideDrawing;
}

/// Expressions of a file run as a program's do: its folder must be trusted, or be that of the program that asks for it.
bool mayRunActionsOf(Document &document, const QStringList &paths, const QString &callersFolder)
{
    return std::all_of(paths.begin(), paths.end(), [&](const QString &path) {
        const QFileInfo file(path);
        return document.session().trustedFolders().objection(path, document).isEmpty() ||
               (!callersFolder.isEmpty() && file.canonicalPath() == QFileInfo(callersFolder).canonicalFilePath()) ||
               isOwnTemporary(file, document);
    });
}

/// In the encodings that Lisp sources have.
dcl::SourceText readDialogText(Document &document, const QString &path)
{
    files::WholeBytes read = files::readWhole(path, largestDialogFile);
    if (!read)
        return {{}, read.reason};
    return {QString::fromStdString(
                files::utf8Text(read.bytes.toStdString(), document.variables().text(u"LISPCODEPAGE").toStdString())),
            {}};
}

void tellDialogProblems(Document &document, const dcl::DialogFile &file)
{
    qsizetype told = 0;
    for (const dcl::Problem &problem : file.problems()) {
        const bool isWanted = problem.weight == dcl::Problem::Weight::Error || file.auditLevel() >= levelOfWarnings;
        if (isWanted && told++ < mostProblemsTold)
            document.print(u'\n' + problem.toText());
    }
    if (told > 0)
        document.print(u"\n"_s);
}

// (load_dialog file) -> a number for new_dialog; a negative one when there is no such file or it has errors, which the
// command line tells.
Value loadDialog(Arguments &args)
{
    Document &document = documentOf(args);
    OpenDialogs &dialogs = OpenDialogs::of(document);
    const QString callersFolder = folderOfCaller(args.interpreter(), dialogs);
    const QString path = dialogFile(document, stringAt(args, 0), callersFolder);
    if (path.isEmpty()) {
        document.print(Functions::tr("\nThe dialog file \"%1\" was not found.\n").arg(stringAt(args, 0)));
        return Value::integer(-1);
    }
    const auto find = [&](const QString &name, const QString &from) {
        return dialogFile(document, name, QFileInfo(from).absolutePath());
    };
    const auto readText = [&document](const QString &name) { return readDialogText(document, name); };
    dcl::DialogFile file = dcl::DialogFile::read(path, {find, readText});
    tellDialogProblems(document, file);
    if (!file.isUsable())
        return Value::integer(-1);
    const bool mayRun = mayRunActionsOf(document, file.files(), callersFolder);
    return Value::integer(dialogs.load({std::move(file), mayRun, callersFolder}));
}

// (unload_dialog number) -> nil. Dialogs of the file that are open stay.
Value unloadDialog(Arguments &args)
{
    OpenDialogs::of(documentOf(args)).unload(args.integer(0));
    return {};
}

} // namespace

void addDialogFileFunctions(lisp::Interpreter &interpreter)
{
    static constexpr lisp::NativeRow rows[] = {
        {"load_dialog", loadDialog, lisp::Arity::exactly(1), "file",
         "reads a dialog file; its number, negative when that failed"},
        {"unload_dialog", unloadDialog, lisp::Arity::exactly(1), "number", "forgets a dialog file"},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
