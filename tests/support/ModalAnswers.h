#pragma once

#include <QMessageBox>
#include <QObject>
#include <QStringList>

#include <deque>
#include <functional>

namespace ortakit::test {

/// Answers modal windows while it lives, so that code which asks the user runs in a test: every window that comes up
/// takes the next step of the script once its event loop runs. A window without a step left is rejected, so that a
/// test never waits for a person.
class ModalAnswers final : public QObject
{
    Q_OBJECT

public:
    ModalAnswers();
    ~ModalAnswers() override;

    /// The next window is a message box and `button` is pressed in it.
    void press(QMessageBox::StandardButton button);
    /// The next window is a file dialog; `path` is chosen and the dialog accepted, or cancelled when it is empty.
    void choose(const QString &path);
    /// Whatever the next window is, `step` drives it; it must close it.
    void drive(std::function<void(QWidget *window)> step);

    /// What was shown so far, one line a window. Message boxes: kind "title" "text" buttons, such as
    /// warning "" "Filename can`t be empty" OK, with an "explanation" behind the text where there is one. File dialogs:
    /// choose "title" "folder" "filter". Others: class "title".
    const QStringList &shown() const { return m_shown; }
    bool isDone() const { return m_steps.empty(); }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void answer(QWidget *window);

    std::deque<std::function<void(QWidget *)>> m_steps;
    QStringList m_shown;
};

} // namespace ortakit::test
