#include "host/dwg/drawing/Sections.h"

namespace host::dwg {

void writePreviewSection(DrawingParts &parts)
{
    const Bytes preview = parts.container.preview;
    if (preview.empty())
        return;
    Fields &fields = parts.records.fields();
    fields.start({}, {}, {});
    fields.note(90, preview.size());
    fields.noteBinary(310, {reinterpret_cast<const char *>(preview.data()), preview.size()});
    parts.records.writeFields("SECTION", tagLines(2, "THUMBNAILIMAGE"));
    parts.records.endSection();
}

} // namespace host::dwg
