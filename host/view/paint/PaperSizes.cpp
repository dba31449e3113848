#include "host/view/paint/PaperSizes.h"

#include "host/drawing/records/PageSetup.h"

#include <QRegularExpression>

#include <array>

using namespace Qt::StringLiterals;

namespace host::view {

namespace {

struct PaperRow
{
    const char *name;
    double shortSide; ///< millimetres
    double longSide;
};

constexpr std::array paperRows = {
    PaperRow{"A0", 841, 1189},         PaperRow{"A1", 594, 841},         PaperRow{"A2", 420, 594},
    PaperRow{"A3", 297, 420},          PaperRow{"A4", 210, 297},         PaperRow{"A5", 148, 210},
    PaperRow{"A6", 105, 148},          PaperRow{"B0", 1000, 1414},       PaperRow{"B1", 707, 1000},
    PaperRow{"B2", 500, 707},          PaperRow{"B3", 353, 500},         PaperRow{"B4", 250, 353},
    PaperRow{"B5", 176, 250},          PaperRow{"B6", 125, 176},         PaperRow{"ANSI-A", 215.9, 279.4},
    PaperRow{"ANSI-B", 279.4, 431.8},  PaperRow{"ANSI-C", 431.8, 558.8}, PaperRow{"ANSI-D", 558.8, 863.6},
    PaperRow{"ANSI-E", 863.6, 1117.6}, PaperRow{"ARCH-A", 228.6, 304.8}, PaperRow{"ARCH-B", 304.8, 457.2},
    PaperRow{"ARCH-C", 457.2, 609.6},  PaperRow{"ARCH-D", 609.6, 914.4}, PaperRow{"ARCH-E", 914.4, 1219.2},
    PaperRow{"ARCH-E1", 762, 1066.8}};

} // namespace

std::optional<QSizeF> namedPaper(const QString &name)
{
    for (const PaperRow &row : paperRows) {
        const QString known = QString::fromLatin1(row.name);
        if (known.compare(name, Qt::CaseInsensitive) == 0 ||
            QString(known).remove(u'-').compare(name, Qt::CaseInsensitive) == 0)
            return QSizeF(row.longSide, row.shortSide);
    }
    return {};
}

std::optional<QSizeF> plotterPaper(const QString &name)
{
    static const QRegularExpression inParentheses(
        u"\\(\\s*([0-9]+(?:\\.[0-9]+)?)\\s*x\\s*([0-9]+(?:\\.[0-9]+)?)\\s*([a-z]*)"_s,
        QRegularExpression::CaseInsensitiveOption);
    QString plain = name;
    plain.replace(u'_', u' ');
    if (const QRegularExpressionMatch match = inParentheses.match(plain); match.hasMatch()) {
        const bool isInches = match.captured(3).startsWith(u"in", Qt::CaseInsensitive);
        return QSizeF(match.captured(1).toDouble(), match.captured(2).toDouble()) *
               (isInches ? drawing::millimetresPerInch : 1.0);
    }
    if (const std::optional<QSizeF> whole = namedPaper(QString(plain).replace(u' ', u'-')))
        return whole;
    for (const QString &word : plain.split(u' ', Qt::SkipEmptyParts))
        if (const std::optional<QSizeF> size = namedPaper(word))
            return size;
    return {};
}

} // namespace host::view
