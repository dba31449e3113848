#include "formats/LispSource.h"

#include "formats/TextReading.h"

namespace ortakit {

namespace {

/// Blanks as regular expressions have them: other languages' blanks do not divide words.
bool isBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

qsizetype skipBlanks(QByteArrayView text, qsizetype at)
{
    while (at < text.size() && isBlank(text[at]))
        ++at;
    return at;
}

/// Where the name behind "(defun" begins when that stands at `at`, with blanks behind it and perhaps before it;
/// otherwise -1.
qsizetype behindDefun(QByteArrayView text, qsizetype at)
{
    static constexpr QByteArrayView word = "defun";
    if (text[at] != '(')
        return -1;
    const qsizetype begin = skipBlanks(text, at + 1);
    const qsizetype end = begin + word.size();
    if (!text.sliced(begin).startsWith(word) || end == text.size() || !isBlank(text[end]))
        return -1;
    return skipBlanks(text, end);
}

struct CodeOfLine
{
    bool hasDefun = false;
    qsizetype depthChange = 0;
};

CodeOfLine scanCode(QByteArrayView line)
{
    CodeOfLine found;
    const qsizetype comment = line.indexOf(';');
    const QByteArrayView code = comment < 0 ? line : line.first(comment);
    for (qsizetype i = 0; i < code.size(); ++i) {
        if (code[i] == ')') {
            --found.depthChange;
        } else if (code[i] == '(') {
            ++found.depthChange;
            found.hasDefun = found.hasDefun || behindDefun(code, i) >= 0;
        }
    }
    return found;
}

/// The line up to the first blank or parenthesis once every "(defun " is taken out of it.
QString functionName(QByteArrayView line)
{
    QByteArray name;
    for (qsizetype i = 0; i < line.size() && !isBlank(line[i]);) {
        const qsizetype behind = behindDefun(line, i);
        if (behind < 0 && line[i] == '(')
            break;
        if (behind < 0)
            name.append(line[i]);
        i = behind < 0 ? i + 1 : behind;
    }
    return decoded(name);
}

bool belongsToHeader(QByteArrayView line)
{
    const qsizetype first = skipBlanks(line, 0);
    if (first == line.size())
        return line.isEmpty();
    // What looks like a letter from here may be a blank of another alphabet.
    if (uchar(line[first]) >= 0x80)
        return decoded(line).trimmed().startsWith(u';');
    return line[first] == ';';
}

/// A run of whole lines, in bytes from the beginning of the text.
struct LineRange
{
    qsizetype begin = 0;
    qsizetype end = 0;

    void extend(qsizetype lineBegin, qsizetype lineEnd)
    {
        if (begin == end)
            begin = lineBegin;
        end = lineEnd;
    }
};

QStringList linesOf(QByteArrayView text, const LineRange &range)
{
    QStringList lines;
    for (LineReader reader(text.sliced(range.begin, range.end - range.begin)); reader.next();)
        lines.append(reader.string().replace(u'\t', QStringLiteral("    ")));
    return lines;
}

/// What is known of a function before its end is found. Places only, so that a form that never closes costs nothing.
struct PendingFunction
{
    LineRange header;
    QByteArrayView defunLine;
    LineRange body;

    LispFunctionEntry entryOf(QByteArrayView text) const
    {
        return {functionName(defunLine), linesOf(text, header), decoded(defunLine), linesOf(text, body)};
    }
};

} // namespace

QString lispText(const LispFunctionEntry &entry, LispPart part)
{
    QStringList lines;
    if (part != LispPart::Function)
        lines = entry.header;
    lines.append(entry.defunLine);
    if (part != LispPart::Header)
        lines.append(entry.body);
    return lines.join(u'\n');
}

QList<LispFunctionEntry> scanLispSource(QByteArrayView text)
{
    QList<LispFunctionEntry> entries;
    PendingFunction pending;
    qsizetype depth = 0;
    LineReader reader(text);
    for (qsizetype begin = 0; reader.next(); begin = reader.nextOffset()) {
        const qsizetype end = std::min(reader.nextOffset(), text.size());
        const CodeOfLine code = scanCode(reader.line());
        if (depth != 0) {
            pending.body.extend(begin, end);
        } else if (code.hasDefun) {
            pending.defunLine = reader.line();
        } else {
            if (belongsToHeader(reader.line()))
                pending.header.extend(begin, end);
            else
                pending.header = {};
            continue;
        }
        depth += code.depthChange;
        if (depth == 0) {
            entries.append(pending.entryOf(text));
            pending = {};
        }
    }
    return entries;
}

LispSourceReading readLispSource(const QString &path, QByteArrayView codePage)
{
    const TextReading file = readLegacyText(path, largestLispSource, codePage);
    return {file ? scanLispSource(file.text) : QList<LispFunctionEntry>(), file.error};
}

} // namespace ortakit
