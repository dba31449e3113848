#include "host/kernel/variables/VariableHelp.h"

#include <QByteArray>

#include <algorithm>

namespace host::kernel {

const char *variableHelp(QStringView upperName)
{
    const QByteArray wanted = upperName.toLatin1();
    for (const auto rows : {dimensionHelp(), helpToK(), helpFromL()}) {
        const auto found = std::ranges::lower_bound(rows, QByteArrayView(wanted), {},
                                                    [](const VariableHelp &row) { return QByteArrayView(row.name); });
        if (found != rows.end() && wanted == found->name)
            return found->text;
    }
    return "kept as it is set, for programs: nothing here depends on it";
}

} // namespace host::kernel
