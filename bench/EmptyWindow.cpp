// The least that a program with a window does: what bench/start compares the start of `ortakit` with.
//     bench_empty_window FOLDER
// Shows an empty window, writes its picture to FOLDER/window.png as `ortakit --screenshot-dir` does, and ends.

#include <QApplication>
#include <QDir>
#include <QMainWindow>
#include <QTimer>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QMainWindow window;
    window.resize(1280, 800);
    window.show();
    const QString file = QDir(QApplication::arguments().value(1)).filePath(QStringLiteral("window.png"));
    QTimer::singleShot(0, &window, [&] { QCoreApplication::exit(window.grab().save(file) ? 0 : 1); });
    return QApplication::exec();
}
