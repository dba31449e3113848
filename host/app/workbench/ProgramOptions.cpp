#include "host/app/workbench/ProgramOptions.h"

#include "host/kernel/documents/Session.h"
#include "host/kernel/languages/Languages.h"
#include "host/lisp/checking/Finding.h"

#include <QHash>

#include <functional>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

enum class Value
{
    None,
    Needed
};

struct OptionRow
{
    const char *name;
    Value value;
    QList<Mode> modes; ///< where it makes sense; empty: everywhere
    /// Returns why the value is refused, empty when it is taken.
    std::function<QString(ProgramOptions &, const QString &)> apply;
    bool isOfPicture = false; ///< says what a picture shows: noted as given
};

QString setStyle(ProgramOptions &options, const QString &value)
{
    if (value == "light"_L1)
        options.style = Style::Light;
    else if (value == "dark"_L1)
        options.style = Style::Dark;
    else
        return u"--style is light or dark, not \"%1\""_s.arg(value);
    return {};
}

QString setLanguage(ProgramOptions &options, const QString &value)
{
    const kernel::Language *language = kernel::findLanguage(value);
    if (!language) {
        QStringList codes;
        for (const kernel::Language &known : kernel::languages())
            codes.append(QString::fromLatin1(known.code));
        return u"--language is one of %1, not \"%2\""_s.arg(codes.join(u", "_s), value);
    }
    options.language = QString::fromLatin1(language->code);
    return {};
}

QString setTimeLimit(ProgramOptions &options, const QString &value)
{
    bool ok = false;
    const double seconds = value.toDouble(&ok);
    if (!ok || !(seconds > 0.0) || seconds > 86400.0)
        return u"--time-limit takes seconds up to a day, not \"%1\""_s.arg(value);
    options.timeLimit = std::chrono::milliseconds(std::max<qint64>(qRound64(seconds * 1000.0), 1));
    return {};
}

QString setPace(ProgramOptions &options, const QString &value)
{
    bool ok = false;
    const double seconds = value.toDouble(&ok);
    if (!ok || !(seconds >= 0.0) || seconds > 60.0)
        return u"--pace takes seconds up to 60, not \"%1\""_s.arg(value);
    options.pace = std::chrono::milliseconds(qRound64(seconds * 1000.0));
    return {};
}

QString setMemoryLimit(ProgramOptions &options, const QString &value)
{
    using kernel::Session;
    bool ok = false;
    const int megabytes = value.toInt(&ok);
    if (!ok || megabytes < Session::leastLispHeap || megabytes > Session::largestLispHeap)
        return u"--memory-limit takes megabytes from %1 to %2, not \"%3\""_s.arg(Session::leastLispHeap)
            .arg(Session::largestLispHeap)
            .arg(value);
    options.memoryLimit = megabytes;
    return {};
}

template <QString ProgramOptions::*member>
QString setTextOption(ProgramOptions &options, const QString &value)
{
    options.*member = value;
    return {};
}

template <QStringList ProgramOptions::*member>
QString addText(ProgramOptions &options, const QString &value)
{
    (options.*member).append(value);
    return {};
}

template <bool ProgramOptions::*member>
QString setFlag(ProgramOptions &options, const QString &)
{
    options.*member = true;
    return {};
}

template <QStringList ProgramOptions::*member>
QString addKinds(ProgramOptions &options, const QString &value)
{
    for (const QString &name : value.split(u',', Qt::SkipEmptyParts)) {
        if (!lisp::checking::findKind(name.toStdString()))
            return u"there is no kind of finding \"%1\""_s.arg(name);
        (options.*member).append(name);
    }
    return {};
}

template <QString (*read)(PictureOptions &, const QString &)>
QString setPicture(ProgramOptions &options, const QString &value)
{
    return read(options.picture, value);
}

template <QString PictureOptions::*member>
QString setPictureText(ProgramOptions &options, const QString &value)
{
    options.picture.*member = value;
    return {};
}

QString setProfileFile(ProgramOptions &options, const QString &value)
{
    options.isProfiled = true;
    options.profileFile = value;
    return {};
}

QString setShownLayers(ProgramOptions &options, const QString &value)
{
    options.picture.as.layers = value;
    return {};
}

QString setThin(ProgramOptions &options, const QString &)
{
    options.picture.as.withLineweights = false;
    return {};
}

