#include "host/kernel/documents/TextSizes.h"

#include "host/drawing/records/Tables.h"
#include "host/kernel/documents/Document.h"
#include "host/view/build/TextMeasure.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::RecordId;
using drawing::Vec2;

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

} // namespace host::kernel
