#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace host::app {

/// The contents of a folder of help pages, and finding in them. Reads the folder's tables contents.tsv and search.tsv,
/// which scripts/manual writes; a folder without them has no contents and nothing is found.
class HelpBook
{
public:
    /// A line of the table of contents.
    struct Entry
    {
        int depth = 0;   ///< 0 for parts
        QString address; ///< empty for a part, which is no page
        QString title;
    };
    /// A section in which something was found.
    struct Hit
    {
        QString address; ///< page and anchor
        QString page;    ///< title of the page
        QString heading;
        QString excerpt; ///< of its text, around the first place; one line
    };

    /// Reads the contents; what is searched is read when something is sought.
    explicit HelpBook(const QString &folder);

    const QString &folder() const { return m_folder; }
    const QList<Entry> &contents() const { return m_contents; }

    /// The sections that have all words of `sought` at the begin of words, without regard to case, the best first: what
    /// is called so, then where the words stand in headings, then where they are many. When no section has all of them,
    /// those that have some. At most `most`.
    QList<Hit> search(const QString &sought, qsizetype most = 60) const;

    /// The words that search() looks for.
    static QStringList words(const QString &sought);

private:
    struct Section
    {
        Hit hit; ///< whose excerpt is the whole text
        QString folded;
        QString foldedHeading;
    };
    const QList<Section> &sections() const;

    QString m_folder;
    QList<Entry> m_contents;
    mutable QList<Section> m_sections;
};

} // namespace host::app
