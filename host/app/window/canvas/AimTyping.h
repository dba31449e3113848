#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <optional>

class QKeyEvent;
class QLineEdit;

namespace host::kernel {
struct PromptRequest;
}

namespace host::app {

class DrawingCanvas;

/// The fields that stand at the pointer while a point with a base is asked for.
enum class AimField
{
    Length,
    Angle
};

/// Length and angle of the next point, typed while aiming. What is typed goes to the command line and means what it
/// always means; Tab locks it for the point, as its length first and as its angle then, and goes on to the other one.
/// Enter or a click takes the point. Backspace with nothing typed frees what was locked. Only while DYNMODE is above 0,
/// at prompts for points that have a base; everywhere else keys pass.
class AimTyping final : public QObject
{
    Q_OBJECT

public:
    /// `input` is the line of the command line; `canvas` gives that in front, null for none.
    AimTyping(QLineEdit &input, std::function<DrawingCanvas *()> canvas);

    /// Keys that are pressed on a canvas count, too.
    void watch(DrawingCanvas &canvas);
    /// Another prompt waits: the length comes first again.
    void restart();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    /// The canvas that aims now; null while keys pass.
    DrawingCanvas *aiming() const;
    bool takeKey(DrawingCanvas &canvas, const QKeyEvent &key);
    /// What is typed becomes the field's value. False when it is none.
    bool lock(DrawingCanvas &canvas);
    void show();

    QLineEdit &m_input;
    std::function<DrawingCanvas *()> m_canvas;
    AimField m_field = AimField::Length;
};

} // namespace host::app
