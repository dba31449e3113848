// What programs find: made from the tables that define it.

#include "host/app/batch/BatchRuns.h"
#include "host/app/batch/BatchWork.h"
#include "host/app/workbench/ProgramOutput.h"
#include "host/kernel/running/CommandTable.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/kernel/variables/VariableHelp.h"
#include "host/lisp/Interpreter.h"

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

void addLine(QStringList &lines, const QStringList &fields)
{
    lines.append(fields.join(u'\t') + u'\n');
}

QString shown(const QString &text)
{
    return text.isEmpty() ? u"-"_s : text;
}

void addFunctions(QStringList &lines, kernel::Document &document)
{
    for (const lisp::FunctionEntry &entry : document.interpreter().functions()) {
        if (entry.kind == lisp::FunctionEntry::Kind::User)
            continue;
        addLine(lines, {u"function"_s, QString::fromStdString(entry.name).toLower(),
                        shown(QString::fromStdString(entry.usage)), shown(QString::fromStdString(entry.help))});
    }
}

void addCommands(QStringList &lines)
{
    for (const kernel::CommandRow &row : kernel::CommandTable::all())
        addLine(lines, {u"command"_s, QString::fromLatin1(row.name), u"-"_s, QString::fromUtf8(row.help)});
}

QString kindOf(const kernel::VariableValue &value)
{
    static constexpr const char *kinds[] = {"integer", "real", "text", "point", "point"};
    return QString::fromLatin1(kinds[value.index()]);
}

void addVariables(QStringList &lines, const kernel::Document &document)
{
    const kernel::SystemVariables &variables = document.variables();
    for (const QString &name : variables.names()) {
        const std::optional<kernel::VariableValue> value = variables.get(name);
        const QString kind = value ? kindOf(*value) : u"-"_s;
        addLine(lines, {u"variable"_s, name, variables.isReadOnly(name) ? kind + u", told only"_s : kind,
                        QString::fromLatin1(kernel::variableHelp(name))});
    }
}

} // namespace

int listNames(const ProgramOptions &options)
{
    Workbench workbench(workbenchOptions(options));
    kernel::Document *document = workbench.documents().create();
    QStringList lines;
    addCommands(lines);
    addFunctions(lines, *document);
    addVariables(lines, *document);
    writeResult(lines.join(QString()));
    workbench.documents().close(document);
    return ExitDone;
}

} // namespace host::app
