// Scripts by which shells complete command lines, made of the table of uses.

#include "host/app/uses/UseForms.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

QStringList patternsOf(const char *files)
{
    return files ? QString::fromLatin1(files).split(u' ') : QStringList();
}

QList<const UseRow *> shownUses()
{
    QList<const UseRow *> uses;
    for (const UseRow &use : allUses())
        if (!use.isHidden && !use.needsSession)
            uses.append(&use);
    return uses;
}

QStringList commandNames()
{
    QStringList names;
    for (const UseRow *use : shownUses())
        if (*use->name)
            names.append(use->title());
    return names;
}

/// "key=" of each key that --set takes.
QStringList settingWords(const UseRow &use)
{
    QStringList words;
    if (use.isOfTool)
        for (const auto &[key, about] : entriesOf(use))
            words.append(key + u'=');
    return words;
}

QString optionWords(const UseRow &use)
{
    QStringList names;
    for (const OptionRow *row : optionsOf(use))
        names.append(QString::fromLatin1(row->name));
    return names.join(u' ');
}

/// In single quotes, as sh and fish read them.
QString shellText(QString text)
{
    return u'\'' + text.replace(u'\'', "'\\''"_L1) + u'\'';
}

QString bashFiles(const char *files)
{
    return files ? u"_ortakit_files %1"_s.arg(shellText(QString::fromLatin1(files))) : u"_ortakit_files '*'"_s;
}

/// What completes the value of an option; empty when nothing does.
QString bashValue(const UseRow &use, const OptionRow &row)
{
    if (QLatin1StringView(row.name) == "--set"_L1)
        return u"compopt -o nospace; COMPREPLY=($(compgen -W %1 -- \"$cur\"))"_s.arg(
            shellText(settingWords(use).join(u' ')));
    switch (row.kind) {
    case ValueKind::Choice:
        return u"COMPREPLY=($(compgen -W %1 -- \"$cur\"))"_s.arg(
            shellText(QString::fromLatin1(row.value).replace(u'|', u' ')));
    case ValueKind::File:
        return bashFiles(row.files);
    case ValueKind::Folder:
        return u"_ortakit_files /"_s;
    default:
        return u":"_s;
    }
}

QString bashUse(const UseRow &use)
{
    QString text = u"    %1)\n        case $prev in\n"_s.arg(*use.name ? use.title() : u"*"_s);
    for (const OptionRow *row : optionsOf(use))
        if (row->value)
            text += u"        %1) %2; return ;;\n"_s.arg(QLatin1StringView(row->name), bashValue(use, *row));
    text += u"        esac\n        options=%1\n"_s.arg(shellText(optionWords(use)));
    QStringList files;
    for (const OperandRow &operand : use.operands)
        files += patternsOf(operand.files);
    if (use.title() == "help"_L1)
        text += u"        words=%1\n"_s.arg(shellText(commandNames().join(u' ')));
    else
        text += u"        files=%1\n"_s.arg(shellText(files.isEmpty() ? u"*"_s : files.join(u' ')));
    return text + u"        ;;\n"_s;
}

/// Within the brackets of zsh's options.
QString zshText(QString text)
{
    for (const QChar letter : u"\\[]:"_s)
        text.replace(letter, u'\\' + QString(letter));
    return text;
}

QString zshFiles(const char *files)
{
    if (!files)
        return u"_files"_s;
    return u"_files -g \"(%1)\""_s.arg(patternsOf(files).join(u'|'));
}

QString zshValue(const UseRow &use, const OptionRow &row)
{
    const QString name = zshText(QString::fromLatin1(row.value));
    if (QLatin1StringView(row.name) == "--set"_L1)
        return u":%1:(%2)"_s.arg(name, settingWords(use).join(u' '));
    switch (row.kind) {
    case ValueKind::Choice:
        return u":%1:(%2)"_s.arg(name, QString::fromLatin1(row.value).replace(u'|', u' '));
    case ValueKind::File:
        return u":%1:%2"_s.arg(name, zshFiles(row.files));
    case ValueKind::Folder:
        return u":%1:_files -/"_s.arg(name);
    default:
        return u":%1: "_s.arg(name);
    }
}

QString zshUse(const UseRow &use)
{
    QString text = u"    %1)\n        _arguments -S \\\n"_s.arg(*use.name ? use.title() : u"*"_s);
    for (const OptionRow *row : optionsOf(use)) {
        const QString help = zshText(usesText(row->help).section(u';', 0, 0));
        text += u"            %1 \\\n"_s.arg(shellText(
            u"*%1[%2]%3"_s.arg(QLatin1StringView(row->name), help, row->value ? zshValue(use, *row) : QString())));
    }
    QStringList files;
    for (const OperandRow &operand : use.operands)
        files += patternsOf(operand.files);
    const QString operands = use.title() == "help"_L1 ? u"*:COMMAND:(%1)"_s.arg(commandNames().join(u' '))
                             : files.isEmpty()        ? u"*:FILE:_files"_s
                                                      : u"*:FILE:_files -g \"(%1)\""_s.arg(files.join(u'|'));
    return text + u"            %1\n        ;;\n"_s.arg(shellText(operands));
}

