// --help of a use, made from its row.

#include "host/app/uses/Arguments.h"
#include "host/app/uses/HelpParts.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

constexpr qsizetype helpWidth = 100;
constexpr qsizetype widestName = 26; ///< a longer name has its text on the next line

/// Words filled into lines, the first behind `begin`, the others behind `indent` blanks.
QString filled(const QString &text, const QString &begin, qsizetype indent)
{
    QString result;
    QString line = begin;
    bool isFresh = true;
    for (const QString &word : text.split(u' ', Qt::SkipEmptyParts)) {
        if (!isFresh && line.size() + 1 + word.size() > helpWidth) {
            result += line + u'\n';
            line = QString(indent, u' ');
            isFresh = true;
        }
        line += (isFresh ? QString() : u" "_s) + word;
        isFresh = false;
    }
    return result + line + u'\n';
}

/// A name and what is told of it, in two columns.
QString entry(const QString &name, const QString &text, qsizetype width)
{
    const QString begin = u"  "_s + name;
    if (begin.size() + 2 > width)
        return begin + u'\n' + filled(text, QString(width, u' '), width);
    return filled(text, begin.leftJustified(width), width);
}

qsizetype columnFor(const QStringList &names)
{
    qsizetype widest = 0;
    for (const QString &name : names)
        if (name.size() <= widestName)
            widest = std::max(widest, name.size());
    return widest + 4;
}

QString optionEntries(const QList<OptionRow> &rows)
{
    QStringList names;
    for (const OptionRow &row : rows)
        names.append(optionWord(row));
    QString text;
    for (const OptionRow &row : rows)
        text += entry(optionWord(row), optionText(row), columnFor(names));
    return text;
}

QString headingOf(const char *heading)
{
    return *heading ? usesText(heading) + u":\n"_s : QString();
}

QString sectionHelp(const UseSection &section)
{
    QString text = headingOf(section.heading);
    for (const Paragraph &paragraph : paragraphsOf(section.text))
        text += (paragraph.isAsIs ? paragraph.text + u'\n' : filled(paragraph.text, {}, 0)) + u'\n';
    if (!section.options.isEmpty())
        text += optionEntries(section.options) + u'\n';
    return text;
}

QString usageHelp(const UseRow &use)
{
    QString text;
    for (const char *usage : use.usages)
        text += (text.isEmpty() ? QCoreApplication::translate("Uses", "Usage: ") : u"       "_s) + u"ortakit "_s +
                QLatin1StringView(usage) + u'\n';
    return text + u'\n';
}

QString entriesHelp(const UseRow &use, const ProgramOptions &options)
{
    const auto entries = use.entries ? use.entries(options) : QList<std::pair<QString, QString>>();
    QStringList names;
    for (const auto &[name, text] : entries)
        names.append(name);
    QString text;
    for (const auto &[name, about] : entries)
        text += entry(name, about, columnFor(names));
    return text.isEmpty() ? text : headingOf(use.entriesHeading) + text + u'\n';
}

QString commandsHelp(bool ofTools, const QString &heading)
{
    QStringList names;
    for (const UseRow &row : allUses())
        if (row.isOfTool == ofTools && !row.needsSession)
            names.append(row.title());
    QString text;
    for (const UseRow &row : allUses())
        if (*row.name && row.isOfTool == ofTools && !row.needsSession && !row.isHidden)
            text += entry(row.title(), usesText(row.purpose), columnFor(names));
    return text.isEmpty() ? text : heading + u"\n"_s + text + u'\n';
}

} // namespace

QString helpText(const ProgramOptions &options)
{
    const UseRow &use = *options.use;
    QString text = usageHelp(use);
    for (const UseSection &section : use.sections) {
        text += sectionHelp(section);
        // The commands of the program stand before the options of its window.
        if (!*use.name && section.options.isEmpty())
            text += commandsHelp(false, QCoreApplication::translate("Uses", "Commands:")) +
                    commandsHelp(true, QCoreApplication::translate("Uses", "Drafting tools without their dialogs:"));
    }
    text += entriesHelp(use, options);
    if (*use.example)
        text += QCoreApplication::translate("Uses", "Example:") + u"\n  ortakit "_s + QLatin1StringView(use.example) +
                u"\n\n"_s;
    text += QCoreApplication::translate("Uses", "Options for every use:") + u'\n' + optionEntries(commonOptions());
    return text + u'\n' + filled(exitStatusText(), {}, 0);
}

} // namespace host::app
