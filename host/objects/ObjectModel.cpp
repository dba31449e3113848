#include "host/objects/ObjectModel.h"

#include "host/units/AsciiText.h"

namespace host::kernel {

namespace {

bool isSameName(std::string_view left, std::string_view right)
{
    return units::lowered(left) == units::lowered(right);
}

} // namespace

const std::vector<ObjectRows> &objectKinds()
{
    static const std::vector<ObjectRows> kinds = {applicationRows(), documentRows()};
    return kinds;
}

const ObjectProperty *findProperty(std::string_view kind, std::string_view name)
{
    for (const ObjectRows &rows : objectKinds())
        for (const ObjectProperty &row : rows.properties)
            if (kind == row.kind && isSameName(name, row.name))
                return &row;
    return nullptr;
}

const ObjectMethod *findMethod(std::string_view kind, std::string_view name)
{
    for (const ObjectRows &rows : objectKinds())
        for (const ObjectMethod &row : rows.methods)
            if (kind == row.kind && isSameName(name, row.name))
                return &row;
    return nullptr;
}

} // namespace host::kernel