QString fishOption(const UseRow &use, const OptionRow &row, const QString &condition)
{
    const QString name = QString::fromLatin1(row.name);
    const QString flag = name.startsWith("--"_L1) ? u"-l "_s + name.sliced(2) : u"-s "_s + name.sliced(1);
    QString text = u"complete -c ortakit -n %1 %2"_s.arg(shellText(condition), flag);
    if (QLatin1StringView(row.name) == "--set"_L1)
        text += u" -x -a %1"_s.arg(shellText(settingWords(use).join(u' ')));
    else if (row.kind == ValueKind::Choice)
        text += u" -x -a %1"_s.arg(shellText(QString::fromLatin1(row.value).replace(u'|', u' ')));
    else if (row.kind == ValueKind::Folder)
        text += u" -x -a '(__fish_complete_directories)'"_s;
    else if (row.kind == ValueKind::File)
        text += u" -r -F"_s;
    else if (row.value)
        text += u" -x"_s;
    return text + u" -d %1\n"_s.arg(shellText(usesText(row.help).section(u';', 0, 0)));
}

} // namespace

QString bashCompletion()
{
    QString text = u"# Completion of ortakit in bash, made by the program.\n\n"
                   "# Folders, and files of the patterns: \"/\" for folders only.\n"
                   "_ortakit_files() {\n"
                   "    local pattern IFS=$'\\n'\n"
                   "    compopt -o filenames\n"
                   "    COMPREPLY=($(compgen -d -- \"$cur\"))\n"
                   "    [[ $1 == / ]] && return\n"
                   "    local patterns; IFS=' ' read -ra patterns <<< \"$1\"\n"
                   "    for pattern in \"${patterns[@]}\"; do\n"
                   "        COMPREPLY+=($(compgen -f -X \"!$pattern\" -- \"$cur\"))\n"
                   "    done\n"
                   "}\n\n"
                   "_ortakit() {\n"
                   "    local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD - 1]}\n"
                   "    local options= words= files= command=${COMP_WORDS[1]}\n"
                   "    COMPREPLY=()\n"
                   "    if ((COMP_CWORD == 1)); then command=; fi\n"
                   "    case $command in\n"_s;
    for (const UseRow *use : shownUses())
        if (*use->name)
            text += bashUse(*use);
    text += bashUse(allUses().first());
    text += u"    esac\n"
            "    if [[ $cur == -* ]]; then\n"
            "        COMPREPLY=($(compgen -W \"$options\" -- \"$cur\"))\n"
            "        return\n"
            "    fi\n"
            "    [[ $files ]] && _ortakit_files \"$files\"\n"
            "    if ((COMP_CWORD == 1)); then words=%1; fi\n"
            "    [[ $words ]] && COMPREPLY+=($(compgen -W \"$words\" -- \"$cur\"))\n"
            "    return 0\n"
            "}\n\n"
            "complete -F _ortakit ortakit\n"_s.arg(shellText(commandNames().join(u' ')));
    return text;
}

QString zshCompletion()
{
    QString text = u"#compdef ortakit\n# Completion of ortakit in zsh, made by the program.\n\n"
                   "local -a commands\ncommands=(\n"_s;
    for (const UseRow *use : shownUses())
        if (*use->name)
            text += u"    %1\n"_s.arg(shellText(u"%1:%2"_s.arg(use->title(), zshText(usesText(use->purpose)))));
    text += u")\n\nif ((CURRENT == 2)) && [[ $words[2] != -* ]]; then\n"
            "    _describe command commands\n    _files -g \"(*.dxf|*.dwg)\"\n    return\nfi\n"
            "local command=$words[2]\n"
            "if ((${#commands[(r)$command:*]})); then\n    shift words\n    ((CURRENT--))\nelse\n    command=\nfi\n"
            "case $command in\n"_s;
    for (const UseRow *use : shownUses())
        if (*use->name)
            text += zshUse(*use);
    return text + zshUse(allUses().first()) + u"esac\n"_s;
}

QString fishCompletion()
{
    QString text = u"# Completion of ortakit in fish, made by the program.\n\n"_s;
    const QString names = commandNames().join(u' ');
    for (const UseRow *use : shownUses()) {
        if (*use->name)
            text += u"complete -c ortakit -n __fish_use_subcommand -a %1 -d %2\n"_s.arg(
                use->title(), shellText(usesText(use->purpose)));
        const QString condition = *use->name ? u"__fish_seen_subcommand_from "_s + use->title()
                                             : u"not __fish_seen_subcommand_from "_s + names;
        for (const UseSection &section : use->sections)
            for (const OptionRow &row : section.options)
                text += fishOption(*use, row, condition);
    }
    text += u"complete -c ortakit -n '__fish_seen_subcommand_from help' -x -a %1\n"_s.arg(shellText(names));
    for (const OptionRow &row : commonOptions())
        text += fishOption(allUses().first(), row, u"true"_s);
    return text;
}

} // namespace host::app
