#include "host/drawing/references/ShapeFile.h"

#include <numbers>

namespace host::drawing {

namespace {

constexpr int deepestShape = 8;
constexpr int mostSteps = 100'000; ///< of one shape with those within it
constexpr std::size_t mostKept = 64;
constexpr double largestScale = 1e9;
constexpr double octant = std::numbers::pi / 4.0;
constexpr int stretchedPieces = 8; ///< of an arc that is drawn wider than high

/// Moves a pen as the codes of a shape say.
class ShapePen
{
public:
    ShapePen(const ShapeFile &file, ShapeDirection direction) : m_file(file), m_direction(direction) {}

    bool draw(int number, int depth)
    {
        const auto codes = m_file.codes.constFind(number);
        if (codes == m_file.codes.constEnd() || depth > deepestShape)
            return false;
        Codes rest{*codes};
        while (m_isSound && !rest.isAtEnd()) {
            const int code = rest.take() & 0xff;
            if (code == 0)
                return true;
            step(code, rest, depth);
            m_isSound &= ++m_steps <= mostSteps && rest.next <= rest.codes.size();
        }
        // Programs take a shape whose last 0 is missing as well.
        return m_isSound;
    }

    Vec2 place() const { return m_at; }

    std::vector<ShapeLine> takeLines()
    {
        std::erase_if(m_lines, [](const ShapeLine &line) { return line.size() < 2; });
        return std::move(m_lines);
    }

private:
    struct Codes
    {
        const std::vector<int> &codes;
        std::size_t next = 0;
        bool isAtEnd() const { return next >= codes.size(); }
        /// 0 behind the end; `next` tells.
        int take()
        {
            const std::size_t at = next++;
            return at < codes.size() ? codes[at] : 0;
        }
        /// Compiled files have the sign in the byte.
        int takeSigned()
        {
            const int code = take();
            return code > 127 ? code - 256 : code;
        }
    };

    /// What a code means; each takes what belongs to it from `rest`. While m_isSkipping nothing comes of it.
    void step(int code, Codes &rest, int depth)
    {
        switch (code) {
        case 1:
        case 2:
            setPen(code == 1);
            break;
        case 3:
        case 4:
            scale(rest.take() & 0xff, code == 4);
            break;
        case 5:
        case 6:
            keepOrReturn(code == 5);
            break;
        case 7:
            takeShape(rest, depth);
            break;
        case 8:
        case 12:
            takeMove(rest, code == 12);
            break;
        case 9:
        case 13:
            while (m_isSound && takeMove(rest, code == 13))
                m_isSound &= ++m_steps <= mostSteps && !rest.isAtEnd();
            break;
        case 10:
            takeOctants(rest);
            break;
        case 11:
            takePartialOctants(rest);
            break;
        case 14:
            takeNextDown(rest, depth);
            break;
        default:
            takeDirection(code);
        }
    }

    /// The next code is for texts that run downwards.
    void takeNextDown(Codes &rest, int depth)
    {
        int code = 14;
        while (code == 14 && !rest.isAtEnd())
            code = rest.take() & 0xff;
        const bool wasSkipping = m_isSkipping;
        m_isSkipping |= m_direction == ShapeDirection::Across;
        if (code != 14)
            step(code, rest, depth);
        m_isSkipping = wasSkipping;
    }

    int takeNumber(Codes &rest) const
    {
        const int first = rest.take();
        return m_file.hasLongNumbers ? (first & 0xff) << 8 | (rest.take() & 0xff) : first;
    }

    /// A shape within this one. In a big font a 0 in front says that it is a part of a letter, with its place, width
    /// and height.
    void takeShape(Codes &rest, int depth)
    {
        if (m_file.isBigFont() && !rest.isAtEnd() && (rest.codes[rest.next] & 0xff) == 0) {
            rest.take();
            takePart(rest, depth);
        } else if (const int number = takeNumber(rest); !m_isSkipping) {
            m_isSound &= draw(number, depth + 1);
        }
    }

    void takePart(Codes &rest, int depth)
    {
        const int number = takeNumber(rest);
        const Vec2 at{double(rest.takeSigned()), double(rest.takeSigned())};
        const int width = rest.take() & 0xff;
        const int height = rest.take() & 0xff;
        const ShapeFontHead head = m_file.font.value_or(ShapeFontHead{});
        if (m_isSkipping || head.above <= 0 || head.width <= 0)
            return;
        ShapePen part(m_file, m_direction);
        part.m_steps = m_steps;
        m_isSound &= part.draw(number, depth + 1);
        m_steps = part.m_steps;
        const Vec2 factor{width * m_scale / head.width, height * m_scale / head.above};
        for (const ShapeLine &line : part.takeLines())
            m_lines.push_back(stretched(line, m_at + at * m_scale, factor));
        m_isLineOpen = false;
    }

    /// Arcs become straight pieces where they do not stay arcs.
    static ShapeLine stretched(const ShapeLine &line, Vec2 origin, Vec2 factor)
    {
        ShapeLine result;
        const auto add = [&](Vec2 p, double bulge) {
            result.push_back({.at = origin + Vec2{p.x * factor.x, p.y * factor.y}, .bulge = bulge});
        };
        for (std::size_t i = 0; i < line.size(); ++i) {
            const ShapeVertex &vertex = line[i];
            const bool isArc = vertex.bulge != 0.0 && i + 1 < line.size();
            add(vertex.at, factor.x == factor.y ? vertex.bulge : 0.0);
            if (isArc && factor.x != factor.y)
                for (int piece = 1; piece < stretchedPieces; ++piece)
                    add(pointOnBulge(vertex, line[i + 1].at, double(piece) / stretchedPieces), 0.0);
        }
        return result;
    }

