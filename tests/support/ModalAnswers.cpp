#include "tests/support/ModalAnswers.h"

#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QPointer>
#include <QPushButton>
#include <QShowEvent>
#include <QTimer>

namespace ortakit::test {

namespace {

QString kindOf(const QMessageBox &box)
{
    switch (box.icon()) {
    case QMessageBox::Information:
        return QStringLiteral("information");
    case QMessageBox::Warning:
        return QStringLiteral("warning");
    case QMessageBox::Critical:
        return QStringLiteral("critical");
    case QMessageBox::Question:
        return QStringLiteral("question");
    default:
        return QStringLiteral("plain");
    }
}

QString buttonsOf(const QMessageBox &box)
{
    static constexpr std::pair<QMessageBox::StandardButton, const char *> names[] = {
        {QMessageBox::Ok, "OK"},         {QMessageBox::Yes, "Yes"},         {QMessageBox::No, "No"},
        {QMessageBox::Cancel, "Cancel"}, {QMessageBox::Discard, "Discard"}, {QMessageBox::Save, "Save"},
    };
    QStringList present;
    for (const auto &[button, name] : names) {
        if (box.standardButtons() & button)
            present.append(QString::fromLatin1(name));
    }
    return present.join(QLatin1Char('/'));
}

QString describe(QWidget *window)
{
    if (const auto *box = qobject_cast<QMessageBox *>(window)) {
        QString text = QLatin1Char('"') + box->text() + QLatin1Char('"');
        if (!box->informativeText().isEmpty())
            text += QStringLiteral(" \"%1\"").arg(box->informativeText());
        return QStringLiteral("%1 \"%2\" %3 %4").arg(kindOf(*box), box->windowTitle(), text, buttonsOf(*box));
    }
    if (const auto *files = qobject_cast<QFileDialog *>(window))
        return QStringLiteral("choose \"%1\" \"%2\" \"%3\"")
            .arg(files->windowTitle(), files->directory().absolutePath(), files->nameFilters().join(QLatin1Char('|')));
    return QStringLiteral("%1 \"%2\"")
        .arg(QString::fromLatin1(window->metaObject()->className()), window->windowTitle());
}

} // namespace

ModalAnswers::ModalAnswers()
{
    qApp->installEventFilter(this);
}

ModalAnswers::~ModalAnswers() = default;

void ModalAnswers::press(QMessageBox::StandardButton button)
{
    drive([button](QWidget *window) {
        const auto *box = qobject_cast<QMessageBox *>(window);
        if (QAbstractButton *found = box ? box->button(button) : nullptr)
            found->click();
        else
            window->close();
    });
}

void ModalAnswers::choose(const QString &path)
{
    drive([path](QWidget *window) {
        auto *files = qobject_cast<QFileDialog *>(window);
        if (!files || path.isEmpty()) {
            window->close();
            return;
        }
        files->selectFile(path);
        // The dialog takes what its name field says, as when the user had typed the path.
        QMetaObject::invokeMethod(files, "accept");
    });
}

void ModalAnswers::drive(std::function<void(QWidget *)> step)
{
    m_steps.push_back(std::move(step));
}

bool ModalAnswers::eventFilter(QObject *watched, QEvent *event)
{
    auto *window = event->type() == QEvent::Show ? qobject_cast<QDialog *>(watched) : nullptr;
    if (window && window->isModal() && !static_cast<QShowEvent *>(event)->spontaneous()) {
        // Later: a window is only there to be answered once its own event loop runs.
        QTimer::singleShot(0, this, [this, shown = QPointer<QWidget>(window)] {
            if (shown && shown->isVisible())
                answer(shown);
        });
    }
    return QObject::eventFilter(watched, event);
}

void ModalAnswers::answer(QWidget *window)
{
    m_shown.append(describe(window));
    if (m_steps.empty()) {
        window->close();
        return;
    }
    const auto step = std::move(m_steps.front());
    m_steps.pop_front();
    step(window);
}

} // namespace ortakit::test
