#include "formats/FileWriting.h"

#include "files/qt/Files.h"

namespace ortakit {

namespace {

bool tell(const QString &reason, QString *error)
{
    if (error)
        *error = reason;
    return reason.isEmpty();
}

} // namespace

bool replaceFile(const QString &path, const QByteArray &content, QString *error)
{
    return tell(files::replaceFile(path, content), error);
}

bool appendToFile(const QString &path, const QByteArray &content, QString *error)
{
    return tell(files::appendToFile(path, content), error);
}

QByteArray withPlatformLineEnds(QByteArray text)
{
#ifdef Q_OS_WIN
    text.replace("\n", "\r\n");
#endif
    return text;
}

} // namespace ortakit
