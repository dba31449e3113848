#pragma once

#include <QtGlobal>

namespace host::drawing {

/// Names a record for as long as its drawing is open. Never used again for another record, whatever is edited or
/// undone.
enum class RecordId : quint32
{
};
inline constexpr RecordId noRecord{0xFFFFFFFF};
inline bool isValid(RecordId id)
{
    return id != noRecord;
}

/// The sections of a drawing file. Sections of other programs are Other.
enum class Section : quint8
{
    None,
    Header,
    Classes,
    Tables,
    Blocks,
    Entities,
    Objects,
    Thumbnail,
    Other
};

/// What a record is by its place in the file. A record is a run of tags from one group 0 to the next; in the header
/// section from one variable name (group 9) to the next.
enum class RecordKind : quint8
{
    Preamble,    ///< the first record of every drawing: tags before the first section, comments mostly, or nothing
    Section,     ///< SECTION with its name
    EndSection,  ///< ENDSEC
    Variable,    ///< a header variable
    Class,       ///< any record of the CLASSES section
    Table,       ///< TABLE, the head of a symbol table
    EndTable,    ///< ENDTAB
    TableEntry,  ///< LAYER, STYLE, ...
    Block,       ///< BLOCK, the head of a block definition
    EndBlock,    ///< ENDBLK
    Entity,      ///< a drawn thing that stands for itself
    Child,       ///< a VERTEX of a POLYLINE, an ATTRIB of an INSERT
    EndChildren, ///< the SEQEND behind them
    Object,      ///< any record of the OBJECTS section
    Other,       ///< records of sections this program does not know
    EndOfFile,   ///< EOF
    Tail         ///< whatever bytes stand behind EOF; not made of tags
};

} // namespace host::drawing
