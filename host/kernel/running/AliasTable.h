#pragma once

#include <QHash>
#include <QString>

class QIODevice;

namespace host::kernel {

/// Commands by what is typed for them: "L" -> "LINE". Keys are in upper case, commands as they are written.
using AliasTable = QHash<QString, QString>;

/// The aliases that a user begins with.
AliasTable firstAliases();

/// An alias file with the aliases of `table`: XML, an element "record" with the attributes "command" and "alias" each,
/// sorted by command.
QByteArray toAliasFile(const AliasTable &table);

/// What an alias file holds, and why it could not be read.
struct AliasTableReading
{
    AliasTable table;
    QString error; ///< empty when the file was read
};

/// Reads an alias file: every element "record" counts, wherever it stands, and of several for one alias the first. One
/// without a command or an alias is left out. Document types and tags of more than 64 KB, which cost the parser more
/// than their length, are refused.
AliasTableReading readAliasTable(QIODevice &source);

} // namespace host::kernel
