#include "host/kernel/files/TrustedFolders.h"

#include "files/qt/VisibleText.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/languages/Texts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <sys/stat.h>

namespace host::kernel {

using namespace Qt::StringLiterals;

namespace {

/// Where the lists are kept; their local names are the same in lower case.
const QString runName = u"TRUSTEDPATHS"_s;
const QString readName = u"READPATHS"_s;
constexpr QLatin1StringView andBelow("/...");

bool isFile(const QString &path)
{
    return QFileInfo(path).isFile();
}

/// Of a file that exists, without links and "..".
QString canonical(const QString &path)
{
    return QFileInfo(path).canonicalFilePath();
}

/// The folder on the way to a canonical path, or the file itself, through which everyone could put another program in
/// its place; empty when there is none. A sticky folder above the program's own lets nobody take away what is
/// another's.
QString openToEveryone(const QString &path)
{
    const QString folder = path.section(u'/', 0, -2);
    for (QString place = path; !place.isEmpty(); place = place.section(u'/', 0, -2)) {
        struct stat state
        {
        };
        if (stat(QFile::encodeName(place).constData(), &state) != 0)
            return place;
        const bool isAbove = place != path && place != folder;
        if ((state.st_mode & S_IWOTH) != 0 && !(isAbove && (state.st_mode & S_ISVTX) != 0))
            return place;
    }
    return {};
}

QStringList fullPaths(const QString &list)
{
    QStringList paths;
    for (QString path : list.split(u';')) {
        path = path.trimmed().replace(u'\\', u'/');
        if (QDir::isAbsolutePath(path))
            paths.append(path);
    }
    return paths;
}

QString folderOfDrawing(const Document &document)
{
    return document.path().isEmpty() ? QString() : QFileInfo(document.path()).absolutePath();
}

} // namespace

QString TrustedFolders::named(List list) const
{
    const QString &name = list == List::Run ? runName : readName;
    return m_session.settings().text(name, name.toLower());
}

bool TrustedFolders::setNamed(const QString &paths, List list)
{
    m_refused.clear();
    const QString &name = list == List::Run ? runName : readName;
    return m_session.settings().setText(name, name.toLower(), paths);
}

void TrustedFolders::addForSession(const QString &folder, List list)
{
    const QString path = QFileInfo(folder).absoluteFilePath();
    if (list == List::Run)
        m_forSession.append(path + andBelow);
    else
        m_readForSession.append(path);
}

drawing::ReadableFiles TrustedFolders::readable(Document &document) const
{
    return {.folders = searched() + m_readForSession + fullPaths(named(List::Read)),
            .files = document.readableFiles(),
            .refused =
                [&document](const QString &path, const QString &reason) {
                    document.tellUnread(path, reason);
                    document.addKeptBack({KeptBack::Act::Read, path, reason, true});
                },
            .names = m_names};
}

bool TrustedFolders::append(const QString &folder, List list)
{
    return setNamed(named(list).isEmpty() ? folder : named(list) + u';' + folder, list);
}

QString TrustedFolders::allow(Document &document, const KeptBack &item, Allowance allowance)
{
    const List list = item.act == KeptBack::Act::Read ? List::Read : List::Run;
    const QString folder = QFileInfo(item.path).absolutePath();
    if (!item.mayBeAllowed)
        return Kernel::tr("This cannot be allowed here: %1.").arg(item.reason);
    if (allowance == Allowance::Folder) {
        const QString open = list == List::Run ? openToEveryone(item.path) : QString();
        if (!open.isEmpty() || folder.contains(u';'))
            return Kernel::tr("The folder cannot be trusted: everyone may write to it, or its name has a \";\".");
        if (!append(folder, list))
            return Kernel::tr("The list cannot be kept in %1.").arg(m_session.settings().path());
    } else if (list == List::Read) {
        document.allowReading(item.path);
    } else {
        m_allowed.append(item.path);
    }
    m_refused.removeAll(item.path);
    document.removeKeptBack(item);
    if (list == List::Read)
        emit document.regenerated();
    return {};
}

bool TrustedFolders::isNamed(const QString &folder) const
{
    const QStringList names = m_forSession + fullPaths(named());
    return std::any_of(names.begin(), names.end(), [&folder](const QString &name) {
        return name.endsWith(andBelow) ? drawing::isBelow(folder, name.chopped(andBelow.size()) + u'/')
                                       : folder == canonical(name);
    });
}

QString TrustedFolders::objection(const QString &path, const Document &document) const
{
    const QString file = canonical(path);
    const QStringList &installation = m_session.supportFolders();
    if (std::any_of(installation.begin(), installation.end(),
                    [&file](const QString &folder) { return drawing::isBelow(file, folder); }))
        return {};
    const QString folder = QFileInfo(file).absolutePath();
    const bool isUsers = drawing::isBelow(folder, m_session.home()) && folder != canonical(folderOfDrawing(document));
    if (file.isEmpty() || (!isUsers && !isNamed(folder)))
        return Kernel::tr("its folder is not trusted");
    const QString open = openToEveryone(file);
    return open.isEmpty()
               ? QString()
               : Kernel::tr("everyone may write to %1").arg(files::visibleText(QDir::toNativeSeparators(open)));
}

QStringList TrustedFolders::searched() const
{
    QStringList folders = m_session.supportFolders();
    folders.append(m_session.home());
    for (const QString &name : m_forSession + fullPaths(named()))
        folders.append(name.endsWith(andBelow) ? name.chopped(andBelow.size()) + u'/' : name);
    return folders;
}

bool TrustedFolders::ask(Document &document, const QString &path, const QString &reason)
{
    const QString folder = QFileInfo(path).absolutePath();
    const bool canTrust = !reason.isEmpty() && openToEveryone(path).isEmpty() && !folder.contains(u';');
    const Answer answer = m_question ? m_question(path, reason, canTrust) : Answer::No;
    if (answer == Answer::No)
        m_refused.append(path);
    if (answer == Answer::Always && !append(folder, List::Run))
        document.print(Kernel::tr("\nTRUSTEDPATHS cannot be kept in %1.\n").arg(m_session.settings().path()));
    return answer != Answer::No;
}

QString TrustedFolders::wanted(Document &document, const QString &path)
{
    const QString file = canonical(path);
    return isFile(file) && ask(document, file, objection(file, document)) ? file : QString();
}

bool TrustedFolders::mayRun(Document &document, const QString &path, const QString &reason, lisp::LoadedBy by)
{
    if (m_allowed.contains(path))
        return true;
    const bool isNew = by == lisp::LoadedBy::Person || !m_refused.contains(path);
    if (isNew && ask(document, path, reason))
        return true;
    document.print(
        Kernel::tr(
            "\n%1 was not loaded: %2. TRUSTEDPATHS, or the option --trust, names folders whose programs may run.\n")
            .arg(files::visibleText(QDir::toNativeSeparators(path)), reason));
    document.addKeptBack({KeptBack::Act::Run, path, reason, true});
    return false;
}

QString TrustedFolders::findTrusted(const Document &document, const QString &asked) const
{
    const QString name = QString(asked).replace(u'\\', u'/');
    if (name.isEmpty())
        return {};
    const QStringList folders = QDir::isAbsolutePath(name) ? QStringList{QString()} : searched();
    for (const QString &folder : folders)
        if (const QString path = folder.isEmpty() ? name : folder + u'/' + name;
            isFile(path) && objection(path, document).isEmpty())
            return canonical(path);
    return {};
}

QString TrustedFolders::findProgram(Document &document, const QStringList &names, lisp::LoadedBy by)
{
    const bool isFullPath = QDir::isAbsolutePath(QString(names.value(0)).replace(u'\\', u'/'));
    if (!isFullPath || by == lisp::LoadedBy::Program)
        for (const QString &name : names)
            if (const QString path = findTrusted(document, name); !path.isEmpty())
                return path;
    for (const QString &asked : names) {
        const QString name = QString(asked).replace(u'\\', u'/');
        for (const QString &folder : {QDir::currentPath(), folderOfDrawing(document)}) {
            const QString path = canonical(isFullPath ? name : folder + u'/' + name);
            if (name.isEmpty() || (!isFullPath && folder.isEmpty()) || !isFile(path))
                continue;
            const bool isOwnAct = isFullPath && by == lisp::LoadedBy::Person;
            const QString reason = isOwnAct ? QString() : objection(path, document);
            return reason.isEmpty() || mayRun(document, path, reason, by) ? path : QString();
        }
    }
    return {};
}

bool TrustedFolders::isProgram(const QString &name)
{
    const QString extension = QFileInfo(name).suffix().toLower();
    return extension == "lsp"_L1 || extension == "scr"_L1 || extension == "mnl"_L1;
}

} // namespace host::kernel
