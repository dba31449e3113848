#include "host/app/window/entry/EntryHistory.h"

#include <QKeyEvent>

#include <algorithm>

namespace host::app {

EntryHistory::EntryHistory(Field field, qsizetype kept, QObject *parent)
    : QObject(parent), m_field(std::move(field)), m_kept(kept)
{
}

void EntryHistory::setEntries(const QStringList &entries)
{
    m_entries = entries.last(std::min(entries.size(), m_kept));
    reset();
}

void EntryHistory::add(const QString &text)
{
    if (!text.trimmed().isEmpty()) {
        m_entries.removeAll(text);
        m_entries.append(text);
        if (m_entries.size() > m_kept)
            m_entries.removeFirst();
    }
    reset();
}

void EntryHistory::reset()
{
    m_recalled = m_entries.size();
    m_draft.clear();
    endSeeking();
}

void EntryHistory::recall(int direction)
{
    if (!isRecalled())
        m_draft = m_field.text();
    qsizetype wanted = m_recalled + direction;
    while (wanted >= 0 && wanted < m_entries.size() && !m_entries[wanted].startsWith(m_draft, Qt::CaseInsensitive))
        wanted += direction;
    if (wanted < 0 || wanted > m_entries.size())
        return;
    m_recalled = wanted;
    m_field.show(isRecalled() ? m_entries[wanted] : m_draft);
}

bool EntryHistory::takeKey(const QKeyEvent &key)
{
    const bool isSeekKey = key.key() == Qt::Key_R && key.modifiers() == Qt::ControlModifier;
    if (!isSeekKey)
        return m_isSeeking && takeSoughtKey(key);
    if (m_isSeeking) {
        seek(m_recalled);
        return true;
    }
    if (!isRecalled())
        m_draft = m_field.text();
    m_isSeeking = true;
    m_sought = QStringLiteral("");
    emit seeking(m_sought, true);
    return true;
}

bool EntryHistory::takeSoughtKey(const QKeyEvent &key)
{
    const bool isText = !key.text().isEmpty() && key.text().front().isPrint() &&
                        !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (isText) {
        m_sought += key.text();
        seek(m_entries.size());
    } else if (key.key() == Qt::Key_Backspace) {
        m_sought.chop(1);
        seek(m_entries.size());
    } else if (key.key() == Qt::Key_Escape) {
        m_recalled = m_entries.size();
        m_field.show(m_draft);
        endSeeking();
    } else if (key.key() != Qt::Key_Shift && key.key() != Qt::Key_Control && key.key() != Qt::Key_AltGr) {
        endSeeking();
        return false;
    }
    return true;
}

void EntryHistory::seek(qsizetype end)
{
    qsizetype found = end - 1;
    while (found >= 0 && !m_entries[found].contains(m_sought, Qt::CaseInsensitive))
        --found;
    if (found >= 0) {
        m_recalled = found;
        m_field.show(m_entries[found]);
    }
    emit seeking(m_sought, found >= 0);
}

void EntryHistory::endSeeking()
{
    if (!m_isSeeking)
        return;
    m_isSeeking = false;
    emit seeking({}, true);
}

} // namespace host::app
