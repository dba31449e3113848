#include "host/kernel/running/AliasTable.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

constexpr qint64 pieceSize = 4096;
constexpr qint64 longestToken = 64 * 1024;
constexpr qsizetype mostAttributes = 100;

void takeElement(QXmlStreamReader &xml, AliasTable &table)
{
    const QXmlStreamAttributes attributes = xml.attributes();
    if (attributes.size() > mostAttributes) {
        xml.raiseError(u"an element has too many attributes"_s);
        return;
    }
    const QString alias = attributes.value("alias"_L1).trimmed().toString().toUpper();
    const QString command = attributes.value("command"_L1).trimmed().toString();
    if (xml.name() == "record"_L1 && !alias.isEmpty() && !command.isEmpty() && !table.contains(alias))
        table.insert(alias, command);
}

} // namespace

AliasTable firstAliases()
{
    return {{u"L"_s, u"LINE"_s},     {u"C"_s, u"CIRCLE"_s},   {u"PL"_s, u"PLINE"_s},   {u"E"_s, u"ERASE"_s},
            {u"M"_s, u"MOVE"_s},     {u"CO"_s, u"COPY"_s},    {u"CP"_s, u"COPY"_s},    {u"RO"_s, u"ROTATE"_s},
            {u"SC"_s, u"SCALE"_s},   {u"I"_s, u"INSERT"_s},   {u"-I"_s, u"-INSERT"_s}, {u"W"_s, u"WBLOCK"_s},
            {u"-W"_s, u"-WBLOCK"_s}, {u"-LA"_s, u"-LAYER"_s}, {u"LA"_s, u"LAYER"_s},   {u"Z"_s, u"ZOOM"_s},
            {u"RE"_s, u"REGEN"_s},   {u"R"_s, u"REDRAW"_s},   {u"SET"_s, u"SETVAR"_s}, {u"LT"_s, u"-LINETYPE"_s}};
}

QByteArray toAliasFile(const AliasTable &table)
{
    QList<std::pair<QString, QString>> rows;
    for (auto entry = table.cbegin(); entry != table.cend(); ++entry)
        rows.append({entry.value(), entry.key()});
    std::sort(rows.begin(), rows.end());
    QByteArray text;
    QXmlStreamWriter xml(&text);
    xml.setAutoFormatting(true);
    xml.writeStartElement(u"aliases"_s);
    for (const auto &[command, alias] : rows) {
        xml.writeEmptyElement(u"record"_s);
        xml.writeAttribute(u"command"_s, command);
        xml.writeAttribute(u"alias"_s, alias);
    }
    xml.writeEndDocument();
    return text;
}

AliasTableReading readAliasTable(QIODevice &source)
{
    AliasTable table;
    QXmlStreamReader xml;
    xml.setNamespaceProcessing(false);
    // Fed by pieces, so that it is seen how much the parser holds back.
    qint64 held = 0;
    const auto feed = [&] {
        if (xml.error() != QXmlStreamReader::PrematureEndOfDocumentError &&
            xml.tokenType() != QXmlStreamReader::EndDocument)
            return false;
        const QByteArray piece = source.read(pieceSize);
        held += piece.size();
        if (held > longestToken)
            xml.raiseError(u"a tag or text is too long"_s);
        else if (!piece.isEmpty())
            xml.addData(piece);
        return held <= longestToken && !piece.isEmpty();
    };
    while (!xml.atEnd() || feed()) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token != QXmlStreamReader::Invalid)
            held = 0;
        if (token == QXmlStreamReader::DTD)
            xml.raiseError(u"it has a document type"_s);
        else if (token == QXmlStreamReader::StartElement)
            takeElement(xml, table);
    }
    return {std::move(table), xml.errorString()};
}

} // namespace host::kernel
