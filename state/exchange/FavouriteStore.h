#pragma once

#include <QStringList>

#include <functional>
#include <memory>
#include <utility>

class QSettings;

namespace ortakit {

/// Named copies of a tool's widget values in the user's settings: one group a tool, in it one group a favourite, in
/// that one entry a widget. The settings are those of the organisation that is named like the host's application, for
/// the application "Ortakit".
///
/// Settings that cannot be read hold no favourites. What cannot be written is not kept, which the command line tells;
/// the other favourites stay.
class FavouriteStore
{
public:
    /// Key and value of one widget, the value in the form of a state file.
    using Entry = std::pair<QString, QString>;

    /// The favourites of the tool with this group name.
    explicit FavouriteStore(const QString &group);
    ~FavouriteStore();

    /// In the order of the settings.
    QStringList names() const;
    /// In the order of their keys; none for a favourite that does not exist.
    QList<Entry> load(const QString &name) const;
    /// Replaces the favourite of exactly this name, or adds it.
    void save(const QString &name, const QList<Entry> &entries);
    void remove(const QString &name);

private:
    void change(const QString &name, const std::function<void(QSettings &)> &body);

    QString m_group;
    std::unique_ptr<QSettings> m_settings;
};

} // namespace ortakit
