#pragma once

#include "host/dcl/AttributeTable.h"
#include "host/dcl/Problem.h"

#include <vector>

namespace host::dcl {

/// A tile as it is written: `name : prototype { attributes and children }`.
struct TileSource
{
    /// `name = value;`
    struct Attribute
    {
        QString name; ///< in lower case
        AttributeValue value;
    };

    QString name;      ///< of a definition; empty for a child
    QString prototype; ///< the tile it is derived from, or that a child stands for
    QString file;      ///< where it is written
    int line = 0;
    std::vector<Attribute> attributes;
    std::vector<TileSource> children;
};

/// A file as it is written, in its order.
struct Syntax
{
    /// A definition, or another file whose definitions stand here.
    struct Item
    {
        TileSource definition;
        QString included; ///< the other file's name as it is written; empty for a definition
        int line = 0;     ///< of the line that includes
    };

    std::vector<Item> items;
    int auditLevel = 1; ///< of `dcl_settings`: 0 nothing is told, 1 errors, 2 warnings too
    QList<Problem> problems;
};

/// Tiles within tiles that are read; what is nested deeper is an error.
inline constexpr int mostNestedTiles = 60;

/// Reads the text of a file; `file` is what problems call it. What is damaged is left out with an error each, up to
/// ten; unknown attributes and values that do not suit are kept with a warning. Takes time with the length of the text.
Syntax readSyntax(const QString &text, const QString &file);

} // namespace host::dcl
