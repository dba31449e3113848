#include "formats/FileWriting.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSaveFile>

namespace ortakit {

namespace {

bool fail(QString *error, const QString &text)
{
    if (error)
        *error = text;
    return false;
}

/// Writing beside and renaming would put a file in the place of a device or pipe.
bool takesFile(const QString &path)
{
    const QFileInfo target(path);
    return !path.isEmpty() && (!target.exists() || target.isFile());
}

QString notRegular()
{
    return QCoreApplication::translate("LispExtension", "Not a regular file");
}

} // namespace

bool replaceFile(const QString &path, const QByteArray &content, QString *error)
{
    if (!takesFile(path))
        return fail(error, notRegular());
    QSaveFile file(path);
    file.setDirectWriteFallback(true);
    if (!file.open(QIODevice::WriteOnly))
        return fail(error, file.errorString());
    file.write(content);
    return file.commit() || fail(error, file.errorString());
}

bool appendToFile(const QString &path, const QByteArray &content, QString *error)
{
    if (!takesFile(path))
        return fail(error, notRegular());
    QFile file(path);
    if (!file.open(QIODevice::Append))
        return fail(error, file.errorString());
    const qint64 before = file.size();
    if (file.write(content) == content.size() && file.flush())
        return true;
    const QString reason = file.errorString();
    file.resize(before);
    return fail(error, reason);
}

QByteArray withPlatformLineEnds(QByteArray text)
{
#ifdef Q_OS_WIN
    text.replace("\n", "\r\n");
#endif
    return text;
}

} // namespace ortakit
