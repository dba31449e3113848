#include "host/app/Program.h"

#include "host/app/playback/SessionPlayer.h"
#include "host/app/uses/Arguments.h"
#include "host/app/window/MainWindow.h"
#include "host/app/window/frame/AppStyle.h"
#include "host/app/window/frame/Preferences.h"
#include "host/app/workbench/DrawingPicture.h"
#include "host/app/workbench/ProgramLanguage.h"
#include "host/app/workbench/ProgramOutput.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QIcon>
#include <QMessageLogContext>
#include <QSettings>

#include <clocale>
#include <csignal>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

bool hasDisplay()
{
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

/// Drops what the toolkit says about running without a display or a login, which is no news to whoever asked for it.
void showToolkitMessage(QtMsgType, const QMessageLogContext &, const QString &text)
{
    if (!text.startsWith("This plugin does not support"_L1) && !text.contains("XDG_RUNTIME_DIR"_L1))
        writeMessage(text);
}

/// Plays the session that was asked for, if any, in the window.
int playInWindow(MainWindow &window, const ProgramOptions &options)
{
    if (options.session.isEmpty())
        return ExitDone;
    PlaybackOptions playback;
    playback.variables.insert(u"SESSION_DIR"_s, QFileInfo(options.session).absolutePath());
    playback.pictureFolder = options.pictureFolder;
    playback.outFolder = options.pictureFolder;
    playback.timeLimit = options.timeLimit.value_or(playback.timeLimit);
    playback.pace = options.pace;
    const PlaybackResult result = window.play(readPlayback(options.session), playback);
    if (result.ok)
        return ExitDone;
    writeMessage(u"%1: %2"_s.arg(options.session, result.message));
    return ExitFailed;
}

/// Shows the window for a picture and ends.
int pictureOfWindow(MainWindow &window, const ProgramOptions &options)
{
    if (!QDir().mkpath(options.pictureFolder)) {
        writeMessage(u"%1: the folder cannot be made"_s.arg(options.pictureFolder));
        return ExitFileError;
    }
    const int status = playInWindow(window, options);
    // Lets what waits for a quiet moment (status bar, canvas) come to an end.
    QEventLoop loop;
    QTimer::singleShot(500, &loop, &QEventLoop::quit);
    loop.exec();
    const QString error = writeWidgetPicture(window, QDir(options.pictureFolder).filePath(u"window.png"_s));
    if (error.isEmpty())
        return status;
    writeMessage(error);
    return ExitFileError;
}

int runWindow(const ProgramOptions &options)
{
    MainWindow window({.home = options.home,
                       .module = options.module,
                       .tools = options.tools,
                       .trustedFolders = options.trustedFolders,
                       .readableFolders = options.readableFolders,
                       .memoryLimit = options.memoryLimit});
    for (const QString &problem : window.workbench().problems())
        writeMessage(problem);
    const QString preferences = Preferences::folder(window.workbench().session());
    window.setStyleOfWindows(options.style.value_or(Preferences::load(preferences).style));
    window.show();
    // A session or recording works in a drawing and meets nothing else.
    const bool isAttended = !options.isUnattended() && options.session.isEmpty() && options.record.isEmpty();
    if (options.isRestoring)
        window.recover(MainWindow::Recovery::OpenAll);
    else if (isAttended)
        window.recover(MainWindow::Recovery::Ask);
    using enum MainWindow::WithoutDrawings;
    window.start(options.drawings,
                 options.isRecovering ? MainWindow::Opening::Recovering : MainWindow::Opening::AsUsual,
                 isAttended ? StartPage : NewDrawing);
    if (!options.record.isEmpty())
        window.startRecording(options.record);
    if (!options.pictureFolder.isEmpty())
        return pictureOfWindow(window, options);
    QTimer::singleShot(0, &window, [&] { playInWindow(window, options); });
    return QApplication::exec();
}

/// A run with a home of its own leaves the settings of the person alone.
void keepSettingsIn(const QString &home)
{
    if (!home.isEmpty())
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, home + u"/settings"_s);
}

} // namespace

int runProgram(int argc, char **argv)
{
#ifdef SIGXFSZ
    // A file that may not grow is an error of the write, not the end of the program and of what it has open.
    std::signal(SIGXFSZ, SIG_IGN);
#endif
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const ProgramOptions options = parseArguments(arguments);
    if (!options.error.isEmpty()) {
        writeMessage(options.error + u" (see ortakit --help)"_s);
        return ExitUsage;
    }
    if (options.wish == Wish::Version) {
        writeResult(u"ortakit " ORTAKIT_VERSION "\n"_s);
        return ExitDone;
    }
    const bool isHelp = options.wish == Wish::Help;
    if (!isHelp && !options.isUnattended() && !hasDisplay()) {
        writeMessage(u"there is no display for the window; see ortakit --help for what goes without one"_s);
        return ExitUsage;
    }
    if (isHelp || !options.hasWindow || !hasDisplay())
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (options.isUnattended())
        qInstallMessageHandler(showToolkitMessage);
    // The toolkit reads options of its own from the arguments; these are all this program's.
    int count = 1;
    QApplication application(count, argv);
    std::setlocale(LC_NUMERIC, "C");
    QCoreApplication::setApplicationName(u"ortakit"_s);
    QCoreApplication::setApplicationVersion(u"" ORTAKIT_VERSION ""_s);
    // By this name a desktop finds its entry for the window.
    QGuiApplication::setDesktopFileName(u"org.ortakit.Ortakit"_s);
    QApplication::setWindowIcon(QIcon(u":/program/ortakit.svg"_s));
    keepSettingsIn(options.home.isEmpty() ? qEnvironmentVariable("ORTAKIT_HOME") : options.home);
    kernel::useLanguage(programLanguage(options));
    applyStyle(options.style.value_or(Style::Light));
    if (isHelp) {
        writeResult(helpText(options));
        return ExitDone;
    }
    const int status = options.use->run ? options.use->run(options) : runWindow(options);
    if (!hasLostResults())
        return status;
    writeMessage(u"standard output: not all of it could be written"_s);
    return status == ExitDone ? ExitFileError : status;
}

} // namespace host::app
