#include "files/qt/SettingsFile.h"

#include "files/qt/Files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>
#include <QTemporaryDir>

#include <algorithm>

namespace files {

namespace {

constexpr qint64 largestSettings = 64 * 1024 * 1024;

QString notWritten()
{
    return QCoreApplication::translate("LispExtension", "No space left for a copy");
}

/// A file has but texts and lists of them: one text for a number, and for a list of one.
bool isSameValue(const QVariant &set, const QVariant &read)
{
    const bool isOne = set.toStringList().size() < 2 && read.toStringList().size() < 2;
    return set == read || (isOne && set.toString() == read.toString());
}

/// Whether both hold the same. Under another name, since settings that were read are remembered by the file's.
bool isSame(const QSettings &settings, const QString &path)
{
    const QSettings other(path, QSettings::IniFormat);
    const QStringList keys = settings.allKeys();
    return other.status() == QSettings::NoError && other.allKeys() == keys &&
           std::all_of(keys.begin(), keys.end(),
                       [&](const QString &key) { return isSameValue(settings.value(key), other.value(key)); });
}

/// Empty when `bytes` are what the settings hold after the change.
QString change(const QTemporaryDir &folder, const std::function<void(QSettings &)> &body, QByteArray &bytes)
{
    const QString copy = folder.filePath(QStringLiteral("changed.ini"));
    const QString control = folder.filePath(QStringLiteral("control.ini"));
    if (const QString reason = replaceFile(copy, bytes); !reason.isEmpty())
        return reason;
    QSettings settings(copy, QSettings::IniFormat);
    settings.setFallbacksEnabled(false);
    // Lines that are none of settings would be left out.
    if (settings.status() == QSettings::FormatError)
        return QCoreApplication::translate("LispExtension", "it is damaged");
    body(settings);
    settings.sync();
    const WholeBytes written = readWhole(copy, largestSettings);
    if (settings.status() != QSettings::NoError || !written)
        return written ? notWritten() : written.reason;
    bytes = written.bytes;
    if (const QString reason = replaceFile(control, bytes); !reason.isEmpty())
        return reason;
    return isSame(settings, control) ? QString() : notWritten();
}

} // namespace

bool isSettingsFile(const QString &path)
{
    const QFileInfo file(path);
    return !file.exists() || file.isFile();
}

QString changeSettings(const QString &path, const std::function<void(QSettings &)> &body)
{
    const QTemporaryDir folder;
    if (!folder.isValid())
        return folder.errorString();
    QDir().mkpath(QFileInfo(path).absolutePath());
    constexpr int patience = 2000;
    QLockFile lock(path + QStringLiteral(".lock"));
    // Where no lock can be made no file could be, either, or nobody else has a right to.
    if (!lock.tryLock(patience) && lock.error() == QLockFile::LockFailedError)
        return QCoreApplication::translate("LispExtension", "another program is writing it");
    WholeBytes now = readWhole(path, largestSettings);
    if (!now && QFileInfo::exists(path))
        return now.reason;
    if (const QString reason = change(folder, body, now.bytes); !reason.isEmpty())
        return reason;
    return replaceFile(path, now.bytes);
}

} // namespace files
