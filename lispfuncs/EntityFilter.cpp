#include "lispfuncs/EntityFilter.h"

#include "lispfuncs/ArgumentValues.h"
#include "lispfuncs/LispCall.h"

namespace ortakit {

namespace {

/// ((0 . "LINE"))
OdResBufPtr typeList(const QString &types)
{
    OdResBufPtr list = OdResBuf::newRb(OdResBuf::kRtListBegin);
    list->setNext(OdResBuf::newRb(OdResBuf::kRtListBegin))
        ->setNext(OdResBuf::newInteger(OdResBuf::kRtShort, 0))
        ->setNext(OdResBuf::newString(OdResBuf::kRtString, types))
        ->setNext(OdResBuf::newRb(OdResBuf::kRtDottedPair))
        ->setNext(OdResBuf::newRb(OdResBuf::kRtListEnd));
    return list;
}

} // namespace

EntityFilter::EntityFilter(const OdResBuf *value)
{
    if (isString(value) && !value->getString().trimmed().isEmpty()) {
        m_types = value->getString().toUpper().remove(u' ');
        m_ownList = typeList(m_types);
    } else if (isList(value)) {
        m_list = value;
    } else if (!isNil(value) && !isString(value)) {
        failArgument("a filter is a list or a string of type names");
    }
}

} // namespace ortakit
