#include "host/drawing/tags/ExtendedData.h"

#include <algorithm>

namespace host::drawing {

void setExtendedData(FieldList &fields, const QString &application, const FieldList &data)
{
    const auto begin = std::ranges::find_if(fields, [&](const Field &field) {
        return field.code == 1001 && field.text().compare(application, Qt::CaseInsensitive) == 0;
    });
    if (begin != fields.end()) {
        const auto end = std::find_if(begin + 1, fields.end(),
                                      [](const Field &field) { return field.code == 1001 || field.code < 1000; });
        fields.erase(begin, end);
    }
    if (data.empty())
        return;
    fields.push_back({1001, application});
    fields.insert(fields.end(), data.begin(), data.end());
}

} // namespace host::drawing
