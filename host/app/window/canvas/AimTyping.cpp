#include "host/app/window/canvas/AimTyping.h"

#include "host/app/window/canvas/DrawingCanvas.h"
#include "host/kernel/input/PointAim.h"
#include "host/kernel/input/Units.h"
#include "host/kernel/variables/SystemVariables.h"

#include <QKeyEvent>
#include <QLineEdit>

#include <cmath>

namespace host::app {

AimTyping::AimTyping(QLineEdit &input, std::function<DrawingCanvas *()> canvas)
    : m_input(input), m_canvas(std::move(canvas))
{
    m_input.installEventFilter(this);
    connect(&m_input, &QLineEdit::textChanged, this, &AimTyping::show);
}

void AimTyping::watch(DrawingCanvas &canvas)
{
    canvas.installEventFilter(this);
}

void AimTyping::restart()
{
    m_field = AimField::Length;
    show();
}

DrawingCanvas *AimTyping::aiming() const
{
    DrawingCanvas *canvas = m_canvas();
    const bool aims = canvas && canvas->request() && canvas->request()->kind == kernel::PromptKind::Point &&
                      canvas->request()->base && canvas->document().variables().integer(u"DYNMODE") > 0;
    return aims ? canvas : nullptr;
}

bool AimTyping::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::KeyPress)
        if (DrawingCanvas *canvas = aiming(); canvas && takeKey(*canvas, *static_cast<QKeyEvent *>(event)))
            return true;
    return QObject::eventFilter(object, event);
}

bool AimTyping::takeKey(DrawingCanvas &canvas, const QKeyEvent &key)
{
    kernel::PointAim &aim = canvas.document().aim();
    const bool isEmpty = m_input.text().trimmed().isEmpty();
    switch (key.key()) {
    case Qt::Key_Tab:
        if (!isEmpty && !lock(canvas))
            return false;
        m_field = m_field == AimField::Length ? AimField::Angle : AimField::Length;
        canvas.aimAnew();
        show();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space: {
        // A length by itself is what the prompt takes anyway.
        const bool isAnswer = isEmpty ? aim.isLocked() : m_field == AimField::Angle && lock(canvas);
        if (isAnswer)
            canvas.answerAim();
        return isAnswer;
    }
    case Qt::Key_Backspace:
        if (!isEmpty || !aim.isLocked())
            return false;
        aim.unlock();
        canvas.aimAnew();
        restart();
        return true;
    default:
        return false;
    }
}

bool AimTyping::lock(DrawingCanvas &canvas)
{
    const kernel::UnitFormat units = kernel::UnitFormat::of(canvas.document().variables());
    const bool isLength = m_field == AimField::Length;
    const QString text = m_input.text();
    const std::optional<double> value = isLength ? units.parseLength(text) : units.parseDirection(text);
    if (!value || !std::isfinite(*value) || (isLength && *value == 0.0))
        return false;
    kernel::PointAim &aim = canvas.document().aim();
    (isLength ? aim.lockedLength : aim.lockedAngle) = *value;
    m_input.clear();
    return true;
}

void AimTyping::show()
{
    if (DrawingCanvas *canvas = aiming())
        canvas->showTyped(m_field, m_input.text());
}

} // namespace host::app
