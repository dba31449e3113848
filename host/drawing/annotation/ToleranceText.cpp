#include "host/drawing/annotation/ToleranceText.h"

#include <QHash>
#include <QRegularExpression>

#include <numbers>

namespace host::drawing {

namespace {

using namespace Qt::StringLiterals;

constexpr double symbolMiddle = 0.6;

Path symbolCircle(double radius)
{
    return circlePath({symbolMiddle, 0.5, 0.0}, radius, {.maximumAngle = 0.17});
}

Path symbolLine(double x1, double y1, double x2, double y2)
{
    return {{x1, y1, 0.0}, {x2, y2, 0.0}};
}

/// An arrow upwards to the right from a place on the base line.
std::vector<Path> runoutArrow(double x)
{
    return {symbolLine(x, 0.0, x + 0.6, 1.0), {{x + 0.27, 0.78, 0.0}, {x + 0.6, 1.0, 0.0}, {x + 0.62, 0.6, 0.0}}};
}

QHash<QChar, ToleranceSymbol> makeToleranceSymbols()
{
    const Path arch = arcPath({symbolMiddle, 0.2, 0.0}, 0.6, 0.0, std::numbers::pi, {.maximumAngle = 0.17});
    const std::vector<Path> single = runoutArrow(0.3);
    std::vector<Path> twin = runoutArrow(0.0);
    for (Path &line : runoutArrow(0.5))
        twin.push_back(std::move(line));
    twin.push_back(symbolLine(0.0, 0.0, 0.5, 0.0));
    QHash<QChar, ToleranceSymbol> all = {
        {u'a', {{symbolLine(0.0, 0.0, 1.2, 0.0), symbolLine(0.0, 0.0, 1.0, 0.9)}}},
        {u'b', {{symbolLine(0.0, 0.0, 1.2, 0.0), symbolLine(0.6, 0.0, 0.6, 1.0)}}},
        {u'c', {{{{0.0, 0.15, 0.0}, {0.9, 0.15, 0.0}, {1.2, 0.85, 0.0}, {0.3, 0.85, 0.0}, {0.0, 0.15, 0.0}}}}},
        {u'd', {{arch, symbolLine(0.0, 0.2, 1.2, 0.2)}}},
        {u'e', {{symbolCircle(0.45)}}},
        {u'f', {{symbolLine(0.2, 0.0, 0.7, 1.0), symbolLine(0.5, 0.0, 1.0, 1.0)}}},
        {u'g', {{symbolCircle(0.3), symbolLine(0.08, 0.0, 0.48, 1.0), symbolLine(0.72, 0.0, 1.12, 1.0)}}},
        {u'h', {single}},
        {u'i', {{symbolLine(0.25, 0.8, 0.95, 0.8), symbolLine(0.0, 0.5, 1.2, 0.5), symbolLine(0.25, 0.2, 0.95, 0.2)}}},
        {u'j', {{symbolCircle(0.35), symbolLine(0.0, 0.5, 1.2, 0.5), symbolLine(0.6, -0.1, 0.6, 1.1)}}},
        {u'k', {{arch}}},
        {u'n', {{symbolCircle(0.4), symbolLine(0.3, 0.0, 0.9, 1.0)}}},
        {u'r', {{symbolCircle(0.5), symbolCircle(0.27)}}},
        {u't', {twin}},
        {u'u', {{symbolLine(0.0, 0.5, 1.2, 0.5)}}},
    };
    // Materials and projected zones are letters in circles.
    for (const char16_t letter : {u'm', u'l', u's', u'p'})
        all.insert(letter, {{symbolCircle(0.6)}, QChar(letter).toUpper(), 1.4});
    return all;
}

/// The text of one cell taken apart; codes of other fonts are left out with their braces.
ToleranceCell cellOf(QString text)
{
    static const QRegularExpression font(u"\\{\\\\F([^;]*);([^}]*)\\}"_s, QRegularExpression::CaseInsensitiveOption);
    ToleranceCell cell;
    const auto addPlain = [&](const QString &plain) {
        if (!plain.trimmed().isEmpty())
            cell.push_back({nullptr, plain});
    };
    qsizetype at = 0;
    for (const QRegularExpressionMatch &match : font.globalMatch(text)) {
        addPlain(text.mid(at, match.capturedStart() - at));
        at = match.capturedEnd();
        const bool isSigns = match.captured(1).startsWith(u"gdt"_s, Qt::CaseInsensitive);
        if (!isSigns)
            addPlain(match.captured(2));
        for (const QChar letter : isSigns ? match.captured(2) : QString()) {
            if (const ToleranceSymbol *symbol = toleranceSymbol(letter))
                cell.push_back({symbol, {}});
        }
    }
    addPlain(text.mid(at));
    return cell;
}

} // namespace

const ToleranceSymbol *toleranceSymbol(QChar letter)
{
    static const QHash<QChar, ToleranceSymbol> all = makeToleranceSymbols();
    const auto found = all.constFind(letter.toLower());
    return found == all.constEnd() ? nullptr : &*found;
}

std::vector<std::vector<ToleranceCell>> toleranceRows(const QString &text)
{
    static const QRegularExpression rowEnd(u"\n|\\^J|\\\\P"_s);
    constexpr int mostCells = 1000;
    int left = mostCells;
    std::vector<std::vector<ToleranceCell>> rows;
    for (const QString &line : text.split(rowEnd)) {
        std::vector<ToleranceCell> row;
        for (const QString &part : line.split(u"%%v"_s, Qt::KeepEmptyParts, Qt::CaseInsensitive)) {
            ToleranceCell cell = left > 0 ? cellOf(part) : ToleranceCell();
            if (cell.empty())
                continue;
            --left;
            row.push_back(std::move(cell));
        }
        if (!row.empty())
            rows.push_back(std::move(row));
    }
    return rows;
}

} // namespace host::drawing
