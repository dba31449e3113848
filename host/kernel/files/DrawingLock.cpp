#include "host/kernel/files/DrawingLock.h"

#include "files/OpenDescriptor.h"
#include "host/kernel/files/LocksAtExit.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRandomGenerator>
#include <QSysInfo>
#include <QThread>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using files::OpenDescriptor;

const QByteArray lockMark = "ortakit lock 1\n";
/// More than any lock file that is written here.
constexpr qsizetype longestLock = 2048;
constexpr int mostAttempts = 20;
constexpr unsigned long pauseBetweenAttempts = 5; // milliseconds

/// What a small file of the system holds, without its line feed; empty where there is none.
QByteArray systemText(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(4096).trimmed() : QByteArray();
}

QByteArray bootOfMachine()
{
    return systemText(u"/proc/sys/kernel/random/boot_id"_s);
}

/// Processes have numbers of their own in each of these.
QByteArray processSpace()
{
    return QFile::symLinkTarget(u"/proc/self/ns/pid"_s).section(u'/', -1).toUtf8();
}

/// When the process started, in ticks since the start of the machine; no number when it has ended, empty when that
/// cannot be seen.
QByteArray startOf(qint64 process)
{
    const QByteArray status = systemText(u"/proc/%1/stat"_s.arg(process));
    // The second field is the program's name in parentheses, which may hold anything.
    const QList<QByteArray> fields = status.mid(status.lastIndexOf(')') + 2).split(' ');
    constexpr int startField = 19;
    // One that has ended stays in the list until whoever started it has looked; it has nothing open any more.
    return fields.value(0) == "Z" ? QByteArray("ended") : fields.value(startField);
}

QByteArray userName()
{
    const passwd *user = getpwuid(geteuid());
    return user ? QByteArray(user->pw_name) : QByteArray::number(geteuid());
}

/// Names go into lines.
QByteArray onOneLine(QByteArray text)
{
    return text.left(200).toPercentEncoding(" ");
}

QByteArray newLock()
{
    const std::pair<const char *, QByteArray> lines[] = {
        {"user", userName()},
        {"host", QSysInfo::machineHostName().toUtf8()},
        {"machine", QSysInfo::machineUniqueId()},
        {"boot", bootOfMachine()},
        {"space", processSpace()},
        {"process", QByteArray::number(getpid())},
        {"started", startOf(getpid())},
        {"since", QDateTime::currentDateTimeUtc().toString(Qt::ISODate).toUtf8()},
        // Last: a lock file without it is still being written.
        {"token", QByteArray::number(QRandomGenerator::system()->generate64(), 16)},
    };
    QByteArray text = lockMark;
    for (const auto &[name, value] : lines)
        text += name + QByteArray(" ") + onOneLine(value) + '\n';
    return text;
}

/// Neither a link nor a pipe is followed or waited for.
int openLock(const QByteArray &path)
{
    const int descriptor = open(path.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    struct stat status;
    if (descriptor >= 0 && (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode))) {
        close(descriptor);
        errno = EINVAL;
        return -1;
    }
    return descriptor;
}

QByteArray contentOf(const OpenDescriptor &file)
{
    QByteArray content(longestLock + 1, Qt::Uninitialized);
    const ssize_t size = pread(file.get(), content.data(), static_cast<size_t>(content.size()), 0);
    return size < 0 || size > longestLock ? QByteArray() : content.first(size);
}

/// The lines of a lock file.
class LockText
{
public:
    explicit LockText(const QByteArray &content) : m_isWhole(content.startsWith(lockMark) && content.endsWith('\n'))
    {
        for (const QByteArray &line : content.split('\n'))
            if (const qsizetype blank = line.indexOf(' '); blank > 0)
                m_lines.insert(line.first(blank), QByteArray::fromPercentEncoding(line.mid(blank + 1)));
        m_isWhole = m_isWhole && m_lines.contains("token");
    }

    bool isWhole() const { return m_isWhole; }
    LockHolder holder() const
    {
        LockHolder holder;
        holder.user = shown("user");
        holder.host = shown("host");
        holder.process = process();
        holder.since = QDateTime::fromString(shown("since"), Qt::ISODate);
        return holder;
    }
    /// Whether the process that wrote it is certainly gone.
    bool isLeftBehind() const
    {
        if (!m_isWhole || !isOfThisMachine())
            return false;
        if (m_lines["boot"] != bootOfMachine())
            return true;
        if (m_lines["space"] != processSpace() || process() <= 0)
            return false;
        if (kill(static_cast<pid_t>(process()), 0) != 0 && errno == ESRCH)
            return true;
        const QByteArray start = startOf(process());
        return !start.isEmpty() && start != m_lines["started"];
    }

private:
    bool isOfThisMachine() const
    {
        // A name alone is not enough: many machines have one that came with their system.
        const QByteArray machine = QSysInfo::machineUniqueId();
        const bool isSame = m_lines["boot"] == bootOfMachine() || (!machine.isEmpty() && m_lines["machine"] == machine);
        return isSame && m_lines["host"] == QSysInfo::machineHostName().toUtf8();
    }
    qint64 process() const { return m_lines["process"].toInt(); }
    /// Somebody else may have written it.
    QString shown(const char *name) const
    {
        QString text = QString::fromUtf8(m_lines[name]).left(100);
        return text.removeIf([](QChar c) { return !c.isPrint(); });
    }

