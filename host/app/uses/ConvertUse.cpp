// One file written as another.

#include "host/app/batch/BatchRuns.h"
#include "host/app/uses/UseRows.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

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

QString assignToConvert(ProgramOptions &options, const QStringList &words)
{
    if (options.extension.isEmpty() != options.outFolder.isEmpty())
        return QCoreApplication::translate("Uses", "--to and --out go together");
    if (!options.extension.isEmpty()) {
        options.drawings = words;
        return words.isEmpty() ? QCoreApplication::translate("Uses", "convert needs drawings") : QString();
    }
    if (options.jobs > 0)
        return QCoreApplication::translate("Uses", "-j goes with --to and --out");
    if (words.size() != 2)
        return QCoreApplication::translate("Uses", "convert needs two files");
    options.input = words[0];
    options.output = words[1];
    return {};
}

UseSection manySection()
{
    return {.heading = QT_TRANSLATE_NOOP("Uses", "Many drawings"),
            .text =
                QT_TRANSLATE_NOOP("Uses", "With --to and --out all words are drawings, and each becomes a file of its "
                                          "name in the folder. What became of them is told on standard output, a line "
                                          "each. The time limit is that of each."),
            .options = {{.name = "--to",
                         .value = "dxf|png|svg|pdf",
                         .help = QT_TRANSLATE_NOOP("Uses", "what they become"),
                         .apply = takeText<&ProgramOptions::extension>,
                         .kind = ValueKind::Choice},
                        {.name = "--out",
                         .value = "DIR",
                         .help = QT_TRANSLATE_NOOP("Uses", "where they go"),
                         .apply = takeText<&ProgramOptions::outFolder>,
                         .kind = ValueKind::Folder},
                        jobsOption()}};
}

/// What a picture shows and how.
QList<OptionRow> pictureOptions()
{
    return {
        {.name = "--layout",
         .value = "NAME",
         .help = QT_TRANSLATE_NOOP(
             "Uses", "the sheet of a layout as its page setup has it; \"model\" for the page of model space; \"all\" "
                     "for every sheet: a page each in a pdf, a file each as png and svg, with its name: OUT-NAME.png"),
         .apply = setPictureText<&PictureOptions::layout>,
         .isOfPicture = true},
        {.name = "--paper",
         .value = "SIZE",
         .help = QT_TRANSLATE_NOOP(
             "Uses", "another sheet, on which everything is to be seen: A0 to A6, B0 to B6, ANSI-A to ANSI-E, ARCH-A "
                     "to ARCH-E1 or millimetres as 420x297; -landscape or -portrait behind it turns it"),
         .apply = setPicture<setPaper>,
         .isOfPicture = true},
        {.name = "--scale",
         .value = "1:50",
         .help = QT_TRANSLATE_NOOP(
             "Uses", "millimetres on the sheet to drawing units, in place of what the page says or as fits"),
         .apply = setPicture<setScale>,
         .isOfPicture = true},
        {.name = "--window",
         .value = "X,Y,X,Y",
         .help = QT_TRANSLATE_NOOP("Uses", "show what lies between these corners, in drawing units"),
         .apply = setPicture<setWindow>,
         .isOfPicture = true},
        {.name = "--size",
         .value = "WxH",
         .help =
             QT_TRANSLATE_NOOP("Uses", "png, svg: so many pixels, 1 to 16000 each way; a sheet goes into their middle"),
         .apply = setPicture<setSize>,
         .isOfPicture = true},
        {.name = "--dpi",
         .value = "N",
         .help = QT_TRANSLATE_NOOP("Uses", "png, svg: pixels an inch of the sheet"),
         .apply = setPicture<setResolution>,
         .kind = ValueKind::Number,
         .range = ValueRange{1.0, 2400.0},
         .byDefault = "150 and 254",
         .isOfPicture = true},
        {.name = "--ground",
         .value = "black|white",
         .help = QT_TRANSLATE_NOOP("Uses", "what it lies on"),
         .apply = setPicture<setPictureGround>,
         .kind = ValueKind::Choice,
         .byDefault = "white",
         .isOfPicture = true},
        {.name = "--layers",
         .value = "PATTERN",
         .help = QT_TRANSLATE_NOOP("Uses", "only layers whose names match, as in a layer filter: \"walls,door*\""),
         .apply = setShownLayers,
         .isOfPicture = true},
        {.name = "--text",
         .value = "outlines|text",
         .help = QT_TRANSLATE_NOOP("Uses", "pdf, svg: texts as areas, or as text that can be searched"),
         .apply = setPicture<setTextForm>,
         .kind = ValueKind::Choice,
         .byDefault = "outlines",
         .isOfPicture = true},
        {.name = "--plot-style",
         .value = "FILE",
         .help = QT_TRANSLATE_NOOP(
             "Uses", "a table of plot styles (ctb, stb) in place of what the page names; \"none\" for none. Without a "
                     "file there are monochrome, grayscale and screening 25%, 50%, 75%, 100%"),
         .apply = setPictureText<&PictureOptions::plotStyle>,
         .kind = ValueKind::File,
         .files = "*.ctb *.stb",
         .isOfPicture = true},
        {.name = "--thin",
         .help = QT_TRANSLATE_NOOP("Uses", "all lines as thin as can be"),
         .apply = setThin,
         .isOfPicture = true}};
}

