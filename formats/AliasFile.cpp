#include "formats/AliasFile.h"

#include "files/qt/Files.h"
#include "formats/FileWriting.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
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

QString tr(const char *text)
{
    return QCoreApplication::translate("LispExtension", text);
}

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
        return {std::move(m_aliases), m_xml.errorString()};
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
            m_xml.raiseError(tr("A tag or text of the file is too long."));
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
        if (token != QXmlStreamReader::StartElement)
            return;
        const QXmlStreamAttributes attributes = m_xml.attributes();
        if (attributes.size() > mostAttributes)
            m_xml.raiseError(tr("An element of the file has too many attributes."));
        else if (m_xml.name() == "record"_L1)
            takeRecord({attributes.value("command"_L1).toString(), attributes.value("alias"_L1).toString()});
    }

    void takeRecord(const CommandAlias &record)
    {
        m_taken += record.command.size() + record.alias.size();
        if (m_taken > m_fed + expansionAllowance)
            m_xml.raiseError(tr("The entities of the file expand to too much text."));
        else
            m_aliases.append(record);
    }

    QIODevice &m_source;
    QXmlStreamReader m_xml;
    QList<CommandAlias> m_aliases;
    qint64 m_fed = 0;
    qint64 m_fedAtToken = 0; ///< m_fed when the last token was complete
    qint64 m_taken = 0;      ///< characters of all pairs
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

} // namespace

AliasReading readAliases(QIODevice &source)
{
    return AliasReader(source).read();
}

AliasReading readAliasFile(const QString &path)
{
    constexpr qint64 largestFile = 64 * 1024 * 1024;
    QFile file;
    if (!files::openRegular(file, path, largestFile).isEmpty())
        return {{}, tr("Error reading alias file.")};
    return readAliases(file);
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

bool writeAliasFile(const QString &path, const QList<CommandAlias> &aliases)
{
    return replaceFile(path, writtenAliases(aliases));
}

} // namespace ortakit