    QHash<QByteArray, QByteArray> m_lines;
    bool m_isWhole;
};

/// Removes the lock file if it still has this content. Who removes holds the file locked meanwhile and sees that it is
/// the one of this name: no two take away the same one, and nobody the one that came after it.
bool removeLock(const QByteArray &path, const QByteArray &content)
{
    const OpenDescriptor file(openLock(path));
    struct stat held;
    struct stat named;
    if (!file || flock(file.get(), LOCK_EX | LOCK_NB) != 0 || fstat(file.get(), &held) != 0 ||
        lstat(path.constData(), &named) != 0)
        return false;
    return held.st_dev == named.st_dev && held.st_ino == named.st_ino && contentOf(file) == content &&
           unlink(path.constData()) == 0;
}

enum class Made
{
    Yes,
    IsThere,
    Refused ///< by the folder or the disk
};

Made makeLock(const QByteArray &path, const QByteArray &content)
{
    const OpenDescriptor file(open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0644));
    if (!file)
        return errno == EEXIST ? Made::IsThere : Made::Refused;
    if (files::writeAll(file.get(), content.toStdString()) == 0)
        return Made::Yes;
    unlink(path.constData());
    return Made::Refused;
}

/// What is seen of a lock file.
struct Sight
{
    bool isThere = false;
    QByteArray content;
};

/// A lock file that another process is writing just now is waited for.
Sight lookAt(const QByteArray &path)
{
    Sight sight;
    for (int i = 0; i < mostAttempts; ++i) {
        const OpenDescriptor file(openLock(path));
        sight = {bool(file) || errno != ENOENT, file ? contentOf(file) : QByteArray()};
        if (!file || LockText(sight.content).isWhole())
            break;
        QThread::msleep(pauseBetweenAttempts);
    }
    return sight;
}

} // namespace

QString LockHolder::description() const
{
    const QString who = user.isEmpty() ? u"somebody"_s : user;
    QString text = host.isEmpty() ? who : u"%1 on %2"_s.arg(who, host);
    if (process > 0)
        text += u", process %1"_s.arg(process);
    if (since.isValid())
        text += u", since %1"_s.arg(since.toLocalTime().toString(u"yyyy-MM-dd HH:mm"_s));
    return text;
}

DrawingLock::DrawingLock(const QByteArray &path, const QByteArray &content)
    : m_path(path), m_content(content), m_place(removeLockAtExit(path, content))
{
}

DrawingLock::~DrawingLock()
{
    removeLock(m_path, m_content);
    forgetLock(m_place);
}

bool DrawingLock::isHeld() const
{
    const OpenDescriptor file(openLock(m_path));
    return file && contentOf(file) == m_content;
}

QString DrawingLock::lockFileOf(const QString &file)
{
    const QFileInfo info(file);
    return info.absolutePath() + u"/."_s + info.fileName() + u".lock"_s;
}

DrawingLock::Attempt DrawingLock::take(const QString &file, Wanted wanted)
{
    const QByteArray path = QFile::encodeName(lockFileOf(file));
    const QByteArray content = newLock();
    Sight sight;
    for (int i = 0; i < mostAttempts; ++i) {
        const Made made = makeLock(path, content);
        if (made == Made::Yes)
            return {std::unique_ptr<DrawingLock>(new DrawingLock(path, content)), {}};
        if (made == Made::Refused)
            return {};
        sight = lookAt(path);
        if (!sight.isThere)
            continue;
        const LockText text(sight.content);
        if (wanted == Wanted::IfFree && !text.isLeftBehind())
            return {nullptr, text.holder()};
        // Another process may be at removing the same.
        if (!removeLock(path, sight.content))
            QThread::msleep(pauseBetweenAttempts);
    }
    // It stays where it is for good, in the folder of somebody else: no lock is possible, as in a folder to read only.
    return {};
}

std::optional<LockHolder> DrawingLock::holderOf(const QString &file)
{
    const Sight sight = lookAt(QFile::encodeName(lockFileOf(file)));
    const LockText text(sight.content);
    if (!sight.isThere || text.isLeftBehind())
        return {};
    return text.holder();
}

} // namespace host::kernel
