#include "host/kernel/files/WriteObstacle.h"

#include "host/drawing/dwg/DwgText.h"
#include "host/drawing/file/Save.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/languages/Texts.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using Kind = WriteObstacle::Kind;

/// Against writing a document's own file.
std::optional<WriteObstacle> ownObstacle(const QString &path, DrawingClaim &claim)
{
    // Nothing that somebody overrules would help.
    if (const QString refused = drawing::whyNoName(path); !refused.isEmpty())
        return {{Kind::Dwg, refused}};
    if (claim.isReadOnly())
        return {{Kind::ReadOnly, Kernel::tr("%1 was opened for reading only; save it under another name.").arg(path)}};
    if (const std::optional<LockHolder> holder = claim.successor())
        return openElsewhere(path, *holder);
    switch (claim.change()) {
    case FileChange::None:
        break;
    case FileChange::Content:
        return {{Kind::Changed,
                 Kernel::tr("%1 was changed by another program since it was opened or saved here.").arg(path)}};
    case FileChange::Gone:
        return {{Kind::Gone, Kernel::tr("%1 is not there any more.").arg(path)}};
    }
    return {};
}

std::optional<WriteObstacle> findObstacle(const QString &path, Session *session, Document *writer)
{
    const QString shown = QDir::toNativeSeparators(path);
    if (const auto identity = identityOf(path); writer && identity && identity == identityOf(writer->damagedFile()))
        return {{Kind::Damaged,
                 Kernel::tr("%1 is the damaged file that this drawing was recovered from; save it under another "
                            "name.")
                     .arg(shown)}};
    if (drawing::isDwgFile(path))
        return {{Kind::Dwg,
                 Kernel::tr("%1 is a DWG file, which this program reads but does not write; give the drawing another "
                            "name.")
                     .arg(shown)}};
    if (writer && writer->claim().isOf(path))
        return ownObstacle(shown, writer->claim());
    // A link may lead elsewhere by now; what is there is not what was opened.
    if (writer && !writer->path().isEmpty() && path == writer->path() && identityOf(path))
        return {
            {Kind::Changed, Kernel::tr("%1 leads to another file than when it was opened or saved here.").arg(shown)}};
    if (session && session->documents().documentOf(path))
        return {{Kind::OpenHere,
                 Kernel::tr("%1 is open in this program; close it first, or give another name.").arg(shown)}};
    const QString file = canonicalFile(path);
    const std::optional<LockHolder> holder = file.isEmpty() ? std::nullopt : DrawingLock::holderOf(file);
    return holder ? std::optional(openElsewhere(shown, *holder)) : std::nullopt;
}

} // namespace

WriteObstacle openElsewhere(const QString &path, const LockHolder &holder)
{
    return {
        Kind::OpenElsewhere,
        Kernel::tr("%1 is open in another program (%2).").arg(QDir::toNativeSeparators(path), holder.description())};
}

std::optional<WriteObstacle> obstacleToWriting(const QString &path, Session *session, Document *writer)
{
    const std::optional<WriteObstacle> found = findObstacle(path, session, writer);
    const bool isOverruled = found && session && session->overrule() == Overrule::Obstacles && found->mayBeOverruled();
    return isOverruled ? std::nullopt : found;
}

} // namespace host::kernel
