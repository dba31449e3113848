#include "host/app/uses/Arguments.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

QString wrongNumber(const OptionRow &row, const QString &value)
{
    return QCoreApplication::translate("Uses", "%1 takes %2 from %3 to %4, not \"%5\"")
        .arg(QLatin1StringView(row.name), QLatin1StringView(row.value), QString::number(row.range->least, 'g', 10),
             QString::number(row.range->most, 'g', 10), value);
}

/// Why a value is not of the kind of its option; empty when it is.
QString checkValue(const OptionRow &row, const QString &value)
{
    if (row.kind == ValueKind::Choice) {
        const QStringList choices = QString::fromLatin1(row.value).split(u'|');
        if (choices.contains(value))
            return {};
        return QCoreApplication::translate("Uses", "%1 is %2, not \"%3\"")
            .arg(QLatin1StringView(row.name), choices.join(u' ' + QCoreApplication::translate("Uses", "or") + u' '),
                 value);
    }
    if (!row.range)
        return {};
    bool isNumber = false;
    const double number = row.range->isWhole ? value.toInt(&isNumber) : value.toDouble(&isNumber);
    const bool isGood = isNumber && number >= row.range->least && number <= row.range->most;
    return isGood ? QString() : wrongNumber(row, value);
}

QString unknownOption(const UseRow &use, const QString &name)
{
    if (use.needsSession)
        return QCoreApplication::translate("Uses",
                                           "%1 asks for points or entities: play a recorded session with ortakit run")
            .arg(use.title());
    QStringList names;
    for (const OptionRow *row : optionsOf(use))
        names.append(QString::fromLatin1(row->name));
    for (const UseRow &other : allUses())
        for (const OptionRow *row : optionsOf(other))
            if (name == QLatin1StringView(row->name))
                return QCoreApplication::translate("Uses", "%1 has no meaning here").arg(name);
    return QCoreApplication::translate("Uses", "there is no option %1%2").arg(name, suggestionFor(name, names));
}

QString applyOption(ProgramOptions &options, const OptionRow &row, const QString &value)
{
    if (value.isEmpty())
        return QCoreApplication::translate("Uses", "%1 needs a value").arg(QLatin1StringView(row.name));
    const QString wrong = checkValue(row, value);
    return wrong.isEmpty() ? row.apply(options, value) : wrong;
}

/// Reads "--name value" or "--name=value" at `position`, which is left on its last argument. Of an option with one
/// letter, "-j4" is as good.
QString readOption(ProgramOptions &options, const QStringList &arguments, qsizetype &position, bool &isOfJobs)
{
    const QString &argument = arguments[position];
    const bool isShort = !argument.startsWith("--"_L1);
    const QString name = isShort ? argument.left(2) : argument.section(u'=', 0, 0);
    const bool hasValue = isShort ? argument.size() > 2 : argument.contains(u'=');
    for (const OptionRow *row : optionsOf(*options.use)) {
        if (name != QLatin1StringView(row->name))
            continue;
        isOfJobs = row->isOfJobs;
        if (row->isOfPicture)
            options.picture.given.append(name);
        if (!row->value)
            return hasValue ? QCoreApplication::translate("Uses", "%1 takes no value").arg(name)
                            : row->apply(options, {});
        if (hasValue)
            return applyOption(options, *row, isShort ? argument.mid(2) : argument.section(u'=', 1));
        return applyOption(options, *row, ++position < arguments.size() ? arguments[position] : QString());
    }
    return unknownOption(*options.use, name);
}

/// The same, and keeps for workers what is for them as well.
QString takeOption(ProgramOptions &options, const QStringList &arguments, qsizetype &position)
{
    const qsizetype first = position;
    bool isOfJobs = false;
    const QString error = readOption(options, arguments, position, isOfJobs);
    if (!isOfJobs)
        options.givenOptions += arguments.mid(first, position - first + 1);
    return error;
}

/// A word in the place of a command that is no drawing either.
QString wrongCommand(const QString &word)
{
    if (word.contains(u'.') || word.contains(u'/') || QFileInfo::exists(word))
        return {};
    QStringList names;
    for (const UseRow &row : allUses())
        names.append(row.title());
    const QString suggestion = suggestionFor(word, names);
    return suggestion.isEmpty() ? QString()
                                : QCoreApplication::translate("Uses", "there is no command %1%2").arg(word, suggestion);
}

/// Whether the argument ends the reading because it asks for help or the version.
bool isWish(ProgramOptions &options, const QString &argument)
{
    if (argument == "--help"_L1 || argument == "-h"_L1)
        options.wish = Wish::Help;
    else if (argument == "--version"_L1)
        options.wish = Wish::Version;
    return options.wish != Wish::Work;
}

/// The command in front, where options for every use stand before it: "--language de convert ...".
QStringList withCommandFirst(QStringList arguments)
{
    qsizetype place = 0;
    while (place < arguments.size() && arguments[place].startsWith("--"_L1)) {
        const QString name = arguments[place].section(u'=', 0, 0);
        const auto row = std::ranges::find_if(
            commonOptions(), [&](const OptionRow &option) { return name == QLatin1StringView(option.name); });
        if (row == commonOptions().end() || row->apply == nullptr)
            return arguments;
        place += row->value && !arguments[place].contains(u'=') ? 2 : 1;
    }
    const UseRow *use = place > 0 && place < arguments.size() ? findUse(arguments[place]) : nullptr;
    if (use && *use->name)
        arguments.move(place, 0);
    return arguments;
}

} // namespace

ProgramOptions parseArguments(const QStringList &given)
{
    const QStringList arguments = withCommandFirst(given);
    ProgramOptions options;
    qsizetype position = 0;
    options.use = &allUses().first();
    if (const UseRow *use = arguments.isEmpty() ? nullptr : findUse(arguments.first()); use && *use->name) {
        options.use = use;
        options.commandName = use->title();
        options.hasWindow = false;
        position = 1;
    }
    QStringList words;
    for (; position < arguments.size() && options.error.isEmpty(); ++position) {
        const QString &argument = arguments[position];
        if (isWish(options, argument))
            return options;
        if (argument == "--"_L1) {
            words += arguments.mid(position + 1);
            break;
        }
        if (position == 1 && argument == "--worker"_L1)
            options.isWorker = true;
        else if (argument.startsWith(u'-') && argument.size() > 1)
            options.error = takeOption(options, arguments, position);
        else
            words.append(argument);
    }
    if (options.error.isEmpty() && options.hasWindow && words.size() > 0 && words.first() == arguments.first())
        options.error = wrongCommand(words.first());
    if (options.error.isEmpty())
        options.error = options.use->assign(options, words);
    if (options.wish == Wish::Help && options.use)
        options.commandName = options.use->title();
    return options;
}

} // namespace host::app
