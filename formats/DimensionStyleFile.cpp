#include "formats/DimensionStyleFile.h"

#include "formats/TextReading.h"

#include <QCoreApplication>
#include <QHash>
#include <QIODevice>
#include <QSet>

#include <optional>

namespace ortakit {

namespace {

constexpr QByteArrayView headerWord = "DIMENSION_STYLE_NAME";
constexpr QByteArrayView endWord = "END_OF_STYLE";
constexpr QByteArrayView styleLineEnd = "\r\n";

enum class Side
{
    Export,
    Import
};

enum class LineKind
{
    End,
    TextStyleName,
    TextStyleDefinition,
    Linetype,
    Variable
};

LineKind kindOf(QByteArrayView line, Side side)
{
    if (line.contains(endWord))
        return LineKind::End;
    if (side == Side::Import && line.contains("DIMTXSTY"))
        return LineKind::TextStyleName;
    if (line.contains("DIMTXT_"))
        return LineKind::TextStyleDefinition;
    for (const QByteArrayView variable : {"DIMLT ", "DIMEX1LT ", "DIMEX2LT "}) {
        if (line.contains(variable))
            return LineKind::Linetype;
    }
    return LineKind::Variable;
}

/// The part of `line` between its blanks number `index` - 1 and `index`, from 0; empty when there are not so many.
QByteArrayView wordAt(QByteArrayView line, int index)
{
    for (; index > 0; --index) {
        const qsizetype blank = line.indexOf(' ');
        if (blank < 0)
            return {};
        line = line.sliced(blank + 1);
    }
    const qsizetype end = line.indexOf(' ');
    return end < 0 ? line : line.first(end);
}

QString text(QByteArrayView bytes)
{
    return decoded(bytes);
}

/// The name in a header; nothing when `line` is none.
std::optional<QString> headerName(QByteArrayView line, Side side)
{
    const QByteArrayView word = wordAt(line, 0);
    if (!word.contains(headerWord))
        return std::nullopt;
    if (side == Side::Import)
        return text(wordAt(line, 1));
    return text(line.sliced(std::min(word.size() + 1, line.size())));
}

QStringList listNames(const QString &path, Side side)
{
    const TextReading file = readTextFile(path);
    QStringList names;
    for (LineReader reader(file.text); reader.next();) {
        if (const auto name = headerName(reader.line(), side))
            names.append(*name);
    }
    return names;
}

/// Goes over the definition of `count` characters that begins with the next line, and over the rest of the line that
/// it ends in.
void skipDefinition(LineReader &reader, qsizetype count)
{
    for (qsizetype begin = reader.nextOffset(); reader.next(); begin = reader.nextOffset()) {
        const qsizetype endLength = reader.nextOffset() - begin - reader.line().size();
        const qsizetype length = reader.string().size() + endLength;
        if (count < length)
            return;
        count -= length;
    }
}

/// Reads the body of a section. Afterwards the reader stands behind its end.
void readSection(LineReader &reader, Side side, const QSet<QString> &textStyles, StyleVariables &style)
{
    while (reader.next()) {
        const QByteArrayView line = reader.line();
        switch (kindOf(line, side)) {
        case LineKind::End:
            return;
        case LineKind::TextStyleName:
            style.usesExistingTextStyle |= textStyles.contains(text(wordAt(line, 1)));
            break;
        case LineKind::TextStyleDefinition:
            break;
        case LineKind::Linetype:
            style.entries.append(text(wordAt(line, 0)) + u' ' + text(wordAt(line, 1)));
            skipDefinition(reader, text(wordAt(line, 2)).toInt());
            break;
        case LineKind::Variable:
            style.entries.append(reader.string());
            break;
        }
    }
    style.isClosed = false;
}

StyleVariables readVariables(const QString &path, const QString &name, Side side, const QSet<QString> &textStyles)
{
    const TextReading file = readTextFile(path);
    const QString wanted = name.toUpper();
    StyleVariables style;
    for (LineReader reader(file.text); reader.next();) {
        const auto found = headerName(reader.line(), side);
        if (found && found->toUpper() == wanted)
            readSection(reader, side, textStyles, style);
    }
    return style;
}

/// Where the sections to be copied stand in a text, by name in upper case: from the header up to and with the end
/// line. Lines alone count here, what a linetype's definition covers does not.
class SectionIndex
{
public:
    explicit SectionIndex(QByteArrayView text) : m_text(text)
    {
        qsizetype begin = 0;
        for (LineReader reader(text); reader.next(); begin = reader.nextOffset()) {
            const auto name = headerName(reader.line(), Side::Export);
            const QString key = name ? name->toUpper() : QString();
            // Within a section of its own name a header is a line like any other, also when it is the end.
            const bool opens = name && !m_open.contains(key);
            if (reader.line().contains(endWord))
                closeAll(reader.nextOffset());
            if (opens)
                m_open.insert(key, begin);
        }
        m_isClosed = m_open.isEmpty();
        closeAll(text.size());
    }

