#include "host/kernel/CurrentSpace.h"

#include "host/drawing/Dictionaries.h"
#include "host/drawing/HeaderVariables.h"
#include "host/drawing/Tables.h"

namespace host::kernel {

namespace {

QString model()
{
    return QStringLiteral("Model");
}

} // namespace

QString paperLayoutName(const drawing::Drawing &drawing)
{
    const drawing::Dictionaries &dictionaries = drawing.dictionaries();
    const drawing::RecordId root = dictionaries.root();
    const drawing::RecordId layouts = isValid(root) ? dictionaries.find(root, u"ACAD_LAYOUT") : drawing::noRecord;
    const drawing::RecordId paper = drawing.tables().find(drawing::TableKind::BlockRecord, u"*Paper_Space");
    if (isValid(layouts) && isValid(paper)) {
        for (const drawing::Dictionaries::Entry &entry : dictionaries.entries(layouts)) {
            if (!isValid(entry.record))
                continue;
            const drawing::TagList tags = drawing.tags(entry.record);
            const drawing::Tag *block = tags.find(330, "AcDbLayout");
            if (block && block->handle() == drawing.handle(paper))
                return entry.name;
        }
    }
    return QStringLiteral("Layout1");
}

drawing::Space currentSpace(const drawing::Drawing &drawing)
{
    return drawing.header().integer(u"$TILEMODE", 1) != 0 ? drawing::Space::Model : drawing::Space::Paper;
}

QString currentLayout(const drawing::Drawing &drawing)
{
    return currentSpace(drawing) == drawing::Space::Model ? model() : paperLayoutName(drawing);
}

QString layoutName(const drawing::Drawing &drawing, const QString &name)
{
    for (const QString &known : {model(), paperLayoutName(drawing)})
        if (known.compare(name, Qt::CaseInsensitive) == 0)
            return known;
    return {};
}

} // namespace host::kernel
