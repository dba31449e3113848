#pragma once

#include "host/drawing/math/Matrix.h"
#include "host/drawing/records/Drawing.h"

#include <QString>

#include <vector>

namespace host::kernel {

/// An attribute definition of a block.
struct AttributeDefinition
{
    drawing::FieldList fields;
    QString tag;
    QString prompt;
    QString value;
    bool isAsked = true;
};

/// Those of the block that become attributes; constant ones do not.
std::vector<AttributeDefinition> attributeDefinitions(const drawing::Drawing &drawing, const QString &block);

/// The attribute that a definition becomes where the block is inserted.
drawing::FieldList attributeFor(const AttributeDefinition &definition, const drawing::Matrix &toDrawing);

/// Gives a block reference these attributes in place of its own. Those whose tag it has keep their record; what they
/// say beside `attributes` goes.
void setAttributes(drawing::Drawing &drawing, drawing::RecordId insert,
                   const std::vector<drawing::FieldList> &attributes);

} // namespace host::kernel
