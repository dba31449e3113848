#include "tests/kernel/CaseHost.h"

using namespace host::kernel;

namespace {

QString shownNumber(double value)
{
    return QString::number(std::abs(value) < 1e-9 ? 0.0 : value, 'g', 6);
}

QString shownField(const host::drawing::Field &field)
{
    using namespace host::drawing;
    if (const auto *flat = std::get_if<Vec2>(&field.value))
        return shownNumber(flat->x) + u',' + shownNumber(flat->y);
    if (const auto *point = std::get_if<Vec3>(&field.value))
        return shownNumber(point->x) + u',' + shownNumber(point->y) + u',' + shownNumber(point->z);
    if (const auto *real = std::get_if<double>(&field.value))
        return shownNumber(*real);
    if (const auto *integer = std::get_if<qint64>(&field.value))
        return QString::number(*integer);
    return field.text();
}

/// Where a justified text begins, and how large a stretched one is, is the font's affair.
bool isOfFont(const host::drawing::Drawing &drawing, host::drawing::RecordId id, int code)
{
    const qint64 horizontal = drawing.isType(id, "TEXT") ? drawing.tags(id).integer(72) : 0;
    const host::drawing::FieldList fields = drawing.fields(id);
    const bool isJustified = drawing.isType(id, "TEXT") && host::drawing::findField(fields, 11);
    return (code == 10 && isJustified) || (code == 40 && horizontal == 3) || (code == 41 && horizontal == 5);
}

} // namespace

std::string CaseHost::dump()
{
    QStringList all;
    for (const host::drawing::RecordId id : drawing().entities().all()) {
        QStringList words = {QString::fromLatin1(drawing().typeName(id))};
        for (const host::drawing::Field &field : drawing().fields(id)) {
            static const QSet<int> left = {0, 5, 8, 38, 67, 90, 100, 330};
            const QString value = isOfFont(drawing(), id, field.code) ? QStringLiteral("0") : shownField(field);
            if (!left.contains(field.code) && value != QStringLiteral("0") && value != QStringLiteral("Standard"))
                words.append(QString::number(field.code) + u'=' + value);
        }
        all.append(words.join(u' '));
    }
    return all.join(QStringLiteral("; ")).toStdString();
}
