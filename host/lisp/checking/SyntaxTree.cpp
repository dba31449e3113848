#include "host/lisp/checking/SyntaxTree.h"

#include "host/lisp/Reader.h"
#include "host/lisp/Text.h"
#include "host/lisp/checking/Balance.h"

#include <algorithm>

namespace host::lisp::checking {

namespace {

/// Makes forms of tokens whose parentheses balance.
class TreeBuilder
{
public:
    explicit TreeBuilder(const std::vector<Token> &tokens) : m_tokens(tokens) {}

    std::vector<SyntaxNode> forms()
    {
        std::vector<SyntaxNode> result;
        while (m_next < m_tokens.size() && !m_isTooDeep) {
            if (m_tokens[m_next].kind == Token::Kind::Dot)
                misplaced(m_tokens[m_next++]);
            else
                takeForm(result, 0);
        }
        return result;
    }

    std::vector<Finding> findings;

private:
    using Kind = Token::Kind;

    /// Takes what begins at the next token, which is neither Close nor Dot, and appends it.
    void takeForm(std::vector<SyntaxNode> &to, int depth)
    {
        const Token &token = m_tokens[m_next++];
        if (depth > deepestNesting && !m_isTooDeep) {
            m_isTooDeep = true;
            findings.push_back({FindingKind::Malformed, token.at, "lists nested deeper than is checked", {}});
        }
        if (m_isTooDeep)
            return;
        if (token.kind == Kind::Open)
            to.push_back(list(token, depth));
        else if (token.kind == Kind::Quote)
            takeQuoted(to, token, depth);
        else
            to.push_back(atom(token));
    }

    void takeQuoted(std::vector<SyntaxNode> &to, const Token &mark, int depth)
    {
        const bool isAlone =
            m_next == m_tokens.size() || m_tokens[m_next].kind == Kind::Close || m_tokens[m_next].kind == Kind::Dot;
        if (isAlone) {
            findings.push_back({FindingKind::Malformed, mark.at, "nothing behind the quote mark", {}});
            return;
        }
        SyntaxNode quoted{.at = mark.at, .text = {}, .name = {}, .items = {}};
        quoted.items.push_back(symbol("quote", mark.at));
        takeForm(quoted.items, depth + 1);
        to.push_back(std::move(quoted));
    }

    SyntaxNode list(const Token &open, int depth)
    {
        SyntaxNode node{.at = open.at, .text = {}, .name = {}, .items = {}};
        const Token *dot = nullptr;
        std::size_t itemsAtDot = 0;
        while (!m_isTooDeep && m_tokens[m_next].kind != Kind::Close) {
            const Token &token = m_tokens[m_next];
            if (token.kind != Kind::Dot) {
                takeForm(node.items, depth + 1);
                continue;
            }
            if (dot || node.items.empty())
                misplaced(token);
            dot = &token;
            itemsAtDot = node.items.size();
            ++m_next;
        }
        ++m_next;
        node.isDotted = dot != nullptr && node.items.size() > itemsAtDot;
        if (dot && itemsAtDot > 0 && node.items.size() != itemsAtDot + 1 && !m_isTooDeep)
            misplaced(*dot);
        return node;
    }

    static SyntaxNode symbol(const std::string &text, Position at)
    {
        return {.kind = SyntaxNode::Kind::Symbol, .at = at, .text = text, .name = toUpperCase(text), .items = {}};
    }

    static SyntaxNode atom(const Token &token)
    {
        if (token.kind == Kind::Atom && !numberFromToken(token.text))
            return symbol(token.text, token.at);
        const bool isString = token.kind == Kind::String;
        return {.kind = isString ? SyntaxNode::Kind::String : SyntaxNode::Kind::Number,
                .at = token.at,
                .text = token.text,
                .name = {},
                .items = {}};
    }

    void misplaced(const Token &dot)
    {
        findings.push_back({FindingKind::Malformed, dot.at, "a dot that does not stand before the last item", {}});
    }

    const std::vector<Token> &m_tokens;
    std::size_t m_next = 0;
    bool m_isTooDeep = false;
};

/// Where a mark is missing all marks behind it count the wrong way round: the string that goes over lines and touches a
/// word is more likely the one without an end than the last one is.
Finding unterminatedString(const std::vector<Token> &tokens)
{
    const auto suspect =
        std::ranges::find_if(tokens, [](const Token &token) { return token.isOverLines && token.isFollowed; });
    if (suspect == tokens.end())
        return {FindingKind::Unterminated, tokens.back().at, "the string that begins here does not end", {}};
    return {FindingKind::Unterminated,
            suspect->at,
            "a \" is missing, perhaps of the string that begins here (the last one, in line " +
                std::to_string(tokens.back().at.line) + ", does not end)",
            {}};
}

} // namespace

SyntaxTree syntaxTreeOf(std::string_view text)
{
    SyntaxTree tree;
    TokenList list = tokensOf(text);
    if (list.openComment.line > 0)
        tree.findings.push_back(
            {FindingKind::Unterminated, list.openComment, "the comment that begins here does not end", {}});
    if (!list.tokens.empty() && list.tokens.back().isUnterminated) {
        tree.isCutShort = true;
        tree.findings.push_back(unterminatedString(list.tokens));
        list.tokens.pop_back();
        balance(list); // what it finds is the string's fault
    } else {
        std::ranges::move(balance(list), std::back_inserter(tree.findings));
    }
    TreeBuilder builder(list.tokens);
    tree.forms = builder.forms();
    std::ranges::move(builder.findings, std::back_inserter(tree.findings));
    return tree;
}

} // namespace host::lisp::checking
