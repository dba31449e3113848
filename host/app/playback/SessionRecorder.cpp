#include "host/app/playback/SessionRecorder.h"

#include "files/qt/Files.h"
#include "host/app/playback/PlaybackLine.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/input/Keywords.h"
#include "host/kernel/input/Picker.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

QString number(double value)
{
    return QString::number(value, 'g', 17);
}

QString pointWord(const drawing::Vec3 &point)
{
    const QString flat = number(point.x) + u',' + number(point.y);
    return point.z == 0.0 ? flat : flat + u',' + number(point.z);
}

QString handleOf(const kernel::Document &document, drawing::RecordId entity)
{
    return document.drawing().handle(entity).toString();
}

/// A Lisp text in one line: comments, which would swallow what follows, are left out, and line ends in strings are
/// written as strings have them.
QString oneLine(const QString &text)
{
    static const QRegularExpression part(u"(\"(?:[^\"\\\\]|\\\\.)*\")|;\\|.*?\\|;|;[^\\n]*|\\s*[\\r\\n]+\\s*"_s,
                                         QRegularExpression::DotMatchesEverythingOption);
    QString line;
    qsizetype from = 0;
    for (const QRegularExpressionMatch &match : part.globalMatch(text)) {
        line += QStringView(text).sliced(from, match.capturedStart() - from);
        line += match.hasCaptured(1) ? match.captured(1).replace(u'\n', u"\\n"_s) : u" "_s;
        from = match.capturedEnd();
    }
    return line.append(QStringView(text).sliced(from)).trimmed();
}

/// The message alone of an error: where it happened has another name when a session plays.
QString withoutPlace(const QString &error)
{
    static const QRegularExpression place(u" (in )?\\(.*"_s, QRegularExpression::DotMatchesEverythingOption);
    return QString(error).remove(place);
}

/// A keyword of the language as the program is told it, which every language takes.
QString lineForText(const kernel::PromptRequest &request, const QString &text)
{
    if (text.isEmpty())
        return u"enter"_s;
    const std::optional<QString> keyword =
        request.answers.isEmpty() ? std::nullopt : kernel::keywordFor(request, text.trimmed());
    return u"answer "_s + sessionWord(keyword ? u'_' + *keyword : text);
}

} // namespace

SessionRecorder::SessionRecorder(kernel::Session &session, const QString &file)
    : m_session(session), m_file(file),
      m_widgets([this] { return isRunning(); }, [this](const QString &line) { add(line); })
{
    const QString path = document() ? document()->path() : QString();
    m_recorded = document();
    m_lines.append(u"drawing "_s + (path.isEmpty() ? u"new"_s : QFileInfo(file).absoluteDir().relativeFilePath(path)));
    files::replaceFile(m_file, text().toUtf8());
    connect(&session.documents(), &kernel::DocumentManager::opened, this,
            [this](kernel::Document *opened) { takeDocument(u"opened"_s, *opened); });
    connect(&session.documents(), &kernel::DocumentManager::aboutToClose, this,
            [this](kernel::Document *closing) { takeDocument(u"closed"_s, *closing); });
    connect(&session.input(), &kernel::InputQueue::taken, this, &SessionRecorder::take);
    connect(&session.input(), &kernel::InputQueue::pointShown, this, &SessionRecorder::settlePoint);
}

SessionRecorder::~SessionRecorder()
{
    save();
}

kernel::Document *SessionRecorder::document() const
{
    return m_session.documents().active();
}

bool SessionRecorder::isRunning() const
{
    return std::ranges::any_of(m_session.documents().documents(), [](const auto &open) { return open->isBusy(); });
}

QString SessionRecorder::text() const
{
    return m_lines.join(u'\n') + u'\n';
}

QString SessionRecorder::save()
{
    return files::replaceFile(m_file, text().toUtf8());
}

void SessionRecorder::add(const QString &line)
{
    m_hasOpenPoint = false;
    if (!m_view.isEmpty())
        append(std::exchange(m_view, {}));
    append(placed(line));
}

void SessionRecorder::append(const QString &line)
{
    m_lines.append(line);
    files::appendToFile(m_file, (line + u'\n').toUtf8());
}

void SessionRecorder::takeView()
{
    const kernel::ViewState &view = document()->view();
    const double width = view.unitsPerPixel() * view.pixels.width();
    const auto corner = [&](double side) {
        return pointWord({view.centre.x + side * width / 2.0, view.centre.y + side * view.height / 2.0, 0.0});
    };
    m_view = placed(u"view %1 %2"_s.arg(corner(-1.0), corner(1.0)));
}

void SessionRecorder::takeDocument(const QString &what, const kernel::Document &document)
{
    m_view.clear();
    append(u"# %1: %2"_s.arg(what, document.title()));
}

