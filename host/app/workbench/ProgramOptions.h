#pragma once

#include "host/app/workbench/PictureOptions.h"
#include "host/drawing/comparing/Comparison.h"

#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>

namespace host::app {

/// What the program ends with.
enum ExitStatus : int
{
    ExitDone = 0,
    ExitFailed = 1,    ///< a tool, expression or session failed
    ExitUsage = 2,     ///< wrong use of the program
    ExitPartly = 3,    ///< part of a batch failed; of a strict conversion, part of the drawing is missing
    ExitFileError = 4, ///< a file could not be read or written
    ExitCutShort = 5,  ///< a picture was written that shows less than it should: there was more than is drawn in one go
    ExitInterrupted = 130 ///< Ctrl+C ended work that was shared out
};

struct UseRow;

/// How two drawings are compared and shown.
struct DiffOptions
{
    drawing::ComparisonRules rules{};
    QString picture{};     ///< a file to draw the differences into; empty: none
    QString layout{};      ///< what of the drawings that shows; empty: model space
    bool isBrief = false;  ///< sums alone are told
    QString changedPath{}; ///< of a version control system: whose two versions the files are; empty: they are two
};

/// What is asked of a use.
enum class Wish
{
    Work,
    Help, ///< that it is told about
    Version
};

enum class Style
{
    Light,
    Dark
};

/// Something to do in the dialog of a tool, or behind it.
struct ToolStep
{
    enum class Kind
    {
        Set,   ///< a value into a field
        Press, ///< a button
        Answer ///< the value to a prompt
    };
    Kind kind;
    QString key; ///< in lower case; of Answer empty
    QString value;
};

/// What the program was asked to do.
struct ProgramOptions
{
    Wish wish = Wish::Work;
    const UseRow *use = nullptr; ///< the row of host/app/uses that the arguments are for
    QString commandName;         ///< its name; empty for the window
    bool hasWindow = true;       ///< it is that of the window
    QStringList givenOptions;    ///< as they were given, but for those that say how work is shared out and told
    QStringList wordsOfAll;      ///< words that are no options and for each of the files: a session
    int jobs = 0;                ///< how many processes share the files; 0: this one works on them
    bool isWorker = false;       ///< one of these processes
    QString session;             ///< Run; in a window what is played first
    QString record;              ///< Window: what the person does is written there; empty: it is not
    QStringList drawings;        ///< Window, Run; of Run none when the session says which it is for
    QString audit;               ///< Run: a program that reads drawings, for sessions that ask it; see DrawingAudit
    QStringList lispFiles;       ///< Lisp; empty: a prompt
    QString drawing;             ///< Lisp; empty: a new drawing
    QString input;               ///< Convert
    QString output;              ///< Convert
    QString outFolder;           ///< Run, tools, Convert, Audit
    QList<ToolStep> toolSteps;   ///< tools; in the order in which they are given
    QString extension;           ///< Convert of many drawings: what they become, "pdf"; empty: of one
    QString selection;           ///< tools: what they work on; empty: all that they can
    QString stateFile;           ///< tools: values that a dialog saved; empty: none
    bool isInPlace = false;      ///< tools: drawings are saved where they are
    bool withPictures = false;   ///< Run
    bool isStrict = false;       ///< Convert
    bool isForced = false;       ///< Run, Lisp, Convert: files are written whatever other programs do with them
    bool isBinary = false;       ///< Convert: a DXF file is written in the binary form
    bool isRecovering = false;   ///< Window, Run, Convert: drawings are opened as far as they are sound
    bool isRestoring = false;    ///< Window: what a killed program left of drawings is opened without a question
    bool withJson = false;       ///< Convert; Lisp that is checked
    bool isCheck = false;        ///< Lisp: the files are read, not run
    bool isTest = false;         ///< Lisp: the tests that the files define are run
    QString testFilter;          ///< of their names, with * and ?; empty: all
    QString reportFile;          ///< of tests as XML, in place of lines on standard output; empty: none
    bool isProfiled = false;     ///< Lisp that is run
    QString profileFile;         ///< of that, folded stacks; empty: none
    QStringList onlyKinds;       ///< of findings; empty: all
    QStringList exceptKinds;     ///< likewise; empty: none
    PictureOptions picture;      ///< Convert
    DiffOptions diff;            ///< Diff
    bool listsRecords = false;   ///< Info: a line for each record
    bool isFixing = false;       ///< Audit: what was mended is written
    QString pictureFolder;
    std::optional<Style> style;
    QString language; ///< the code of a language that there is; empty: not said
    QString home;
    QString module;
    QString tools;
    QStringList trustedFolders; ///< all but Convert
    QStringList readableFolders;
    /// Of each session; of a Lisp run or a conversion as a whole. Nothing: the usual one of a session, none of others.
    std::optional<std::chrono::milliseconds> timeLimit;
    std::chrono::milliseconds pace{0}; ///< Window: how long each line of a session waits
    std::optional<int> memoryLimit;    ///< of Lisp, in MB; Run, Lisp, Window
    QString error;                     ///< why the arguments make no sense; empty when they do

    /// Nobody sits in front of it.
    bool isUnattended() const { return !hasWindow || !pictureFolder.isEmpty(); }
};

} // namespace host::app
