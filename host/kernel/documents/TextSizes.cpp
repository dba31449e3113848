#include "host/kernel/documents/TextSizes.h"

#include "host/drawing/math/Angles.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/text/TextAlignment.h"
#include "host/kernel/documents/Document.h"
#include "host/view/build/TextMeasure.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::Field;
using drawing::FieldList;
using drawing::RecordId;
using drawing::Vec2;

namespace {

/// The text as it is without its alignment, for measuring it.
FieldList atLeftEnd(FieldList text)
{
    std::erase_if(text, [](const Field &field) {
        constexpr int alignment[] = {11, 72, 73, 74};
        return std::ranges::find(alignment, field.code) != std::end(alignment);
    });
    return text;
}

/// A stretched text runs from the one point to the other.
void directStretched(FieldList &text)
{
    const Field *from = drawing::findField(text, 10);
    const Field *to = drawing::findField(text, 11);
    if (!drawing::textAlignment(text).isStretched() || !from || !to)
        return;
    const drawing::Vec3 way = to->point() - from->point();
    if (way.length() > 0.0)
        drawing::setField(text, 50, std::atan2(way.y, way.x) / drawing::radians);
}

} // namespace

drawing::TextSize textSizeIn(Document &document, const QString &textStyle)
{
    view::TextMeasure &measure = document.textMeasure();
    const RecordId style = document.drawing().tables().find(drawing::TableKind::Style, textStyle);
    const QString name = isValid(style) ? textStyle : u"Standard"_s;
    return [&measure, name](const QString &content, double height) -> Vec2 {
        const auto size =
            measure.paragraphSize({{0, u"MTEXT"_s}, {40, height}, {41, 0.0}, {71, qint64(5)}, {1, content}, {7, name}});
        return {size.x, size.y};
    };
}

bool isLineOfText(const FieldList &fields)
{
    const QString type = fields.empty() ? QString() : fields.front().text().toUpper();
    return type == u"TEXT" || type == u"ATTRIB" || type == u"ATTDEF";
}

FieldList completedText(Document &document, FieldList fields)
{
    if (!isLineOfText(fields) || drawing::textAlignment(fields).isLeft())
        return fields;
    const Field *own = drawing::findField(fields, 11);
    if (!own || !drawing::isPoint(*own) || !drawing::findField(fields, 40))
        return fields;
    if (!drawing::findField(fields, 10))
        fields.insert(fields.begin() + (own - fields.data()), {10, own->point()});
    directStretched(fields);
    drawing::alignText(fields, document.textMeasure().lineBox(atLeftEnd(fields)));
    return fields;
}

} // namespace host::kernel
