#include "host/app/window/frame/Mnemonics.h"

#include <QHash>
#include <QSet>

namespace host::app {

namespace {

/// Where the caption's mnemonic character is; -1 without one.
qsizetype mnemonicPlace(const QString &caption)
{
    for (qsizetype i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != u'&')
            continue;
        if (caption[i + 1] != u'&')
            return i + 1;
        ++i;
    }
    return -1;
}

/// The places of a caption in the order in which they are tried.
QList<qsizetype> candidates(const QString &caption)
{
    QList<qsizetype> first;
    QList<qsizetype> others;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (!caption[i].isLetterOrNumber())
            continue;
        const bool startsWord = i == 0 || !caption[i - 1].isLetterOrNumber();
        (startsWord ? first : others).append(i);
    }
    return first + others;
}

/// Gives each caption a letter of its own, where there is a way to do so for all of them.
class LetterSharing
{
public:
    LetterSharing(const QStringList &captions, QSet<QChar> taken) : m_captions(captions), m_taken(std::move(taken)) {}

    /// Finds a letter for the caption; those that have one may have to take another for that.
    bool give(qsizetype caption)
    {
        m_tried.clear();
        return give(caption, m_captions.size());
    }
    /// Where the mnemonic of the caption goes; -1 when it has none.
    qsizetype place(qsizetype caption) const { return m_places.value(caption, -1); }

private:
    bool give(qsizetype caption, qsizetype depth)
    {
        const QList<qsizetype> places = candidates(m_captions[caption]);
        const auto letterAt = [&](qsizetype place) { return m_captions[caption][place].toLower(); };
        for (const qsizetype place : places)
            if (!m_taken.contains(letterAt(place)) && !m_owners.contains(letterAt(place)))
                return take(caption, place);
        for (const qsizetype place : places) {
            if (depth == 0 || m_taken.contains(letterAt(place)) || m_tried.contains(letterAt(place)))
                continue;
            m_tried.insert(letterAt(place));
            if (give(m_owners.value(letterAt(place)), depth - 1))
                return take(caption, place);
        }
        return false;
    }

    bool take(qsizetype caption, qsizetype place)
    {
        m_owners.insert(m_captions[caption][place].toLower(), caption);
        m_places.insert(caption, place);
        m_tried.clear();
        return true;
    }

    const QStringList &m_captions;
    QSet<QChar> m_taken;
    QHash<QChar, qsizetype> m_owners;
    QHash<qsizetype, qsizetype> m_places;
    QSet<QChar> m_tried;
};

} // namespace

QStringList withMnemonics(QStringList captions)
{
    QSet<QChar> taken;
    for (QString &caption : captions) {
        const qsizetype place = mnemonicPlace(caption);
        if (place < 0)
            continue;
        // Translations choose letters one by one: of two that are the same the first one stays.
        if (taken.contains(caption[place].toLower()))
            caption.remove(place - 1, 1);
        else
            taken.insert(caption[place].toLower());
    }
    LetterSharing sharing(captions, taken);
    for (qsizetype i = 0; i < captions.size(); ++i)
        if (mnemonicPlace(captions[i]) < 0)
            sharing.give(i);
    QStringList result = captions;
    for (qsizetype i = 0; i < result.size(); ++i)
        if (sharing.place(i) >= 0)
            result[i].insert(sharing.place(i), u'&');
    return result;
}

} // namespace host::app
