// A host for the module: everything that it needs, and no drawing. See README.md beside this file.

#include "Program.h"
#include "Supply.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>

#include <cstdio>

namespace sample {

namespace {

QString readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Without a display, and where nobody asked for something else, Qt draws off screen.
void chooseWhereToDraw()
{
    if (!qEnvironmentVariableIsSet("DISPLAY") && !qEnvironmentVariableIsSet("WAYLAND_DISPLAY") &&
        !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

void addOptions(QCommandLineParser &parser)
{
    parser.addHelpOption();
    parser.addOption({QStringLiteral("module"), QStringLiteral("The module's file."), QStringLiteral("file"),
                      QStringLiteral(ORTAKIT_MODULE)});
    parser.addOption({QStringLiteral("state"), QStringLiteral("The state file of the dialog."), QStringLiteral("file"),
                      QDir::temp().filePath(QStringLiteral("sample-host.state"))});
    parser.addOption({QStringLiteral("accept"), QStringLiteral("Confirm each dialog without asking.")});
    parser.addOption(
        {QStringLiteral("without"), QStringLiteral("Do as if this host had no such call."), QStringLiteral("call")});
    parser.addPositionalArgument(QStringLiteral("lisp"), QStringLiteral("What to evaluate in place of one dialog."),
                                 QStringLiteral("[lisp...]"));
}

/// What is evaluated: what was given, or the dialog of text frames.
QString programText(const QCommandLineParser &parser)
{
    if (!parser.positionalArguments().isEmpty())
        return parser.positionalArguments().join(u'\n');
    return QStringLiteral("(functions) (Dlg_TextFrame %1)").arg(printed({parser.value(QStringLiteral("state"))}));
}

int runSample(const QCommandLineParser &parser)
{
    for (const QString &call : parser.values(QStringLiteral("without")))
        takeOut(call);
    Hand hand(QGuiApplication::platformName() != u"offscreen");
    if (parser.isSet(QStringLiteral("accept")))
        hand.acceptAll();
    Program program(hand);
    const QString problem = program.load(parser.value(QStringLiteral("module")));
    if (!problem.isEmpty()) {
        std::fprintf(stderr, "not loaded: %s\n", qPrintable(problem));
        return 1;
    }
    program.openDocument({});
    const bool isGood = program.run(programText(parser));
    std::fputs(qPrintable(readAll(parser.value(QStringLiteral("state")))), stdout);
    return isGood ? 0 : 1;
}

} // namespace

} // namespace sample

int main(int argc, char **argv)
{
    sample::chooseWhereToDraw();
    QApplication application(argc, argv);
    QCommandLineParser parser;
    sample::addOptions(parser);
    parser.process(application);
    return sample::runSample(parser);
}
