#include "host/view/text/StrokeFont.h"

#include <QFile>

#include <numbers>

/// Resources of a library that is linked in have to be asked for, by a function outside of all namespaces.
static void initialiseFontResources()
{
    Q_INIT_RESOURCE(fonts);
}

namespace host::view {

using namespace Qt::StringLiterals;
using drawing::ShapeDirection;
using drawing::ShapeFile;
using drawing::ShapeLine;
using drawing::ShapeTrace;
using drawing::Vec2;

namespace {

constexpr double pixelsOff = 0.25; ///< how far a piece may be off its arc
constexpr int mostKeptPieces = 64; ///< of an arc, for the sizes that letters mostly have
// A letter beyond these is damage.
constexpr std::size_t mostVertices = 4096;
constexpr double farthestReach = 1000.0;
constexpr char32_t lastNumber = 0xffff; ///< that a shape can have

/// Letters under whose numbers fonts have them as well, by Unicode: other signs of the same look.
std::vector<char32_t> alikes(char32_t letter)
{
    struct Row
    {
        char32_t letter;
        std::vector<char32_t> alike;
    };
    static const Row rows[] = {
        {0x2300, {0x2205, 0xd8}}, {0x2205, {0x2300, 0xd8}}, {0xa0, {' '}},   {0xad, {'-'}},     {0x2010, {'-'}},
        {0x2011, {'-'}},          {0x2012, {'-'}},          {0x2013, {'-'}}, {0x2014, {'-'}},   {0x2212, {'-'}},
        {0x2018, {'\''}},         {0x2019, {'\''}},         {0x201c, {'"'}}, {0x201d, {'"'}},   {0x2032, {'\''}},
        {0x2033, {'"'}},          {0xb5, {0x3bc}},          {0x3bc, {0xb5}}, {0x3a9, {0x2126}}, {0x2126, {0x3a9}},
        {0x394, {0x2206}},        {0x2206, {0x394}},        {0x2002, {' '}}, {0x2003, {' '}},   {0x2009, {' '}},
        {0x202f, {' '}},          {0x2215, {'/'}},          {0x2044, {'/'}}, {0xb7, {0x2022}},  {0x2022, {0xb7}},
        {0x3000, {' '}},          {0x2236, {':'}},
    };
    const auto row = std::ranges::find(rows, letter, &Row::letter);
    return row == std::end(rows) ? std::vector<char32_t>{} : row->alike;
}

/// The signs that fonts which are not Unicode's have behind ASCII.
int numberOfSign(char32_t letter)
{
    switch (letter) {
    case 0xb0:
        return 127;
    case 0xb1:
        return 128;
    case 0x2300:
    case 0x2205:
        return 129;
    default:
        return -1;
    }
}

/// The letter's number in a code page; -1 when it has none.
int pageNumber(const drawing::TextCodec &codec, char32_t letter)
{
    const QByteArray bytes = codec.encode(QString::fromUcs4(&letter, 1));
    const auto byte = [&](qsizetype at) { return static_cast<unsigned char>(bytes[at]); };
    return bytes.size() == 1 ? byte(0) : bytes.size() == 2 ? byte(0) << 8 | byte(1) : -1;
}

bool isOfBigFont(const ShapeFile &file, int number)
{
    return number > 0xff && std::ranges::any_of(file.leadBytes, [number](const auto &range) {
               return number >> 8 >= range.first && number >> 8 <= range.second;
           });
}

/// -1 when the font has no such letter.
int letterNumber(const ShapeFile &file, const drawing::TextCodec &codec, char32_t letter)
{
    const auto known = [&file](int number) { return number > 0 && file.codes.contains(number) ? number : -1; };
    if (file.font->isUnicode)
        return known(static_cast<int>(letter));
    if (letter < 0x7f)
        return known(static_cast<int>(letter));
    if (const int sign = known(numberOfSign(letter)); sign > 0)
        return sign;
    const int number = pageNumber(codec, letter);
    return number >= 0x80 && number <= 0xff ? known(number) : -1;
}

std::unique_ptr<StrokeGlyph> glyphOf(const ShapeFile &file, int number, double height)
{
    std::optional<ShapeTrace> across = drawing::traceShape(file, number);
    if (!across)
        return nullptr;
    auto glyph = std::make_unique<StrokeGlyph>();
    const double scale = 1.0 / height;
    for (ShapeLine &line : across->lines)
        for (drawing::ShapeVertex &vertex : line)
            vertex.at = vertex.at * scale;
    glyph->lines = std::move(across->lines);
    glyph->advance = across->end.x * scale;
    const auto down = drawing::traceShape(file, number, ShapeDirection::Down);
    if (file.font->hasVertical && down) {
        glyph->drop = -down->end.y * scale;
        if (!down->lines.empty() && !glyph->lines.empty())
            glyph->hanging = down->lines.front().front().at * scale - glyph->lines.front().front().at;
    }
    return glyph;
}

/// Whether the lines are those of a letter.
bool isSound(const StrokeGlyph &glyph)
{
    std::size_t vertices = 0;
    double farthest = std::abs(glyph.advance);
    for (const ShapeLine &line : glyph.lines) {
        vertices += line.size();
        for (const drawing::ShapeVertex &vertex : line)
            farthest = std::max({farthest, std::abs(vertex.at.x), std::abs(vertex.at.y)});
    }
    return vertices <= mostVertices && farthest <= farthestReach;
}

void addPieces(StrokeGlyph &glyph)
{
    for (std::size_t detail = 0; detail < glyph.pieces.size(); ++detail)
        for (const ShapeLine &line : glyph.lines)
            glyph.pieces[detail].push_back(
                straightPieces(line, pixelsOff / StrokeGlyph::detailPixels[detail], mostKeptPieces));
    drawing::Box reach;
    for (const StrokeGlyph::Polyline &line : glyph.pieces.back()) {
        glyph.points += static_cast<std::int64_t>(line.size());
        for (const Vec2 &point : line)
            reach.add(drawing::Vec3{point.x, point.y, 0.0});
    }
    if (reach.isEmpty())
        return;
    glyph.left = reach.low.x;
    glyph.right = reach.high.x;
    glyph.low = reach.low.y;
    glyph.high = reach.high.y;
}

/// Where a font has nothing to say on texts that run downwards, its letters hang by their middle.
void finish(StrokeGlyph &glyph)
{
    constexpr double usualDrop = 4.0 / 3.0;
    addPieces(glyph);
    if (!(glyph.drop > 0.0)) {
        glyph.drop = usualDrop;
        glyph.hanging = {-(glyph.left + glyph.right) / 2.0, -1.0};
    }
}

} // namespace

StrokeGlyph::Polyline straightPieces(const ShapeLine &line, double tolerance, int mostAnArc)
{
    StrokeGlyph::Polyline points;
    for (std::size_t i = 0; i < line.size(); ++i) {
        points.push_back(line[i].at);
        if (line[i].bulge == 0.0 || i + 1 == line.size())
            continue;
        const double chord = (line[i + 1].at - line[i].at).length();
        const double bulge = std::abs(line[i].bulge);
        const double radius = chord * (1.0 + bulge * bulge) / (4.0 * bulge);
        const double step = 2.0 * std::acos(std::clamp(1.0 - tolerance / radius, 0.0, 1.0));
        const double sweep = 4.0 * std::atan(bulge);
        const int count = step > sweep / mostAnArc ? static_cast<int>(std::ceil(sweep / step)) : mostAnArc;
        for (int piece = 1; piece < count; ++piece)
            points.push_back(drawing::pointOnBulge(line[i], line[i + 1].at, double(piece) / count));
    }
    return points;
}

bool StrokeFont::isUsable(const ShapeFile &file)
{
    return file.error.isEmpty() && file.font && file.font->above > 0;
}

StrokeFont::StrokeFont(File file, File bigFont, const drawing::TextCodec &codec)
    : m_file(std::move(file)), m_bigFont(std::move(bigFont)), m_codec(codec)
{
}

bool StrokeFont::hasSameFiles(const StrokeFont &other) const
{
    const auto same = [](const File &a, const File &b) { return a == b || (a && b && a->codes == b->codes); };
    return same(m_file, other.m_file) && same(m_bigFont, other.m_bigFont);
}

const StrokeGlyph *StrokeFont::find(char32_t letter) const
{
    if (letter > lastNumber)
        return nullptr;
    if (letter < quickLetters)
        if (const StrokeGlyph *known = m_quick[letter].load(std::memory_order_acquire))
            return known;
    const std::scoped_lock lock(m_making);
    auto known = m_glyphs.find(letter);
    if (known == m_glyphs.end())
        known = m_glyphs.emplace(letter, make(letter)).first;
    if (letter < quickLetters)
        m_quick[letter].store(known->second.get(), std::memory_order_release);
    return known->second.get();
}

std::unique_ptr<const StrokeGlyph> StrokeFont::make(char32_t letter) const
{
    std::unique_ptr<StrokeGlyph> glyph;
    if (m_bigFont) {
        const int number = pageNumber(m_codec, letter);
        if (isOfBigFont(*m_bigFont, number) && m_bigFont->codes.contains(number))
            glyph = glyphOf(*m_bigFont, number, m_bigFont->font->above);
    }
    std::vector<char32_t> letters = alikes(letter);
    letters.insert(letters.begin(), letter);
    for (std::size_t i = 0; m_file && i < letters.size() && !glyph; ++i) {
        const int number = letterNumber(*m_file, m_codec, letters[i]);
        if (number > 0)
            glyph = glyphOf(*m_file, number, m_file->font->above);
    }
    if (!glyph || !isSound(*glyph))
        return nullptr;
    finish(*glyph);
    if (glyph->points > usualPoints)
        m_hasOrnate.store(true, std::memory_order_relaxed);
    return glyph;
}

const StrokeFont &plainStrokeFont()
{
    static const StrokeFont font = [] {
        initialiseFontResources();
        QFile source(u":/fonts/plain.shp"_s);
        const bool isOpen = source.open(QIODevice::ReadOnly);
        Q_ASSERT(isOpen);
        return StrokeFont(
            std::make_shared<const ShapeFile>(drawing::readShapeFile(isOpen ? source.readAll() : QByteArray())),
            nullptr, drawing::TextCodec());
    }();
    return font;
}

} // namespace host::view
