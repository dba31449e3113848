#include "host/app/window/files/FilePictures.h"

#include "files/qt/Files.h"
#include "host/view/paint/Export.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

constexpr qint64 largestPictured = 32 * 1024 * 1024;
constexpr qint64 largestKept = 1024 * 1024;
constexpr qsizetype mostKept = 300;

/// The same for the same file in the same state.
QString keptName(const QFileInfo &file, const QSize &size)
{
    const QString state = u"%1|%2|%3|%4x%5"_s.arg(file.absoluteFilePath())
                              .arg(file.size())
                              .arg(file.lastModified().toMSecsSinceEpoch())
                              .arg(size.width())
                              .arg(size.height());
    return QString::fromLatin1(QCryptographicHash::hash(state.toUtf8(), QCryptographicHash::Sha1).toHex()) + u".png"_s;
}

void removeOldest(const QString &folder)
{
    const QFileInfoList all = QDir(folder).entryInfoList({u"*.png"_s}, QDir::Files, QDir::Time);
    for (qsizetype i = mostKept; i < all.size(); ++i)
        QFile::remove(all[i].absoluteFilePath());
}

} // namespace

FilePictures::FilePictures(const QSize &size, const QString &folder, QObject *parent)
    : QObject(parent), m_size(size), m_folder(folder)
{
    m_pool.setMaxThreadCount(1);
    m_pool.setThreadPriority(QThread::LowPriority);
}

FilePictures::~FilePictures()
{
    m_pool.clear();
    m_pool.waitForDone();
}

void FilePictures::want(const QString &path)
{
    if (m_wanted.contains(path))
        return;
    m_wanted.insert(path);
    m_pool.start([this, path] {
        const QImage picture = make(path);
        QMetaObject::invokeMethod(this, [this, path, picture] { emit made(path, picture); });
    });
}

QImage FilePictures::make(const QString &path) const
{
    const QFileInfo file(path);
    if (!file.isFile() || file.size() > largestPictured)
        return {};
    const QString place = m_folder.isEmpty() ? QString() : QDir(m_folder).filePath(keptName(file, m_size));
    QImage picture = kept(place);
    if (picture.isNull()) {
        picture = view::picture(path, m_size, view::Ground::White);
        keep(place, picture);
    }
    return picture;
}

QImage FilePictures::kept(const QString &place) const
{
    return place.isEmpty() ? QImage() : QImage::fromData(files::readWhole(place, largestKept).bytes, "PNG");
}

void FilePictures::keep(const QString &place, const QImage &picture) const
{
    QBuffer bytes;
    if (place.isEmpty() || picture.isNull() || !QDir().mkpath(m_folder) || !bytes.open(QIODevice::WriteOnly) ||
        !picture.save(&bytes, "PNG"))
        return;
    // A picture that cannot be kept is made again.
    if (files::replaceFile(place, bytes.data()).isEmpty())
        removeOldest(m_folder);
}

} // namespace host::app
