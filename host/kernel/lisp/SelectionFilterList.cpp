#include "host/kernel/lisp/SelectionFilterList.h"

#include "host/drawing/tags/GroupCodes.h"
#include "host/kernel/lisp/EntityList.h"

namespace host::kernel {

namespace {

using drawing::xdataCode;
using lisp::Value;

constexpr int operatorCode = -4;

void appendCondition(const Document &document, const Value &item, drawing::FieldList &conditions)
{
    const int code = item.car().isInteger() ? item.car().asInteger() : 0;
    if (code == operatorCode && item.cdr().isString()) {
        conditions.push_back({code, QString::fromStdString(item.cdr().asString())});
    } else if (code == xdataCode) {
        for (const Value &application : lisp::ListItems(item.cdr()))
            if (application.car().isString())
                conditions.push_back({code, QString::fromStdString(application.car().asString())});
    } else {
        conditions.push_back(fromListItem(document, item, AngleForm::Radians));
    }
}

} // namespace

drawing::SelectionFilter::Outcome filterFromList(const Document &document, const Value &list)
{
    try {
        drawing::FieldList conditions;
        for (const Value &item : lisp::ListItems(list))
            appendCondition(document, item, conditions);
        return drawing::SelectionFilter::create(conditions);
    } catch (const EntityListError &) {
        return {{}, QStringLiteral("bad SSGET list")};
    }
}

} // namespace host::kernel