/// What a picture shows and how.
QList<OptionRow> pictureRows()
{
    return {{"--layout", Value::Needed, {Mode::Convert}, setPictureText<&PictureOptions::layout>, true},
            {"--paper", Value::Needed, {Mode::Convert}, setPicture<setPaper>, true},
            {"--scale", Value::Needed, {Mode::Convert}, setPicture<setScale>, true},
            {"--size", Value::Needed, {Mode::Convert}, setPicture<setSize>, true},
            {"--dpi", Value::Needed, {Mode::Convert}, setPicture<setResolution>, true},
            {"--ground", Value::Needed, {Mode::Convert}, setPicture<setPictureGround>, true},
            {"--window", Value::Needed, {Mode::Convert}, setPicture<setWindow>, true},
            {"--layers", Value::Needed, {Mode::Convert}, setShownLayers, true},
            {"--text", Value::Needed, {Mode::Convert}, setPicture<setTextForm>, true},
            {"--plot-style", Value::Needed, {Mode::Convert}, setPictureText<&PictureOptions::plotStyle>, true},
            {"--thin", Value::None, {Mode::Convert}, setThin, true}};
}

QList<OptionRow> generalRows()
{
    return {
        {"--style", Value::Needed, {}, setStyle},
        {"--language", Value::Needed, {}, setLanguage},
        {"--home", Value::Needed, {}, setTextOption<&ProgramOptions::home>},
        {"--module", Value::Needed, {}, setTextOption<&ProgramOptions::module>},
        {"--tools", Value::Needed, {}, setTextOption<&ProgramOptions::tools>},
        {"--allow-read", Value::Needed, {}, addText<&ProgramOptions::readableFolders>},
        {"--trust", Value::Needed, {Mode::Window, Mode::Run, Mode::Lisp}, addText<&ProgramOptions::trustedFolders>},
        {"--screenshot-dir", Value::Needed, {Mode::Window, Mode::Run}, setTextOption<&ProgramOptions::pictureFolder>},
        {"--session", Value::Needed, {Mode::Window}, setTextOption<&ProgramOptions::session>},
        {"--pace", Value::Needed, {Mode::Window}, setPace},
        {"--record", Value::Needed, {Mode::Window}, setTextOption<&ProgramOptions::record>},
        {"--out", Value::Needed, {Mode::Run}, setTextOption<&ProgramOptions::outFolder>},
        {"--audit", Value::Needed, {Mode::Run}, setTextOption<&ProgramOptions::audit>},
        {"--drawing", Value::Needed, {Mode::Lisp}, setTextOption<&ProgramOptions::drawing>},
        {"--time-limit", Value::Needed, {}, setTimeLimit},
        {"--memory-limit", Value::Needed, {Mode::Run, Mode::Lisp, Mode::Window}, setMemoryLimit},
        {"--png", Value::None, {Mode::Run}, setFlag<&ProgramOptions::withPictures>},
        {"--force", Value::None, {Mode::Run, Mode::Lisp, Mode::Convert}, setFlag<&ProgramOptions::isForced>},
        {"--strict", Value::None, {Mode::Convert}, setFlag<&ProgramOptions::isStrict>},
        {"--binary", Value::None, {Mode::Convert}, setFlag<&ProgramOptions::isBinary>},
        {"--recover", Value::None, {Mode::Window, Mode::Run, Mode::Convert}, setFlag<&ProgramOptions::isRecovering>},
        {"--restore", Value::None, {Mode::Window}, setFlag<&ProgramOptions::isRestoring>},
        {"--json", Value::None, {Mode::Convert, Mode::Lisp}, setFlag<&ProgramOptions::withJson>},
        {"--check", Value::None, {Mode::Lisp}, setFlag<&ProgramOptions::isCheck>},
        {"--test", Value::None, {Mode::Lisp}, setFlag<&ProgramOptions::isTest>},
        {"--filter", Value::Needed, {Mode::Lisp}, setTextOption<&ProgramOptions::testFilter>},
        {"--junit", Value::Needed, {Mode::Lisp}, setTextOption<&ProgramOptions::reportFile>},
        {"--profile", Value::None, {Mode::Lisp}, setFlag<&ProgramOptions::isProfiled>},
        {"--profile-out", Value::Needed, {Mode::Lisp}, setProfileFile},
        {"--only", Value::Needed, {Mode::Lisp}, addKinds<&ProgramOptions::onlyKinds>},
        {"--except", Value::Needed, {Mode::Lisp}, addKinds<&ProgramOptions::exceptKinds>}};
}

const QList<OptionRow> &optionRows()
{
    static const QList<OptionRow> rows = generalRows() + pictureRows();
    return rows;
}

