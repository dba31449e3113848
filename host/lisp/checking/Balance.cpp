#include "host/lisp/checking/Balance.h"

#include <algorithm>
#include <optional>

namespace host::lisp::checking {

namespace {

std::string lineText(int line)
{
    return "line " + std::to_string(line);
}

/// Goes through the tokens once, keeping what balances.
class Balancer
{
public:
    explicit Balancer(const TokenList &list) : m_list(list) { findBreaks(); }

    void run()
    {
        for (m_next = 0; m_next < m_list.tokens.size(); ++m_next)
            take(m_list.tokens[m_next]);
        endTopForm(m_list.end, "before the end of the file");
    }

    std::vector<Finding> findings;
    std::vector<Token> tokens;

private:
    using Kind = Token::Kind;

    /// Where a form in column 1 stands within another: the text lacks parentheses before it if it lacks any.
    void findBreaks()
    {
        std::size_t depth = 0;
        std::vector<std::size_t> inside;
        for (std::size_t i = 0; i < m_list.tokens.size(); ++i) {
            const Token &token = m_list.tokens[i];
            if (token.kind == Kind::Open && token.at.column == 1 && depth > 0)
                inside.push_back(i);
            if (depth == 0)
                inside.clear();
            depth += token.kind == Kind::Open ? 1 : 0;
            depth -= token.kind == Kind::Close && depth > 0 ? 1 : 0;
        }
        if (depth > 0)
            m_breaks = std::move(inside);
        const bool hasFunctions = std::ranges::any_of(m_breaks, [this](std::size_t i) { return beginsFunction(i); });
        // People who do not indent begin everything in column 1: there only what defines something counts.
        if (hasFunctions)
            std::erase_if(m_breaks, [this](std::size_t i) { return !beginsFunction(i); });
        else if (!isIndented())
            m_breaks.clear();
    }

    bool beginsFunction(std::size_t open) const
    {
        if (open + 1 >= m_list.tokens.size())
            return false;
        std::string name = m_list.tokens[open + 1].text;
        std::ranges::transform(name, name.begin(), [](char c) { return c >= 'A' && c <= 'Z' ? char(c | 0x20) : c; });
        return name.starts_with("defun");
    }

    /// The form in the first column that stands before a token.
    std::size_t topOf(std::size_t token) const
    {
        do
            --token;
        while (token > 0 && (m_list.tokens[token].at.column > 1 || m_list.tokens[token].kind != Kind::Open));
        return token;
    }

    /// Whether the lines between the first break and the form around it are indented; a form of one line is, unless
    /// it is the head of a function.
    bool isIndented() const
    {
        if (m_breaks.empty())
            return false;
        for (std::size_t i = m_breaks.front(); i-- > 0 && m_list.tokens[i].at.column > 1;) {
            if (m_list.tokens[i].beginsLine)
                return true;
        }
        return !beginsFunction(topOf(m_breaks.front()));
    }

    void take(const Token &token)
    {
        if (std::ranges::binary_search(m_breaks, m_next) && !m_open.empty())
            endTopForm(token.at, "before " + lineText(token.at.line) + ", where a form begins in the first column");
        if (token.beginsLine && token.kind != Kind::Close)
            lookAtIndent(token);
        if (token.kind == Kind::Close && m_open.empty())
            return blameExtra(token);
        if (token.kind == Kind::Open)
            m_open.push_back(tokens.size());
        if (token.kind == Kind::Close)
            close();
        tokens.push_back(token);
    }

    void close()
    {
        const Token &open = tokens[m_open.back()];
        m_open.pop_back();
        if (!m_open.empty())
            return;
        m_suspect.reset();
        // What stands indented behind a form is what may have been meant to be in it.
        if (open.indent == 0) {
            m_ended = tokens.size();
            m_goesOn.reset();
        }
    }

    /// A line that begins further left than a list that it is in, or indented where nothing is open.
    void lookAtIndent(const Token &token)
    {
        if (m_open.empty()) {
            if (token.indent > 0 && m_ended && !m_goesOn)
                m_goesOn = tokens.size();
            return;
        }
        if (m_suspect)
            return;
        // The innermost one: what is around it is open as it should be.
        const Token &open = tokens[m_open.back()];
        if (open.at.line < token.at.line && open.indent >= token.indent && open.indent > 0 && m_open.size() > 1)
            m_suspect = Suspect{m_open.back(), tokens.size()};
    }

    void blameExtra(const Token &token)
    {
        if (!m_goesOn) {
            tell(token.at, "a ) too many: nothing is open here");
            return;
        }
        const Token &early = tokens[*m_ended];
        tell(early.at, "a ) too many, perhaps this one: " + lineText(tokens[*m_goesOn].at.line) +
                           " goes on indented, up to a ) in " + lineText(token.at.line) + " that closes nothing");
        tokens.erase(tokens.begin() + static_cast<std::ptrdiff_t>(*m_ended));
        tokens.push_back(token);
        m_ended = tokens.size() - 1;
        m_goesOn.reset();
    }

    /// Closes what is open, at most once where the indentation says, and the rest at `at`.
    void endTopForm(Position at, const std::string &where)
    {
        if (m_open.empty())
            return;
        const std::size_t missing = m_open.size();
        const std::string count =
            missing == 1 ? "a ) is missing" : "a ) is missing, " + std::to_string(missing) + " in all,";
        const Token top = tokens[m_open.front()];
        if (m_suspect) {
            tell(tokens[m_suspect->open].at, count +
                                                 " perhaps of this list: " + lineText(tokens[m_suspect->line].at.line) +
                                                 " begins further left (the form that begins in " +
                                                 lineText(top.at.line) + " does not end " + where + ')');
            insertClose(m_suspect->line, tokens[m_suspect->line].at);
        } else {
            tell(top.at, count + " of the form that begins here, " + where);
        }
        for (std::size_t left = missing - (m_suspect ? 1 : 0); left > 0; --left)
            insertClose(tokens.size(), at);
        m_open.clear();
        m_suspect.reset();
        m_ended.reset();
        m_goesOn.reset();
    }

    void tell(Position at, std::string message)
    {
        // A text that is no program has one for each of its characters.
        constexpr std::size_t enough = 100;
        if (findings.size() < enough)
            findings.push_back({FindingKind::Unbalanced, at, std::move(message), {}});
    }

    void insertClose(std::size_t index, Position at)
    {
        tokens.insert(tokens.begin() + static_cast<std::ptrdiff_t>(index), {.kind = Kind::Close, .at = at, .text = {}});
    }

    /// A list that a line contradicts.
    struct Suspect
    {
        std::size_t open; ///< its first token
        std::size_t line; ///< the first token of the line
    };

    const TokenList &m_list;
    std::vector<std::size_t> m_breaks; ///< indices of m_list, ascending
    std::size_t m_next = 0;
    std::vector<std::size_t> m_open; ///< indices of tokens, as the others
    std::optional<Suspect> m_suspect;
    std::optional<std::size_t> m_ended;  ///< the Close that ended the last top form
    std::optional<std::size_t> m_goesOn; ///< what stands indented behind that
};

} // namespace

std::vector<Finding> balance(TokenList &list)
{
    Balancer balancer(list);
    balancer.run();
    list.tokens = std::move(balancer.tokens);
    return std::move(balancer.findings);
}

} // namespace host::lisp::checking
