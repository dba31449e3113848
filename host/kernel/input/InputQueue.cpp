#include "host/kernel/input/InputQueue.h"

#include <utility>

namespace host::kernel {

namespace {

/// Characters of scripts that wait to be begun.
constexpr qsizetype longestScripts = 64 * 1024 * 1024;

QString withLineEnd(QString text)
{
    if (!text.endsWith(u'\n'))
        text += u'\n';
    return text;
}

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r';
}

qsizetype lineEnd(const QString &text, qsizetype from)
{
    const qsizetype end = text.indexOf(u'\n', from);
    return end < 0 ? text.size() : end;
}

/// Just behind a string in quotes that starts at `at`; -1 when it does not end.
qsizetype behindString(const QString &text, qsizetype at)
{
    for (++at; at < text.size(); ++at) {
        if (text[at] == u'\\')
            ++at;
        else if (text[at] == u'"')
            return at + 1;
    }
    return -1;
}

/// Just behind a comment that starts at `at`.
qsizetype behindComment(const QString &text, qsizetype at)
{
    if (at + 1 >= text.size() || text[at + 1] != u'|')
        return lineEnd(text, at);
    const qsizetype end = text.indexOf(QStringLiteral("|;"), at + 2);
    return end < 0 ? -1 : end + 2;
}

/// Just behind the parenthesis that closes the one at `at`; -1 when it is not there.
qsizetype behindExpression(const QString &text, qsizetype at)
{
    int depth = 0;
    while (at >= 0 && at < text.size()) {
        const QChar c = text[at];
        if (c == u'"') {
            at = behindString(text, at);
            continue;
        }
        if (c == u';') {
            at = behindComment(text, at);
            continue;
        }
        ++at;
        if (c == u'(')
            ++depth;
        else if (c == u')' && --depth == 0)
            return at;
    }
    return -1;
}

/// Blanks, empty remains of lines and comment lines mean nothing between commands; an empty line does.
qsizetype skipToCommand(const QString &text, qsizetype at)
{
    while (at < text.size()) {
        if (text[at] == u' ' || text[at] == u'\t' || text[at] == u'\r')
            ++at;
        else if (text[at] == u';')
            at = std::min(lineEnd(text, at) + 1, text.size());
        else
            break;
    }
    return at;
}

} // namespace

InputQueue::InputQueue(QObject *parent) : QObject(parent) {}

void InputQueue::pushTyped(const QString &text)
{
    if (auto *last = m_items.empty() ? nullptr : std::get_if<Typed>(&m_items.back()))
        last->text += withLineEnd(text);
    else
        m_items.push_back(Typed{withLineEnd(text)});
    emit filled();
}

InputQueue::ScriptOutcome InputQueue::pushScript(const QString &text)
{
    if (m_items.empty() || !std::holds_alternative<Typed>(m_items.front()))
        m_items.push_front(Typed{});
    Typed &first = std::get<Typed>(m_items.front());
    const bool isReplaced = first.isBegun && isScriptLeft(first);
    const qsizetype waiting = first.isBegun ? 0 : first.scriptEnd;
    if (waiting + text.size() > longestScripts)
        return ScriptOutcome::TooLong;
    const QString scripts = first.text.first(waiting) + withLineEnd(text);
    first.text.replace(0, std::max(first.position, first.scriptEnd), scripts);
    first.position = 0;
    first.scriptEnd = scripts.size();
    first.isBegun = false;
    m_lastScript = text;
    emit filled();
    return isReplaced ? ScriptOutcome::Replaced : ScriptOutcome::Taken;
}

bool InputQueue::isScriptLeft(const Typed &typed)
{
    const qsizetype left = typed.scriptEnd - typed.position;
    return left > 0 && !QStringView(typed.text).sliced(typed.position, left).trimmed().isEmpty();
}

void InputQueue::push(const InputAnswer &answer)
{
    m_items.push_back(answer);
    emit filled();
}

void InputQueue::clear()
{
    m_items.clear();
}

std::optional<InputAnswer> InputQueue::take(const PromptRequest &request)
{
    std::optional<InputAnswer> answer = takeNext(request);
    if (answer)
        emit taken(request, *answer);
    return answer;
}

std::optional<InputAnswer> InputQueue::takeNext(const PromptRequest &request)
{
    auto *answer = std::get_if<InputAnswer>(&m_items.front());
    if (auto *text = answer ? std::get_if<TextAnswer>(answer) : nullptr; text && request.kind == PromptKind::Event) {
        // One that was handed over whole has no line end behind it but where that is all it is.
        m_items.front() = Typed{text->text.isEmpty() ? QStringLiteral("\n") : text->text};
        answer = nullptr;
    }
    if (answer) {
        InputAnswer taken = std::move(*answer);
        m_items.pop_front();
        return taken;
    }
    Typed &typed = std::get<Typed>(m_items.front());
    typed.isBegun = true;
    if (request.kind == PromptKind::Event) {
        const InputAnswer key = takeKey(typed);
        if (typed.position >= typed.text.size())
            m_items.pop_front();
        return key;
    }
    const bool isFromScript = typed.position < typed.scriptEnd;
    const std::optional<QString> text = takeTyped(typed, request);
    if (typed.position >= typed.text.size())
        m_items.pop_front();
    if (!text)
        return {};
    return TextAnswer{*text, isFromScript};
}

InputAnswer InputQueue::takeKey(Typed &typed)
{
    constexpr int enterKey = 13;
    const char32_t first = typed.text[typed.position].unicode();
    if (first == u'\n' || first == u'\r') {
        skipDelimiter(typed, typed.position);
        return KeyAnswer{enterKey};
    }
    ++typed.position;
    return KeyAnswer{int(first)};
}

std::optional<QString> InputQueue::takeTyped(Typed &typed, const PromptRequest &request)
{
    const QString &text = typed.text;
    const bool takesExpression = request.kind == PromptKind::Command || request.forCommand;
    qsizetype start = typed.position;
    if (request.kind == PromptKind::Command)
        start = skipToCommand(text, start);
    typed.position = start;
    if (start >= text.size())
        return {};
    qsizetype end = start;
    if (takesExpression && text[start] == u'(') {
        end = behindExpression(text, start);
        if (end < 0)
            return {};
    } else if (request.kind == PromptKind::String && request.allowSpaces) {
        end = lineEnd(text, start);
    } else {
        while (end < text.size() && !isBlank(text[end]))
            ++end;
    }
    QString taken = text.mid(start, end - start);
    if (taken.endsWith(u'\r'))
        taken.chop(1);
    skipDelimiter(typed, end);
    return taken;
}

void InputQueue::skipDelimiter(Typed &typed, qsizetype end)
{
    // The blank or line end that finished the answer goes with it; a line end written as two characters is one.
    if (end + 1 < typed.text.size() && typed.text[end] == u'\r' && typed.text[end + 1] == u'\n')
        ++end;
    typed.position = std::min(end + 1, typed.text.size());
    // A used-up beginning is cut off now and then, so that neither memory nor copying grows with a long script.
    if (typed.position > typed.text.size() / 2) {
        typed.text.remove(0, typed.position);
        typed.scriptEnd = std::max<qsizetype>(typed.scriptEnd - typed.position, 0);
        typed.position = 0;
    }
}

} // namespace host::kernel