const QHash<QString, Mode> &modeNames()
{
    static const QHash<QString, Mode> names = {
        {u"run"_s, Mode::Run}, {u"lisp"_s, Mode::Lisp}, {u"convert"_s, Mode::Convert}, {u"names"_s, Mode::Names}};
    return names;
}

/// Reads "--name value" or "--name=value" at `position`, which is left on its last argument.
QString readOption(ProgramOptions &options, const QStringList &arguments, qsizetype &position)
{
    const QString &argument = arguments[position];
    const QString name = argument.section(u'=', 0, 0);
    const bool hasValue = argument.contains(u'=');
    for (const OptionRow &row : optionRows()) {
        if (name != QLatin1StringView(row.name))
            continue;
        if (!row.modes.isEmpty() && !row.modes.contains(options.mode))
            return u"%1 has no meaning here"_s.arg(name);
        if (row.isOfPicture)
            options.picture.given.append(name);
        if (row.value == Value::None)
            return hasValue ? u"%1 takes no value"_s.arg(name) : row.apply(options, {});
        if (!hasValue && position + 1 >= arguments.size())
            return u"%1 needs a value"_s.arg(name);
        const QString value = hasValue ? argument.section(u'=', 1) : arguments[++position];
        return value.isEmpty() ? u"%1 needs a value"_s.arg(name) : row.apply(options, value);
    }
    return u"there is no option %1"_s.arg(name);
}

QString assignLispFiles(ProgramOptions &options, const QStringList &files)
{
    if (files.isEmpty() && (options.isCheck || options.isTest || options.isProfiled))
        return u"lisp needs at least one file for this"_s;
    options.lispFiles = files;
    const bool isOfCheck = options.withJson || !options.onlyKinds.isEmpty() || !options.exceptKinds.isEmpty();
    const bool isOfTest = !options.testFilter.isEmpty() || !options.reportFile.isEmpty();
    if (isOfCheck && !options.isCheck)
        return u"--json, --only and --except go with --check"_s;
    if (isOfTest && !options.isTest)
        return u"--filter and --junit go with --test"_s;
    if (options.isProfiled && (options.isCheck || options.isTest))
        return u"--profile goes with programs that are run"_s;
    return options.isCheck && options.isTest ? u"--check and --test do not go together"_s : QString();
}

/// Gives the words that are no options their meaning.
QString assignWords(ProgramOptions &options, const QStringList &words)
{
    switch (options.mode) {
    case Mode::Run:
        if (words.isEmpty())
            return u"run needs a session"_s;
        options.session = words.first();
        options.drawings = words.mid(1);
        if (options.audit.isEmpty())
            options.audit = qEnvironmentVariable("ORTAKIT_AUDIT");
        return {};
    case Mode::Lisp:
        return assignLispFiles(options, words);
    case Mode::Convert:
        if (words.size() != 2)
            return u"convert needs two files"_s;
        options.input = words[0];
        options.output = words[1];
        return {};
    case Mode::Names:
        return words.isEmpty() ? QString() : u"names takes no word"_s;
    default:
        options.drawings = words;
        return {};
    }
}

} // namespace

ProgramOptions parseArguments(const QStringList &arguments)
{
    ProgramOptions options;
    qsizetype position = 0;
    if (!arguments.isEmpty() && modeNames().contains(arguments.first())) {
        options.mode = modeNames().value(arguments.first());
        position = 1;
    }
    QStringList words;
    for (; position < arguments.size() && options.error.isEmpty(); ++position) {
        const QString &argument = arguments[position];
        if (argument == "--help"_L1 || argument == "-h"_L1) {
            options.helpFor = options.mode;
            options.mode = Mode::Help;
            return options;
        }
        if (argument == "--version"_L1) {
            options.mode = Mode::Version;
            return options;
        }
        if (argument == "--"_L1) {
            words += arguments.mid(position + 1);
            break;
        }
        if (argument.startsWith(u'-') && argument.size() > 1)
            options.error = readOption(options, arguments, position);
        else
            words.append(argument);
    }
    if (options.error.isEmpty())
        options.error = assignWords(options, words);
    return options;
}

namespace {

constexpr auto commonHelp = R"(Options for every use:
  --style light|dark   look of windows and dialogs
  --language CODE      en, de, fr, es or it (default: $ORTAKIT_LANGUAGE; else the window's setting or the desktop's
                       language, and English where there is no window or a session is played)
  --home DIR           folder of the user's data (default: $ORTAKIT_HOME, or the system's place for such data)
  --module FILE        the plug-in module (default: $ORTAKIT_MODULE, or the one installed with the program)
  --allow-read DIR     let drawings name files of this folder and those below; may be given again. Else they are read
                       from the drawing's own folder, those below and trusted ones only
  --tools DIR          folder of the Lisp tools (default: $ORTAKIT_TOOLS, or the one installed with the program)
  --help, --version

