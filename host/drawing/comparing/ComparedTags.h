#pragma once

#include "host/drawing/comparing/Ignoring.h"
#include "host/drawing/records/Drawing.h"
#include "host/drawing/tags/TagReader.h"

namespace host::drawing {

/// Of a record's tags those that say what it is, one after another: neither its type, handle and owner, which is who it
/// is and where; nor markers of subclasses, comments, braces, whether children follow, and what is to be ignored.
///
/// Space and layout of an entity (67 and 410) are where it stands as well, and left out unless they are asked for.
class ComparedTags
{
public:
    enum class Space
    {
        IsLeftOut,
        Counts ///< 67, where it is not 0; never 410
    };

    /// The drawing must not change meanwhile.
    ComparedTags(const Drawing &drawing, RecordId record, IgnoredKinds ignored, Space space = Space::IsLeftOut);

    /// False at the end.
    bool read(Tag &tag);
    /// Whose the tag is that was read last: empty for the record's own, "{NAME" within braces, the application's name
    /// in extended data (its 1001 tag among them), "Embedded Object".
    QByteArrayView part() const { return m_part; }

private:
    bool counts(const Tag &tag);
    bool isBrace(const Tag &tag);
    bool isPlace(const Tag &tag);

    TagReader m_reader;
    QByteArrayView m_type;
    QByteArrayView m_part;
    IgnoredKinds m_ignored;
    Space m_space;
    int m_handleCode;
    bool m_isEntity;
    bool m_hasMarker = false; ///< a marker of a subclass was passed
    bool m_isTypeRead = false;
    bool m_isHandleRead = false;
};

} // namespace host::drawing
