#include "host/app/playback/PlaybackLine.h"

#include "host/app/playback/PlaybackText.h"

#include <QRegularExpression>

#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

QString openQuote()
{
    return tr("a quote is not closed, or text follows right behind it");
}

std::optional<std::array<double, 3>> parsePoint(const QString &word)
{
    const QStringList parts = word.split(u',');
    if (parts.size() < 2 || parts.size() > 3)
        return std::nullopt;
    std::array<double, 3> point{};
    for (qsizetype i = 0; i < parts.size(); ++i) {
        bool ok = false;
        point[static_cast<std::size_t>(i)] = parts[i].toDouble(&ok);
        if (!ok || !std::isfinite(point[static_cast<std::size_t>(i)]))
            return std::nullopt;
    }
    return point;
}

QChar unescaped(QChar c)
{
    switch (c.unicode()) {
    case 'n':
        return u'\n';
    case 'r':
        return u'\r';
    case 't':
        return u'\t';
    default:
        return c;
    }
}

/// Where the ${NAME}s of a text are.
const QRegularExpression &namePattern()
{
    static const QRegularExpression pattern(u"\\$\\{([^}]*)\\}"_s);
    return pattern;
}

QString checkTruth(QString &word)
{
    const QString lower = word.toLower();
    if (lower == "yes"_L1 || lower == "on"_L1)
        word = u"yes"_s;
    else if (lower == "no"_L1 || lower == "off"_L1)
        word = u"no"_s;
    else
        return tr("\"%1\" is neither yes nor no (on, off)").arg(word);
    return {};
}

/// What is wrong with an argument, by its letter. A truth is brought to yes or no; a point joins the step's.
QString checkArgument(char letter, QString &word, Step &step)
{
    bool ok = true;
    if (letter == 'p') {
        const auto point = parsePoint(word);
        if (!point)
            return tr("\"%1\" is no point; write x,y or x,y,z").arg(word);
        step.points.append(*point);
    } else if (letter == 'n') {
        if (word.toInt(&ok) < 0 || !ok)
            return tr("\"%1\" is no whole number from 0 up").arg(word);
    } else if (letter == 'h') {
        if (word.toULongLong(&ok, 16) == 0 || !ok)
            return tr("\"%1\" is no handle").arg(word);
    } else if (letter == 'b') {
        return checkTruth(word);
    }
    return {};
}

/// Reads the arguments of one line by the letters of its verb.
class LineReader
{
public:
    LineReader(const VerbRow &row, QStringView rest, Step &step) : m_rest(rest.trimmed()), m_step(step)
    {
        for (const char *letter = row.arguments; *letter && m_error.isEmpty(); ++letter) {
            if (*letter == '?')
                m_optional = true;
            else if (*letter == '*')
                while (!m_rest.isEmpty() && m_error.isEmpty())
                    read(letter[-1]);
            else
                read(*letter);
        }
        if (m_error.isEmpty() && !m_rest.isEmpty())
            m_error = tr("too much on the line: \"%1\"").arg(m_rest);
    }

    QString error() const { return m_error; }

private:
    void read(char letter)
    {
        if (m_rest.isEmpty()) {
            if (!m_optional)
                m_error = tr("something is missing at the end of the line");
            return;
        }
        QString word;
        if (letter == 'r' || (letter == 't' && !m_rest.startsWith(u'"'))) {
            word = m_rest.toString();
            m_rest = {};
        } else if (!takeWord(m_rest, word)) {
            m_error = openQuote();
            return;
        }
        m_rest = m_rest.trimmed();
        if (!namePattern().match(word).hasMatch())
            m_error = checkArgument(letter, word, m_step);
        m_step.words.append(word);
    }

    QStringView m_rest;
    Step &m_step;
    QString m_error;
    bool m_optional = false;
};

} // namespace

QString sessionWord(const QString &text)
{
    static const QRegularExpression plain(u"^[^\\s\"\\\\~#$]+$"_s);
    if (plain.match(text).hasMatch())
        return text;
    QString quoted = text;
    quoted.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s);
    quoted.replace(u'\n', u"\\n"_s).replace(u'\r', u"\\r"_s).replace(u'\t', u"\\t"_s);
    return u'"' + quoted + u'"';
}

bool takeWord(QStringView &rest, QString &word)
{
    rest = rest.trimmed();
    word.clear();
    if (!rest.startsWith(u'"')) {
        qsizetype end = 0;
        while (end < rest.size() && !rest[end].isSpace())
            ++end;
        word = rest.first(end).toString();
        rest = rest.sliced(end);
        return true;
    }
    for (qsizetype i = 1; i < rest.size(); ++i) {
        if (rest[i] == u'"') {
            rest = rest.sliced(i + 1);
            return rest.isEmpty() || rest.front().isSpace();
        }
        if (rest[i] == u'\\' && i + 1 < rest.size())
            word += unescaped(rest[++i]);
        else
            word += rest[i];
    }
    return false;
}

LineRead readPlaybackLine(const QString &line)
{
    QStringView rest(line);
    QString name;
    if (!takeWord(rest, name))
        return {{}, openQuote()};
    const VerbRow *row = findVerb(name);
    if (!row)
        return {{}, tr("unknown word \"%1\"").arg(name.left(60))};
    LineRead read;
    read.step.verb = row->verb;
    read.step.kind = row->kind;
    read.step.source = line;
    const LineReader reader(*row, rest, read.step);
    if (!reader.error().isEmpty())
        read.error = "%1: %2"_L1.arg(QLatin1StringView(row->name), reader.error());
    return read;
}

QString filledIn(const QString &text, const QHash<QString, QString> &values)
{
    QString filled;
    qsizetype from = 0;
    for (const QRegularExpressionMatch &match : namePattern().globalMatch(text)) {
        filled += QStringView(text).sliced(from, match.capturedStart() - from);
        filled += values.value(match.captured(1), match.captured(0));
        from = match.capturedEnd();
        if (filled.size() > longestSession)
            return filled;
    }
    return filled.append(QStringView(text).sliced(from));
}

QString fillIn(Step &step, const QHash<QString, QString> &values)
{
    const QStringList names = openNames(step);
    if (names.isEmpty())
        return {};
    for (const QString &name : names)
        if (!values.contains(name))
            return tr("${%1} is not known").arg(name);
    const VerbRow &row = rowOf(step.verb);
    step.points.clear();
    const char *letter = row.arguments;
    for (QString &word : step.words) {
        letter += *letter == '?' ? 1 : 0;
        word = filledIn(word, values);
        if (const QString error = checkArgument(*letter, word, step); !error.isEmpty())
            return "%1: %2"_L1.arg(QLatin1StringView(row.name), error);
        if (letter[1] && letter[1] != '*')
            ++letter;
    }
    return {};
}

QStringList openNames(const Step &step)
{
    QStringList names;
    for (const QString &word : step.words)
        for (const QRegularExpressionMatch &match : namePattern().globalMatch(word))
            names.append(match.captured(1));
    return names;
}

} // namespace host::app
