#include "host/drawing/references/FolderNames.h"

#include <QDirIterator>
#include <QFileInfo>

namespace host::drawing {

namespace {

constexpr qsizetype mostEntries = 100'000;
constexpr qsizetype mostKept = 10 * mostEntries;
constexpr qsizetype mostAlike = 100;

/// The milliseconds within which a file system may tell the same time twice; FAT's are the most.
qint64 stepOfTime(const QDateTime &told)
{
    return told.time().msec() == 0 ? 2000 : 50;
}

/// Letter by letter, as file systems do: a name keeps its length, "ß" is not "SS".
QString withoutCase(const QString &name)
{
    QString folded = name.normalized(QString::NormalizationForm_C);
    for (QChar &letter : folded)
        letter = letter.toCaseFolded();
    return folded;
}

QMultiHash<QString, QString> namesIn(const QString &folder)
{
    QMultiHash<QString, QString> names;
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        const QString name = entries.fileName();
        names.insert(withoutCase(name), name);
        if (names.size() > mostEntries)
            return {};
    }
    return names;
}

} // namespace

const FolderNames::Listing &FolderNames::listing(const QString &folder)
{
    const QDateTime changed = QFileInfo(folder).lastModified();
    if (const auto known = m_known.constFind(folder);
        known != m_known.constEnd() && known->isSettled && known->changed == changed)
        return *known;
    if (m_namesKnown > mostKept) {
        m_known.clear();
        m_namesKnown = 0;
    }
    Listing listed{changed, changed.msecsTo(QDateTime::currentDateTime()) > stepOfTime(changed), namesIn(folder)};
    Listing &kept = m_known[folder];
    m_namesKnown += listed.names.size() - kept.names.size();
    kept = std::move(listed);
    return kept;
}

QStringList FolderNames::alike(const QString &folder, const QString &path)
{
    QStringList reached{folder};
    for (const QString &part : path.split(u'/', Qt::SkipEmptyParts)) {
        QStringList next;
        for (const QString &place : reached)
            for (const QString &name : listing(place).names.values(withoutCase(part)))
                next.append(place.endsWith(u'/') ? place + name : place + u'/' + name);
        if (next.isEmpty() || next.size() > mostAlike)
            return {};
        reached = std::move(next);
    }
    return reached;
}

} // namespace host::drawing
