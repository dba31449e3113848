#include "host/app/playback/PlaybackScript.h"

#include "files/qt/Files.h"
#include "host/app/playback/PlaybackText.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStringDecoder>

#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

constexpr qint64 longestSession = 16 * 1024 * 1024;

/// One letter an argument: w word, t text to the end of the line, r the same with its quotes left alone, p point,
/// n whole number, h handle, b yes/no or on/off; small letters after ? may be left out, * repeats the last one.
struct VerbRow
{
    const char *name;
    Verb verb;
    VerbKind kind;
    const char *arguments;
};

constexpr VerbRow verbRows[] = {
    {"command", Verb::Command, VerbKind::Start, "w"},
    {"lisp", Verb::Lisp, VerbKind::Start, "r"},
    {"undo", Verb::Undo, VerbKind::Start, ""},
    {"redo", Verb::Redo, VerbKind::Start, ""},
    {"save", Verb::Save, VerbKind::Start, "?t"},
    {"expect-lisp", Verb::ExpectLisp, VerbKind::Start, "r"},
    {"expect-error", Verb::ExpectError, VerbKind::Start, "t"},
    {"answer", Verb::Answer, VerbKind::Answer, "t"},
    {"point", Verb::Point, VerbKind::Answer, "p"},
    {"pick", Verb::Pick, VerbKind::Answer, "p"},
    {"pickhandle", Verb::PickHandle, VerbKind::Answer, "h?p"},
    {"window", Verb::Window, VerbKind::Answer, "pp"},
    {"crossing", Verb::Crossing, VerbKind::Answer, "pp"},
    {"select", Verb::Select, VerbKind::Answer, "w*"},
    {"enter", Verb::Enter, VerbKind::Answer, ""},
    {"cancel", Verb::Cancel, VerbKind::Answer, ""},
    {"dialog", Verb::Dialog, VerbKind::Opening, "w"},
    {"message", Verb::Message, VerbKind::Opening, "ww"},
    {"file", Verb::File, VerbKind::Opening, "t"},
    {"menu", Verb::Menu, VerbKind::Opening, "t"},
    {"set", Verb::Set, VerbKind::Widget, "wt"},
    {"type", Verb::Type, VerbKind::Widget, "wt"},
    {"key", Verb::Key, VerbKind::Widget, "ww"},
    {"check", Verb::Check, VerbKind::Widget, "wb"},
    {"focus", Verb::Focus, VerbKind::Widget, "w"},
    {"click", Verb::Click, VerbKind::Widget, "w"},
    {"double-click", Verb::DoubleClick, VerbKind::Widget, "w?t"},
    {"row", Verb::Row, VerbKind::Widget, "ww*"},
    {"check-row", Verb::CheckRow, VerbKind::Widget, "wwb"},
    {"cell", Verb::Cell, VerbKind::Widget, "wnnt"},
    {"close", Verb::Close, VerbKind::Widget, ""},
    {"expect", Verb::Expect, VerbKind::Widget, "wt"},
    {"expect-items", Verb::ExpectItems, VerbKind::Widget, "wt"},
    {"expect-enabled", Verb::ExpectEnabled, VerbKind::Widget, "wb"},
    {"expect-visible", Verb::ExpectVisible, VerbKind::Widget, "wb"},
    {"expect-focus", Verb::ExpectFocus, VerbKind::Widget, "w"},
    {"expect-title", Verb::ExpectTitle, VerbKind::Widget, "t"},
    {"expect-printed", Verb::ExpectPrinted, VerbKind::Anywhere, "t"},
    {"expect-modified", Verb::ExpectModified, VerbKind::Anywhere, "b"},
    {"expect-count", Verb::ExpectCount, VerbKind::Anywhere, "wn"},
    {"screenshot", Verb::Screenshot, VerbKind::Anywhere, "t"},
};

const VerbRow *findVerb(QStringView name)
{
    const auto row = std::find_if(std::begin(verbRows), std::end(verbRows),
                                  [&](const VerbRow &candidate) { return name == QLatin1StringView(candidate.name); });
    return row == std::end(verbRows) ? nullptr : row;
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
    case 't':
        return u'\t';
    default:
        return c;
    }
}

