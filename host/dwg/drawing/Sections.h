#pragma once

#include "host/dwg/drawing/BlockMarks.h"
#include "host/dwg/drawing/LayoutBlocks.h"
#include "host/dwg/drawing/RecordWriter.h"
#include "host/dwg/objects/TableTypes.h"

namespace host::dwg {

/// A block with what it has, kept for the sections behind the tables.
struct DrawingBlock
{
    BlockHead head;
    Relations relations;
    bool isCut = false; ///< not all that it has is among the relations; what is missing tells its owner
};

/// A drawing on its way to the text form: what one section leaves for those behind it.
struct DrawingParts
{
    DrawingParts(const Container &file, Problems &problems, std::string &text)
        : container(file), objects(file, problems), records(objects, text)
    {
        if (file.release <= Release::R2004)
            records.fields().setDoubleBytes(doubleBytesOf(file.codePage));
    }

    const Container &container;
    DrawingObjects objects;
    RecordWriter records;
    Header header;                     ///< from the HEADER section on
    LayoutBlocks layouts;              ///< from the TABLES section on
    std::vector<DrawingBlock> blocks;  ///< the same
    std::optional<MarksByBlock> marks; ///< from where they are asked for
};

// The sections of the text form, in their order there. Each is written whole, whatever is missing of it.

void writeHeaderSection(DrawingParts &parts);
void writeClassesSection(DrawingParts &parts);
void writeTablesSection(DrawingParts &parts);
/// The blocks and what they have, but those of the model and of the active layout.
void writeBlocksSection(DrawingParts &parts);
/// What these two have.
void writeEntitiesSection(DrawingParts &parts);
/// What no other section has: from the dictionary of named objects on, then what nobody refers to.
void writeObjectsSection(DrawingParts &parts);
/// What objects keep outside themselves, from R2013 on; nothing where the file has none of it.
void writeDataSection(DrawingParts &parts);
/// The pictures of the drawing that the file has, as it has them; nothing where it has none.
void writePreviewSection(DrawingParts &parts);

} // namespace host::dwg
