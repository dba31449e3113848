#include "host/view/text/MTextLayout.h"

namespace host::view {

namespace {

constexpr double lineStep = 5.0 / 3.0; ///< from base line to base line, in text heights
constexpr double stackSize = 0.7;
constexpr double tabHeights = 4.0;

/// What stands on a line, with x from the line's start and y from its base line.
struct Line
{
    std::vector<MTextRun> runs{};
    std::vector<MTextRule> rules{};
    double width = 0.0;
    double visibleWidth = 0.0; ///< without blanks at the end, and the room behind the last letter
    double height = 0.0;
    MTextParagraph paragraph{};
    double indent = 0.0;
    bool endsParagraph = false;
    bool endsColumn = false;
    // Filled in when all lines are there.
    std::size_t column = 0;
    double base = 0.0; ///< below the top of its column, counted down from 0
};

class Layouter
{
public:
    Layouter(const MTextBox &box, double textHeight, Fonts &fonts) : m_box(box), m_height(textHeight), m_fonts(fonts) {}

    MTextLayout lay(const std::vector<MTextToken> &tokens)
    {
        for (std::size_t i = 0; i < tokens.size(); ++i) {
            if (m_line.runs.empty() && m_line.width == 0.0)
                startLine(tokens[i]);
            place(tokens, i);
        }
        finishLine(true);
        return assemble();
    }

private:
    void startLine(const MTextToken &token)
    {
        m_line.paragraph = token.paragraph;
        m_line.indent = token.paragraph.leftIndent + (m_isNewParagraph ? token.paragraph.firstIndent : 0.0);
        m_isNewParagraph = false;
    }

    void place(const std::vector<MTextToken> &tokens, std::size_t &at)
    {
        const MTextToken &token = tokens[at];
        switch (token.kind) {
        case MTextToken::Kind::NewLine:
        case MTextToken::Kind::NewColumn:
            m_line.height = std::max(m_line.height, m_line.runs.empty() ? token.format.height : 0.0);
            m_line.endsColumn = token.kind == MTextToken::Kind::NewColumn;
            finishLine(true);
            break;
        case MTextToken::Kind::Space:
            addText(token, QStringLiteral(" "));
            break;
        case MTextToken::Kind::Tab: {
            const double stop = tabHeights * m_height;
            m_line.width = (std::floor(m_line.width / stop + 1e-9) + 1.0) * stop;
            break;
        }
        case MTextToken::Kind::Word:
            breakBefore(tokens, at);
            addText(token, token.text);
            m_line.visibleWidth = m_line.width - roomBehind(token);
            break;
        case MTextToken::Kind::Stack:
            breakBefore(tokens, at);
            addStack(token);
            m_line.visibleWidth = m_line.width;
            break;
        }
    }

    /// Words that touch (a change of colour in the middle of one) go to the next line together.
    void breakBefore(const std::vector<MTextToken> &tokens, std::size_t at)
    {
        const auto sticks = [&](std::size_t i) {
            return tokens[i].kind == MTextToken::Kind::Word || tokens[i].kind == MTextToken::Kind::Stack;
        };
        if (m_box.width <= 0.0 || m_line.visibleWidth <= 0.0 || (at > 0 && sticks(at - 1)))
            return;
        double needed = 0.0;
        const double room = m_box.width - m_line.indent - m_line.paragraph.rightIndent - m_line.width;
        for (std::size_t i = at; i < tokens.size() && sticks(i) && needed <= room + m_height; ++i)
            needed += widthOf(tokens[i]);
        if (needed > room * (1.0 + 1e-9)) {
            finishLine(false);
            startLine(tokens[at]);
        }
    }

    int fontOf(const MTextFormat &format)
    {
        if (format.fontName.isEmpty())
            return m_fonts.find(m_box.styleFont);
        return m_fonts.find({.name = format.fontName,
                             .isBold = format.isBold,
                             .isItalic = format.isItalic,
                             .bigFont = m_box.styleFont.bigFont});
    }

