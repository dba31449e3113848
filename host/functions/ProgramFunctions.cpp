// Programs beside this one, programs for all drawings, modules, and names of commands.

#include "host/functions/FunctionGroups.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/kernel/running/CommandStack.h"
#include "host/kernel/running/CommandTable.h"
#include "host/lisp/Interpreter.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>

namespace host::kernel {

namespace {

using lisp::Arguments;
using lisp::Value;

/// Only the user's own file of settings switches it on: a program could set a variable.
bool mayStartPrograms(Document &document)
{
    const QString setting = document.session().settings().text(QStringLiteral("Programs"), QStringLiteral("start"));
    return setting == QStringLiteral("true") || setting == QStringLiteral("1");
}

// (startapp program [file]) -> a number when the program was started, else nil. Refused, and told, unless the user's
// settings allow it.
Value startapp(Arguments &args)
{
    Document &document = documentOf(args);
    const QString program = stringAt(args, 0);
    const QStringList given = args.has(1) ? QStringList{stringAt(args, 1)} : QStringList();
    if (!mayStartPrograms(document)) {
        document.print(Functions::tr("\nstartapp: %1 is not started: the user's settings do not let programs start "
                                     "others.\n")
                           .arg(program));
        document.addKeptBack(
            {KeptBack::Act::Start, program, u"the user's settings do not let programs start others"_s, false});
        return {};
    }
    qint64 process = 0;
    if (!QProcess::startDetached(program, given, QDir::homePath(), &process))
        return {};
    return Value::integer(static_cast<std::int32_t>(process & 0x7fffffff));
}

/// The file's name as this host's modules are listed.
QString moduleName(const QString &path)
{
    return QFileInfo(path).fileName().toLower();
}

// (arx) -> the names of the modules that are loaded.
Value arx(Arguments &args)
{
    lisp::ListBuilder names;
    for (const QString &path : documentOf(args).session().modules().loaded())
        names.append(toLisp(moduleName(path)));
    return names.take();
}

/// What a program gets where its wish cannot be met: `otherwise` where it gave one, else an error.
Value otherwiseOrFail(Arguments &args, const char *reason)
{
    if (args.size() > 1)
        return args[1];
    args.fail(std::string(reason) + ": \"" + args.string(0) + "\"");
}

// (arxload name [otherwise]) -> the name of a module that is loaded already. Others are not loaded by programs: then
// `otherwise`, without one an error.
Value arxload(Arguments &args)
{
    const QString wanted = moduleName(stringAt(args, 0));
    for (const QString &path : documentOf(args).session().modules().loaded())
        if (moduleName(path) == wanted || moduleName(path).section(u'.', 0, 0) == wanted)
            return args[0];
    return otherwiseOrFail(args, "programs load no modules");
}

// (arxunload name [otherwise]) -> otherwise; without one an error: modules stay.
Value arxunload(Arguments &args)
{
    return otherwiseOrFail(args, "programs unload no modules");
}

/// Loads a program in another document's engine, of which errors are told there.
void loadIn(Document &document, const QString &path)
{
    document.loadLisp(path);
}

// (vl-load-all file) -> nil. Loads the program here and in the other open drawings. Not found: as load.
Value vlLoadAll(Arguments &args)
{
    Document &here = documentOf(args);
    lisp::Interpreter &interpreter = args.interpreter();
    const Value load[] = {interpreter.symbol("LOAD"), args[0]};
    interpreter.eval(Value::list(load));
    const QString path = here.session().trustedFolders().findProgram(here, {stringAt(args, 0)}, interpreter.calledBy());
    for (const std::unique_ptr<Document> &document : here.session().documents().documents())
        if (document.get() != &here && !path.isEmpty() && !document->isBusy())
            loadIn(*document, path);
    return {};
}

// (initcommandversion [version]) -> T. Commands have one version here.
Value initcommandversion(Arguments &args)
{
    return args.boolean(true);
}

// (getcname name) -> the command's name with "_" in front, or without it when it has one; nil for no command. The
// names are the same in all languages.
Value getcname(Arguments &args)
{
    const QString typed = stringAt(args, 0);
    const QString name = CommandTable::plainName(typed);
    if (!CommandTable::find(name) && !documentOf(args).session().commandStack().find(name))
        return {};
    return toLisp(typed.startsWith(u'_') ? name : u'_' + name);
}

// (vlax-product-key), (vlax-machine-product-key) -> a key below which programs keep their settings with vl-registry-*.
Value productKey(Arguments &)
{
    return Value::string("Software\\Ortakit\\1.0");
}

/// A defined command's symbol, by a symbol or its name.
std::string functionNameAt(Arguments &args, std::size_t index)
{
    return args[index].isSymbol() ? args.symbol(index).name() : args.string(index);
}

// (vl-acad-defun symbol) -> the symbol: every function can be called by modules.
Value vlAcadDefun(Arguments &args)
{
    functionNameAt(args, 0);
    return args[0];
}

// (vl-acad-undefun symbol) -> T when the symbol held a function, which it holds no more; else nil.
Value vlAcadUndefun(Arguments &args)
{
    const std::string name = functionNameAt(args, 0);
    if (!args.interpreter().isDefined(name))
        return {};
    args.interpreter().intern(name).value() = Value();
    return args.boolean(true);
}

// (vlax-add-cmd name function [name in the user's language] [flags]) -> the name. The function, as a symbol, can be
// called by that name as a command.
Value vlaxAddCmd(Arguments &args)
{
    const Value function = args.interpreter().resolveFunction(args[1]);
    args.interpreter().intern("C:" + args.string(0)).value() = function;
    return args[0];
}

// (vlax-remove-cmd name) -> T when there was such a command, which is gone now; else nil.
Value vlaxRemoveCmd(Arguments &args)
{
    const std::string name = "C:" + args.string(0);
    const bool isThere = args.interpreter().isDefined(name);
    if (isThere)
        args.interpreter().intern(name).value() = Value();
    return args.boolean(isThere);
}

// (help [file [topic [command]]]), (initdia [flag]) and what else has nothing to do here -> nil.
Value nothing(Arguments &)
{
    return {};
}

// (setfunhelp name [file [topic [command]]]) -> the name.
Value setfunhelp(Arguments &args)
{
    args.string(0);
    return args[0];
}

} // namespace

void addProgramFunctions(lisp::Interpreter &interpreter)
{
    using lisp::Arity;
    static constexpr lisp::NativeRow rows[] = {
        {"startapp", startapp, Arity::between(1, 2), "program [file]",
         "starts another program, where the user's settings allow it"},
        {"arx", arx, Arity::exactly(0), "", "the names of the modules that are loaded"},
        {"arxload", arxload, Arity::between(1, 2), "name [otherwise]", "the name of a module that is loaded already"},
        {"arxunload", arxunload, Arity::between(1, 2), "name [otherwise]", "nothing: programs unload no modules"},
        {"vl-load-all", vlLoadAll, Arity::exactly(1), "file", "loads a program in all open drawings"},
        {"initcommandversion", initcommandversion, Arity::between(0, 1), "[version]",
         "T: commands have one version here"},
        {"getcname", getcname, Arity::exactly(1), "name", "a command's name for all languages, or for this one"},
        {"vlax-add-cmd", vlaxAddCmd, Arity::between(2, 4), "name function [local [flags]]",
         "makes a function a command of that name"},
        {"vlax-remove-cmd", vlaxRemoveCmd, Arity::exactly(1), "name", "takes such a command away"},
        {"autoarxload", nothing, Arity::exactly(2), "name commands", "nothing: programs load no modules"},
        {"initdia", nothing, Arity::between(0, 1), "[flag]", "nothing: commands ask programs on the command line"},
        {"help", nothing, Arity::between(0, 3), "[file [topic [command]]]", "nothing: no help files are shown"},
        {"acad_helpdlg", nothing, Arity::between(0, 2), "file [topic]", "the same"},
        {"setfunhelp", setfunhelp, Arity::between(1, 4), "name [file [topic [command]]]",
         "the name: no help files are shown"},
        {"vl-bt-on", nothing, Arity::exactly(0), "", "nothing: errors tell their calls"},
        {"vl-bt-off", nothing, Arity::exactly(0), "", "the same"},
        {"vlax-user-product-key", productKey, Arity::exactly(0), "", "where programs keep their settings"},
        {"vlax-product-key", productKey, Arity::exactly(0), "", "where programs keep their settings"},
        {"vlax-machine-product-key", productKey, Arity::exactly(0), "", "the same"},
        {"vl-bt", nothing, Arity::exactly(0), "", "nothing: errors tell their calls"},
        {"vl-acad-defun", vlAcadDefun, Arity::exactly(1), "symbol", "lets modules call a function, as they can any"},
        {"vl-acad-undefun", vlAcadUndefun, Arity::exactly(1), "symbol", "takes a function's definition away"},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