QString SessionRecorder::placed(const QString &line) const
{
    const kernel::Document *now = document();
    return !now || now == m_recorded ? line : u"# in %1: %2"_s.arg(now->title(), line);
}

void SessionRecorder::takeOutcome(const kernel::RunResult &result)
{
    const bool wasCancelled = m_lines.indexOf(placed(u"cancel"_s), m_runStart) >= 0;
    if (!result.ok && !wasCancelled)
        add(result.isCancelled() ? u"# stopped with Esc, which a session cannot do here"_s
                                 : u"expect-error "_s + sessionWord(withoutPlace(result.error)));
    if (document() && !document()->impliedSelection().empty())
        add(u"lisp (sssetfirst nil nil)"_s);
}

void SessionRecorder::take(const kernel::PromptRequest &request, const kernel::InputAnswer &answer)
{
    const auto *text = std::get_if<kernel::TextAnswer>(&answer);
    if (!document() || (text && text->isFromScript))
        return;
    if (request.kind == kernel::PromptKind::Command)
        return takeCommand(answer);
    const QString line = lineFor(request, answer);
    add(line);
    const auto *point = std::get_if<kernel::PointAnswer>(&answer);
    m_hasOpenPoint = point && point->isByHand && kernel::takesPoints(request.kind);
}

void SessionRecorder::takeCommand(const kernel::InputAnswer &answer)
{
    const auto *typed = std::get_if<kernel::TextAnswer>(&answer);
    if (!typed)
        return;
    const QString text = typed->text.trimmed();
    if (text.startsWith(u'(') || text.startsWith(u'!'))
        return takeExpression(text.startsWith(u'!') ? text.mid(1) : text);
    addChosen();
    if (!text.isEmpty())
        m_lastCommand = text;
    if (m_lastCommand.isEmpty())
        return;
    m_runStart = m_lines.size();
    add(u"command "_s + sessionWord(m_lastCommand));
}

void SessionRecorder::takeExpression(const QString &text)
{
    addChosen();
    m_runStart = m_lines.size();
    add(u"lisp "_s + oneLine(text));
}

void SessionRecorder::addChosen()
{
    const std::vector<drawing::RecordId> &chosen = document()->impliedSelection();
    if (chosen.empty())
        return;
    QString line = u"lisp (progn (setq *chosen* (ssadd))"_s;
    for (const drawing::RecordId entity : chosen)
        line += u" (ssadd (handent \"%1\") *chosen*)"_s.arg(handleOf(*document(), entity));
    add(line + u" (sssetfirst nil *chosen*))"_s);
}

QString SessionRecorder::lineFor(const kernel::PromptRequest &request, const kernel::InputAnswer &answer)
{
    if (const auto *text = std::get_if<kernel::TextAnswer>(&answer))
        return lineForText(request, text->text);
    if (const auto *point = std::get_if<kernel::PointAnswer>(&answer))
        return lineForPoint(request, *point);
    if (const auto *entity = std::get_if<kernel::EntityAnswer>(&answer))
        return u"pickhandle %1 %2"_s.arg(handleOf(*document(), entity->entity), pointWord(entity->point));
    if (const auto *window = std::get_if<kernel::WindowAnswer>(&answer))
        return u"%1 %2 %3"_s.arg(window->first.x <= window->second.x ? u"window"_s : u"crossing"_s,
                                 pointWord(window->first), pointWord(window->second));
    if (const auto *entities = std::get_if<kernel::EntitiesAnswer>(&answer)) {
        QString line = u"select"_s;
        for (const drawing::RecordId entity : entities->entities)
            line += u' ' + handleOf(*document(), entity);
        return line;
    }
    if (const auto *key = std::get_if<kernel::KeyAnswer>(&answer))
        return key->code == 13 ? u"enter"_s : u"answer "_s + sessionWord(QString(QChar(key->code)));
    if (const auto *pointer = std::get_if<kernel::PointerAnswer>(&answer))
        return (pointer->isRightPress ? u"# the right button at "_s : u"hover "_s) + pointWord(pointer->point);
    return u"cancel"_s;
}

QString SessionRecorder::lineForPoint(const kernel::PromptRequest &request, const kernel::PointAnswer &answer)
{
    if (request.kind == kernel::PromptKind::Entity || request.kind == kernel::PromptKind::Selection) {
        const drawing::RecordId entity = kernel::Picker(*document()).entityAt(answer.point);
        if (drawing::isValid(entity))
            return u"pickhandle %1 %2"_s.arg(handleOf(*document(), entity), pointWord(answer.point));
    }
    return u"pick "_s + pointWord(answer.point);
}

void SessionRecorder::settlePoint(const drawing::Vec3 &world)
{
    const QString line = placed(u"pick "_s + pointWord(world));
    if (!std::exchange(m_hasOpenPoint, false) || m_lines.last() == line)
        return;
    m_lines.last() = line;
    save();
}

} // namespace host::app