Exit status: 0 done, 1 a tool, expression or session failed or passed a limit, 2 wrong use, 3 part of a batch failed
or, with --strict, of a picture is missing, 4 a file could not be read or written, 5 a picture was written, but there was
more to show than is drawn in one go: a few lines of a drawing can make millions.
)";

constexpr auto windowHelp = R"(Usage: ortakit [OPTION...] [DRAWING...]
       ortakit run SESSION [DRAWING...] [--out DIR] [--png]
       ortakit lisp [FILE...] [--drawing DRAWING] [--check | --test]
       ortakit convert IN OUT [--layout NAME] [--paper A3] [--scale 1:50] [OPTION...]
       ortakit names

Opens the drawings in a window, or works on them without one. "ortakit COMMAND --help" tells more about a command.
A drawing whose name is that of a command is written with its folder: ./run

Options of the window:
  --recover             open damaged drawings as far as they are sound; they have no file until they are saved under a
                        name
  --restore             open what a program that was killed left of changed drawings, without asking
  --trust DIR           run programs of this folder and those below as well; may be given again
  --session FILE        play a recorded session in the window first
  --pace SECONDS        how long each line of the session waits, so that you can watch it (default 0)
  --record FILE         write what you do down as a session that plays
  --screenshot-dir DIR  write a picture of the window to DIR/window.png and end
  --time-limit SECONDS  the most a session may take (default 120)
  --memory-limit MB     the most memory Lisp may take, 16 to 1048576 (default: the system variable LISPHEAPMAX, which is
                        2048 as long as nobody changed it)

)";

constexpr auto runHelp = R"(Usage: ortakit run SESSION [DRAWING...] [--out DIR] [--png] [OPTION...]

Plays a recorded session over each drawing, one after the other, each opened afresh; without a drawing, over the one that
the session says. The drawings themselves stay as they are. Prints a line for each, and of a session with cases for each
of them. What a picture does not show, or only in part, is told on standard error, by type.

  --recover             open damaged drawings as far as they are sound, and tell on standard error what was dropped
  --trust DIR           run programs of this folder and those below as well; may be given again
  --out DIR             write the drawings that the session changed there, under their own names; of a session with
                        cases, what it saves itself
  --png                 write a picture of each drawing as it is in the end to the out folder, or else beside the drawing
  --audit PROGRAM       an independent reader for sessions that ask one (default: the environment's ORTAKIT_AUDIT); see
                        scripts/audit
  --screenshot-dir DIR  where pictures go that the session takes, and those of --png
  --force               write files as well that another program has open, or has changed since they were opened
  --time-limit SECONDS  the most the session may take with one drawing (default 120); one that does not stop then ends the
                        program
  --memory-limit MB     the most memory Lisp may take (default: the system variable LISPHEAPMAX)

)";

constexpr auto lispHelp = R"(Usage: ortakit lisp FILE... [--drawing DRAWING] [OPTION...]
       ortakit lisp [--drawing DRAWING] [OPTION...]
       ortakit lisp --check FILE... [--json] [--only KIND,...] [--except KIND,...]
       ortakit lisp --test FILE... [--filter PATTERN] [--junit REPORT] [--drawing DRAWING]

Loads the Lisp files in order and prints what they print. "-" reads expressions from standard input. Without --drawing
a new drawing is open. Nothing asks a person: prompts are cancelled, and a dialog ends the program with status 1.

What these files load must lie in a trusted folder: the installation, the folder of the user's data, those that the
system variable TRUSTEDPATHS lists, and those named here.

  --trust DIR           run programs of this folder and those below as well; may be given again
  --time-limit SECONDS  the most all of it may take (default: no limit)
  --memory-limit MB     the most memory Lisp may take, more being an error of the program (default: the system variable
                        LISPHEAPMAX)
  --force               write files as well that another program has open, or has changed since they were opened
  --profile             tell on standard error where the time went, function by function
  --profile-out FILE    write that as folded stacks as well, of which flame graphs are drawn

