#include "files/qt/Files.h"

#include "files/FileReplacement.h"
#include "files/RegularFile.h"
#include "files/WritableFile.h"

#include <QCoreApplication>
#include <QFile>

namespace files {

namespace {

std::string_view viewOf(QByteArrayView bytes)
{
    return {bytes.data(), static_cast<size_t>(bytes.size())};
}

} // namespace

std::filesystem::path nativePath(const QString &path)
{
    // A zero would cut the name short: such a file does not exist.
    return path.contains(QChar(0)) ? std::filesystem::path()
                                   : std::filesystem::path(QFile::encodeName(path).toStdString());
}

QString fromNativePath(const std::filesystem::path &path)
{
    return QFile::decodeName(QByteArray::fromStdString(path.string()));
}

QString replaceFile(const QString &path, QByteArrayView bytes)
{
    return reasonText(replaceFile(nativePath(path), viewOf(bytes)));
}

QString appendToFile(const QString &path, QByteArrayView bytes)
{
    return reasonText(appendToFile(nativePath(path), viewOf(bytes)));
}

WholeBytes readWhole(const QString &path, qint64 largest)
{
    RegularFile file(nativePath(path), static_cast<std::uintmax_t>(largest));
    WholeBytes whole;
    if (file) {
        whole.bytes.resize(static_cast<qsizetype>(file.size()));
        whole.bytes.resize(static_cast<qsizetype>(file.read(whole.bytes.data(), file.size())));
    }
    whole.reason = reasonText(file.reason());
    return whole;
}

QString openRegular(QFile &file, const QString &path, qint64 largest)
{
    RegularFile opened(nativePath(path), static_cast<std::uintmax_t>(largest));
    if (!opened)
        return reasonText(opened.reason());
    const bool isOpen = file.open(opened.release(), QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    return isOpen ? QString() : file.errorString();
}

QString reasonText(const std::string &reason)
{
    if (reason == notRegularFile || reason == tooLargeFile)
        return QCoreApplication::translate("LispExtension", reason.c_str());
    return QString::fromStdString(reason);
}

} // namespace files
