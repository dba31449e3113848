#pragma once

#include "platform/Export.h"

#include <QString>

#include <optional>

namespace host::kernel {

class Document;
struct LockHolder;
class Session;

/// Why a file is not to be written unasked: work would be lost.
struct WriteObstacle
{
    enum class Kind
    {
        OpenHere,      ///< another drawing that is open in this program
        OpenElsewhere, ///< open in another process
        ReadOnly,      ///< the drawing's own, which was opened for reading only
        Damaged,       ///< the file that the drawing was recovered from
        Dwg,           ///< a DWG file, or the drawing's own name is that of one: what is written is no DWG
        Changed,       ///< the drawing's own; something else has written it since
        Gone           ///< the drawing's own; nothing is there any more
    };

    Kind kind;
    QString text; ///< a sentence that names the file

    /// Whoever is asked may have the file written all the same.
    bool mayBeOverruled() const
    {
        return kind != Kind::OpenHere && kind != Kind::ReadOnly && kind != Kind::Damaged && kind != Kind::Dwg;
    }
};

/// Whether something is known by what a drawing's file must not be replaced.
enum class Overrule
{
    Nothing,
    Obstacles ///< those that may be overruled, by somebody who was asked
};

/// That another process has the file open.
WriteObstacle openElsewhere(const QString &path, const LockHolder &holder);

/// What stands against writing the file at `path`, now: the one place that says so for saves, copies, parts of drawings
/// and pictures. `writer` is the document whose drawing is written as a whole, which may replace its own file; null for
/// anything else. `session` null: only other processes count. Nothing when it may be written, and when the session
/// overrules and the obstacle may be.
KV_EXPORT std::optional<WriteObstacle> obstacleToWriting(const QString &path, Session *session,
                                                         Document *writer = nullptr);

} // namespace host::kernel
