#pragma once

#include "platform/Export.h"

#include <QHash>
#include <QString>

#include <functional>

class QSettings;

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

    // All texts of one global name, by their local names; reading and changing them costs the file once.
    QHash<QString, QString> texts(const QString &globalName) const;
    /// Those given are changed, others stay. False when they cannot be kept.
    bool setTexts(const QString &globalName, const QHash<QString, QString> &values);
    /// Takes one away, or with an empty local name all of the global name. False when that cannot be kept.
    bool remove(const QString &globalName, const QString &localName);

    QString path() const { return m_path; }

private:
    bool change(const std::function<void(QSettings &)> &work);

    QString m_path;
};

} // namespace host::kernel
