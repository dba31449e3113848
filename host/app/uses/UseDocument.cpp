#include "files/qt/Files.h"
#include "host/app/uses/HelpParts.h"
#include "host/app/uses/UseForms.h"
#include "host/app/workbench/ProgramOutput.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// Text of a table's cell.
QString cellText(QString text)
{
    return text.replace(u'|', "\\|"_L1).replace(u'<', "\\<"_L1).replace(u'\n', u' ');
}

QString codeCell(QString text)
{
    return u'`' + text.replace(u'|', "\\|"_L1) + u'`';
}

QString documentRow(const QString &name, const QString &text)
{
    return u"| %1 | %2 |\n"_s.arg(codeCell(name), cellText(text));
}

QString optionTable(const QList<OptionRow> &rows)
{
    QString text = u"| option | |\n|---|---|\n"_s;
    for (const OptionRow &row : rows)
        text += documentRow(optionWord(row), optionText(row));
    return text + u'\n';
}

QString sectionText(const UseSection &section)
{
    QString text = *section.heading ? u"**%1.** "_s.arg(usesText(section.heading)) : QString();
    for (const Paragraph &paragraph : paragraphsOf(section.text))
        text += paragraph.isAsIs ? u"```\n"_s + paragraph.text + u"\n```\n\n"_s : cellText(paragraph.text) + u"\n\n"_s;
    if (text.endsWith(u' '))
        text += u"\n\n"_s;
    return section.options.isEmpty() ? text : text + optionTable(section.options);
}

/// A tool's options are those of every tool, which stand once.
QString useText(const UseRow &use, bool withOptions)
{
    QString text =
        u"### %1\n\n%2\n\n```\n"_s.arg(*use.name ? use.title() : u"ortakit"_s, cellText(usesText(use.purpose)));
    for (const char *usage : use.usages)
        text += u"ortakit "_s + QString::fromLatin1(usage) + u'\n';
    text += u"```\n\n"_s;
    for (const UseSection &section : use.sections)
        if (withOptions || section.options.isEmpty())
            text += sectionText(section);
    const auto entries = entriesOf(use);
    if (!entries.isEmpty())
        text += u"| %1 | |\n|---|---|\n"_s.arg(usesText(use.entriesHeading));
    for (const auto &[name, about] : entries)
        text += documentRow(name, about);
    text += entries.isEmpty() ? QString() : u"\n"_s;
    return *use.example ? text + u"```sh\nortakit "_s + QString::fromLatin1(use.example) + u"\n```\n\n"_s : text;
}

/// Writes the file, with the folders that it takes; empty when it was written.
QString writePart(const QString &path, const QString &text)
{
    QDir().mkpath(QFileInfo(path).path());
    const QString reason = files::replaceFile(path, text.toUtf8());
    return reason.isEmpty() ? reason : u"%1: %2"_s.arg(path, reason);
}

QString writeManPages(const QDir &folder)
{
    for (const UseRow &use : allUses()) {
        if (use.isHidden || use.needsSession)
            continue;
        const QString name = *use.name ? u"ortakit-%1.1"_s.arg(use.title()) : u"ortakit.1"_s;
        const QString error = writePart(folder.filePath(name), manPage(use, QCoreApplication::applicationVersion()));
        if (!error.isEmpty())
            return error;
    }
    return {};
}

QString writeCompletions(const QDir &share)
{
    const std::pair<QString, QString> parts[] = {
        {u"bash-completion/completions/ortakit"_s, bashCompletion()},
        {u"zsh/vendor-completions/_ortakit"_s, zshCompletion()},
        {u"fish/vendor_completions.d/ortakit.fish"_s, fishCompletion()},
    };
    for (const auto &[name, text] : parts)
        if (const QString error = writePart(share.filePath(name), text); !error.isEmpty())
            return error;
    return {};
}

} // namespace

QList<std::pair<QString, QString>> entriesOf(const UseRow &use)
{
    ProgramOptions options;
    options.use = &use;
    options.commandName = use.title();
    options.hasWindow = false;
    return use.entries ? use.entries(options) : QList<std::pair<QString, QString>>();
}

QString usesDocument()
{
    QString text = u"## Commands\n\n"_s;
    QString tools;
    QString options;
    for (const UseRow &use : allUses()) {
        if (use.isHidden || use.needsSession)
            continue;
        if (!use.isOfTool) {
            text += useText(use, true);
            continue;
        }
        // The longest list of options has those of all tools.
        if (const QString all = sectionText(use.sections.first()); all.size() > options.size())
            options = all;
        tools += useText(use, false);
    }
    text += u"### Options for every use\n\n"_s + optionTable(commonOptions()) + exitStatusText() + u"\n\n"_s;
    return text + u"## Drafting tools without their dialogs\n\n"_s + options + tools.trimmed() + u'\n';
}

int writeUses(const ProgramOptions &options)
{
    const QString kind = options.lispFiles.value(0);
    const QString folder = options.lispFiles.value(1);
    if (kind == "document"_L1) {
        writeResult(usesDocument());
        return ExitDone;
    }
    const QString error = kind == "man"_L1 ? writeManPages(QDir(folder)) : writeCompletions(QDir(folder));
    if (error.isEmpty())
        return ExitDone;
    writeMessage(error);
    return ExitFileError;
}

} // namespace host::app