Without a file it is a prompt: expressions are evaluated as they are typed, and their values printed. Tab completes names,
"help NAME" or "?NAME" tells about one, Ctrl+C stops what runs, Ctrl+D ends. What is piped in is evaluated form by form;
errors go to standard error with their line, the forms behind one are evaluated all the same, and the status is 1 then.

With --check the files are read and not run, and what looks wrong in them is told, a line each: FILE:LINE:COLUMN: error
or warning: what it is [KIND]. What one of them defines the others know. Ends with status 1 when something was told.

  --json                tell it as one line of JSON: findings, each with file, line, column, severity, kind and message,
                        and the numbers of errors and warnings
  --only KIND,...       tell only these kinds
  --except KIND,...     tell all kinds but these

With --test the tests that the files define by (deftest name form...) are run, each in a new drawing (or DRAWING) into
which its file was loaded before, and told on standard output in version 14 of the Test Anything Protocol. The time limit
is that of each test. Ends with status 1 when one failed or there was none.

  --filter PATTERN      run only tests of such names: * stands for any characters, ? for one
  --junit REPORT        write a report in JUnit's XML instead

)";

constexpr auto convertHelp = R"(Usage: ortakit convert IN OUT [OPTION...]

Opens a drawing and writes it as what the extension of OUT says: dxf, png, svg or pdf. What a picture does not show, or
only in part, is told on standard error, by type.

Without the options of a sheet, png and svg show all of model space in 1600 by 1200 pixels, with the lineweights that it
would have on a sheet 297 mm long; pdf shows it on A4.

  --layout NAME     the sheet of a layout as its page setup has it; "model" for the page of model space; "all" for every
                    sheet: a page each in a pdf, a file each as png and svg, with its name: OUT-NAME.png
  --paper SIZE      another sheet, on which everything is to be seen: A0 to A6, B0 to B6, ANSI-A to ANSI-E, ARCH-A to
                    ARCH-E1 or millimetres as 420x297; -landscape or -portrait behind it turns it
  --scale 1:50      millimetres on the sheet to drawing units, in place of what the page says or as fits
  --window X,Y,X,Y  show what lies between these corners, in drawing units
  --size WxH        png, svg: so many pixels, 1 to 16000 each way; a sheet goes into their middle
  --dpi N           png, svg: pixels an inch of the sheet (150 and 254)
  --ground black|white  what it lies on (white)
  --layers PATTERN  only layers whose names match, as in a layer filter: "walls,door*"
  --text outlines|text  pdf, svg: texts as areas, or as text that can be searched (outlines)
  --plot-style FILE a table of plot styles (ctb, stb) in place of what the page names; "none" for none. Without a file
                    there are monochrome, grayscale and screening 25%, 50%, 75%, 100%
  --thin            all lines as thin as can be

  --time-limit SECONDS  the most it may take (default: no limit); OUT stays as it was when it takes longer
  --force   write OUT although another program has it open
  --strict  end with status 3 when something is missing in the picture, which is written all the same
  --binary  write a DXF file in the binary form; without it, as text
  --recover open a damaged IN as far as it is sound, and tell on standard error what was dropped; OUT must be another
            file
  --json    print one line of JSON: input, output, and of pictures complete, drawn, invisible, inPart and notDrawn (a
            number for each type) and cutShort; with --layout all of it for each of the pages, with layout and output;
            with --recover the same of what was dropped, mended and added

)";

constexpr auto namesHelp = R"(Usage: ortakit names

Prints what Lisp programs find here in a new drawing, a line each with tabs between its fields, sorted:

  function  NAME  ARGUMENTS  WHAT IT GIVES
  command   NAME  -          WHAT IT DOES
  variable  NAME  KIND       WHAT IT IS

Documents are made from this, and scripts/demand compares it with what programs ask for.

)";

/// The rows of kinds as a part of the help.
QString kindsHelp()
{
    QString text = u"Kinds of findings:\n"_s;
    for (const lisp::checking::FindingKindRow &row : lisp::checking::findingKinds())
        text += u"  %1 %2\n"_s.arg(QLatin1StringView(row.name), -18).arg(QString::fromUtf8(row.help));
    return text + u'\n';
}

} // namespace

QString helpText(Mode mode)
{
    const char *text = mode == Mode::Run       ? runHelp
                       : mode == Mode::Lisp    ? lispHelp
                       : mode == Mode::Convert ? convertHelp
                       : mode == Mode::Names   ? namesHelp
                                               : windowHelp;
    return QString::fromUtf8(text) + (mode == Mode::Lisp ? kindsHelp() : QString()) + QString::fromUtf8(commonHelp);
}

} // namespace host::app
