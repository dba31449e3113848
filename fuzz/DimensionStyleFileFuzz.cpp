// Any bytes as a dimension style file: listed, read and copied, in time that grows with the file. And from the same
// bytes a file as the tools write it: its copies read as it does.

#include "formats/DimensionStyleFile.h"

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>

#include <cstdlib>

using namespace ortakit;

namespace {

QString fileWith(const char *name, const QByteArray &content)
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QLatin1String(name));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        std::abort();
    return path;
}

QByteArray copyOf(const QString &path, const QString &name, TextStyleCopy textStyle)
{
    QBuffer output;
    output.open(QIODevice::WriteOnly);
    if (!copyStyle(path, name, output, textStyle))
        std::abort();
    return output.data();
}

void require(bool condition)
{
    if (!condition)
        std::abort();
}

/// Many at once are what one by one gives, and a copy of a copy is that copy.
void checkCopies(const QString &path, const QStringList &names)
{
    for (const TextStyleCopy textStyle : {TextStyleCopy::Full, TextStyleCopy::NameOnly}) {
        QByteArray oneByOne;
        for (const QString &name : names) {
            const QByteArray copy = copyOf(path, name, textStyle);
            require(copyOf(fileWith("copy", copy), name, textStyle) == copy);
            oneByOne += copy;
        }
        const StyleCopy together = copyStyles(path, names, textStyle);
        require(together && together.text == oneByOne);
    }
}

void checkAnyBytes(const QByteArray &bytes)
{
    const QString path = fileWith("any", bytes);
    const QStringList names = listStyleNames(path).mid(0, 8);
    for (const QString &name : names) {
        const StyleVariables style = readStyleVariables(path, name);
        require(style.entries.size() <= bytes.count('\n') + 1);
        variableRows(style.entries);
    }
    for (const QString &word : listStyleNamesFirstWord(path).mid(0, 8))
        readStyleVariablesForImport(path, word, {QStringLiteral("Standard")});
    checkCopies(path, names);
}

/// A value without line ends and without words that end a section or make another kind of line.
QByteArray valueFrom(const QByteArray &bytes)
{
    QByteArray value;
    for (const char byte : bytes)
        value += byte >= 'a' && byte <= 'z' ? byte : '-';
    return value;
}

/// Sections as they should be, the bytes deciding what is in them.
QByteArray wellFormed(const QByteArray &bytes)
{
    QByteArray content;
    for (const QByteArray &piece : bytes.split('\n').mid(0, 12)) {
        const QByteArray value = valueFrom(piece.mid(1));
        switch (piece.isEmpty() ? 0 : piece.front() % 5) {
        case 0:
            content += "END_OF_STYLE\r\nDIMENSION_STYLE_NAME style " + value.left(1) + "\r\n";
            break;
        case 1: {
            // The definition holds line ends and characters of one, two and three bytes.
            const QByteArray definition = "*" + value + ",\xC3\xA4\xE2\x82\xAC\r\nA," + value + "\r\n,END";
            content += "DIMLT " + value + ' ' + QByteArray::number(QString::fromUtf8(definition).size()) + "\r\n" +
                       definition + "\r\n";
            break;
        }
        case 2:
            content += "DIMTXT_" + value + "\r\n";
            break;
        default:
            content += "DIMX" + value + ' ' + value + "\r\n";
        }
    }
    return "DIMENSION_STYLE_NAME style\r\n" + content + "END_OF_STYLE\r\n";
}

void checkWellFormed(const QByteArray &bytes)
{
    const QString path = fileWith("good", wellFormed(bytes));
    for (const QString &name : listStyleNames(path)) {
        const QStringList entries = readStyleVariables(path, name).entries;
        for (const TextStyleCopy textStyle : {TextStyleCopy::Full, TextStyleCopy::NameOnly})
            require(readStyleVariables(fileWith("read", copyOf(path, name, textStyle)), name).entries == entries);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    checkAnyBytes(bytes);
    checkWellFormed(bytes);
    return 0;
}
