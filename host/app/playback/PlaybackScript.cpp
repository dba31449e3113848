#include "host/app/playback/PlaybackScript.h"

#include "files/qt/Files.h"
#include "host/app/playback/PlaybackText.h"

#include <QFileInfo>
#include <QStringDecoder>

#include <optional>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// Parts that play parts.
constexpr int deepestPart = 32;

/// A line with its continuations.
struct WholeLine
{
    int number = 0; ///< from 1, where it begins
    QString text;
};

bool endsInContinuation(const QString &text)
{
    return QStringView(text).trimmed().endsWith(" \\"_L1);
}

/// A line may hold several, with " ~ " between them, which within quotes stands for itself.
void takePieces(QList<WholeLine> &lines, int number, const QString &text)
{
    bool isQuoted = false;
    qsizetype from = 0;
    const auto take = [&](qsizetype end) {
        QString piece = text.mid(from, end - from).trimmed();
        // Read by itself it would go on.
        while (endsInContinuation(piece))
            piece = piece.chopped(1).trimmed();
        if (!piece.isEmpty() && !piece.startsWith(u'#'))
            lines.append({number, piece});
    };
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (isQuoted && text[i] == u'\\')
            ++i;
        else if (text[i] == u'"' && (isQuoted || i == 0 || text[i - 1] != u'\\'))
            isQuoted = !isQuoted;
        if (isQuoted || !QStringView(text).sliced(i).startsWith(" ~ "_L1))
            continue;
        take(i);
        from = i + 3;
        i = from - 1;
    }
    take(text.size());
}

/// The lines of a session that count for something.
QList<WholeLine> wholeLines(const QString &text, QList<ScriptError> &errors)
{
    QList<WholeLine> lines;
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
            takePieces(lines, first, pending);
            pending.clear();
        }
        // Several are as one: what is left of them would go on again when it is read by itself.
        while (endsInContinuation(pending))
            pending = pending.trimmed().chopped(1);
    }
    if (!pending.isEmpty())
        errors.append({first, tr("the line goes on (it ends in a backslash), but the session ends")});
    return lines;
}

/// Lines that are written once and played with arguments.
struct PartText
{
    QStringList parameters;
    bool takesRest = false; ///< the last one takes what is left of the line, quotes and all
    QList<WholeLine> lines;
};

/// The value of each parameter, from what stands behind the part's name. Nothing when they do not fit.
std::optional<QHash<QString, QString>> argumentsOf(const PartText &part, const QString &given)
{
    QHash<QString, QString> values;
    QStringView rest(given);
    for (qsizetype i = 0; i < part.parameters.size(); ++i) {
        QString word;
        rest = rest.trimmed();
        if (part.takesRest && i + 1 == part.parameters.size()) {
            word = rest.toString();
            rest = {};
        } else if (rest.isEmpty() || !takeWord(rest, word)) {
            return std::nullopt;
        }
        values.insert(part.parameters[i], word);
    }
    return rest.trimmed().isEmpty() ? std::optional(values) : std::nullopt;
}

class ScriptReader
{
public:
    PlaybackScript read(const QString &text)
    {
        for (const WholeLine &line : wholeLines(text, m_script.errors)) {
            m_line = line.number;
            readLine(line.text);
        }
        if (m_open)
            fail(tr("part: it has no end"));
        return m_script;
    }

private:
    /// Of what goes wrong in a part, the line that plays it is told, and where in the part it is.
    void fail(const QString &message)
    {
        m_script.errors.append({m_line, m_place.isEmpty() ? message : m_place + u": "_s + message});
    }

    void readLine(const QString &text)
    {
        const LineRead read = readPlaybackLine(text);
        const bool isEnd = read.error.isEmpty() && read.step.verb == Verb::End;
        if (m_open && !isEnd) {
            if (read.error.isEmpty() && read.step.verb == Verb::Part)
                fail(tr("part: the part before it has no end"));
            else
                m_open->lines.append({m_line, text});
        } else if (!read.error.isEmpty()) {
            fail(read.error);
        } else if (read.step.kind == VerbKind::Structure) {
            readStructure(read.step);
        } else {
            Step step = read.step;
            step.line = m_line;
            step.place = m_place;
            (m_script.cases.isEmpty() ? m_script.steps : m_script.cases.last().steps).append(step);
        }
    }

