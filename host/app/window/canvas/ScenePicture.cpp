#include "host/app/window/canvas/ScenePicture.h"

#include <QElapsedTimer>

namespace host::app {

namespace {

/// The hand rests when it has not moved for so long, milliseconds.
constexpr int restTime = 40;
/// What one slice takes, so that the window answers between two frames.
constexpr qint64 sliceTime = 8;
/// Units of work, about microseconds, that are done at once; see view::WalkEffort.
constexpr std::int64_t quickWork = 20'000;
/// What is multiplied in one picture on the screen gets less than in one for a file.
constexpr std::int64_t screenWork = drawing::pictureWork / 4;
/// Pixels round a box, for what its lines cover.
constexpr int border = 2;
/// Beyond so many parts all is painted anew.
constexpr std::size_t mostParts = 256;

bool isSameView(const view::ViewTransform &a, const view::ViewTransform &b)
{
    return a.center() == b.center() && a.scale() == b.scale() && a.screenSize() == b.screenSize();
}

QImage blankSheet(const SceneLook &look)
{
    QImage sheet((look.view.screenSize() * look.pixelRatio).toSize(), QImage::Format_RGB32);
    sheet.setDevicePixelRatio(look.pixelRatio);
    sheet.fill(view::groundColor(look.ground));
    return sheet;
}

drawing::Box worldBox(const view::ViewTransform &view, const QRectF &part)
{
    drawing::Box box;
    for (const QPointF &corner : {part.topLeft(), part.bottomRight()}) {
        const drawing::Vec2 at = view.toWorld(corner);
        box.add(drawing::Vec3{at.x, at.y, 0.0});
    }
    return box;
}

} // namespace

struct ScenePicture::Painting
{
    Painting(view::Scene &scene, const SceneLook &wanted, const view::PaintOptions &options,
             const view::RecordSet &highlighted)
        : look(wanted), marked(highlighted), sheet(blankSheet(wanted)), painter(&sheet),
          painting(painter, scene, wanted.space, wanted.view, withMarks(options)), revision(scene.drawing().revision())
    {
    }

    view::PaintOptions withMarks(view::PaintOptions options) const
    {
        options.highlighted = &marked;
        return options;
    }

