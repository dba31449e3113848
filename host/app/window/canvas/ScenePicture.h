#pragma once

#include "host/view/paint/ScenePainter.h"

#include <QImage>
#include <QObject>
#include <QTimer>

#include <memory>

namespace host::app {

/// How a canvas wants to see a scene. The pixels are those of the screen.
struct SceneLook
{
    view::ViewTransform view;
    int space = view::Scene::modelSpace;
    view::Ground ground = view::Ground::Black;
    double pixelRatio = 1.0;
    double pixelsPerMillimetre = 0.0; ///< of lineweights; 0: thin lines
    int defaultWeight = 25;           ///< hundredths of a millimetre
};

/// The picture of a scene that a canvas shows.
///
/// What is quickly done is done at once: small drawings, what an edit or a selection changes, the edges that a pan
/// brings into view. For all else the picture that is there is moved and magnified meanwhile, and painted anew in short
/// slices while the hand rests, so that the window never waits for it. How long something takes is judged by how much
/// there is, not by the clock, so that the same is shown on every machine.
class ScenePicture final : public QObject
{
    Q_OBJECT

public:
    /// The scene must outlive it.
    explicit ScenePicture(view::Scene &scene);
    ~ScenePicture() override;

    /// Draws the scene from the painter's origin, as well as it is known now.
    void paint(QPainter &painter, const SceneLook &look);
    /// Records of the space to be marked from the next paint() on.
    void setHighlighted(view::RecordSet highlighted);
    /// Everything is painted anew.
    void renew();
    /// Whether what was last drawn is to be put right yet.
    bool isProvisional() const { return m_isProvisional; }
    /// Whether the last whole picture lacks part of the scene; see view::PaintResult.
    bool isCutShort() const { return m_isCutShort; }

signals:
    /// There is a better picture than the one last drawn.
    void refined();

private:
    struct Painting;

    void repaintChanges(const view::Damage &damage);
    bool repaintParts(const std::vector<drawing::Box> &boxes);
    std::vector<drawing::Box> highlightChanges() const;
    bool shiftTo(const SceneLook &look);
    void paintPart(const QRect &part);
    void paintWhole(const SceneLook &look);
    void drawMoved(QPainter &painter, const SceneLook &look) const;
    void refine();
    void take(Painting &painting);

    bool isQuick(const SceneLook &look, const std::vector<QRectF> &parts);
    bool isSameSheet(const SceneLook &look) const;
    view::PaintOptions options(const SceneLook &look) const;

    view::Scene &m_scene;
    view::RecordSet m_wanted;      ///< what is to be marked
    view::RecordSet m_highlighted; ///< what is marked in the picture
    QImage m_shown;                ///< exactly what m_look says, unless it is stale; null before the first one
    SceneLook m_look;
    bool m_isStale = true; ///< part of what m_shown shows has changed
    bool m_isProvisional = false;
    bool m_isCutShort = false;
    view::WalkEffort m_effort; ///< of the last whole picture
    QTimer m_rest;             ///< until the next slice
    SceneLook m_refinedLook;
    std::unique_ptr<Painting> m_painting; ///< that is under way in slices
};

} // namespace host::app