    void setPen(bool isDown)
    {
        if (m_isSkipping)
            return;
        m_isDown = isDown;
        m_isLineOpen = false;
    }

    void scale(int factor, bool isLarger)
    {
        if (m_isSkipping)
            return;
        m_scale = isLarger ? m_scale * factor : m_scale / factor;
        m_isSound &= m_scale > 1.0 / largestScale && m_scale < largestScale;
    }

    void keepOrReturn(bool isKept)
    {
        if (m_isSkipping)
            return;
        if (isKept) {
            m_kept.push_back(m_at);
            m_isSound &= m_kept.size() <= mostKept;
        } else if (m_kept.empty()) {
            m_isSound = false;
        } else {
            m_at = m_kept.back();
            m_kept.pop_back();
            m_isLineOpen = false;
        }
    }

    /// A step to the side and up, with a bulge or without one; false for 0,0, which ends a row of them.
    bool takeMove(Codes &rest, bool isArc)
    {
        const int x = rest.takeSigned();
        const int y = rest.takeSigned();
        if (x == 0 && y == 0)
            return false;
        go(m_at + Vec2{double(x), double(y)} * m_scale, isArc ? rest.takeSigned() / 127.0 : 0.0);
        return true;
    }

    /// Length and one of sixteen directions, which end on a square.
    void takeDirection(int code)
    {
        static constexpr double sides[] = {1, 1, 1, 0.5, 0, -0.5, -1, -1, -1, -1, -1, -0.5, 0, 0.5, 1, 1};
        const double length = (code >> 4) * m_scale;
        go(m_at + Vec2{sides[code & 15], sides[(code + 12) & 15]} * length, 0.0);
    }

    /// Radius, and sign, first octant and number of octants in one byte; 0 octants are all.
    void takeOctants(Codes &rest)
    {
        const int radius = rest.take() & 0xff;
        const int octants = rest.takeSigned();
        const double sign = octants < 0 ? -1.0 : 1.0;
        const int count = std::abs(octants) & 7;
        turn(radius, (std::abs(octants) >> 4 & 7) * octant, sign * (count == 0 ? 8 : count) * octant);
    }

    /// The same with how far, in 256ths, the arc begins behind the first octant's border and ends behind the last
    /// one's.
    void takePartialOctants(Codes &rest)
    {
        const double startOffset = (rest.take() & 0xff) / 256.0;
        const double endOffset = (rest.take() & 0xff) / 256.0;
        const int high = rest.take() & 0xff;
        const int radius = 256 * high + (rest.take() & 0xff);
        const int octants = rest.takeSigned();
        const double sign = octants < 0 ? -1.0 : 1.0;
        const int count = (std::abs(octants) & 7) == 0 ? 8 : std::abs(octants) & 7;
        const double end = endOffset > 0.0 ? count - 1 + endOffset : count;
        const double start = (std::abs(octants) >> 4 & 7) + sign * startOffset;
        turn(radius, start * octant, sign * (end - startOffset) * octant);
    }

    /// An arc from the pen's place, which lies at the angle `start` of its circle.
    void turn(double radius, double start, double sweep)
    {
        const auto spoke = [&](double angle) { return Vec2{std::cos(angle), std::sin(angle)} * (radius * m_scale); };
        const Vec2 centre = m_at - spoke(start);
        // Two halves, so that none has more than half a turn.
        for (const double part : {0.5, 1.0})
            go(centre + spoke(start + sweep * part), std::tan(sweep / 8.0));
    }

    void go(Vec2 to, double bulge)
    {
        if (m_isSkipping)
            return;
        if (m_isDown && !m_isLineOpen)
            m_lines.push_back({{m_at}});
        m_isLineOpen = m_isDown;
        if (m_isDown) {
            m_lines.back().back().bulge = bulge;
            m_lines.back().push_back({to});
        }
        m_at = to;
    }

    const ShapeFile &m_file;
    const ShapeDirection m_direction;
    std::vector<ShapeLine> m_lines;
    std::vector<Vec2> m_kept;
    Vec2 m_at;
    double m_scale = 1.0;
    int m_steps = 0;
    bool m_isDown = true;
    bool m_isLineOpen = false;
    bool m_isSkipping = false;
    bool m_isSound = true;
};

} // namespace

Vec2 pointOnBulge(const ShapeVertex &from, Vec2 to, double part)
{
    const double sweep = 4.0 * std::atan(from.bulge);
    const Vec2 chord = to - from.at;
    const double sine = std::sin(sweep / 2.0);
    if (std::abs(sine) < 1e-9)
        return from.at + chord * part;
    // From the start, a point lies on the ray that turns with half of the angle that is left.
    const double length = std::sin(sweep * part / 2.0) / sine;
    const double turn = -sweep * (1.0 - part) / 2.0;
    const double c = std::cos(turn) * length;
    const double s = std::sin(turn) * length;
    return from.at + Vec2{chord.x * c - chord.y * s, chord.x * s + chord.y * c};
}

std::optional<ShapeTrace> traceShape(const ShapeFile &file, int number, ShapeDirection direction)
{
    ShapePen pen(file, direction);
    if (!pen.draw(number, 0))
        return std::nullopt;
    const Vec2 end = pen.place();
    return ShapeTrace{.lines = pen.takeLines(), .end = end};
}

std::optional<std::vector<ShapeLine>> shapeLines(const ShapeFile &file, int number)
{
    auto trace = traceShape(file, number);
    return trace ? std::optional(std::move(trace->lines)) : std::nullopt;
}

} // namespace host::drawing
