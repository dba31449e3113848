#pragma once

#include "host/app/window/canvas/AimTyping.h"
#include "host/app/window/canvas/DragPreview.h"
#include "host/app/window/canvas/Grips.h"
#include "host/app/window/canvas/HoverMark.h"
#include "host/app/window/canvas/ScenePicture.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/HandAim.h"
#include "host/view/build/Scene.h"
#include "host/view/paint/ViewTransform.h"

#include <QTimer>
#include <QWidget>

#include <optional>

namespace host::app {

/// A document's drawing on the screen, and the mouse on it.
///
/// The wheel zooms at the pointer, the middle button pans and, double-clicked, shows everything. While a prompt waits
/// the left button answers it; otherwise it chooses entities, with Shift it drops them. Two corners, clicked or
/// dragged, make a box: to the right it takes what lies within, to the left what it crosses. The right button is Enter.
/// Keys are handed on.
class DrawingCanvas : public QWidget
{
    Q_OBJECT

public:
    /// The document must outlive the canvas.
    explicit DrawingCanvas(kernel::Document &document, QWidget *parent = nullptr);
    ~DrawingCanvas() override;

    /// Not owned; the same for the canvas's whole life.
    kernel::Document &document() { return m_document; }
    /// Paints anew at the next turn of the event loop.
    void setGround(view::Ground ground);
    /// Also what it begins with when it is first shown.
    void zoomExtents();
    /// About the middle of the canvas; above 1 magnifies.
    void zoomBy(double factor);
    /// The next box drawn is what is shown.
    void beginZoomWindow();
    /// What the pointer answers from now on; nothing between prompts.
    void setRequest(const std::optional<kernel::PromptRequest> &request);
    /// Chooses what can be seen and changed of the current space; a prompt for a selection gets all.
    void chooseAll();
    /// Marks the next of the entities that lie on top of each other under the pointer: a click means that one then.
    void markNext();
    const std::optional<kernel::PromptRequest> &request() const { return m_request; }
    // While a point with a base is asked for; see AimTyping.
    /// What its rules are made of has changed.
    void aimAnew();
    /// The field at the pointer that is written in, and what.
    void showTyped(AimField field, const QString &text);
    /// The place that the pointer shows, or showed last, is the answer.
    void answerAim();
    /// Gives up a box that was begun. False when there was none.
    bool abandonBox();

    // Places on the screen, in pixels, and what commands work on.
    /// Within reach of the point; invalid when there is none.
    drawing::RecordId entityAt(QPointF screen);
    /// On the plane z 0.
    drawing::Vec3 world(QPointF screen) const;
    /// Where a point that commands work with is on the canvas, through the viewport that is worked in.
    QPointF toScreen(const drawing::Vec3 &worked) const;
    /// The point of the current space itself, whatever a viewport shows there.
    drawing::Vec2 sheetPoint(QPointF screen) const { return transform().toWorld(screen); }

    /// What of the current space can be drawn.
    view::RenderReport report();
    /// Whether what was last painted is to be put right yet, while the hand rests.
    bool isProvisional() const { return m_picture.isProvisional(); }
    /// Whether the last picture was cut short and that was not asked before.
    bool isCutShortNews();
    /// Pixels of the screen, as everything here that is no point of the drawing.
    QSize sizeHint() const override { return {1000, 600}; }

signals:
    /// World coordinates under the pointer.
    void pointerMoved(const host::drawing::Vec2 &point);
    /// The pointer answered the prompt.
    void answered(const host::kernel::InputAnswer &answer);
    /// Grips were taken to be moved, the one under the pointer last.
    void gripsTaken(const std::vector<host::drawing::Vec3> &places);
    /// The right button.
    void enterPressed();
    /// What is shown was chosen here: by wheel, by dragging, by a box, or by one of the functions above.
    void viewChosen();
    /// The left button, twice, while no prompt waits; the first press has chosen what is there.
    void doubleClicked(const QPointF &at);
    /// A key that means nothing here; who takes it accepts the event, which lives until the signal returns.
    void keyPressed(QKeyEvent *event);

protected:
    /// The scene's picture as it is known, with a mark while it is to be put right yet; cross-hair and boxes come over
    /// it.
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    /// The document's view hears of the new size; what is in the middle stays there.
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    /// What becomes of a box when its second corner is there.
    enum class BoxUse
    {
        Choose,
        Answer,
        Zoom
    };
    /// What becomes of entities within it, by Shift at its first corner.
    enum class Choice
    {
        Add,
        Drop
    };

