#pragma once

#include "host/drawing/comparing/Ignoring.h"
#include "host/drawing/records/Drawing.h"

#include <QHash>

namespace host::drawing {

/// The name that a group has in records of a kind and type: that of the entity's property ("StartPoint"), of the
/// variable in a dimension style ("DIMSCALE"), of what layers, styles and blocks have; empty where it has none.
QString groupName(RecordKind kind, QByteArrayView type, int code);

/// A value in a few letters: "2.5", "(0,0)", a text in quotes with what is not seen made visible, a handle, how many
/// bytes. Numbers are as short as they can be and still read as the same.
QString valueText(const FieldValue &value);

/// Records of a drawing in words.
class RecordTitles
{
public:
    /// The drawing must outlive it, and not change. Goes through the dictionaries.
    explicit RecordTitles(const Drawing &drawing);

    /// Which one it is: "LINE 2F", "LAYER WALL", "BLOCK door", "$INSUNITS", "LAYOUT 59 Sheet".
    QString name(RecordId record) const;
    /// The same, for entities with what people find it by: "LINE 2F on layer WALL (0,0)-(10,0)", where they do not
    /// stand in model space with that place: "in block door".
    QString title(RecordId record) const;
    /// All of it in a line: its name, its place and each group as NAME=value, or as CODE=value where it has no name.
    QString line(RecordId record, IgnoredKinds ignored) const;

private:
    const Drawing &m_drawing;
    QHash<RecordId, QString> m_entryNames; ///< of objects, in the dictionaries that have them
};

} // namespace host::drawing
