#include "host/kernel/input/SelectionBuilder.h"

#include "host/drawing/records/Entities.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/KeywordCatalogue.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/kernel/variables/SystemVariables.h"

namespace host::kernel {

namespace {

using drawing::RecordId;

const QStringList &selectionWords()
{
    static const QStringList words = {
        QStringLiteral("Window"),   QStringLiteral("Last"),  QStringLiteral("Crossing"), QStringLiteral("BOX"),
        QStringLiteral("ALL"),      QStringLiteral("Fence"), QStringLiteral("WPolygon"), QStringLiteral("CPolygon"),
        QStringLiteral("Group"),    QStringLiteral("Add"),   QStringLiteral("Remove"),   QStringLiteral("Multiple"),
        QStringLiteral("Previous"), QStringLiteral("Undo"),  QStringLiteral("AUto"),     QStringLiteral("SIngle")};
    return words;
}

} // namespace

SelectionStep shapeStep(const Document &document, ShapeKind kind, const std::vector<drawing::Vec3> &points)
{
    using Way = SelectionStep::Way;
    SelectionStep step{.way = Way::Crossing, .points = points, .entities = {}};
    if (kind == ShapeKind::Window || kind == ShapeKind::WindowPolygon)
        step.way = Way::Window;
    else if (kind == ShapeKind::Fence)
        step.way = Way::Fence;
    const bool isBox = kind == ShapeKind::Window || kind == ShapeKind::Crossing;
    if (isBox && points.size() == 2) {
        const drawing::Vec3 low = toUser(document, points[0]);
        const drawing::Vec3 high = toUser(document, points[1]);
        step.points = {points[0], toWorld(document, {high.x, low.y, low.z}), points[1],
                       toWorld(document, {low.x, high.y, low.z})};
    }
    return step;
}

SelectionBuilder::SelectionBuilder(Document &document, SelectionSize size, std::function<bool(RecordId)> accepts)
    : m_document(document), m_size(size), m_accepts(std::move(accepts)), m_companions(document)
{
}

void SelectionBuilder::setPrompt(const QString &prompt)
{
    m_prompt = prompt;
}

bool SelectionBuilder::isPolygon() const
{
    return m_shape && m_shape != ShapeKind::Window && m_shape != ShapeKind::Crossing;
}

PromptRequest SelectionBuilder::request() const
{
    PromptRequest request;
    request.forCommand = true;
    request.bits = OutsideLimits;
    if (!m_entities.empty() && m_document.variables().integer(u"HIGHLIGHT", 1) != 0)
        request.chosen = std::make_shared<const std::vector<RecordId>>(m_entities);
    if (m_isByNames) {
        request.kind = PromptKind::String;
        request.prompt = Kernel::tr("\nEnter group name: ");
        return request;
    }
    if (!m_shape) {
        request.kind = PromptKind::Selection;
        request.prompt = m_isRemoving ? Kernel::tr("\nRemove objects: ") : m_prompt;
        request.keywords = m_options + selectionWords();
        return inLanguage(std::move(request), m_document.commandName());
    }
    request.kind = PromptKind::Point;
    if (m_corners.empty()) {
        request.prompt = isPolygon() ? Kernel::tr("\nFirst point: ") : Kernel::tr("\nSpecify first corner: ");
        return request;
    }
    request.base = m_corners.back();
    request.kind = isPolygon() ? PromptKind::Point : PromptKind::Corner;
    request.prompt = isPolygon() ? Kernel::tr("\nNext point: ") : Kernel::tr("\nSpecify opposite corner: ");
    return request;
}

void SelectionBuilder::add(const PromptReply &reply)
{
    if (reply.kind == ReplyKind::Cancelled) {
        m_isCancelled = m_isDone = true;
        return;
    }
    if (m_shape)
        addShapePoint(reply);
    else if (m_isByNames)
        addGroup(reply);
    else
        addIdle(reply);
}

void SelectionBuilder::addIdle(const PromptReply &reply)
{
    // Programs mean a window by two points whatever PICKAUTO is; the user may have it otherwise.
    const bool startsWindow = m_isByProgram || (m_document.variables().integer(u"PICKAUTO", 5) & 1) != 0;
    if (reply.isEmpty()) {
        m_isDone = !std::exchange(m_isMultiple, false);
    } else if (reply.kind == ReplyKind::Keyword && m_options.contains(reply.text)) {
        m_option = reply.text;
        m_isDone = true;
    } else if (reply.kind == ReplyKind::Keyword) {
        addWord(reply.text);
    } else if (reply.isWindow) {
        m_shape = reply.corner.x < reply.point.x ? ShapeKind::Crossing : ShapeKind::Window;
        m_corners = {reply.point, reply.corner};
        finishShape();
    } else if (reply.entities.empty() && !reply.isSet && (m_isMultiple || !startsWindow)) {
        tellFound(0);
    } else if (reply.entities.empty() && m_size != SelectionSize::OnePicking) {
        // Nothing at the picked point: it is the first corner of a window.
        m_shape = ShapeKind::Window;
        m_shapeByDirection = true;
        m_corners = {reply.point};
    } else {
        takeAnswered(reply);
    }
}

/// What a program chose before keeps the steps by which it did.
void SelectionBuilder::takeAnswered(const PromptReply &reply)
{
    const bool isKept = reply.steps && !m_isRemoving;
    if (!reply.isSet)
        startOver();
    take(reply.isSet ? reply.entities : withCompanions(reply.entities),
         {.way = isKept ? SelectionStep::Way::Other : SelectionStep::Way::Pick,
          .points = isKept ? std::vector<drawing::Vec3>() : std::vector{reply.point},
          .entities = {}});
    if (isKept)
        m_steps.insert(m_steps.end(), reply.steps->begin(), reply.steps->end());
}

void SelectionBuilder::addWord(const QString &word)
{
    static const QHash<QString, ShapeKind> shapes = {{QStringLiteral("Window"), ShapeKind::Window},
                                                     {QStringLiteral("BOX"), ShapeKind::Window},
                                                     {QStringLiteral("Crossing"), ShapeKind::Crossing},
                                                     {QStringLiteral("Fence"), ShapeKind::Fence},
                                                     {QStringLiteral("WPolygon"), ShapeKind::WindowPolygon},
                                                     {QStringLiteral("CPolygon"), ShapeKind::CrossingPolygon}};
    if (const auto shape = shapes.constFind(word); shape != shapes.constEnd()) {
        m_shape = *shape;
        m_shapeByDirection = word == QStringLiteral("BOX");
        m_corners.clear();
    } else if (word == QStringLiteral("ALL")) {
        take(Picker(m_document).thawed());
    } else if (word == QStringLiteral("Last")) {
        const std::vector<RecordId> all = Picker(m_document).visible();
        take(all.empty() ? all : std::vector<RecordId>{all.back()});
    } else if (word == QStringLiteral("Previous")) {
        take(m_document.previousSelection());
    } else if (word == QStringLiteral("SIngle")) {
        m_size = SelectionSize::Single;
    } else if (word == QStringLiteral("Group")) {
        m_isByNames = true;
    } else if (word == QStringLiteral("Multiple")) {
        m_isMultiple = true;
    } else if (word == QStringLiteral("AUto")) {
        m_isMultiple = false;
    } else if (word == QStringLiteral("Undo")) {
        undoStep();
    } else {
        m_isRemoving = word == QStringLiteral("Remove");
        m_isAdding = !m_isRemoving;
    }
}

void SelectionBuilder::undoStep()
{
    if (m_before.empty())
        return m_document.mutter(Kernel::tr("\nCommand has been completely undone."));
    m_entities = std::move(m_before.back());
    m_before.pop_back();
    m_members.clear();
    for (RecordId id : m_entities)
        m_members.insert(quint32(id));
}

/// Asked again while there is no group of that name; nothing gives it up.
void SelectionBuilder::addGroup(const PromptReply &reply)
{
    const QString name = reply.hasValue() ? reply.text.trimmed() : QString();
    const std::optional<std::vector<RecordId>> members = m_companions.group(name);
    m_isByNames = !members && !name.isEmpty();
    if (members)
        take(*members);
    else if (m_isByNames)
        m_document.mutter(Kernel::tr("\nCannot find group \"%1\".").arg(name));
}

/// With PICKADD 0 a user's pick or window takes the place of what was chosen before.
void SelectionBuilder::startOver()
{
    if (m_isByProgram || m_isRemoving || m_isAdding || m_isMultiple ||
        m_document.variables().integer(u"PICKADD", 2) != 0)
        return;
    m_before.push_back(std::exchange(m_entities, {}));
    m_members.clear();
}

void SelectionBuilder::addShapePoint(const PromptReply &reply)
{
    if (reply.hasValue()) {
        m_corners.push_back(reply.point);
        if (!isPolygon() && m_corners.size() == 2)
            finishShape();
        return;
    }
    // An empty answer ends a polygon and gives up a window.
    if (isPolygon() && m_corners.size() >= 2)
        finishShape();
    else
        m_shape.reset();
}

void SelectionBuilder::finishShape()
{
    ShapeKind kind = *m_shape;
    if (m_shapeByDirection)
        kind = m_corners[1].x < m_corners[0].x ? ShapeKind::Crossing : ShapeKind::Window;
    m_shape.reset();
    m_shapeByDirection = false;
    startOver();
    const std::vector<RecordId> found = withCompanions(Picker(m_document).inShape(kind, m_corners));
    SelectionStep step = shapeStep(m_document, kind, m_corners);
    if (!m_isRemoving)
        step.found = found;
    take(found, std::move(step));
}

void SelectionBuilder::take(const std::vector<RecordId> &found, SelectionStep step)
{
    m_before.push_back(m_entities);
    int count = 0;
    QSet<quint32> removed;
    for (RecordId id : found) {
        if (!m_document.drawing().isAlive(id) || (m_accepts && !m_accepts(id)))
            continue;
        ++count;
        if (m_isRemoving && m_members.remove(quint32(id)))
            removed.insert(quint32(id));
        else if (!m_isRemoving && !m_members.contains(quint32(id))) {
            m_members.insert(quint32(id));
            m_entities.push_back(id);
            step.entities.push_back(id);
        }
    }
    std::erase_if(m_entities, [&](RecordId id) { return removed.contains(quint32(id)); });
    if (!step.entities.empty() || !step.found.empty())
        m_steps.push_back(std::move(step));
    tellFound(count);
    if (m_size != SelectionSize::Many && (m_size != SelectionSize::Single || count > 0))
        m_isDone = true;
}

std::vector<RecordId> SelectionBuilder::withCompanions(std::vector<RecordId> picked)
{
    return m_isAlone ? picked : m_companions.withCompanions(picked);
}

void SelectionBuilder::tellFound(int count) const
{
    const bool isFirst = m_before.empty() || m_before.back().empty();
    if (!m_isByProgram || m_document.variables().integer(u"CMDECHO", 1) != 0)
        m_document.mutter(isFirst ? Kernel::tr("\n%1 found").arg(count)
                                  : Kernel::tr("\n%1 found, %2 total").arg(count).arg(m_entities.size()));
}

} // namespace host::kernel
