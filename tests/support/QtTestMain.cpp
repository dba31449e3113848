#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <gtest/gtest.h>

namespace {

/// How long a window may wait for an answer. The tests' own answers come within one turn of the event loop.
constexpr std::chrono::seconds patience(30);

/// Fails the test that has opened a window nobody answers, and closes the window, so that the other tests run.
void closeForgottenWindow()
{
    static QPointer<QWidget> waiting;
    QWidget *window = QApplication::activeModalWidget();
    if (window && window == waiting) {
        ADD_FAILURE() << "nobody answers " << window->metaObject()->className() << " \""
                      << window->windowTitle().toStdString() << '"';
        window->close();
    }
    waiting = window;
}

} // namespace

// Taken in by test programs without a main() of their own. Widgets are drawn off screen and dialogs are Qt's own, so
// that a test can drive them.
int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, closeForgottenWindow);
    watch.start(patience);
    return RUN_ALL_TESTS();
}
