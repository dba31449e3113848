#include "host/drawing/editing/EarlyForms.h"

#include "host/drawing/curves/EntityCurve.h"
#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/math/Matrix.h"
#include "host/drawing/text/ParagraphText.h"

#include <numbers>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 closedFlag = 1;
constexpr qint64 spaceFlag = 8;
constexpr qint64 spaceVertexFlag = 32;

/// Layer, linetype, colour, thickness: what any entity may say of its look.
FieldList lookOf(const FieldList &fields, const QString &type)
{
    FieldList look = {{0, type}};
    for (const int code : {8, 6, 62, 39}) {
        if (const Field *field = findField(fields, code))
            look.push_back(*field);
    }
    return look;
}

qint64 integerOf(const FieldList &fields, int code, qint64 otherwise)
{
    const Field *field = findField(fields, code);
    return field ? field->integer() : otherwise;
}

Vec3 extrusionOf(const FieldList &fields)
{
    const Field *field = findField(fields, 210);
    return field ? field->point() : Vec3{0.0, 0.0, 1.0};
}

/// Vertices are on their polyline's layer.
FieldList vertexAt(const FieldList &fields, const Vec3 &at)
{
    const Field *layer = findField(fields, 8);
    return {{0, u"VERTEX"_s}, {8, layer ? layer->text() : u"0"_s}, {10, at}};
}

EarlyForm polylineForm(const FieldList &fields)
{
    constexpr qint64 generatedFlag = 128;
    const double width = realOf(fields, 43, 0.0);
    const double elevation = realOf(fields, 38, 0.0);
    EarlyForm form{lookOf(fields, u"POLYLINE"_s), {}};
    form.head.push_back({10, Vec3{0.0, 0.0, elevation}});
    form.head.push_back({70, integerOf(fields, 70, 0) & (closedFlag | generatedFlag)});
    form.head.push_back({210, extrusionOf(fields)});
    for (auto field = fields.begin(), end = ownEnd(fields); field != end; ++field) {
        if (field->code == 10) {
            const Vec3 at = field->point();
            form.children.push_back(vertexAt(fields, {at.x, at.y, elevation}));
            form.children.back().push_back({40, width});
            form.children.back().push_back({41, width});
        } else if (!form.children.empty() && field->code >= 40 && field->code <= 42) {
            setField(form.children.back(), field->code, field->value);
        }
    }
    return form;
}

/// In space, so that it lies wherever the curve did.
EarlyForm pathForm(const FieldList &fields, Path path)
{
    const bool isClosed = path.size() > 2 && (path.front() - path.back()).length() < 1e-9;
    if (isClosed)
        path.pop_back();
    EarlyForm form{lookOf(fields, u"POLYLINE"_s), {}};
    std::erase_if(form.head, [](const Field &field) { return field.code == 39; });
    form.head.push_back({10, Vec3{}});
    form.head.push_back({70, spaceFlag | (isClosed ? closedFlag : 0)});
    for (const Vec3 &point : path) {
        form.children.push_back(vertexAt(fields, point));
        form.children.back().push_back({70, spaceVertexFlag});
    }
    return form;
}

/// The text without formatting; a line feed parts its lines.
QString plainLines(const QString &content)
{
    QString plain;
    for (qsizetype i = 0; i < content.size(); ++i) {
        const QChar c = content[i];
        if (c == u'{' || c == u'}')
            continue;
        const QChar code = c == u'\\' && i + 1 < content.size() ? content[++i] : QChar();
        if (code.isNull()) {
            plain += c;
        } else if (code == u'P') {
            plain += u'\n';
        } else if (code == u'~') {
            plain += u' ';
        } else if (QStringView(u"\\{}").contains(code)) {
            plain += code;
        } else if (!QStringView(u"LlOoKkNX").contains(code)) {
            const qsizetype end = content.indexOf(u';', i);
            if (code == u'S' && end > 0)
                plain += content.sliced(i + 1, end - i - 1).replace(u'^', u'/').replace(u'#', u'/');
            if (end > 0)
                i = end;
        }
    }
    return plain;
}

/// From the attachment point: columns left, centre, right and rows top, middle, bottom, in reading order from 1.
std::vector<EarlyForm> paragraphForms(const TagList &tags, const FieldList &fields)
{
    const QStringList lines = plainLines(paragraphContent(tags)).split(u'\n');
    const qint64 attachment = std::clamp<qint64>(integerOf(fields, 71, 1), 1, 9) - 1;
    const double height = realOf(fields, 40, 1.0);
    const double step = height * 5.0 / 3.0 * realOf(fields, 44, 1.0);
    const double below = step * double(lines.size() - 1);
    const Vec3 extrusion = extrusionOf(fields);
    const Matrix plane = Matrix::fromExtrusion(extrusion);
    const double angle = angleInPlane(paragraphDirection(tags), extrusion);
    const Vec3 start = plane.inverted().point(tags.point(10));
    const Vec3 up{-std::sin(angle), std::cos(angle), 0.0};
    const double first[] = {-height, (below - height) / 2.0, below};
    std::vector<EarlyForm> forms;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (lines[i].trimmed().isEmpty())
            continue;
        const Vec3 at = start + up * (first[attachment / 3] - step * double(i));
        EarlyForm form{lookOf(fields, u"TEXT"_s), {}};
        const Field *style = findField(fields, 7);
        const FieldList rest = {{10, at},
                                {40, height},
                                {1, lines[i]},
                                {50, angle * 180.0 / std::numbers::pi},
                                {7, style ? style->text() : u"Standard"_s},
                                {72, attachment % 3},
                                {11, at},
                                {210, extrusion}};
        form.head.insert(form.head.end(), rest.begin(), rest.end());
        forms.push_back(std::move(form));
    }
    return forms;
}

Path pathOf(const TagList &tags, QByteArrayView type)
{
    if (type == "SPLINE")
        return splinePath(shownSpline(tags));
    if (type == "LEADER")
        return tags.points(10);
    const Vec3 extrusion = tags.point(210, {0.0, 0.0, 1.0});
    return ellipsePath(tags.point(10), tags.point(11), extrusion, tags.real(40, 1.0), tags.real(41),
                       tags.real(42, 2.0 * std::numbers::pi));
}

} // namespace

std::vector<EarlyForm> earlyForms(const Drawing &drawing, RecordId entity, const FieldList &fields, Version version)
{
    const QByteArrayView type = drawing.typeName(entity);
    if (type == "3DLINE") {
        // The line of drawings before R11.
        EarlyForm form{fields, {}};
        form.head.front().value = u"LINE"_s;
        return {form};
    }
    if (type == "LWPOLYLINE" && version < Version::R14)
        return {polylineForm(fields)};
    if (version >= Version::R13)
        return {};
    const TagList tags = drawing.tags(entity);
    if (type == "MTEXT")
        return paragraphForms(tags, fields);
    if (type != "ELLIPSE" && type != "SPLINE" && type != "LEADER")
        return {};
    const Path path = pathOf(tags, type);
    return path.size() < 2 ? std::vector<EarlyForm>() : std::vector<EarlyForm>{pathForm(fields, path)};
}

} // namespace host::drawing
