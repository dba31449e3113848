#pragma once

#include "platform/Export.h"

#include <QString>

namespace host::kernel {

/// Settings of the user that the host keeps on behalf of others from one run to the next: texts by two names, in a file
/// of their own in the folder of the user's data. Programs that run side by side see each other's changes.
class KV_EXPORT SettingsStore
{
public:
    /// The file need not exist; it is made with the first setting.
    explicit SettingsStore(const QString &path) : m_path(path) {}

    /// Empty where there is none.
    QString text(const QString &globalName, const QString &localName) const;
    /// False when it cannot be kept.
    bool setText(const QString &globalName, const QString &localName, const QString &value);

    QString path() const { return m_path; }

private:
    QString m_path;
};

} // namespace host::kernel
