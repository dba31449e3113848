#include "host/kernel/CurrentSpace.h"

#include "host/drawing/Blocks.h"
#include "host/drawing/Dictionaries.h"
#include "host/drawing/HeaderVariables.h"
#include "host/drawing/Tables.h"

namespace host::kernel {

namespace {

QString model()
{
    return QStringLiteral("Model");
}

/// The layouts of the drawing: each one's name and its object.
std::vector<drawing::Dictionaries::Entry> layouts(const drawing::Drawing &drawing)
{
    const drawing::Dictionaries &dictionaries = drawing.dictionaries();
    const drawing::RecordId root = dictionaries.root();
    const drawing::RecordId layouts = isValid(root) ? dictionaries.find(root, u"ACAD_LAYOUT") : drawing::noRecord;
    return isValid(layouts) ? dictionaries.entries(layouts) : std::vector<drawing::Dictionaries::Entry>();
}

/// The handle of the table entry of the block that holds a layout's entities.
drawing::Handle blockOf(const drawing::Drawing &drawing, const drawing::Dictionaries::Entry &layout)
{
    if (!isValid(layout.record))
        return {};
    const drawing::TagList tags = drawing.tags(layout.record);
    const drawing::Tag *block = tags.find(330, "AcDbLayout");
    return block ? block->handle().value_or(drawing::Handle{}) : drawing::Handle{};
}

/// The layout whose paper space is in use; noRecord in drawings without layouts.
drawing::RecordId paperLayout(const drawing::Drawing &drawing)
{
    const QString name = paperLayoutName(drawing);
    for (const drawing::Dictionaries::Entry &layout : layouts(drawing))
        if (layout.name == name)
            return layout.record;
    return drawing::noRecord;
}

} // namespace

QString layoutOfBlock(const drawing::Drawing &drawing, drawing::RecordId block)
{
    const drawing::RecordId entry = isValid(block) ? drawing.blocks().read(block).tableEntry : drawing::noRecord;
    for (const drawing::Dictionaries::Entry &layout : layouts(drawing))
        if (isValid(entry) && blockOf(drawing, layout) == drawing.handle(entry))
            return layout.name;
    return {};
}

std::vector<drawing::RecordId> layoutBlocks(const drawing::Drawing &drawing)
{
    std::vector<drawing::RecordId> blocks = drawing.blocks().all();
    std::erase_if(blocks, [&](drawing::RecordId block) { return !drawing.blocks().read(block).isLayout(); });
    return blocks;
}

QString paperLayoutName(const drawing::Drawing &drawing)
{
    const QString name = layoutOfBlock(drawing, drawing.blocks().find(u"*Paper_Space"));
    return name.isEmpty() ? QStringLiteral("Layout1") : name;
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

std::optional<drawing::Vec2> layoutLimit(const drawing::Drawing &drawing, int code)
{
    const drawing::RecordId layout = paperLayout(drawing);
    if (!isValid(layout))
        return {};
    return drawing.tags(layout).point(code).xy();
}

void setLayoutLimit(drawing::Drawing &drawing, int code, const drawing::Vec2 &corner)
{
    const drawing::RecordId layout = paperLayout(drawing);
    if (!isValid(layout))
        return;
    drawing::FieldList fields = drawing.fields(layout);
    drawing::setField(fields, code, corner);
    drawing.setFields(layout, fields);
}

} // namespace host::kernel
