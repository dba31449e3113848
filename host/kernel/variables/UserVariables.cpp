#include "host/kernel/variables/UserVariables.h"

#include "host/kernel/variables/SettingsStore.h"

namespace host::kernel {

namespace {

const QString variablesGroup = QStringLiteral("Variables");

} // namespace

void UserVariables::read()
{
    if (std::exchange(m_isRead, true))
        return;
    m_kept = m_settings.texts(variablesGroup);
    m_values = m_kept;
}

std::optional<QString> UserVariables::text(const QString &name)
{
    read();
    const auto found = m_values.constFind(name);
    return found == m_values.constEnd() ? std::nullopt : std::optional(*found);
}

void UserVariables::set(const QString &name, const QString &text)
{
    read();
    m_values.insert(name, text);
    m_isChanged = true;
}

bool UserVariables::store()
{
    if (!std::exchange(m_isChanged, false))
        return true;
    QHash<QString, QString> changed;
    for (auto value = m_values.cbegin(); value != m_values.cend(); ++value)
        if (m_kept.value(value.key()) != *value || !m_kept.contains(value.key()))
            changed.insert(value.key(), *value);
    if (changed.isEmpty())
        return true;
    if (!m_settings.setTexts(variablesGroup, changed))
        return false;
    m_kept.insert(changed);
    return true;
}

} // namespace host::kernel
