#include "host/view/text/StrokeFontTable.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace host::view {

using namespace Qt::StringLiterals;

namespace {

constexpr double italicSlant = 0.268; ///< 15 degrees

struct LookRow
{
    QLatin1StringView name;
    StrokeFontLook look;
};

/// Widths are those of a line of mixed text beside the same in the plain font.
const LookRow lookRows[] = {
    {"txt"_L1, {.widthFactor = 1.05}},
    {"monotxt"_L1, {.widthFactor = 0.95, .pitch = 1.0}},
    {"simplex"_L1, {}},
    {"romans"_L1, {}},
    {"romand"_L1, {}},
    {"romanc"_L1, {}},
    {"romant"_L1, {}},
    {"complex"_L1, {}},
    {"italic"_L1, {.slant = italicSlant}},
    {"italicc"_L1, {.slant = italicSlant}},
    {"italict"_L1, {.slant = italicSlant}},
    {"scripts"_L1, {.widthFactor = 0.9, .slant = italicSlant}},
    {"scriptc"_L1, {.widthFactor = 0.9, .slant = italicSlant}},
    {"gothice"_L1, {.widthFactor = 1.05}},
    {"gothicg"_L1, {.widthFactor = 1.05}},
    {"gothici"_L1, {.widthFactor = 1.05}},
    {"greeks"_L1, {}},
    {"greekc"_L1, {}},
    {"cyrillic"_L1, {}},
    {"cyriltlc"_L1, {}},
    {"isocp"_L1, {.widthFactor = 0.85}},
    {"isocp2"_L1, {.widthFactor = 0.85}},
    {"isocp3"_L1, {.widthFactor = 0.85}},
    {"isoct"_L1, {.widthFactor = 0.85, .pitch = 0.9}},
    {"isoct2"_L1, {.widthFactor = 0.85, .pitch = 0.9}},
    {"isoct3"_L1, {.widthFactor = 0.85, .pitch = 0.9}},
    {"isocpeur"_L1, {.widthFactor = 0.85}},
    {"isocteur"_L1, {.widthFactor = 0.85, .pitch = 0.9}},
    {"iso"_L1, {.widthFactor = 0.85}},
    {"iso3098"_L1, {.widthFactor = 0.85}},
    {"syastro"_L1, {}},
    {"symap"_L1, {}},
    {"symath"_L1, {}},
    {"symeteo"_L1, {}},
    {"symusic"_L1, {}},
    {"gdt"_L1, {.hasToleranceSigns = true}},
    {"amgdt"_L1, {.hasToleranceSigns = true}},
};

QString stemOf(const QString &name)
{
    const QString file = name.mid(std::max(name.lastIndexOf(u'/'), name.lastIndexOf(u'\\')) + 1).trimmed();
    const qsizetype dot = file.lastIndexOf(u'.');
    return (dot > 0 ? file.left(dot) : file).toLower();
}

} // namespace

std::optional<StrokeFontLook> strokeFontLook(const QString &name)
{
    const auto row = std::ranges::find(lookRows, stemOf(name), &LookRow::name);
    return row == std::end(lookRows) ? std::nullopt : std::optional(row->look);
}

char32_t toleranceSign(char32_t letter)
{
    static constexpr std::u32string_view signs =
        U"\u2220\u22a5\u23e5\u2313\u25cb\u2225\u232d\u2197\u232f\u2316\u2312\u24c1\u24c2"
        U"\u2300\u25a1\u24c5\u2104\u25ce\u24c8\u2330\u23e4\u2334\u2335\u21a7\u2332\u2333";
    return letter >= U'a' && letter <= U'z' ? signs[letter - U'a'] : letter;
}

QByteArray bigFontCodePage(const QString &name)
{
    static constexpr std::pair<QLatin1StringView, const char *> rows[] = {
        {"bigfont"_L1, "ANSI_932"}, {"extfont"_L1, "ANSI_932"},  {"extfont2"_L1, "ANSI_932"}, {"gbcbig"_L1, "ANSI_936"},
        {"hztxt"_L1, "ANSI_936"},   {"chineset"_L1, "ANSI_950"}, {"whgdtxt"_L1, "ANSI_949"},  {"whgtxt"_L1, "ANSI_949"},
        {"whtgtxt"_L1, "ANSI_949"}, {"whtmtxt"_L1, "ANSI_949"},
    };
    const QString stem = stemOf(name);
    const auto row = std::ranges::find_if(rows, [&stem](const auto &known) { return known.first == stem; });
    return row == std::end(rows) ? QByteArray() : QByteArray(row->second);
}

} // namespace host::view
