#include "host/drawing/text/MacroExpression.h"

#include "host/drawing/text/MacroFunctions.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

/// Calls within calls. What people write has a handful.
constexpr int deepestExpression = 100;
/// Characters read and made, in all. An expression can evaluate its own text again and again (eval of a variable that
/// holds the same), and a drawing can hold many such: this ends each within a millisecond.
constexpr qsizetype mostWork = 100'000;

enum class Stop
{
    None,
    Unclosed, ///< the text ends within a call or quotes
    Excess
};

enum class Mode
{
    Evaluate,
    PassOver ///< of a choice, the part that was not chosen
};

/// The text that is left to read.
class Source
{
public:
    explicit Source(QStringView text) : m_rest(text) {}

    bool atEnd() const { return m_rest.isEmpty(); }
    QChar next() const { return m_rest.front(); }
    QChar take()
    {
        const QChar taken = m_rest.front();
        m_rest = m_rest.sliced(1);
        return taken;
    }
    bool takes(QStringView expected)
    {
        const bool isHere = m_rest.startsWith(expected);
        m_rest = m_rest.sliced(isHere ? expected.size() : 0);
        return isHere;
    }

private:
    QStringView m_rest;
};

class Evaluation
{
public:
    explicit Evaluation(const MacroSurroundings &surroundings) : m_surroundings(surroundings) {}

    QString run(QStringView text)
    {
        QString result = evaluated(text);
        if (m_stop == Stop::Unclosed)
            result += u"$?"_s;
        else if (m_stop == Stop::Excess)
            result = result.left(largestMacroText - excessMark.size()) + excessMark;
        return result;
    }

private:
    static constexpr QLatin1StringView excessMark = "$(++)"_L1;

    bool goesOn() const { return m_stop == Stop::None; }
    void stop(Stop why);
    void spend(qsizetype work);
    void append(QString &text, QStringView piece);
    void appendNext(QString &text, Source &source);
    QString evaluated(QStringView text);
    QString call(Source &source, Mode mode);
    QString argument(Source &source, Mode mode);
    void appendQuoted(QString &text, Source &source);
    QString apply(const QString &name, const MacroArguments &arguments);
    std::optional<QString> value(const QString &name, const MacroArguments &arguments);

    const MacroSurroundings &m_surroundings;
    qsizetype m_workLeft = mostWork;
    int m_depth = 0;
    Stop m_stop = Stop::None;
};

bool isNamed(const QString &name, QLatin1StringView expected)
{
    return name.compare(expected, Qt::CaseInsensitive) == 0;
}

/// Of `if` and `nth`, the number among the arguments of the one that is chosen; nothing when there is no choice to
/// make, or the first argument does not say.
std::optional<std::size_t> chosen(const QString &name, const MacroArguments &arguments)
{
    if (arguments.empty())
        return {};
    if (isNamed(name, "if"_L1)) {
        const std::optional<double> condition = macroNumber(arguments[0]);
        return condition ? std::optional<std::size_t>(*condition != 0.0 ? 1 : 2) : std::nullopt;
    }
    const std::optional<int> which = isNamed(name, "nth"_L1) ? macroInteger(arguments[0]) : std::nullopt;
    return which && *which >= 0 ? std::optional(static_cast<std::size_t>(*which) + 1) : std::nullopt;
}

bool isChoice(const QString &name)
{
    return isNamed(name, "if"_L1) || isNamed(name, "nth"_L1);
}

/// Whether the argument that comes behind these is to be evaluated.
bool isWanted(const QString &name, const MacroArguments &before)
{
    return before.empty() || !isChoice(name) || chosen(name, before) == before.size();
}

void Evaluation::stop(Stop why)
{
    if (goesOn())
        m_stop = why;
}

void Evaluation::spend(qsizetype work)
{
    m_workLeft -= work;
    if (m_workLeft < 0)
        stop(Stop::Excess);
}

void Evaluation::append(QString &text, QStringView piece)
{
    const qsizetype room = largestMacroText - text.size();
    text += piece.left(room);
    if (piece.size() > room)
        stop(Stop::Excess);
    spend(piece.size());
}

void Evaluation::appendNext(QString &text, Source &source)
{
    const QChar next = source.take();
    append(text, QStringView(&next, 1));
}

QString Evaluation::evaluated(QStringView text)
{
    Source source(text);
    QString result;
    while (goesOn() && !source.atEnd()) {
        if (source.takes(u"$("))
            append(result, call(source, Mode::Evaluate));
        else
            appendNext(result, source);
    }
    return result;
}

QString Evaluation::call(Source &source, Mode mode)
{
    if (++m_depth > deepestExpression)
        stop(Stop::Excess);
    const QString name = argument(source, mode).trimmed();
    MacroArguments arguments;
    while (goesOn() && source.takes(u",")) {
        const bool isEvaluated = mode == Mode::Evaluate && isWanted(name, arguments);
        arguments.push_back(argument(source, isEvaluated ? Mode::Evaluate : Mode::PassOver));
    }
    QString result;
    if (goesOn()) {
        source.take(); // the parenthesis that ended the last argument
        result = mode == Mode::Evaluate ? apply(name, arguments) : QString();
    }
    --m_depth;
    return result;
}

/// Up to the comma or parenthesis that ends it.
QString Evaluation::argument(Source &source, Mode mode)
{
    while (!source.atEnd() && source.next().isSpace()) {
        source.take();
        spend(1);
    }
    QString text;
    while (goesOn()) {
        if (source.atEnd())
            stop(Stop::Unclosed);
        else if (source.next() == u',' || source.next() == u')')
            break;
        else if (source.takes(u"$("))
            append(text, call(source, mode));
        else if (source.takes(u"\""))
            appendQuoted(text, source);
        else
            appendNext(text, source);
    }
    return text;
}

void Evaluation::appendQuoted(QString &text, Source &source)
{
    while (goesOn()) {
        if (source.atEnd())
            return stop(Stop::Unclosed);
        if (source.takes(u"\"") && (source.atEnd() || source.next() != u'"'))
            return;
        appendNext(text, source);
    }
}

QString Evaluation::apply(const QString &name, const MacroArguments &arguments)
{
    const bool isKnown = isChoice(name) || isNamed(name, "eval"_L1) || findMacroFunction(name);
    if (!isKnown)
        return u"$("_s + name + u")??"_s;
    return value(name, arguments).value_or(u"$("_s + name + u",?\?)"_s);
}

/// Nothing when the arguments are wrong.
std::optional<QString> Evaluation::value(const QString &name, const MacroArguments &arguments)
{
    const std::size_t count = arguments.size();
    if (const MacroFunction *function = findMacroFunction(name)) {
        const bool fits = count >= function->fewest && count <= function->most;
        return fits ? function->apply(arguments, m_surroundings) : std::nullopt;
    }
    if (isNamed(name, "eval"_L1))
        return count == 1 ? std::optional(evaluated(arguments[0])) : std::nullopt;
    const std::optional<std::size_t> which = chosen(name, arguments);
    if (!which || count < 2)
        return {};
    if (isNamed(name, "if"_L1))
        return count > 3 ? std::nullopt : std::optional(*which < count ? arguments[*which] : QString());
    return *which < count ? std::optional(arguments[*which]) : std::nullopt;
}

} // namespace

QString evaluateMacro(QStringView text, const MacroSurroundings &surroundings)
{
    return Evaluation(surroundings).run(text);
}

} // namespace host::drawing
