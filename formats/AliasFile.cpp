#include "formats/AliasFile.h"

#include "files/qt/Files.h"
#include "formats/FileWriting.h"
#include "formats/Translated.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QXmlStreamAttribute>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

using namespace Qt::StringLiterals;

namespace ortakit {

namespace {

constexpr qint64 pieceSize = 4096;
/// The parser compares each attribute of a tag with all others, and each element with all defaults of the document
/// type: this many bytes take it some hundredths of a second.
constexpr qint64 longestToken = 64 * 1024;
constexpr qsizetype mostAttributes = 100;
/// Entities may add this much to what stands in the file.
constexpr qint64 expansionAllowance = 1024 * 1024;

/// More than all commands of all programs have.
constexpr qint64 largestFile = 64 * 1024 * 1024;

/// One pass over an alias file. The parser is fed by pieces, so that what it holds back is known.
class AliasReader
{
public:
    explicit AliasReader(QIODevice &source) : m_source(source)
    {
        // What a prefix stands for is nobody's question, and the parser searches all declarations for it.
        m_xml.setNamespaceProcessing(false);
    }

    AliasReading read()
    {
        while (!m_xml.atEnd() || feed())
            takeToken(m_xml.readNext());
        const qint64 line = m_xml.hasError() ? m_xml.lineNumber() : 0;
        return {std::move(m_aliases), m_xml.errorString(), line, m_hasOnlyAliases};
    }

private:
    bool needsMore() const
    {
        // Behind the root element the parser takes the end of a piece for the end of the file.
        return m_xml.error() == QXmlStreamReader::PrematureEndOfDocumentError ||
               m_xml.tokenType() == QXmlStreamReader::EndDocument;
    }

    /// Gives the parser the next piece when that is what it waits for.
    bool feed()
    {
        if (!needsMore())
            return false;
        if (m_fed - m_fedAtToken > longestToken) {
            m_xml.raiseError(translated("A tag or text of the file is too long."));
            return false;
        }
        const QByteArray piece = m_source.read(pieceSize);
        m_fed += piece.size();
        if (!piece.isEmpty())
            m_xml.addData(piece);
        return !piece.isEmpty();
    }

    void takeToken(QXmlStreamReader::TokenType token)
    {
        if (token == QXmlStreamReader::Invalid)
            return;
        m_fedAtToken = m_fed;
        m_hasOnlyAliases = m_hasOnlyAliases && isKept(token);
        m_depth += token == QXmlStreamReader::StartElement ? 1 : token == QXmlStreamReader::EndElement ? -1 : 0;
        if (token != QXmlStreamReader::StartElement)
            return;
        const QXmlStreamAttributes attributes = m_xml.attributes();
        if (attributes.size() > mostAttributes)
            m_xml.raiseError(translated("An element of the file has too many attributes."));
        else if (m_xml.name() == "record"_L1)
            takeRecord({attributes.value("command"_L1).toString(), attributes.value("alias"_L1).toString()});
    }

    /// Whether a file that is written of the aliases alone says this as well.
    bool isKept(QXmlStreamReader::TokenType token) const
    {
        switch (token) {
        case QXmlStreamReader::StartElement:
            return m_depth == 0 ? m_xml.name() == "aliases"_L1 && m_xml.attributes().isEmpty()
                                : m_depth == 1 && m_xml.name() == "record"_L1 && hasOnlyKnownAttributes();
        case QXmlStreamReader::Characters:
            return m_xml.isWhitespace();
        case QXmlStreamReader::StartDocument:
        case QXmlStreamReader::EndDocument:
        case QXmlStreamReader::EndElement:
            return true;
        default:
            return false;
        }
    }

    bool hasOnlyKnownAttributes() const
    {
        const QXmlStreamAttributes attributes = m_xml.attributes();
        return std::all_of(attributes.begin(), attributes.end(), [](const QXmlStreamAttribute &attribute) {
            return attribute.name() == "command"_L1 || attribute.name() == "alias"_L1;
        });
    }

    void takeRecord(const CommandAlias &record)
    {
        m_taken += record.command.size() + record.alias.size();
        if (m_taken > m_fed + expansionAllowance)
            m_xml.raiseError(translated("The entities of the file expand to too much text."));
        else
            m_aliases.append(record);
    }

