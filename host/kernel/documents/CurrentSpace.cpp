#include "host/kernel/documents/CurrentSpace.h"

#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Layouts.h"

namespace host::kernel {

namespace {

QString model()
{
    return QStringLiteral("Model");
}

} // namespace

drawing::Space currentSpace(const drawing::Drawing &drawing)
{
    return drawing.header().integer(u"$TILEMODE", 1) != 0 ? drawing::Space::Model : drawing::Space::Paper;
}

QString currentLayout(const drawing::Drawing &drawing)
{
    return currentSpace(drawing) == drawing::Space::Model ? model() : drawing.layouts().paperName();
}

QString layoutName(const drawing::Drawing &drawing, const QString &name)
{
    for (const QString &known : {model(), drawing.layouts().paperName()})
        if (known.compare(name, Qt::CaseInsensitive) == 0)
            return known;
    return {};
}

std::optional<drawing::Vec2> layoutLimit(const drawing::Drawing &drawing, int code)
{
    const drawing::RecordId layout = drawing.layouts().paperLayout();
    if (!isValid(layout))
        return {};
    return drawing.tags(layout).point(code).xy();
}

void setLayoutLimit(drawing::Drawing &drawing, int code, const drawing::Vec2 &corner)
{
    const drawing::RecordId layout = drawing.layouts().paperLayout();
    if (!isValid(layout))
        return;
    drawing::FieldList fields = drawing.fields(layout);
    drawing::setField(fields, code, corner);
    drawing.setFields(layout, fields);
}

} // namespace host::kernel
