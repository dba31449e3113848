#include "formats/LispCatalogue.h"

#include "formats/Fields.h"
#include "formats/TextReading.h"

#include <algorithm>

namespace ortakit {

namespace {

#ifdef Q_OS_WIN
constexpr QLatin1String dumpLineEnd("\r\n");
#else
constexpr QLatin1String dumpLineEnd("\n");
#endif

enum Field
{
    Kind,
    Name,
    DataType,
    TypeOrValue,
    FunctionValue
};

QStringView field(const QString &line, Field number)
{
    return fieldOf(line, u'!', number);
}

void appendAssignment(QString &dump, QStringView name, QStringView quote, QStringView value)
{
    const qsizetype begin = dump.size();
    dump += QLatin1String(";(setq ");
    dump += name;
    dump += u' ';
    dump += quote;
    dump += value;
    dump += quote;
    dump += u')';
    // Some readers end a line there, and what follows would be no comment any more.
    std::replace(dump.begin() + begin, dump.end(), QChar(u'\r'), QChar(u' '));
    dump += dumpLineEnd;
}

} // namespace

LispCatalogue parseLispCatalogue(QByteArrayView text)
{
    LispCatalogue catalogue;
    for (LineReader reader(text); reader.next();) {
        const QByteArrayView line = reader.line();
        if (line == "COMMAND" || line.startsWith("COMMAND!"))
            catalogue.commands.append(reader.string());
        else if (line == "FUNCTION" || line.startsWith("FUNCTION!"))
            catalogue.functions.append(reader.string());
        else if (line == "VARIABLE" || line.startsWith("VARIABLE!"))
            catalogue.variables.append(reader.string());
    }
    return catalogue;
}

LispCatalogueReading readLispCatalogue(const QString &path)
{
    const TextReading file = readTextFile(path, largestLispCatalogue);
    return {file ? parseLispCatalogue(file.text) : LispCatalogue(), file.error};
}

QStringList lispSymbolColumns(const QString &line)
{
    return {field(line, Name).toString(), field(line, DataType).toString(), field(line, TypeOrValue).toString()};
}

QByteArray lispDump(const LispCatalogue &catalogue)
{
    QString dump;
    for (const QStringList *lines : {&catalogue.commands, &catalogue.functions}) {
        for (const QString &line : *lines)
            appendAssignment(dump, field(line, Name), {}, field(line, FunctionValue));
    }
    for (const QString &line : catalogue.variables) {
        const bool isString = field(line, DataType) == QLatin1String("STR");
        appendAssignment(dump, field(line, Name), isString ? u"\"" : u"", field(line, TypeOrValue));
    }
    return dump.toUtf8();
}

} // namespace ortakit