    QIODevice &m_source;
    QXmlStreamReader m_xml;
    QList<CommandAlias> m_aliases;
    qint64 m_fed = 0;
    qint64 m_fedAtToken = 0; ///< m_fed when the last token was complete
    qint64 m_taken = 0;      ///< characters of all pairs
    int m_depth = 0;         ///< elements that are open
    bool m_hasOnlyAliases = true;
};

/// `text` in upper case without control characters and halves of surrogate pairs: XML has no way to write them, and a
/// file with them could not be read again.
QString storable(const QString &text)
{
    QString kept;
    kept.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            kept += c;
            kept += text[++i];
        } else if (!c.isSurrogate() && c.unicode() < 0xFFFE && (c.unicode() >= 0x20 || u"\t\n\r"_s.contains(c))) {
            kept += c;
        }
    }
    return kept.toUpper();
}

/// Puts a copy of what the file holds beside it, under a name that nothing has yet.
AliasFile::Written keep(const QString &path, const QByteArray &content)
{
    constexpr int mostCopies = 1000;
    for (int number = 1; number <= mostCopies; ++number) {
        const QString copy = path + (number == 1 ? u".kept"_s : u".kept%1"_s.arg(number));
        // One that holds the same already is as good as a new one.
        const files::WholeBytes there = files::readWhole(copy, largestFile);
        if (there && there.bytes == content)
            return {{}, copy};
        if (QFileInfo::exists(copy))
            continue;
        QString error;
        replaceFile(copy, content, &error);
        return {error, copy};
    }
    return {translated("There are too many copies of it already."), {}};
}

} // namespace

AliasReading readAliases(QIODevice &source)
{
    return AliasReader(source).read();
}

AliasReading readAliasFile(const QString &path)
{
    return AliasFile().open(path);
}

QByteArray writtenAliases(const QList<CommandAlias> &aliases)
{
    QByteArray text;
    QXmlStreamWriter xml(&text);
    xml.setAutoFormatting(true);
    xml.writeStartElement(u"aliases"_s);
    for (const CommandAlias &pair : aliases) {
        const QString command = storable(pair.command);
        const QString alias = storable(pair.alias);
        if (command.isEmpty() || alias.isEmpty())
            continue;
        xml.writeEmptyElement(u"record"_s);
        xml.writeAttribute(u"command"_s, command);
        xml.writeAttribute(u"alias"_s, alias);
    }
    xml.writeEndDocument();
    return text;
}

QString aliasListing(const QList<CommandAlias> &aliases)
{
    constexpr qsizetype fewestPoints = 4;
    qsizetype width = 0;
    for (const CommandAlias &pair : aliases)
        width = std::max(width, pair.command.size());
    QString text;
    for (const CommandAlias &pair : aliases) {
        const QString command = (pair.command + u' ').toUpper();
        text += command.leftJustified(width + fewestPoints, u'.') + u' ' + pair.alias.toUpper() + u'\n';
    }
    return text;
}

AliasReading AliasFile::open(const QString &path)
{
    m_path = path;
    m_known.reset();
    m_isChosen = false;
    files::WholeBytes content = files::readWhole(path, largestFile);
    if (!content)
        return {{}, translated("Error reading alias file."), 0, false};
    QBuffer buffer(&content.bytes);
    buffer.open(QIODevice::ReadOnly);
    AliasReading reading = readAliases(buffer);
    if (reading && reading.hasOnlyAliases)
        m_known = content.bytes;
    return reading;
}

void AliasFile::choose(const QString &path)
{
    m_path = path;
    m_known.reset();
    m_isChosen = true;
}

QString AliasFile::damage() const
{
    if (m_isChosen || !QFileInfo(m_path).isFile())
        return {};
    const AliasReading reading = readAliasFile(m_path);
    if (reading)
        return {};
    return reading.line > 0 ? translated("line %1: %2").arg(reading.line).arg(reading.error) : reading.error;
}

AliasFile::Written AliasFile::write(const QList<CommandAlias> &aliases)
{
    const QByteArray text = writtenAliases(aliases);
    Written written;
    if (!m_isChosen && QFileInfo(m_path).isFile()) {
        const files::WholeBytes now = files::readWhole(m_path, largestFile);
        if (!now)
            return {now.reason, {}};
        if (now.bytes != m_known && now.bytes != text)
            written = keep(m_path, now.bytes);
    }
    if (written.error.isEmpty() && !replaceFile(m_path, text, &written.error))
        return written;
    if (written.error.isEmpty()) {
        m_known = text;
        m_isChosen = false;
    }
    return written;
}

} // namespace ortakit
