#include "host/kernel/variables/HostVariables.h"

#include "host/drawing/records/HeaderVariables.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/variables/VariableRows.h"

namespace host::kernel {

const std::vector<HostVariable> &hostVariables()
{
    static const std::vector<HostVariable> all = [] {
        VariableRows joined = commandVariables();
        for (const VariableRows &table : {dimensionRows(), drawingRows(), hatchVariables(), interfaceVariables(),
                                          stateVariables(), userVariables(), viewVariables()})
            joined.insert(joined.end(), table.begin(), table.end());
        return joined;
    }();
    return all;
}

const HostVariable *findHostVariable(QStringView upperName)
{
    static const QHash<QString, const HostVariable *> byName = [] {
        QHash<QString, const HostVariable *> map;
        for (const HostVariable &row : hostVariables())
            map.insert(QString::fromLatin1(row.name), &row);
        return map;
    }();
    return byName.value(upperName.toString());
}

VariableValue usualValue(const Document &document, const HostVariable &variable)
{
    const bool isMetric = variable.metric && document.drawing().header().integer(u"$MEASUREMENT") != 0;
    return isMetric ? *variable.metric : variable.initial;
}

std::optional<VariableValue> convertedTo(const VariableValue &like, const VariableValue &value)
{
    if (like.index() == value.index())
        return value;
    if (std::holds_alternative<double>(like) && std::holds_alternative<qint32>(value))
        return double(std::get<qint32>(value));
    if (std::holds_alternative<drawing::Vec3>(like) && std::holds_alternative<drawing::Vec2>(value)) {
        const drawing::Vec2 flat = std::get<drawing::Vec2>(value);
        return drawing::Vec3{flat.x, flat.y, 0.0};
    }
    if (std::holds_alternative<drawing::Vec2>(like) && std::holds_alternative<drawing::Vec3>(value))
        return std::get<drawing::Vec3>(value).xy();
    return {};
}

bool isInRange(const HostVariable &variable, const VariableValue &value)
{
    if (variable.low >= variable.high)
        return true;
    double number = 0.0;
    if (const auto *integer = std::get_if<qint32>(&value))
        number = *integer;
    else if (const auto *real = std::get_if<double>(&value))
        number = *real;
    else
        return true;
    return number >= variable.low && number <= variable.high;
}

} // namespace host::kernel
