// What programs keep for the user from one session to the next: (getcfg), (vl-registry-read). Nothing of the system's
// is read or written: everything is in a file of this program's in the folder of the user's data.

#include "files/qt/Files.h"
#include "host/functions/FunctionGroups.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/kernel/variables/SettingsStore.h"
#include "host/lisp/Interpreter.h"

#include <QRegularExpression>
#include <QUrl>

namespace host::kernel {

namespace {

using lisp::Arguments;
using lisp::Value;

const QString entriesGroup = QStringLiteral("Entries");
/// Between a key and the name of a value in it, as entries of the file are called.
constexpr QChar nameSeparator = u'|';
/// The kinds of values, in front of their text.
constexpr QChar integerMark = u'i';
constexpr QChar textMark = u's';
/// A program that goes astray must not fill the user's disk.
constexpr qsizetype mostEntries = 10000;
constexpr qsizetype longestEntry = 64 * 1024;

SettingsStore registryStore(Arguments &args)
{
    return SettingsStore(documentOf(args).session().settingsFile(QStringLiteral("registry.ini")));
}

/// Without separators at the ends, and with one kind of them.
QString tidyKey(QString key)
{
    key.replace(u'/', u'\\');
    return key.split(u'\\', Qt::SkipEmptyParts).join(u'\\');
}

QString encoded(const QString &text)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(text));
}

QString decoded(const QString &text)
{
    return QUrl::fromPercentEncoding(text.toLatin1());
}

/// One value that is kept.
struct RegistryEntry
{
    QString key;
    QString name; ///< empty for the key's own value
    QString stored;
    QString entry; ///< as the file calls it
};

std::vector<RegistryEntry> registryEntries(const SettingsStore &store)
{
    std::vector<RegistryEntry> all;
    const QHash<QString, QString> texts = store.texts(entriesGroup);
    for (auto text = texts.cbegin(); text != texts.cend(); ++text)
        all.push_back({decoded(text.key().section(nameSeparator, 0, 0)), decoded(text.key().section(nameSeparator, 1)),
                       *text, text.key()});
    return all;
}