    void readStructure(const Step &step)
    {
        switch (step.verb) {
        case Verb::Part:
            beginPart(step.words);
            break;
        case Verb::End:
            if (!m_open)
                fail(tr("end: no part was begun"));
            m_open = nullptr;
            break;
        case Verb::Play:
            play(step);
            break;
        case Verb::Case:
            m_script.cases.append({m_line, step.word(0), {}});
            break;
        default:
            if (!m_script.drawing.isEmpty() || !m_script.steps.isEmpty() || !m_script.cases.isEmpty())
                fail(tr("drawing: only the first line says which drawing it is"));
            m_script.drawing = step.word(0);
        }
    }

    void beginPart(QStringList words)
    {
        const QString name = words.takeFirst();
        if (m_parts.contains(name))
            fail(tr("part: there is a part %1 already").arg(name));
        PartText &part = m_parts[name];
        part = {};
        part.takesRest = !words.isEmpty() && words.last().endsWith("..."_L1);
        if (part.takesRest)
            words.last().chop(3);
        part.parameters = words;
        if (m_place.isEmpty())
            m_open = &part;
        else
            fail(tr("part: a part cannot be written in a part"));
    }

    void play(const Step &step)
    {
        const QString name = step.word(0);
        if (!m_parts.contains(name))
            return fail(tr("play: there is no part %1").arg(name));
        if (m_playing.contains(name))
            return fail(tr("play: the part %1 plays itself").arg(name));
        if (m_playing.size() == deepestPart)
            return fail(tr("play: too many parts are played one in the other"));
        const PartText part = m_parts.value(name);
        const auto values = argumentsOf(part, step.word(1));
        if (!values)
            return fail(tr("play: the part %1 takes %2").arg(name, expected(part)));
        const QString outer = std::exchange(m_place, QString());
        m_playing.append(name);
        for (const WholeLine &line : part.lines) {
            m_place =
                (outer.isEmpty() ? QString() : outer + u", "_s) + tr("part %1, line %2").arg(name).arg(line.number);
            const QString text = filledIn(line.text, *values).trimmed();
            m_written += text.size() + m_place.size();
            if (m_written > longestSession) {
                if (!std::exchange(m_isTooLong, true))
                    fail(tr("play: the parts write too much"));
                break;
            }
            // An argument may be empty, and with it the line; or it may write several.
            QList<WholeLine> pieces;
            takePieces(pieces, line.number, text);
            for (const WholeLine &piece : pieces)
                readLine(piece.text);
        }
        m_playing.removeLast();
        m_place = outer;
    }

    static QString expected(const PartText &part)
    {
        if (part.parameters.isEmpty())
            return tr("no arguments");
        return part.parameters.join(u' ') + (part.takesRest ? u"..."_s : QString());
    }

    PlaybackScript m_script;
    QHash<QString, PartText> m_parts;
    PartText *m_open = nullptr; ///< the part being written
    QStringList m_playing;      ///< the parts that play now, one in the other
    int m_line = 0;
    QString m_place; ///< in the part that plays
    qint64 m_written = 0;
    bool m_isTooLong = false;
};

} // namespace

PlaybackScript parsePlayback(const QString &text)
{
    return ScriptReader().read(text);
}

PlaybackScript readPlayback(const QString &path)
{
    const auto failed = [](const QString &message) { return PlaybackScript{{}, {}, {}, {{0, message}}}; };
    if (QFileInfo(path).size() > longestSession)
        return failed(tr("%1 is too long for a session").arg(path));
    const files::WholeBytes file = files::readWhole(path, longestSession);
    if (!file)
        return failed(tr("cannot read %1: %2").arg(path, file.reason));
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder.decode(file.bytes);
    if (decoder.hasError() || text.contains(QChar(0)))
        return failed(tr("%1 is no UTF-8 text").arg(path));
    return parsePlayback(text);
}

QList<PlaybackCase> casesToPlay(const PlaybackScript &script)
{
    if (script.cases.isEmpty())
        return {{0, {}, script.steps}};
    QList<PlaybackCase> cases = script.cases;
    for (PlaybackCase &one : cases)
        one.steps = script.steps + one.steps;
    return cases;
}

} // namespace host::app
