#include "host/app/window/frame/Mnemonics.h"

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

} // namespace

QStringList withMnemonics(const QStringList &captions)
{
    QSet<QChar> used;
    for (const QString &caption : captions)
        if (const qsizetype place = mnemonicPlace(caption); place >= 0)
            used.insert(caption[place].toLower());
    QStringList result;
    for (QString caption : captions) {
        if (mnemonicPlace(caption) < 0) {
            for (const qsizetype place : candidates(caption)) {
                if (used.contains(caption[place].toLower()))
                    continue;
                used.insert(caption[place].toLower());
                caption.insert(place, u'&');
                break;
            }
        }
        result.append(caption);
    }
    return result;
}

} // namespace host::app
