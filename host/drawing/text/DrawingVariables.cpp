#include "host/drawing/text/DrawingVariables.h"

#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/text/DateText.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

QString variableText(double number)
{
    return QString::number(number, 'g', 12);
}

QString valueText(const Field &field)
{
    constexpr int angleCode = 50;
    if (const auto *point = std::get_if<Vec3>(&field.value))
        return variableText(point->x) + u',' + variableText(point->y) + u',' + variableText(point->z);
    if (const auto *point = std::get_if<Vec2>(&field.value))
        return variableText(point->x) + u',' + variableText(point->y);
    if (const auto *number = std::get_if<double>(&field.value))
        return variableText(field.code == angleCode ? *number * M_PI / 180.0 : *number);
    if (const auto *number = std::get_if<qint64>(&field.value))
        return QString::number(*number);
    return field.text();
}

QString folderOf(const Drawing &drawing)
{
    const QString folder = drawing.path().isEmpty() ? QDir::currentPath() : QFileInfo(drawing.path()).absolutePath();
    return folder.endsWith(u'/') ? folder : folder + u'/';
}

struct NamedValue
{
    QLatin1StringView name;
    QString (*value)(const Drawing &drawing);
};

constexpr NamedValue namedValues[] = {
    {"CDATE"_L1, [](const Drawing &) { return dateNumberText(calendarDate(QDateTime::currentDateTime())); }},
    {"CECOLOR"_L1, [](const Drawing &drawing) { return colourText(drawing.header().integer(u"$CECOLOR", 256)); }},
    {"DATE"_L1, [](const Drawing &) { return dateNumberText(julianDate(QDateTime::currentDateTime())); }},
    {"DWGNAME"_L1, [](const Drawing &drawing) { return QFileInfo(drawing.path()).fileName(); }},
    {"DWGPREFIX"_L1, folderOf},
    {"DWGTITLED"_L1, [](const Drawing &drawing) { return QString::number(drawing.path().isEmpty() ? 0 : 1); }},
    {"SAVENAME"_L1, [](const Drawing &drawing) { return drawing.path(); }},
};

} // namespace

QString dateNumberText(double date)
{
    return QString::number(date, 'f', 8);
}

QString colourText(qint64 number)
{
    constexpr qint64 byLayer = 256;
    if (number == byLayer)
        return u"BYLAYER"_s;
    return number == 0 ? u"BYBLOCK"_s : QString::number(number);
}

std::optional<QString> drawingVariable(const Drawing &drawing, const QString &name)
{
    for (const NamedValue &row : namedValues) {
        if (name.compare(row.name, Qt::CaseInsensitive) == 0)
            return row.value(drawing);
    }
    const std::optional<Field> field = drawing.header().get(QString(u'$' + name));
    return field ? std::optional(valueText(*field)) : std::nullopt;
}

MacroSurroundings surroundingsOf(const Drawing &drawing)
{
    return {.variable = [&drawing](const QString &name) { return drawingVariable(drawing, name); }};
}

} // namespace host::drawing
