#include "host/kernel/documents/CurrentProperties.h"

#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/PolylineFlags.h"

#include <QSet>

namespace host::kernel {

using drawing::FieldList;

namespace {

/// Texts rise above their plane only when they are told to, and what lies in space not at all.
bool takesThickness(const FieldList &fields)
{
    static const QSet<QString> types = {
        QStringLiteral("LINE"),  QStringLiteral("CIRCLE"), QStringLiteral("ARC"),        QStringLiteral("POINT"),
        QStringLiteral("SOLID"), QStringLiteral("TRACE"),  QStringLiteral("LWPOLYLINE"), QStringLiteral("POLYLINE")};
    constexpr int inSpace = drawing::Flag3d | drawing::FlagMesh | drawing::FlagFaces;
    const QString type = fields.empty() ? QString() : fields.front().text();
    const drawing::Field *flags = drawing::findField(fields, 70);
    return types.contains(type) && (type != QStringLiteral("POLYLINE") || !flags || (flags->integer() & inSpace) == 0);
}

} // namespace

qint64 transparencyValue(int percent)
{
    constexpr qint64 isValue = 0x02000000;
    return isValue | qRound(255.0 * (100 - percent) / 100.0);
}

FieldList withCurrentProperties(const drawing::Drawing &drawing, FieldList fields)
{
    const drawing::HeaderVariables &header = drawing.header();
    const auto addText = [&](int code, QStringView variable, const QString &usual) {
        const QString value = header.text(variable, usual);
        // Damaged files may have no name there.
        const bool isUsual = value.isEmpty() || value.compare(usual, Qt::CaseInsensitive) == 0;
        if (!drawing::findField(fields, code) && !isUsual)
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
    const double thickness = header.real(u"$THICKNESS", 0.0);
    if (thickness != 0.0 && takesThickness(fields) && !drawing::findField(fields, 39))
        fields.push_back({39, thickness});
    return fields;
}

} // namespace host::kernel
