#include "lispfuncs/ArgumentValues.h"

#include "lispfuncs/LispCall.h"
#include "lispfuncs/PromptText.h"

namespace ortakit {

namespace {

bool hasType(const OdResBuf *value, int type)
{
    return value && value->restype() == type;
}

bool isListEnd(const OdResBuf *link)
{
    return hasType(link, OdResBuf::kRtListEnd) || hasType(link, OdResBuf::kRtDottedPair);
}

bool isNumber(const OdResBuf *value)
{
    return isInteger(value) || hasType(value, OdResBuf::kRtReal);
}

std::optional<OdGePoint3d> pointInList(const OdResBuf *list)
{
    double numbers[3] = {};
    int count = 0;
    const OdResBuf *link = list->next();
    for (; isNumber(link); link = link->next()) {
        if (count == 3)
            return std::nullopt;
        numbers[count++] = link->getDouble();
    }
    if (count < 2 || !hasType(link, OdResBuf::kRtListEnd))
        return std::nullopt;
    return OdGePoint3d{numbers[0], numbers[1], numbers[2]};
}

} // namespace

const OdResBuf *behindValue(const OdResBuf *value)
{
    int depth = 0;
    for (const OdResBuf *link = value; link; link = link->next()) {
        if (isList(link))
            ++depth;
        else if (isListEnd(link))
            --depth;
        if (depth <= 0)
            return link->next();
    }
    return nullptr;
}

bool isNil(const OdResBuf *value)
{
    return !value || value->restype() == OdResBuf::kRtNil;
}

bool isTrue(const OdResBuf *value)
{
    return hasType(value, OdResBuf::kRtTrue);
}

bool isString(const OdResBuf *value)
{
    return hasType(value, OdResBuf::kRtString);
}

bool isInteger(const OdResBuf *value)
{
    return hasType(value, OdResBuf::kRtShort) || hasType(value, OdResBuf::kRtLong);
}

bool isList(const OdResBuf *value)
{
    return hasType(value, OdResBuf::kRtListBegin);
}

std::optional<OdGePoint3d> pointIn(const OdResBuf *value)
{
    if (hasType(value, OdResBuf::kRtPoint) || hasType(value, OdResBuf::kRtPoint3d))
        return value->getPoint3d();
    return isList(value) ? pointInList(value) : std::nullopt;
}

QString promptIn(const OdResBuf *value)
{
    if (isString(value))
        return parsePrompt(value->getString()).given.trimmed();
    if (!isNil(value))
        failArgument("the prompt is a string or nil");
    return {};
}

std::optional<OdDbObjectId> entityIn(const OdResBuf *value)
{
    const OdResBuf *name = isList(value) ? value->next() : value;
    if (!hasType(name, OdResBuf::kRtEntityName))
        return std::nullopt;
    return OdDbObjectId(quint64(name->getInteger()));
}

} // namespace ortakit