    SceneLook look;
    view::RecordSet marked;
    QImage sheet;
    QPainter painter;
    view::ScenePainting painting;
    quint64 revision;
};

ScenePicture::ScenePicture(view::Scene &scene) : m_scene(scene)
{
    m_rest.setSingleShot(true);
    connect(&m_rest, &QTimer::timeout, this, &ScenePicture::refine);
}

ScenePicture::~ScenePicture() = default;

void ScenePicture::renew()
{
    m_isStale = true;
    m_painting.reset();
}

void ScenePicture::setHighlighted(view::RecordSet highlighted)
{
    m_wanted = std::move(highlighted);
    m_painting.reset();
}

view::PaintOptions ScenePicture::options(const SceneLook &look) const
{
    view::PaintOptions options;
    options.ground = look.ground;
    options.highlighted = &m_highlighted;
    options.work = screenWork;
    options.pixelsPerMillimetre = look.pixelsPerMillimetre;
    return options;
}

bool ScenePicture::isSameSheet(const SceneLook &look) const
{
    return !m_shown.isNull() && look.space == m_look.space && look.ground == m_look.ground &&
           look.pixelsPerMillimetre == m_look.pixelsPerMillimetre && look.defaultWeight == m_look.defaultWeight &&
           look.pixelRatio == m_look.pixelRatio && look.view.screenSize() == m_look.view.screenSize();
}

void ScenePicture::paint(QPainter &painter, const SceneLook &look)
{
    m_scene.appearance().setDefaultWeight(look.defaultWeight);
    const view::Damage damage = m_scene.takeDamage(look.space);
    if (m_painting &&
        (damage.isEverywhere || !damage.boxes.empty() || !isSameView(m_painting->look.view, look.view) ||
         m_painting->look.space != look.space || m_painting->look.pixelsPerMillimetre != look.pixelsPerMillimetre ||
         m_painting->revision != m_scene.drawing().revision()))
        m_painting.reset();
    if (!isSameSheet(look)) {
        m_shown = {};
        m_isStale = true;
    }
    // Wide lines reach beyond the boxes of what has changed.
    m_isStale |= damage.isEverywhere || (look.pixelsPerMillimetre > 0.0 && !damage.boxes.empty());
    if (!m_isStale)
        repaintChanges(damage);
    const bool isRight = !m_isStale && (isSameView(m_look.view, look.view) || shiftTo(look));
    if (!isRight && isQuick(look, {QRectF(QPointF(), look.view.screenSize())}))
        paintWhole(look);
    m_isProvisional = m_isStale || !isSameView(m_look.view, look.view);
    if (m_isProvisional) {
        // Painting the same again, for the pointer's sake, is no move of the hand.
        const bool isMove = !m_rest.isActive() || !isSameView(m_refinedLook.view, look.view);
        m_refinedLook = look;
        if (!m_painting && isMove)
            m_rest.start(m_shown.isNull() ? 0 : restTime);
    } else {
        m_rest.stop();
    }
    drawMoved(painter, look);
}

/// What was changed, and what is marked otherwise, in the picture as it stands.
void ScenePicture::repaintChanges(const view::Damage &damage)
{
    std::vector<drawing::Box> boxes = damage.boxes;
    std::ranges::copy(highlightChanges(), std::back_inserter(boxes));
    m_highlighted = m_wanted;
    m_isStale = !boxes.empty() && !repaintParts(boxes);
}

/// Of the records that are marked now and were not, or the other way round. One without a box shows anywhere.
std::vector<drawing::Box> ScenePicture::highlightChanges() const
{
    std::vector<drawing::Box> boxes;
    const auto addMissing = [&](const view::RecordSet &some, const view::RecordSet &others) {
        for (const drawing::RecordId record : some) {
            if (boxes.size() > mostParts)
                return;
            const view::RecordSummary *summary = others.contains(record) ? nullptr : m_scene.find(m_look.space, record);
            if (summary)
                boxes.push_back(summary->isEndless ? worldBox(m_look.view, QRectF(QPointF(), m_look.view.screenSize()))
                                                   : summary->box);
        }
    };
    if (m_highlighted != m_wanted) {
        addMissing(m_wanted, m_highlighted);
        addMissing(m_highlighted, m_wanted);
    }
    return boxes;
}

bool ScenePicture::repaintParts(const std::vector<drawing::Box> &boxes)
{
    if (boxes.size() > mostParts || m_scene.appearance().reachesBeyondBoxes())
        return false;
    const QRectF screen(QPointF(), m_look.view.screenSize());
    std::vector<QRectF> parts;
    for (const drawing::Box &box : boxes) {
        if (box.isEmpty())
            continue;
        const QRectF reach =
            QRectF(m_look.view.toScreen(box.low.xy()), m_look.view.toScreen(box.high.xy())).normalized();
        const QRectF part = reach.adjusted(-border, -border, border, border) & screen;
        if (!part.isEmpty())
            parts.emplace_back(part.toAlignedRect());
    }
    if (!isQuick(m_look, parts))
        return false;
    for (const QRectF &part : parts)
        paintPart(part.toRect());
    return true;
}

void ScenePicture::paintPart(const QRect &part)
{
    QPainter painter(&m_shown);
    view::PaintOptions partly = options(m_look);
    partly.part = part;
    view::paintScene(painter, m_scene, m_look.space, m_look.view, partly);
}

/// By whole pixels, with what comes into view at the edges painted; false when that takes too long.
bool ScenePicture::shiftTo(const SceneLook &look)
{
    const QPointF shift = look.view.toScreen(m_look.view.center()) - m_look.view.toScreen(m_look.view.center());
    const QPointF pixels = shift * look.pixelRatio;
    const QPointF whole(std::round(pixels.x()), std::round(pixels.y()));
    const QSizeF size = look.view.screenSize();
    if (look.view.scale() != m_look.view.scale() || (pixels - whole).manhattanLength() > 0.01 ||
        look.pixelRatio != std::round(look.pixelRatio) || std::abs(shift.x()) >= size.width() ||
        std::abs(shift.y()) >= size.height() || m_scene.appearance().reachesBeyondBoxes()) {
        return false;
    }
    // Lines that the edge of the picture cut off end some pixels from it.
    constexpr double edge = 2.0;
    std::vector<QRectF> parts;
    if (whole.x() != 0.0)
        parts.emplace_back(whole.x() > 0.0 ? 0.0 : size.width() + shift.x() - edge, 0.0, std::abs(shift.x()) + edge,
                           size.height());
    if (whole.y() != 0.0)
        parts.emplace_back(0.0, whole.y() > 0.0 ? 0.0 : size.height() + shift.y() - edge, size.width(),
                           std::abs(shift.y()) + edge);
    if (!isQuick(look, parts))
        return false;
    QImage moved = blankSheet(look);
    {
        QPainter painter(&moved);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.drawImage(whole / look.pixelRatio, m_shown);
    }
    m_shown = std::move(moved);
    m_look = look;
    std::ranges::for_each(parts, [this](const QRectF &part) { paintPart(part.toAlignedRect()); });
    return true;
}

/// By how many records are in the parts, how much work those of the last picture were, and the heaviest of them.
bool ScenePicture::isQuick(const SceneLook &look, const std::vector<QRectF> &parts)
{
    const double average =
        m_effort.records > 0 ? static_cast<double>(m_effort.units) / static_cast<double>(m_effort.records) : 4.0;
    const double most = (quickWork - static_cast<double>(m_effort.heaviest)) / std::max(average, 1.0);
    double records = 0.0;
    for (std::size_t i = 0; i < parts.size() && records <= most; ++i) {
        records += static_cast<double>(
            m_scene.recordsIn(look.space, worldBox(look.view, parts[i]), static_cast<std::size_t>(most) + 1).size());
    }
    return records <= most;
}

void ScenePicture::paintWhole(const SceneLook &look)
{
    Painting painting(m_scene, look, options(look), m_wanted);
    painting.painting.paint();
    take(painting);
}

void ScenePicture::take(Painting &painting)
{
    const view::PaintResult result = painting.painting.result();
    m_effort = result.effort;
    m_isCutShort = result.isCutShort;
    m_look = painting.look;
    m_highlighted = painting.marked;
    m_shown = painting.sheet;
    m_isStale = false;
}

/// Magnified as well, where the picture was made for another view.
void ScenePicture::drawMoved(QPainter &painter, const SceneLook &look) const
{
    const QRectF screen(QPointF(), look.view.screenSize());
    if (!m_isProvisional)
        return painter.drawImage(QPointF(), m_shown);
    painter.fillRect(screen, view::groundColor(look.ground));
    if (m_shown.isNull()) {
        if (m_painting)
            painter.drawImage(QPointF(), m_painting->sheet);
        return;
    }
    const QRectF before(QPointF(), m_look.view.screenSize());
    const QRectF place(look.view.toScreen(m_look.view.toWorld(before.topLeft())),
                       look.view.toScreen(m_look.view.toWorld(before.bottomRight())));
    // Only the part in sight: a picture magnified a thousand times is larger than painters can tell.
    const QRectF seen = place & screen;
    if (seen.isEmpty())
        return;
    const double shrink = before.width() / place.width() * m_shown.devicePixelRatio();
    const QRectF source(QPointF((seen.left() - place.left()) * shrink, (seen.top() - place.top()) * shrink),
                        seen.size() * shrink);
    painter.drawImage(seen, m_shown, source);
}

/// One slice. What has changed since the last one makes it begin anew.
void ScenePicture::refine()
{
    if (m_painting && m_painting->revision != m_scene.drawing().revision())
        m_painting.reset();
    if (!m_painting)
        m_painting = std::make_unique<Painting>(m_scene, m_refinedLook, options(m_refinedLook), m_wanted);
    QElapsedTimer time;
    time.start();
    if (m_painting->painting.paint([&time] { return time.elapsed() < sliceTime; })) {
        take(*m_painting);
        m_painting.reset();
        emit refined();
        return;
    }
    if (m_shown.isNull())
        emit refined();
    m_rest.start(0);
}

} // namespace host::app
