#include "host/kernel/input/SnapModes.h"

#include "host/kernel/languages/Texts.h"

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
    {"ENDPOINT", nullptr, SnapEndPoint, QT_TRANSLATE_NOOP("Kernel", "endpoint")},
    {"MIDPOINT", nullptr, SnapMidPoint, QT_TRANSLATE_NOOP("Kernel", "midpoint")},
    {"CENTER", "CENTRE", SnapCentre, QT_TRANSLATE_NOOP("Kernel", "center")},
    {"NODE", nullptr, SnapNode, QT_TRANSLATE_NOOP("Kernel", "node")},
    {"QUADRANT", nullptr, SnapQuadrant, QT_TRANSLATE_NOOP("Kernel", "quadrant")},
    {"INTERSECTION", nullptr, SnapIntersection, QT_TRANSLATE_NOOP("Kernel", "intersection")},
    {"INSERTION", nullptr, SnapInsertion, QT_TRANSLATE_NOOP("Kernel", "insertion point")},
    {"PERPENDICULAR", nullptr, SnapPerpendicular, QT_TRANSLATE_NOOP("Kernel", "perpendicular")},
    {"TANGENT", nullptr, SnapTangent, QT_TRANSLATE_NOOP("Kernel", "tangent")},
    {"NEAREST", nullptr, SnapNearest, QT_TRANSLATE_NOOP("Kernel", "nearest point")},
    {"QUICK", nullptr, SnapQuick, QT_TRANSLATE_NOOP("Kernel", "quick")},
    {"APPARENT", "APPINT", SnapApparentIntersection, QT_TRANSLATE_NOOP("Kernel", "apparent intersection")},
    {"EXTENSION", nullptr, SnapExtension, QT_TRANSLATE_NOOP("Kernel", "extension")},
    {"PARALLEL", nullptr, SnapParallel, QT_TRANSLATE_NOOP("Kernel", "parallel")},
    {"NONE", nullptr, 0, QT_TRANSLATE_NOOP("Kernel", "none")},
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
            return Kernel::tr(row.name);
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
