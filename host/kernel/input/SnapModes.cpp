#include "host/kernel/input/SnapModes.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using namespace drawing;

struct SnapWord
{
    const char *word;  ///< the letters in front that tell it from others are three
    const char *other; ///< another spelling; null for none
    int mode;
    const char *name; ///< in messages
};

constexpr SnapWord snapWords[] = {
    {"ENDPOINT", nullptr, SnapEndPoint, "endpoint"},
    {"MIDPOINT", nullptr, SnapMidPoint, "midpoint"},
    {"CENTER", "CENTRE", SnapCentre, "center"},
    {"NODE", nullptr, SnapNode, "node"},
    {"QUADRANT", nullptr, SnapQuadrant, "quadrant"},
    {"INTERSECTION", nullptr, SnapIntersection, "intersection"},
    {"INSERTION", nullptr, SnapInsertion, "insertion point"},
    {"PERPENDICULAR", nullptr, SnapPerpendicular, "perpendicular"},
    {"TANGENT", nullptr, SnapTangent, "tangent"},
    {"NEAREST", nullptr, SnapNearest, "nearest point"},
    {"QUICK", nullptr, SnapQuick, "quick"},
    {"APPARENT", "APPINT", SnapApparentIntersection, "apparent intersection"},
    {"EXTENSION", nullptr, SnapExtension, "extension"},
    {"PARALLEL", nullptr, SnapParallel, "parallel"},
    {"NONE", nullptr, 0, "none"},
};

bool isShortForSnap(const QString &typed, const char *word)
{
    constexpr qsizetype fewestLetters = 3;
    return word && typed.size() >= fewestLetters && QString::fromLatin1(word).startsWith(typed);
}

const SnapWord *snapWord(QString typed)
{
    typed = typed.trimmed().toUpper();
    if (typed.startsWith(u'_'))
        typed.remove(0, 1);
    for (const SnapWord &row : snapWords)
        if (isShortForSnap(typed, row.word) || isShortForSnap(typed, row.other))
            return &row;
    return nullptr;
}

} // namespace

std::optional<int> parseSnapModes(const QString &words)
{
    int modes = 0;
    for (const QString &typed : words.split(u',')) {
        const SnapWord *row = snapWord(typed);
        if (!row)
            return {};
        modes |= row->mode;
    }
    return modes;
}

QString snapModeName(int kinds)
{
    for (const SnapWord &row : snapWords)
        if (kinds & row.mode)
            return QString::fromLatin1(row.name);
    return {};
}

QString snapModeWords(int kinds)
{
    QStringList words;
    for (const SnapWord &row : snapWords)
        if (kinds & row.mode)
            words.append(QString::fromLatin1(row.word, 1) + QString::fromLatin1(row.word + 1, 2).toLower());
    return words.isEmpty() ? u"None"_s : words.join(u',');
}

} // namespace host::kernel
