#pragma once

#include "platform/Export.h"

#include <QHash>
#include <QString>

#include <optional>

namespace host::kernel {

class SettingsStore;

/// The variables that the user's settings keep, as texts by name in upper case: the same for all documents of a session
/// and for the sessions to come. They are read once, and written when a run has ended: a program that changes one and
/// puts it back writes nothing.
class KV_EXPORT UserVariables
{
public:
    /// Reads nothing yet. `settings` must outlive it.
    explicit UserVariables(SettingsStore &settings) : m_settings(settings) {}

    /// Nothing for one that nobody ever set.
    std::optional<QString> text(const QString &name);
    void set(const QString &name, const QString &text);
    /// Writes what has changed since the last time, in one piece. False when it cannot be kept; it holds for this
    /// session all the same, and is tried again with the next change.
    bool store();

private:
    void read();

    SettingsStore &m_settings;
    bool m_isRead = false;
    bool m_isChanged = false;
    QHash<QString, QString> m_kept;   ///< what the file holds
    QHash<QString, QString> m_values; ///< what counts
};

} // namespace host::kernel
