// Messages and file dialogs, and the screen functions of other hosts that have nothing to do here.

#include "host/functions/FunctionGroups.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/input/UserInput.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/lisp/Interpreter.h"
#include "platform/kernel/CKvMessageBox.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

namespace host::kernel {

namespace {

using lisp::Arguments;
using lisp::Value;

// (alert text) -> nil. A message box; in a run without a window the text is printed.
Value alert(Arguments &args)
{
    Document &document = documentOf(args);
    QWidget *window = document.session().mainWindow();
    if (window)
        CKvMessageBox::warning(window, QObject::tr("Message"), stringAt(args, 0));
    else
        document.print(u'\n' + stringAt(args, 0) + u'\n');
    return {};
}

enum FileFlag : int
{
    NewFile = 1,      ///< the file need not exist
    AnyExtension = 4, ///< the extension may be another
    SearchesPath = 8, ///< only the name comes back when the support folders have the file
    NoOverwriteQuestion = 16
};

/// "lsp;dcl" as a filter line of a file dialog.
QString filterLine(const QString &extensions, int flags)
{
    QStringList patterns;
    for (const QString &extension : extensions.split(u';', Qt::SkipEmptyParts))
        patterns.append(QStringLiteral("*.") + extension.trimmed());
    const QString any = QObject::tr("All files (*)");
    if (patterns.isEmpty())
        return any;
    const QString wanted = QStringLiteral("%1 (%1)").arg(patterns.join(u' '));
    return (flags & AnyExtension) ? wanted + QStringLiteral(";;") + any : wanted;
}

QString askInWindow(Document &document, const QString &title, const QString &start, const QString &extensions,
                    int flags)
{
    QFileDialog dialog(document.session().mainWindow(), title, start, filterLine(extensions, flags));
    dialog.setObjectName(QStringLiteral("fileDialog"));
    dialog.setAcceptMode((flags & NewFile) ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode((flags & NewFile) ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, flags & NoOverwriteQuestion);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setDefaultSuffix(extensions.section(u';', 0, 0));
    if (QFileInfo(start).isDir())
        dialog.setDirectory(start);
    else if (!start.isEmpty())
        dialog.selectFile(start);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return dialog.selectedFiles().constFirst();
}

QString askOnCommandLine(Document &document, const QString &title, const QString &start, int flags)
{
    PromptRequest request;
    request.kind = PromptKind::String;
    request.allowSpaces = true;
    request.prompt = QStringLiteral("\n%1 <%2>: ").arg(title, start);
    request.defaultText = start;
    const PromptReply reply = document.prompts().ask(request);
    if (reply.kind == ReplyKind::Cancelled)
        return {};
    const QString path = reply.hasValue() ? reply.text.trimmed() : start;
    return (flags & NewFile) || path.isEmpty() ? path : document.findFile(path);
}

// (getfiled title default extensions flags) -> the path of a file the user chose, nil when there is none. Flags: 1 a
// new file, 4 any extension, 8 only the name of a file in the support folders, 16 no question before replacing. In a
// run without a window, and when FILEDIA is 0, the command line asks.
Value getfiled(Arguments &args)
{
    Document &document = documentOf(args);
    const int flags = args.integer(3);
    const bool inWindow = document.session().mainWindow() && document.variables().integer(u"FILEDIA", 1) != 0;
    QString path = inWindow ? askInWindow(document, stringAt(args, 0), stringAt(args, 1), stringAt(args, 2), flags)
                            : askOnCommandLine(document, stringAt(args, 0), stringAt(args, 1), flags);
    if (path.isEmpty())
        return {};
    const QString name = QFileInfo(path).fileName();
    if ((flags & SearchesPath) && !(flags & NewFile) && document.findFile(name) == path)
        path = name;
    return toLisp(path);
}

// (graphscr), (textscr), (textpage) -> nil: text and drawing are always in sight.
Value nothing(Arguments &)
{
    return {};
}

} // namespace

void addDialogFunctions(lisp::Interpreter &interpreter)
{
    static constexpr lisp::NativeRow rows[] = {
        {"alert", alert, lisp::Arity::exactly(1), "text", "shows a message"},
        {"getfiled", getfiled, lisp::Arity::exactly(4), "title default extension flags",
         "asks for a file with a dialog"},
        {"graphscr", nothing, lisp::Arity::exactly(0), "", "shows the drawing"},
        {"textscr", nothing, lisp::Arity::exactly(0), "", "shows the text window"},
        {"textpage", nothing, lisp::Arity::exactly(0), "", "shows the text window, cleared"},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
