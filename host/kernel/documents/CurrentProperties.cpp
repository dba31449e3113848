#include "host/kernel/documents/CurrentProperties.h"

#include "host/drawing/records/HeaderVariables.h"

namespace host::kernel {

using drawing::FieldList;

FieldList withCurrentProperties(const drawing::Drawing &drawing, FieldList fields)
{
    const drawing::HeaderVariables &header = drawing.header();
    const auto addText = [&](int code, QStringView variable, const QString &usual) {
        const QString value = header.text(variable, usual);
        if (!drawing::findField(fields, code) && value.compare(usual, Qt::CaseInsensitive) != 0)
            fields.push_back({code, value});
    };
    addText(8, u"$CLAYER", QString());
    addText(6, u"$CELTYPE", QStringLiteral("ByLayer"));
    const qint64 colour = header.integer(u"$CECOLOR", 256);
    if (!drawing::findField(fields, 62) && colour != 256)
        fields.push_back({62, colour});
    const double scale = header.real(u"$CELTSCALE", 1.0);
    if (!drawing::findField(fields, 48) && scale != 1.0)
        fields.push_back({48, scale});
    const qint64 weight = header.integer(u"$CELWEIGHT", -1);
    if (!drawing::findField(fields, 370) && weight != -1 && drawing.version() >= drawing::Version::R2000)
        fields.push_back({370, weight});
    return fields;
}

} // namespace host::kernel
