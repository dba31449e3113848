#pragma once

#include "host/drawing/records/Drawing.h"

namespace host::drawing {

// What entities say by themselves: texts, paragraphs, attributes with their definitions, and dimensions.

/// How an entity keeps what it says.
enum class ContentKind
{
    None,       ///< it says nothing
    Line,       ///< TEXT, ATTRIB: one line
    Definition, ///< ATTDEF: one line, with a tag and a prompt
    Paragraph,  ///< MTEXT: formatted, of any length
    Dimension   ///< what stands in place of the measured value, "<>" within it
};
ContentKind contentKind(const Drawing &drawing, RecordId entity);

/// What it says, as its record has it, with all codes: of a dimension "<>" where that is the measured value alone, of
/// an attribute of several lines all of them with \P in between. Empty for what says nothing.
QString contentOf(const Drawing &drawing, RecordId entity);

/// Whether it is an ATTRIB or ATTDEF of several lines, which keeps them in an object embedded in it.
bool hasEmbeddedLines(const TagList &attribute);

/// The fields of such an entity, whose type comes first, with another content. What else they say stays, so that a text
/// that is not at its left end is to be placed anew. Of an attribute of several lines the object embedded in it says
/// them all, and its own value the first.
FieldList withContent(FieldList fields, const QString &content);

/// Adds the content of a paragraph: a long one in pieces, of which the last has a code of its own.
void addParagraphContent(FieldList &fields, QString content);

} // namespace host::drawing
