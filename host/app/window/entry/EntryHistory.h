#pragma once

#include <QObject>
#include <QStringList>

#include <functional>

class QKeyEvent;

namespace host::app {

/// What was entered in a field, to be had again: by Up and Down, of those that begin as what was written when there is
/// something, and by Ctrl+R, which seeks what is typed then anywhere in them, case not mattering, and goes further back
/// when it is pressed again. While it seeks, Esc brings back what was written; every other key that is not text ends it
/// with what was found in the field and means there what it always means.
class EntryHistory : public QObject
{
    Q_OBJECT

public:
    /// The field that entries are shown in.
    struct Field
    {
        std::function<QString()> text;
        std::function<void(const QString &text)> show; ///< in place of what it has, the cursor behind it
    };

    /// Keeps so many entries.
    EntryHistory(Field field, qsizetype kept, QObject *parent);

    /// Oldest first; of more than are kept the last ones.
    void setEntries(const QStringList &entries);
    const QStringList &entries() const { return m_entries; }
    /// What was entered becomes the last entry, and its earlier one goes; blanks alone are none. Ends recalling.
    void add(const QString &text);
    /// Forgets what was recalled: the field is empty again, or about to be.
    void reset();
    /// -1 for the entry before, 1 for the one behind; behind the last comes again what was written before.
    void recall(int direction);
    /// Takes Ctrl+R, and while it seeks, what is typed. False for a key that means something else.
    bool takeKey(const QKeyEvent &key);
    bool isSeeking() const { return m_isSeeking; }

signals:
    /// It seeks now: what, or a null text when it ended.
    void seeking(const QString &sought, bool isFound);

private:
    bool takeSoughtKey(const QKeyEvent &key);
    /// Shows the last entry before `end` that holds what is sought.
    void seek(qsizetype end);
    void endSeeking();
    bool isRecalled() const { return m_recalled < m_entries.size(); }

    Field m_field;
    qsizetype m_kept;
    QStringList m_entries;
    qsizetype m_recalled = 0; ///< in m_entries; their number when none is recalled
    QString m_draft;          ///< what was being written before recalling
    QString m_sought;
    bool m_isSeeking = false;
};

} // namespace host::app
