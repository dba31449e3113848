#include "host/kernel/files/RecoveryCopy.h"

#include "files/FileReplacement.h"
#include "files/Leftovers.h"
#include "files/TemporaryFolder.h"
#include "files/qt/Files.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

const QString noteMark = u"ortakit recovery copy 1"_s;
constexpr qint64 longestNote = 64 * 1024;
constexpr mode_t ownersOnly = 0600;

QString noteOf(const QString &file)
{
    return file + u".json"_s;
}

QByteArray noteText(const RecoveryNote &note)
{
    QJsonObject json{{u"what"_s, noteMark},
                     {u"title"_s, note.title},
                     {u"path"_s, note.path},
                     {u"time"_s, note.time.toUTC().toString(Qt::ISODateWithMs)},
                     {u"binary"_s, note.isBinary}};
    if (note.base)
        json[u"base"_s] = note.base->toJson();
    return QJsonDocument(json).toJson();
}

/// Nothing for what is no note.
std::optional<RecoveryNote> readNote(const QString &path)
{
    const QJsonObject json = QJsonDocument::fromJson(files::readWhole(path, longestNote).bytes).object();
    if (json[u"what"_s].toString() != noteMark)
        return {};
    RecoveryNote note{.title = json[u"title"_s].toString(),
                      .path = json[u"path"_s].toString(),
                      .time = QDateTime::fromString(json[u"time"_s].toString(), Qt::ISODateWithMs),
                      .isBinary = json[u"binary"_s].toBool(),
                      .base = {}};
    if (json[u"base"_s].isObject())
        note.base = FileStamp::fromJson(json[u"base"_s].toObject());
    return note;
}

/// What stands in front of the letters that nobody can guess: the title without what file names do not take.
QString baseName(const QString &title)
{
    constexpr qsizetype longestBase = 40; // characters of a file name take up to four of its 255 bytes
    QString base = QFileInfo(title).completeBaseName().left(longestBase);
    for (QChar &letter : base)
        if (!letter.isLetterOrNumber() && letter != u'-')
            letter = u'_';
    return base + u'_';
}

std::unique_ptr<DrawingLock> lockOf(const QString &file)
{
    const QString whole = canonicalFile(file);
    return whole.isEmpty() ? nullptr : DrawingLock::take(whole).lock;
}

} // namespace

std::unique_ptr<RecoveryCopy> RecoveryCopy::begin(const QString &folder, const QString &title)
{
    if (!QFileInfo::exists(folder)) {
        QDir().mkpath(folder);
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    const std::filesystem::path path =
        files::unusedPath(files::nativePath(folder), baseName(title).toStdString(), ".dxf");
    const QString file = files::fromNativePath(path);
    std::unique_ptr<DrawingLock> lock = path.empty() ? nullptr : lockOf(file);
    return lock ? std::unique_ptr<RecoveryCopy>(new RecoveryCopy(file, std::move(lock))) : nullptr;
}

std::unique_ptr<RecoveryCopy> RecoveryCopy::adopt(const QString &file)
{
    std::unique_ptr<DrawingLock> lock = lockOf(file);
    // Whoever had it before may have taken it away at the end.
    return lock && QFileInfo::exists(file) ? std::unique_ptr<RecoveryCopy>(new RecoveryCopy(file, std::move(lock)))
                                           : nullptr;
}

QString RecoveryCopy::write(const std::vector<QByteArrayView> &pieces, const RecoveryNote &note,
                            const std::atomic<bool> &isStopped) const
{
    // The content first: a copy without a note is told from others by nobody, a note with a newer copy is right enough.
    files::FileReplacement content(files::nativePath(m_file));
    content.setMode(ownersOnly);
    for (const QByteArrayView &piece : pieces)
        if (isStopped || !content.write({piece.data(), static_cast<size_t>(piece.size())}))
            break;
    if (isStopped)
        return {};
    if (!content.commit())
        return files::reasonText(content.reason());
    return files::replaceFile(noteOf(m_file), noteText(note));
}

void RecoveryCopy::removeFile(const QString &file)
{
    // In this order: what is left when the program ends in between is no copy.
    QFile::remove(file);
    QFile::remove(noteOf(file));
}

QList<RecoveryFile> RecoveryCopy::leftIn(const QString &folder)
{
    files::removeLeftoversIn(files::nativePath(folder));
    QList<RecoveryFile> found;
    for (const QFileInfo &info : QDir(folder).entryInfoList({u"*.dxf.json"_s}, QDir::Files)) {
        const QString file = info.absoluteFilePath().chopped(5);
        std::optional<RecoveryNote> note = readNote(info.absoluteFilePath());
        if (!note || DrawingLock::holderOf(canonicalFile(file)))
            continue;
        if (!QFileInfo(file).isFile()) {
            QFile::remove(info.absoluteFilePath());
            continue;
        }
        if (!note->time.isValid())
            note->time = QFileInfo(file).lastModified();
        found.append({file, std::move(*note), QFileInfo(file).size()});
    }
    std::ranges::stable_sort(found, std::greater(), [](const RecoveryFile &one) { return one.note.time; });
    return found;
}

} // namespace host::kernel
