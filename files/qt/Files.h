#pragma once

#include <QByteArray>
#include <QString>

#include <filesystem>
#include <string>

class QFile;

namespace files {

// What the room does, with Qt's types. Reasons are for people, translated where they are this room's own; empty when
// all is well.

/// A name as the system's calls take it, and back.
std::filesystem::path nativePath(const QString &path);
QString fromNativePath(const std::filesystem::path &path);

/// Replaces a file by `bytes`, or makes it: see FileReplacement. Copies nothing.
QString replaceFile(const QString &path, QByteArrayView bytes);

/// Adds bytes to a file, or makes it: see WritableFile.h.
QString appendToFile(const QString &path, QByteArrayView bytes);

/// What came of reading a whole file.
struct WholeBytes
{
    QByteArray bytes;
    QString reason; ///< why there are none

    explicit operator bool() const { return reason.isEmpty(); }
};

/// All bytes of a regular file of at most `largest` bytes: see RegularFile.
WholeBytes readWhole(const QString &path, qint64 largest);

/// Opens `file`, which has no name yet, over a regular file, for Qt's readers of pictures and documents.
QString openRegular(QFile &file, const QString &path, qint64 largest);

/// A reason that the room gave without Qt, as above.
QString reasonText(const std::string &reason);

} // namespace files
