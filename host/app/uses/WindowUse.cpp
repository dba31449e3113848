// The window, and what is told of the program as a whole.

#include "host/app/uses/UseRows.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

QString setPace(ProgramOptions &options, const QString &value)
{
    options.pace = std::chrono::milliseconds(qRound64(value.toDouble() * 1000.0));
    return {};
}

QString assignToWindow(ProgramOptions &options, const QStringList &words)
{
    options.drawings = words;
    return {};
}

QList<OptionRow> windowOptions()
{
    return {recoverOption(QT_TRANSLATE_NOOP("Uses",
                                            "open damaged drawings as far as they are sound; they have no file until "
                                            "they are saved under a name")),
            {.name = "--restore",
             .help = QT_TRANSLATE_NOOP("Uses",
                                       "open what a program that was killed left of changed drawings, without asking"),
             .apply = setFlag<&ProgramOptions::isRestoring>},
            trustOption(),
            {.name = "--session",
             .value = "FILE",
             .help = QT_TRANSLATE_NOOP("Uses", "play a recorded session in the window first"),
             .apply = takeText<&ProgramOptions::session>,
             .kind = ValueKind::File},
            {.name = "--pace",
             .value = "SECONDS",
             .help = QT_TRANSLATE_NOOP("Uses", "how long each line of the session waits, so that you can watch it"),
             .apply = setPace,
             .kind = ValueKind::Number,
             .range = ValueRange{0.0, 60.0},
             .byDefault = "0"},
            {.name = "--record",
             .value = "FILE",
             .help = QT_TRANSLATE_NOOP("Uses", "write what you do down as a session that plays"),
             .apply = takeText<&ProgramOptions::record>,
             .kind = ValueKind::File},
            {.name = "--screenshot-dir",
             .value = "DIR",
             .help = QT_TRANSLATE_NOOP("Uses", "write a picture of the window to DIR/window.png and end"),
             .apply = takeText<&ProgramOptions::pictureFolder>,
             .kind = ValueKind::Folder},
            timeLimitOption(QT_TRANSLATE_NOOP("Uses", "the most a session may take"), "120"),
            memoryLimitOption()};
}

} // namespace

UseRow windowUse()
{
    return {.name = "",
            .purpose = QT_TRANSLATE_NOOP("Uses", "opens drawings in a window"),
            .usages = {"[OPTION...] [DRAWING...]", "COMMAND [OPTION...] [WORD...]", "help [COMMAND]"},
            .operands = {{.name = "DRAWING",
                          .help = QT_TRANSLATE_NOOP("Uses", "a drawing to open"),
                          .files = "*.dxf *.dwg",
                          .isMany = true}},
            .sections = {{.heading = "",
                          .text = QT_TRANSLATE_NOOP(
                              "Uses",
                              "Opens the drawings in a window, or works on them without one. \"ortakit help COMMAND\" "
                              "tells more about a command. A drawing whose name is that of a command is written with "
                              "its folder: ./run")},
                         {.heading = QT_TRANSLATE_NOOP("Uses", "Options of the window"),
                          .text = "",
                          .options = windowOptions()}},
            .assign = assignToWindow,
            .run = nullptr};
}

} // namespace host::app