bool isSame(const QString &left, const QString &right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

std::optional<RegistryEntry> findEntry(const SettingsStore &store, const QString &key, const QString &name)
{
    for (RegistryEntry &entry : registryEntries(store))
        if (isSame(entry.key, key) && isSame(entry.name, name))
            return std::move(entry);
    return std::nullopt;
}

Value entryValue(const RegistryEntry &entry)
{
    const QString text = entry.stored.mid(1);
    return entry.stored.startsWith(integerMark) ? Value::integer(text.toInt()) : toLisp(text);
}

/// False when it cannot be kept.
bool keepEntry(const SettingsStore &store, const QString &key, const QString &name, const QString &stored)
{
    const std::optional<RegistryEntry> present = findEntry(store, key, name);
    const bool hasRoom = present || store.texts(entriesGroup).size() < mostEntries;
    const QString entry = present ? present->entry : encoded(key) + nameSeparator + encoded(name);
    if (!hasRoom || stored.size() > longestEntry || entry.size() > longestEntry)
        return false;
    return SettingsStore(store).setText(entriesGroup, entry, stored);
}

// (vl-registry-read key [name]) -> the value, nil when there is none.
Value registryRead(Arguments &args)
{
    const std::optional<RegistryEntry> found =
        findEntry(registryStore(args), tidyKey(stringAt(args, 0)), args.has(1) ? stringAt(args, 1) : QString());
    return found ? entryValue(*found) : Value();
}

/// What is kept of a value: a string or an integer, or a pair of the kind's number and one of these.
QString storedForm(Arguments &args, std::size_t index)
{
    const Value &value = args[index].isCons() ? args[index].cdr() : args[index];
    if (value.isInteger())
        return integerMark + QString::number(value.asInteger());
    if (value.isString())
        return textMark + fromUtf8(value.asString());
    if (value.isNil())
        return QString(textMark);
    args.badType(index, "stringp");
}

// (vl-registry-write key [name [value]]) -> value, which is kept; nil when it cannot be. Without a value, "".
Value registryWrite(Arguments &args)
{
    const QString name = args.has(1) ? stringAt(args, 1) : QString();
    const QString stored = storedForm(args, 2);
    if (!keepEntry(registryStore(args), tidyKey(stringAt(args, 0)), name, stored))
        return {};
    return args.has(2) ? args[2] : Value::string("");
}

// (vl-registry-delete key [name]) -> T when there was such a value, or without a name the key with all below it.
Value registryDelete(Arguments &args)
{
    SettingsStore store = registryStore(args);
    const QString key = tidyKey(stringAt(args, 0));
    bool isFound = false;
    for (const RegistryEntry &entry : registryEntries(store)) {
        const bool isBelow = entry.key.startsWith(key + u'\\', Qt::CaseInsensitive);
        const bool isMeant = args.has(1) ? isSame(entry.key, key) && isSame(entry.name, stringAt(args, 1))
                                         : isSame(entry.key, key) || isBelow;
        isFound |= isMeant && store.remove(entriesGroup, entry.entry);
    }
    return args.boolean(isFound);
}

// (vl-registry-descendents key [names]) -> the names of the keys in a key, sorted; with names T or "", of its values.
// nil when there are none.
Value registryDescendents(Arguments &args)
{
    const QString key = tidyKey(stringAt(args, 0));
    QStringList names;
    for (const RegistryEntry &entry : registryEntries(registryStore(args))) {
        const bool isBelow = entry.key.startsWith(key + u'\\', Qt::CaseInsensitive);
        if (args.has(1) && isSame(entry.key, key))
            names.append(entry.name);
        else if (!args.has(1) && isBelow)
            names.append(entry.key.mid(key.size() + 1).section(u'\\', 0, 0));
    }
    names.sort(Qt::CaseInsensitive);
    names.removeDuplicates();
    lisp::ListBuilder list;
    for (const QString &name : names)
        list.append(toLisp(name));
    return list.take();
}

/// "AppData/Program/Section/Name" as key and name; nothing for another text.
std::optional<std::pair<QString, QString>> configurationKey(const QString &path)
{
    const QString key = tidyKey(path);
    if (!key.startsWith(QStringLiteral("AppData\\"), Qt::CaseInsensitive))
        return std::nullopt;
    return std::pair(QStringLiteral("CFG\\") + key.section(u'\\', 0, -2), key.section(u'\\', -1));
}

// (getcfg "AppData/...") -> the text, "" when there is none; nil for a name that does not begin so.
Value getcfg(Arguments &args)
{
    const auto key = configurationKey(stringAt(args, 0));
    if (!key)
        return {};
    const std::optional<RegistryEntry> found = findEntry(registryStore(args), key->first, key->second);
    return found ? entryValue(*found) : Value::string("");
}

// (setcfg "AppData/..." text) -> the text; nil for a name that does not begin so.
Value setcfg(Arguments &args)
{
    const auto key = configurationKey(stringAt(args, 0));
    const QString text = stringAt(args, 1);
    if (!key || !keepEntry(registryStore(args), key->first, key->second, textMark + text))
        return {};
    return args[1];
}

/// The lines of a section of a file in INI form, up to the next one.
QStringList sectionLines(const QString &content, const QString &section)
{
    QStringList lines;
    bool isInside = false;
    for (const QString &line : content.split(QRegularExpression(QStringLiteral("\r?\n")))) {
        const QString text = line.trimmed();
        if (text.startsWith(u'[') && text.endsWith(u']'))
            isInside = isSame(text.mid(1, text.size() - 2).trimmed(), section);
        else if (isInside && !text.startsWith(u';') && text.contains(u'='))
            lines.append(text);
    }
    return lines;
}

// (acet-ini-get file section [name [otherwise]]) -> the text of a name in a section of a file in INI form, otherwise
// where there is none; without a name, the names of the section.
Value iniGet(Arguments &args)
{
    constexpr qint64 largestFile = 16 * 1024 * 1024;
    const QString path = documentOf(args).findFile(stringAt(args, 0));
    const files::WholeBytes file = files::readWhole(path, largestFile);
    lisp::ListBuilder names;
    for (const QString &line : file ? sectionLines(QString::fromUtf8(file.bytes), stringAt(args, 1)) : QStringList()) {
        const QString name = line.section(u'=', 0, 0).trimmed();
        if (args.has(2) && isSame(name, stringAt(args, 2)))
            return toLisp(line.section(u'=', 1).trimmed());
        names.append(toLisp(name));
    }
    return args.has(2) ? args[3] : names.take();
}

} // namespace

void addSettingsFunctions(lisp::Interpreter &interpreter)
{
    using lisp::Arity;
    static constexpr lisp::NativeRow rows[] = {
        {"vl-registry-read", registryRead, Arity::between(1, 2), "key [name]",
         "a value that programs keep for the user"},
        {"vl-registry-write", registryWrite, Arity::between(1, 3), "key [name [value]]", "keeps such a value"},
        {"vl-registry-delete", registryDelete, Arity::between(1, 2), "key [name]", "takes one away, or a whole key"},
        {"vl-registry-descendents", registryDescendents, Arity::between(1, 2), "key [names]",
         "the names of the keys in a key, or of its values"},
        {"getcfg", getcfg, Arity::exactly(1), "name", "a text that programs keep, by a name that begins with AppData/"},
        {"setcfg", setcfg, Arity::exactly(2), "name text", "keeps such a text"},
        {"acet-ini-get", iniGet, Arity::between(2, 4), "file section [name [otherwise]]",
         "a text of a file in INI form, or the names of a section"},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