/// Takes one word off the front of `rest`. False: a quote without its end.
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
        if (letter == 'r') {
            word = m_rest.toString();
            m_rest = {};
        } else if (letter == 't' && !m_rest.startsWith(u'"')) {
            word = m_rest.toString();
            m_rest = {};
        } else if (!takeWord(m_rest, word)) {
            m_error = tr("a quote is not closed, or text follows right behind it");
            return;
        }
        m_rest = m_rest.trimmed();
        check(letter, word);
        m_step.words.append(word);
    }

    void check(char letter, QString &word)
    {
        bool ok = true;
        if (letter == 'p') {
            const auto point = parsePoint(word);
            if (point)
                m_step.points.append(*point);
            else
                m_error = tr("\"%1\" is no point; write x,y or x,y,z").arg(word);
        } else if (letter == 'n') {
            if (word.toInt(&ok) < 0 || !ok)
                m_error = tr("\"%1\" is no whole number from 0 up").arg(word);
        } else if (letter == 'h') {
            if (word.toULongLong(&ok, 16) == 0 || !ok)
                m_error = tr("\"%1\" is no handle").arg(word);
        } else if (letter == 'b') {
            checkTruth(word);
        }
    }

    void checkTruth(QString &word)
    {
        const QString lower = word.toLower();
        if (lower == "yes"_L1 || lower == "on"_L1)
            word = u"yes"_s;
        else if (lower == "no"_L1 || lower == "off"_L1)
            word = u"no"_s;
        else
            m_error = tr("\"%1\" is neither yes nor no (on, off)").arg(word);
    }

    QStringView m_rest;
    Step &m_step;
    QString m_error;
    bool m_optional = false;
};

void readLine(PlaybackScript &script, int number, const QString &line)
{
    QStringView rest(line);
    QString name;
    if (!takeWord(rest, name)) {
        script.errors.append({number, tr("a quote is not closed, or text follows right behind it")});
        return;
    }
    const VerbRow *row = findVerb(name);
    if (!row) {
        script.errors.append({number, tr("unknown word \"%1\"").arg(name.left(60))});
        return;
    }
    Step step{.line = number, .verb = row->verb, .kind = row->kind, .words = {}, .points = {}, .source = line};
    const LineReader reader(*row, rest, step);
    if (reader.error().isEmpty())
        script.steps.append(step);
    else
        script.errors.append({number, "%1: %2"_L1.arg(QLatin1StringView(row->name), reader.error())});
}

bool endsInContinuation(const QString &text)
{
    return QStringView(text).trimmed().endsWith(" \\"_L1);
}

} // namespace

PlaybackScript parsePlayback(const QString &text)
{
    PlaybackScript script;
    QString pending;
    int number = 0;
    int first = 0;
    for (QStringView piece : QStringView(text).split(u'\n')) {
        ++number;
        const QStringView line = piece.trimmed();
        if (pending.isEmpty()) {
            if (line.isEmpty() || line.startsWith(u'#'))
                continue;
            first = number;
        }
        pending += line.toString();
        if (!endsInContinuation(pending)) {
            readLine(script, first, pending.trimmed());
            pending.clear();
        }
        // Several are as one: what is left of them would go on again when it is read by itself.
        while (endsInContinuation(pending))
            pending = pending.trimmed().chopped(1);
    }
    if (!pending.isEmpty())
        script.errors.append({first, tr("the line goes on (it ends in a backslash), but the session ends")});
    return script;
}

PlaybackScript readPlayback(const QString &path)
{
    if (QFileInfo(path).size() > longestSession)
        return {{}, {{0, tr("%1 is too long for a session").arg(path)}}};
    const files::WholeBytes file = files::readWhole(path, longestSession);
    if (!file)
        return {{}, {{0, tr("cannot read %1: %2").arg(path, file.reason)}}};
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder.decode(file.bytes);
    if (decoder.hasError() || text.contains(QChar(0)))
        return {{}, {{0, tr("%1 is no UTF-8 text").arg(path)}}};
    return parsePlayback(text);
}

QStringList playbackVerbs()
{
    QStringList names;
    for (const VerbRow &row : verbRows)
        names.append(QLatin1StringView(row.name));
    return names;
}

} // namespace host::app