QList<OptionRow> conversionOptions()
{
    return {
        timeLimitOption(QT_TRANSLATE_NOOP("Uses", "the most it may take; OUT stays as it was when it takes longer"),
                        QT_TRANSLATE_NOOP("Uses", "no limit")),
        forceOption(QT_TRANSLATE_NOOP("Uses",
                                      "write files although another program has them open, or they lie beside a "
                                      "drawing under its result's name")),
        {.name = "--strict",
         .help = QT_TRANSLATE_NOOP(
             "Uses",
             "end with status 3 when something could not be read or is missing in the picture, which is written "
             "all the same"),
         .apply = setFlag<&ProgramOptions::isStrict>},
        {.name = "--binary",
         .help = QT_TRANSLATE_NOOP("Uses", "write a DXF file in the binary form; without it, as text"),
         .apply = setFlag<&ProgramOptions::isBinary>},
        recoverOption(QT_TRANSLATE_NOOP("Uses", "open a damaged IN as far as it is sound, and tell on standard error "
                                                "what was dropped; OUT must be another file")),
        jsonOption(QT_TRANSLATE_NOOP(
            "Uses",
            "print one line of JSON: of each drawing file, status, messages and out; of pictures complete, drawn, "
            "invisible, inPart and notDrawn (a number for each type) and cutShort; with --layout all of it for "
            "each of the pages, with layout and output; with --recover the same of what was dropped, mended and "
            "added"))};
}

} // namespace

UseRow convertUse()
{
    return {
        .name = "convert",
        .purpose = QT_TRANSLATE_NOOP("Uses", "writes a drawing as DXF, PNG, SVG or PDF"),
        .usages = {"convert IN OUT [--layout NAME] [--paper A3] [--scale 1:50] [OPTION...]",
                   "convert IN... --to EXTENSION --out DIR [-j N] [OPTION...]"},
        .operands = {{.name = "IN", .help = QT_TRANSLATE_NOOP("Uses", "the drawing"), .files = "*.dxf *.dwg"},
                     {.name = "OUT",
                      .help = QT_TRANSLATE_NOOP("Uses", "the file to write, as what its extension says"),
                      .files = "*.dxf *.png *.svg *.pdf"}},
        .sections = {{.heading = "",
                      .text = QT_TRANSLATE_NOOP(
                          "Uses",
                          "Opens a drawing and writes it as what the extension of OUT says: dxf, png, svg or pdf. What "
                          "a picture does not show, or only in part, is told on standard error, by type."),
                      .options = conversionOptions()},
                     {.heading = QT_TRANSLATE_NOOP("Uses", "Pictures"),
                      .text = QT_TRANSLATE_NOOP(
                          "Uses",
                          "Without the options of a sheet, png and svg show all of model space in 1600 by 1200 pixels, "
                          "with the lineweights that it would have on a sheet 297 mm long; pdf shows it on A4."),
                      .options = pictureOptions()},
                     manySection()},
        .assign = assignToConvert,
        .run = convertDrawing};
}

} // namespace host::app