    /// The document's view for this size: the document keeps it, not the canvas.
    view::ViewTransform transform() const;
    void setTransform(const view::ViewTransform &transform);
    /// The same, by hand.
    void chooseTransform(const view::ViewTransform &transform);
    void showExtents();
    /// Model space or the current sheet, as a number of the scene.
    int space();
    /// What commands work on: that block, or model space through a viewport of the sheet.
    int workedSpace();
    /// Tells the picture what is highlighted, chosen or dragged.
    void updateMarks();
    /// What moves with the pointer; nothing while that is elsewhere.
    void paintOverlay(QPainter &painter);
    void paintRubberBand(QPainter &painter);
    /// Marks what is under the pointer, where SELECTIONPREVIEW and what is asked for say so.
    void updateHover();
    bool wantsHover() const;
    /// Where the next point would lie.
    void updateAim();
    /// The pointer, or where the next point would lie instead.
    QPointF aimedAt() const;
    /// What programs show for the moment.
    void paintSketch(QPainter &painter);

    /// Whether a point answers the prompt that waits.
    bool wantsPoint() const;
    /// Whether a program waits for whatever is done next.
    bool wantsEvents() const { return m_request && m_request->kind == kernel::PromptKind::Event; }
    /// From the pointer to a side of the box that picks entities, in pixels.
    int pickReach() const;
    /// The pointer must go this far with the button held for a drag, in pixels.
    static constexpr double dragDistance = 5.0;
    // In CanvasPresses.cpp.
    /// The left button: the second corner of a box that was begun, an answer, a choice, or a first corner.
    void press(QPointF screen, Qt::KeyboardModifiers modifiers);
    void pressForPrompt(QPointF screen);
    /// With Ctrl, chooses the next of those on top of each other each time in place of the one before.
    void pressNext(QPointF screen);
    /// False where there is no grip.
    bool pressGrip(QPointF screen, Qt::KeyboardModifiers modifiers);
    /// The end of a drag that took a grip.
    void releaseGrip(QPointF screen);
    /// Adds to the implied selection, each once, or takes from it.
    void choose(const std::vector<drawing::RecordId> &entities, Choice choice);
    void beginBox(QPointF screen, BoxUse use, Choice choice);
    void finishBox(QPointF screen);

    kernel::Document &m_document;
    view::Scene m_scene; ///< follows the drawing
    view::Ground m_ground = view::Ground::Black;
    ScenePicture m_picture{m_scene};
    bool m_isCutShortTold = false;
    std::optional<kernel::PromptRequest> m_request;
    std::optional<DragPreview> m_dragged;   ///< while the prompt has something hang at the pointer
    std::optional<QPointF> m_pointer;       ///< where the pointer is, while it is on the canvas
    std::optional<kernel::HandPoint> m_aim; ///< for the pointer's place, while a point is asked for
    AimField m_typedField = AimField::Length;
    QString m_typed;                  ///< at the command line, for that field
    std::optional<QPointF> m_panFrom; ///< while the middle button is held
    Grips m_grips{m_document};
    HoverMark m_hover;
    QTimer m_hoverDelay;                         ///< looked once for moves that come together
    std::optional<QPointF> m_cycled;             ///< where one of several was chosen last
    std::vector<drawing::RecordId> m_chosenLast; ///< which one
    std::optional<QPointF> m_gripFrom;           ///< where the button took a grip, until it is let go
    bool m_isViewportPanned = false;             ///< what a viewport shows follows when it is let go

    struct PendingBox
    {
        drawing::Vec2 corner; ///< world, so that zooming meanwhile does no harm
        QPointF pressedAt;
        BoxUse use;
        Choice choice;
    };
    std::optional<PendingBox> m_box;
    bool m_isZoomWindow = false; ///< the next box says what is shown
    bool m_wasShown = false;
};

} // namespace host::app