    double textWidth(const MTextFormat &format, const QString &text)
    {
        return m_fonts.width(fontOf(format), text) * format.height * format.widthFactor * format.tracking;
    }

    double roomBehind(const MTextToken &word)
    {
        const int font = fontOf(word.format);
        return (m_fonts.width(font, word.text) - m_fonts.inkWidth(font, word.text)) * word.format.height *
               word.format.widthFactor * word.format.tracking;
    }

    double widthOf(const MTextToken &token)
    {
        if (token.kind != MTextToken::Kind::Stack)
            return textWidth(token.format, token.text);
        return std::max(textWidth(token.format, token.text), textWidth(token.format, token.lower)) * stackSize;
    }

    void addText(const MTextToken &token, const QString &text)
    {
        const double width = textWidth(token.format, text);
        addRules(token.format, m_line.width, m_line.width + width);
        addRun(token.format, text, m_line.width, 0.0);
        m_line.width += width;
        m_line.height = std::max(m_line.height, token.format.height);
    }

    /// Letters that stand apart, or closer than usual, are pieces by themselves.
    void addRun(const MTextFormat &format, const QString &text, double x, double y)
    {
        const int font = fontOf(format);
        if (format.tracking == 1.0) {
            const double width = m_fonts.inkWidth(font, text) * format.height * format.widthFactor;
            m_line.runs.push_back({text, font, format, x, y, width});
            return;
        }
        for (qsizetype i = 0; i < text.size();) {
            const qsizetype length = text[i].isHighSurrogate() && i + 1 < text.size() ? 2 : 1;
            const QString letter = text.mid(i, length);
            const double advance = m_fonts.width(font, letter) * format.height * format.widthFactor;
            m_line.runs.push_back({letter, font, format, x, y, advance});
            x += advance * format.tracking;
            i += length;
        }
    }

    void addRules(const MTextFormat &format, double from, double to)
    {
        const auto rule = [&](double y) { m_line.rules.push_back({from, y, to, y, format}); };
        if (format.isUnderlined)
            rule(-0.2 * format.height);
        if (format.isOverlined)
            rule(1.2 * format.height);
        if (format.isStruck)
            rule(0.5 * format.height);
    }

    void addStack(const MTextToken &token)
    {
        MTextFormat format = token.format;
        format.height *= stackSize;
        const double above = textWidth(format, token.text);
        const double below = textWidth(format, token.lower);
        double width = std::max(above, below);
        const double x = m_line.width;
        const double full = token.format.height;
        if (token.bar == MTextToken::Bar::Diagonal) {
            width = above + below + 0.4 * full;
            addRun(format, token.text, x, full * 0.5);
            addRun(format, token.lower, x + width - below, -full * 0.2);
            m_line.rules.push_back({x + above, -full * 0.2, x + width - below, full * 1.2, token.format});
        } else {
            const bool isFraction = token.bar == MTextToken::Bar::Horizontal;
            addRun(format, token.text, x + (isFraction ? (width - above) / 2.0 : 0.0), full * 0.65);
            addRun(format, token.lower, x + (isFraction ? (width - below) / 2.0 : 0.0), -full * 0.4);
            if (isFraction)
                m_line.rules.push_back({x, full * 0.5, x + width, full * 0.5, token.format});
        }
        m_line.width += width;
        m_line.height = std::max(m_line.height, full);
    }

    void finishLine(bool endsParagraph)
    {
        if (m_line.height <= 0.0)
            m_line.height = m_height;
        m_line.endsParagraph = endsParagraph;
        m_lines.push_back(std::move(m_line));
        m_line = {};
        m_isNewParagraph = endsParagraph;
    }

    double lineStart(const Line &line, double width) const
    {
        const double room = width - line.indent - line.paragraph.rightIndent - line.visibleWidth;
        const MTextAlignment own = line.paragraph.alignment;
        switch (own == MTextAlignment::Default ? m_box.alignment : own) {
        case MTextAlignment::Center:
            return line.indent + room / 2.0;
        case MTextAlignment::Right:
            return line.indent + room;
        default:
            return line.indent;
        }
    }

