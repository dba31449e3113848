#pragma once

#include <QByteArrayView>
#include <QList>

namespace ortakit {

/// What changing a setting takes.
enum class SettingClass
{
    ReadOnly,
    Dangerous,
    Standard,
};

/// The settings of a host as a program lists them: one a line, as it is to stand in a script. A line is of the class
/// whose word it holds, "read-only" before "dangerous"; one with neither is standard. The word stays in the line.
///
/// Lines are kept as bytes: in what encoding a program wrote them matters to who replays them.
struct SettingsListing
{
    QList<QByteArray> readOnly;
    QList<QByteArray> dangerous;
    QList<QByteArray> standard;

    const QList<QByteArray> &lines(SettingClass settingClass) const;
};

/// Far beyond what any host has of settings.
inline constexpr qint64 largestSettingsListing = qint64(32) * 1024 * 1024;

SettingsListing parseSettingsListing(QByteArrayView text);

/// The listing in the file at `path`; without lines when it cannot be read, see readTextFile().
SettingsListing readSettingsListing(const QString &path);

/// The lines as the text of a script: one below the other, without white space at both ends and so without an end of
/// the last line.
QByteArray settingsScript(const QList<QByteArray> &lines);

} // namespace ortakit
