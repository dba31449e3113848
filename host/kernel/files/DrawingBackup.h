#pragma once

#include <QString>

#include <memory>

namespace files {
class FileReplacement;
}

namespace host::kernel {

/// The older version of a drawing that is about to be saved, put into a backup folder as NAME.bak.
///
/// The copy is made beside an older backup before the drawing is written, and takes that one's place only when the
/// drawing is: a failed or broken-off save leaves the backup as it was, and there is never half a backup.
class DrawingBackup
{
public:
    ~DrawingBackup();

    /// Copies what is at `path` now. Nothing is done without a file there or without a folder.
    DrawingBackup(const QString &path, const QString &folder);

    /// The drawing was written: the copy becomes the backup. Gives why there is none, a sentence; empty when all is
    /// well.
    QString finish();

private:
    void copy(const QString &path);
    void fail(const QString &reason) { m_problem = reason; }

    QString m_path;
    QString m_problem;
    std::unique_ptr<files::FileReplacement> m_copy;
};

} // namespace host::kernel
