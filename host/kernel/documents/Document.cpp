#include "host/kernel/documents/Document.h"

#include "files/qt/VisibleText.h"
#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Tables.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/CurrentView.h"
#include "host/kernel/documents/ExpressionSurroundings.h"
#include "host/kernel/documents/Results.h"
#include "host/kernel/documents/ScreenSketch.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/files/DrawingBackup.h"
#include "host/kernel/input/PointAim.h"
#include "host/kernel/input/UserInput.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/lisp/EntityMaker.h"
#include "host/kernel/lisp/LispConsole.h"
#include "host/kernel/lisp/LispEngine.h"
#include "host/kernel/lisp/NativeFunctions.h"
#include "host/kernel/platform/DrawingDatabase.h"
#include "host/kernel/platform/Editor.h"
#include "host/kernel/platform/SelectionInput.h"
#include "host/kernel/running/CommandRun.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/lisp/Interpreter.h"
#include "host/view/build/EntityExtents.h"
#include "host/view/build/Scene.h"
#include "host/view/build/TextMeasure.h"

#include <QDir>
#include <QFileInfo>

namespace host::kernel {

namespace {

/// The setting that the command setbackupfolder changes; its local name is the same in lower case.
const QString backupFolderName = QStringLiteral("SETBACKUPFOLDER");

/// What the file's active viewport showed.
ViewState viewOf(const drawing::Drawing &drawing)
{
    ViewState view;
    const drawing::RecordId viewport = drawing.tables().find(drawing::TableKind::Viewport, u"*Active");
    if (!isValid(viewport))
        return view;
    const drawing::TagList tags = drawing.tags(viewport);
    const double height = tags.real(40);
    if (height > 0.0 && std::isfinite(height)) {
        view.centre = tags.point(12).xy();
        view.height = height;
    }
    return view;
}

} // namespace

Document::Document(Session &session, std::unique_ptr<drawing::Drawing> drawing, DrawingClaim claim,
                   const QString &untitledName)
    : m_session(session), m_drawing(std::move(drawing)), m_claim(std::move(claim)), m_untitledName(untitledName),
      m_undoSteps(m_drawing->journal()), m_variables(std::make_unique<SystemVariables>(*this)),
      m_userInput(std::make_unique<UserInput>(*this)), m_selectionInput(std::make_unique<SelectionInput>(*this)),
      m_database(std::make_unique<DrawingDatabase>(*this)), m_console(std::make_unique<LispConsole>(*this)),
      m_boxes(std::make_unique<drawing::BoxCache>(*m_drawing)), m_entityMaker(std::make_unique<EntityMaker>(*this)),
      m_aim(std::make_unique<PointAim>()), m_sketch(std::make_unique<ScreenSketch>()),
      m_results(std::make_unique<Results>()), m_view(viewOf(*m_drawing)), m_shownLayout(currentLayout(*m_drawing))
{
}

Document::~Document() = default;

view::TextMeasure &Document::textMeasure() const
{
    if (!m_textMeasure)
        m_textMeasure = std::make_unique<view::TextMeasure>(*m_drawing);
    return *m_textMeasure;
}

view::Scene &Document::scene()
{
    if (m_lentScene)
        return *m_lentScene;
    if (!m_scene)
        m_scene = std::make_unique<view::Scene>(*m_drawing, expressionSurroundings(*this));
    return *m_scene;
}

view::EntityExtents &Document::entityExtents()
{
    if (!m_entityExtents)
        m_entityExtents = std::make_unique<view::EntityExtents>(*m_drawing, expressionSurroundings(*this));
    return *m_entityExtents;
}

lisp::Interpreter &Document::interpreter()
{
    return *m_interpreter;
}

QString Document::title() const
{
    return path().isEmpty() ? m_untitledName : QFileInfo(path()).fileName();
}

bool Document::isModified() const
{
    return m_drawing->journal().isModified();
}

void Document::openLisp()
{
    m_interpreter = std::make_unique<lisp::Interpreter>(*m_console);
    addNativeFunctions(*m_interpreter);
    m_lispEngine = std::make_unique<LispEngine>(*this);
}

void Document::closeLisp()
{
    m_pendingCommand.reset();
    m_lispEngine.reset();
    m_interpreter.reset();
}

drawing::SaveResult Document::save(Overrule overrule)
{
    if (path().isEmpty())
        return {Kernel::tr("%1 has no file yet.").arg(title())};
    return saveAs(path(), overrule);
}

drawing::SaveResult Document::saveAs(const QString &path, Overrule overrule)
{
    const std::optional<WriteObstacle> obstacle = obstacleToWriting(path, &m_session, this);
    if (obstacle && !(overrule == Overrule::Obstacles && obstacle->mayBeOverruled()))
        return notWritten(obstacle->text);
    if (canonicalFile(path) == m_claim.file()) {
        const drawing::SaveResult result = saveUnder(path, m_claim);
        emit titleChanged();
        return result;
    }
    const bool isOverruled = overrule == Overrule::Obstacles || m_session.overrule() == Overrule::Obstacles;
    DrawingClaim next(path, isOverruled ? OpenMode::Anyway : OpenMode::Alone);
    // Another process may have been faster than the look above.
    if (next.holder())
        return notWritten(openElsewhere(path, *next.holder()).text);
    const drawing::SaveResult result = saveUnder(path, next);
    if (result)
        m_claim = std::move(next);
    emit titleChanged();
    return result;
}

drawing::SaveResult Document::notWritten(const QString &reason)
{
    m_session.tellNotWritten(reason);
    return {reason};
}

drawing::SaveResult Document::saveUnder(const QString &path, DrawingClaim &claim)
{
    // What the reactors store belongs into the file.
    runAs(QStringLiteral("SAVE"), [&] {
        m_session.editor().beginSave(m_database.get(), path);
        m_variables->storeObjectSettings();
    });
    const drawing::SaveResult result = write(path, [&] { return drawing::save(*m_drawing, path); });
    if (result) {
        claim.noteWritten(*m_drawing);
        m_isRecovered = false;
    }
    return result;
}

drawing::SaveResult Document::saveCopy(const QString &path)
{
    if (const std::optional<WriteObstacle> obstacle = obstacleToWriting(path, &m_session, this))
        return {obstacle->text};
    const bool isOwn = m_claim.isOf(path);
    const drawing::SaveResult result = write(path, [&] { return drawing::saveCopy(*m_drawing, path); });
    if (result && isOwn)
        m_claim.noteWritten(*m_drawing);
    return result;
}

drawing::SaveResult Document::write(const QString &path, const std::function<drawing::SaveResult()> &writeFile)
{
    DrawingBackup backup(path, m_session.settings().text(backupFolderName, backupFolderName.toLower()));
    const drawing::SaveResult result = writeFile();
    const QString problem = result ? backup.finish() : QString();
    if (!problem.isEmpty())
        print(u'\n' + problem + u'\n');
    if (!result || !problem.isEmpty())
        m_session.tellNotWritten(result ? problem : result.error);
    return result;
}

void Document::clearSketch()
{
    if (m_sketch->lines().empty())
        return;
    m_sketch->clear();
    emit sketchChanged();
}

void Document::setView(const ViewState &view)
{
    m_view = view;
    emit viewChanged();
}

void Document::zoomTo(const drawing::Box &box)
{
    if (!box.isEmpty())
        setView(fittedTo(m_view, box));
}

void Document::followLayout()
{
    const QString now = currentLayout(*m_drawing);
    if (now == m_shownLayout)
        return;
    m_layoutViews.insert(m_shownLayout, m_view);
    m_shownLayout = now;
    // What is chosen elsewhere is not to be seen.
    setImpliedSelection({});
    if (const auto known = m_layoutViews.constFind(now); known != m_layoutViews.constEnd()) {
        ViewState view = *known;
        view.pixels = m_view.pixels;
        setView(view);
    } else {
        zoomTo(drawing::spaceBox(*m_drawing, currentEntities(*m_drawing)));
    }
    emit layoutChanged();
}

void Document::rememberView(const ViewState &view)
{
    constexpr std::size_t most = 10;
    if (m_earlierViews.size() == most)
        m_earlierViews.erase(m_earlierViews.begin());
    m_earlierViews.push_back(view);
}

bool Document::showEarlierView()
{
    if (m_earlierViews.empty())
        return false;
    ViewState view = m_earlierViews.back();
    m_earlierViews.pop_back();
    view.pixels = m_view.pixels;
    setView(view);
    return true;
}

void Document::setHighlighted(std::vector<drawing::RecordId> entities)
{
    m_highlighted = std::move(entities);
    emit highlightChanged();
}

void Document::setPreviousSelection(std::vector<drawing::RecordId> entities)
{
    m_previousSelection = std::move(entities);
}

void Document::setImpliedSelection(std::vector<drawing::RecordId> entities)
{
    m_impliedSelection = std::move(entities);
    emit impliedSelectionChanged();
}

void Document::print(const QString &text)
{
    emit printed(text);
}

void Document::printPrompt(const QString &text)
{
    if (text.isEmpty())
        return;
    m_session.editor().sysVarWillChange(m_database.get(), QStringLiteral("LASTPROMPT"));
    m_variables->setInternally(u"LASTPROMPT", text.trimmed());
    mutter(text);
}

void Document::mutter(const QString &text)
{
    if (m_variables->integer(u"NOMUTT") == 0)
        print(text);
}

QString Document::findFile(const QString &asked) const
{
    // Programs write both separators.
    const QString name = QString(asked).replace(u'\\', u'/');
    if (name.isEmpty())
        return {};
    const auto isFile = [](const QString &candidate) { return QFileInfo(candidate).isFile(); };
    if (QDir::isAbsolutePath(name))
        return isFile(name) ? QDir::cleanPath(name) : QString();
    if (TrustedFolders::isProgram(name))
        return m_session.trustedFolders().findTrusted(*this, name);
    QStringList folders = {QDir::currentPath()};
    if (!path().isEmpty())
        folders.append(QFileInfo(path()).absolutePath());
    folders += m_session.supportFolders();
    folders.append(m_session.home());
    for (const QString &folder : folders)
        if (const QString candidate = folder + u'/' + name; isFile(candidate))
            return QDir::cleanPath(QFileInfo(candidate).absoluteFilePath());
    return {};
}

QString Document::findNamedFile(const QString &name)
{
    return drawing::namedFiles(*m_drawing, m_session.trustedFolders().readable(*this))(name);
}

void Document::allowReading(const QString &path)
{
    m_readableFiles.append(QFileInfo(path).canonicalFilePath());
}

void Document::tellUnread(const QString &path, const QString &reason)
{
    constexpr qsizetype mostTold = 20;
    if (m_unread.contains(path) || m_unread.size() > mostTold)
        return;
    m_unread.insert(path);
    print(m_unread.size() > mostTold
              ? Kernel::tr("\nMore files that the drawing names were not read.\n")
              : Kernel::tr("\n%1 was not read: %2.\n").arg(files::visibleText(QDir::toNativeSeparators(path)), reason));
}

void Document::tellIncomplete(const QString &path, const drawing::ReadingNotes &notes)
{
    if (m_incomplete.contains(path))
        return;
    countIncompleteAsTold(path);
    print(QStringLiteral("\n%1: %2.\n").arg(files::visibleText(QDir::toNativeSeparators(path)), notes.summary()));
}

void Document::countIncompleteAsTold(const QString &path)
{
    m_incomplete.insert(QFileInfo(path).canonicalFilePath());
}

void Document::addKeptBack(const KeptBack &item)
{
    if (m_keptBack.add(item))
        emit keptBackChanged();
}

void Document::removeKeptBack(const KeptBack &item)
{
    m_keptBack.remove(item);
    m_unread.remove(item.path);
    emit keptBackChanged();
}

CKvLispEngine *Document::lispEngine()
{
    return m_lispEngine.get();
}

CKvSelectionInput *Document::selectionInput()
{
    return m_selectionInput.get();
}

CKvUserInput *Document::userInput()
{
    return m_userInput.get();
}

OdDbDatabase *Document::database()
{
    return m_database.get();
}

OdString Document::systemVariable(const OdString &name) const
{
    return m_variables->display(name);
}

drawing::Matrix Document::userAxes() const
{
    const drawing::HeaderVariables &header = m_drawing->header();
    const bool isModel = currentSpace(*m_drawing) == drawing::Space::Model;
    const auto name = [&](const char *end) {
        return (isModel ? QStringLiteral("$UCS") : QStringLiteral("$PUCS")) + QLatin1String(end);
    };
    drawing::Matrix axes;
    axes.origin = header.point(name("ORG"));
    axes.xAxis = drawing::normalized(header.point(name("XDIR"), axes.xAxis));
    axes.yAxis = drawing::normalized(header.point(name("YDIR"), axes.yAxis));
    axes.zAxis = drawing::cross(axes.xAxis, axes.yAxis);
    return axes;
}

OdGePoint3d Document::userToWorld(const OdGePoint3d &point) const
{
    const drawing::Vec3 world = userAxes().point({point.x, point.y, point.z});
    return {world.x, world.y, world.z};
}

OdGePoint3d Document::worldToUser(const OdGePoint3d &point) const
{
    const drawing::Vec3 user = userAxes().inverted().point({point.x, point.y, point.z});
    return {user.x, user.y, user.z};
}

} // namespace host::kernel
