#include "host/kernel/variables/VariableText.h"

namespace host::kernel {

QString variableText(const VariableValue &value, int digits)
{
    const auto number = [digits](double real) { return QString::number(real, 'g', digits); };
    if (const auto *integer = std::get_if<qint32>(&value))
        return QString::number(*integer);
    if (const auto *real = std::get_if<double>(&value))
        return number(*real);
    if (const auto *flat = std::get_if<drawing::Vec2>(&value))
        return number(flat->x) + u',' + number(flat->y);
    if (const auto *point = std::get_if<drawing::Vec3>(&value))
        return number(point->x) + u',' + number(point->y) + u',' + number(point->z);
    return std::get<QString>(value);
}

std::optional<VariableValue> variableFromText(const VariableValue &like, const QString &text)
{
    bool isNumber = true;
    const auto number = [&](const QString &part) {
        const double value = isNumber ? part.trimmed().toDouble(&isNumber) : 0.0;
        isNumber = isNumber && std::isfinite(value);
        return value;
    };
    const auto coordinate = [&](int index) {
        return text.count(u',') < index ? 0.0 : number(text.section(u',', index, index));
    };
    std::optional<VariableValue> value;
    if (std::holds_alternative<QString>(like))
        value = text == QStringLiteral(".") ? QString() : text;
    else if (std::holds_alternative<qint32>(like))
        value = text.trimmed().toInt(&isNumber);
    else if (std::holds_alternative<double>(like))
        value = number(text);
    else if (std::holds_alternative<drawing::Vec2>(like))
        value = drawing::Vec2{coordinate(0), coordinate(1)};
    else
        value = drawing::Vec3{coordinate(0), coordinate(1), coordinate(2)};
    return isNumber ? value : std::nullopt;
}

} // namespace host::kernel
