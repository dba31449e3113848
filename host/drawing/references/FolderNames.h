#pragma once

#include <QDateTime>
#include <QHash>
#include <QString>
#include <QStringList>

namespace host::drawing {

/// Finds files and folders by names of which the letters' case is not known. Drawings come from file systems that do
/// not tell case apart, or that take letters with marks to pieces: "Möbel.DWG" is to find "möbel.dwg", however its ö is
/// written.
///
/// A folder is listed once and kept in mind until its time of change is another one: what appears later is found. One
/// that has just changed is listed each time, for as long as the steps in which its file system counts time: a
/// twentieth of a second, or two seconds where the time is one of whole seconds. Of folders with more than 100,000
/// entries nothing is found.
///
/// For one thread at a time.
class FolderNames
{
public:
    /// What there is below `folder`, an existing one, by a path that is `path` but for the letters' case in any of its
    /// parts: full paths of files and folders, as it stands in the disk's letters; in no order. None where there are
    /// more than 100. `path` has "/" between its parts, and neither "." nor "..".
    QStringList alike(const QString &folder, const QString &path);

private:
    struct Listing
    {
        QDateTime changed;                  ///< when the folder was, before it was listed
        bool isSettled = false;             ///< whether that was long enough ago
        QMultiHash<QString, QString> names; ///< as the disk has them, by what is the same in all cases
    };
    const Listing &listing(const QString &folder);

    QHash<QString, Listing> m_known;
    qsizetype m_namesKnown = 0;
};

} // namespace host::drawing