    struct Section
    {
        QByteArrayView text;
        bool isClosed = true;
    };
    QList<Section> sections(const QString &name) const
    {
        QList<Section> found;
        for (const Range &range : m_ranges.value(name.toUpper())) {
            const qsizetype end = std::min(range.end, m_text.size());
            found.append({m_text.sliced(range.begin, end - range.begin), m_isClosed || end < m_text.size()});
        }
        return found;
    }

private:
    struct Range
    {
        qsizetype begin = 0;
        qsizetype end = 0;
    };

    void closeAll(qsizetype end)
    {
        for (auto section = m_open.cbegin(); section != m_open.cend(); ++section)
            m_ranges[section.key()].append({section.value(), end});
        m_open.clear();
    }

    QByteArrayView m_text;
    QHash<QString, qsizetype> m_open;
    QHash<QString, QList<Range>> m_ranges;
    bool m_isClosed = true;
};

void appendLine(QByteArray &output, QByteArrayView line)
{
    output.append(line);
    output.append(styleLineEnd);
}

void appendSection(QByteArray &output, const SectionIndex::Section &section, TextStyleCopy textStyle)
{
    for (LineReader reader(section.text); reader.next();) {
        // A header and an end are copied whatever else they contain.
        const bool isBody = reader.number() > 1 && !reader.line().contains(endWord);
        if (textStyle == TextStyleCopy::Full || !isBody || !reader.line().contains("DIMTXT_"))
            appendLine(output, reader.line());
    }
    if (!section.isClosed)
        appendLine(output, endWord);
}

qint64 sizeOf(const QList<SectionIndex::Section> &sections)
{
    qint64 size = 0;
    for (const SectionIndex::Section &section : sections)
        size += section.text.size();
    return size;
}

} // namespace

QStringList listStyleNames(const QString &path)
{
    return listNames(path, Side::Export);
}

QStringList listStyleNamesFirstWord(const QString &path)
{
    return listNames(path, Side::Import);
}

StyleVariables readStyleVariables(const QString &path, const QString &name)
{
    return readVariables(path, name, Side::Export, {});
}

StyleVariables readStyleVariablesForImport(const QString &path, const QString &name, const QStringList &textStyles)
{
    return readVariables(path, name, Side::Import, {textStyles.cbegin(), textStyles.cend()});
}

bool copyStyle(const QString &path, const QString &name, QIODevice &output, TextStyleCopy textStyle)
{
    const StyleCopy copy = copyStyles(path, {name}, textStyle);
    return copy && output.write(copy.text) == copy.text.size();
}

StyleCopy copyStyles(const QString &path, const QStringList &names, TextStyleCopy textStyle)
{
    const TextReading file = readTextFile(path);
    if (!file)
        return {{}, file.error};
    const SectionIndex index(file.text);
    QList<SectionIndex::Section> sections;
    for (const QString &name : names)
        sections.append(index.sections(name));
    const qint64 size = sizeOf(sections);
    if (size > largestTextFile)
        return {{}, QCoreApplication::translate("LispExtension", "The file is too large")};
    StyleCopy copy;
    copy.text.reserve(size);
    for (const SectionIndex::Section &section : std::as_const(sections)) {
        appendSection(copy.text, section, textStyle);
        copy.isClosed &= section.isClosed;
    }
    return copy;
}

QList<QStringList> variableRows(const QStringList &entries)
{
    QList<QStringList> rows;
    for (const QString &entry : entries.sliced(entries.isEmpty() ? 0 : 1)) {
        if (entry.contains(u' '))
            rows.append({entry.section(u' ', 0, 0), entry.section(u' ', 1, 1)});
    }
    return rows;
}

QString withDimensionStyleExtension(const QString &path)
{
    const QString extension = QStringLiteral(".dim");
    return path.endsWith(extension) ? path : path + extension;
}

} // namespace ortakit
