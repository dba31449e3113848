#pragma once

#include <QByteArrayView>

namespace host::drawing {

/// What a record is known to be by its type alone, in files of whatever program.
enum class TypeRole : quint8
{
    Unknown,
    Marker, ///< SECTION, ENDSEC, TABLE, ENDTAB, BLOCK, ENDBLK, EOF
    Class,  ///< CLASS
    Symbol, ///< an entry of a symbol table
    Entity, ///< of a drawing or block, VERTEX and SEQEND among them
    Object  ///< of the OBJECTS section
};

/// In any letter case.
TypeRole typeRole(QByteArrayView type);

/// Whether the text may be the type of a record: some printable letters or digits, and no number.
bool isPlausibleType(QByteArrayView text);

/// Whether a record of this type is worth keeping with only a part of its tags, for the sake of others that it holds
/// or that need its name.
bool isHolder(QByteArrayView type);

} // namespace host::drawing