    /// Justified lines share their free room among the blanks.
    void justify(Line &line, double width) const
    {
        if (line.paragraph.alignment != MTextAlignment::Justified || line.endsParagraph)
            return;
        // The blank that the line was broken at is not among them.
        const auto isBlank = [&line](const MTextRun &run) { return run.text == u" " && run.x < line.visibleWidth; };
        const auto blanks = std::ranges::count_if(line.runs, isBlank);
        const double room = width - line.indent - line.paragraph.rightIndent - line.visibleWidth;
        if (blanks < 1 || room <= 0.0)
            return;
        double shift = 0.0;
        for (MTextRun &run : line.runs) {
            const bool isSharing = isBlank(run);
            run.x += shift;
            if (isSharing)
                shift += room / static_cast<double>(blanks);
        }
    }

    /// Shares the lines out among the columns and says where each stands in its own.
    void stackLines()
    {
        std::size_t column = 0;
        double base = 0.0;
        bool isFirst = true;
        for (Line &line : m_lines) {
            const double height = m_box.isSpacingExact ? m_height : line.height;
            const double step = height * lineStep * m_box.lineSpacing;
            if (!isFirst && startsColumn(base - step, column)) {
                ++column;
                isFirst = true;
            }
            base = isFirst ? -line.height : base - step;
            isFirst = false;
            line.column = column;
            line.base = base;
            m_previousEndsColumn = line.endsColumn;
        }
    }

    bool startsColumn(double base, std::size_t column) const
    {
        if (!m_box.columns || (m_box.columns->isCountFixed && column + 1 >= m_box.columns->count))
            return false;
        const std::vector<double> &heights = m_box.columns->heights;
        const double limit = column < heights.size() ? heights[column] : m_box.columns->furtherHeight;
        return m_previousEndsColumn || (limit > 0.0 && -base > limit * (1.0 + 1e-9));
    }

    double columnStep() const { return m_box.width + m_box.columns->gutter; }

    double columnStart(const Line &line, std::size_t count) const
    {
        if (!m_box.columns)
            return 0.0;
        return columnStep() * static_cast<double>(m_box.columns->isReversed ? count - 1 - line.column : line.column);
    }

    MTextLayout assemble()
    {
        stackLines();
        double width = m_box.width;
        std::size_t columns = m_box.columns ? m_box.columns->count : 1;
        MTextLayout layout;
        for (const Line &line : m_lines) {
            columns = std::max(columns, line.column + 1);
            layout.height = std::max(layout.height, -line.base);
            if (m_box.width <= 0.0)
                width = std::max(width, line.indent + line.visibleWidth);
        }
        layout.width = m_box.columns ? columnStep() * static_cast<double>(columns) - m_box.columns->gutter : width;
        for (Line &line : m_lines) {
            justify(line, width);
            add(line, columnStart(line, columns) + lineStart(line, width), layout);
        }
        return layout;
    }

    static void add(Line &line, double start, MTextLayout &layout)
    {
        for (MTextRun &run : line.runs) {
            const double raise = run.y + (line.height - run.format.height) * run.format.raise / 2.0;
            run.x += start;
            run.y = line.base + (run.y == 0.0 ? raise : run.y);
            layout.runs.push_back(std::move(run));
        }
        for (const MTextRule &rule : line.rules)
            layout.rules.push_back(
                {rule.x1 + start, rule.y1 + line.base, rule.x2 + start, rule.y2 + line.base, rule.format});
    }

    const MTextBox &m_box;
    double m_height;
    Fonts &m_fonts;
    Line m_line;
    std::vector<Line> m_lines;
    bool m_isNewParagraph = true;
    bool m_previousEndsColumn = false;
};

} // namespace

MTextLayout layOutMText(const std::vector<MTextToken> &tokens, const MTextBox &box, double textHeight, Fonts &fonts)
{
    return Layouter(box, textHeight, fonts).lay(tokens);
}

} // namespace host::view
