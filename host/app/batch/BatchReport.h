#pragma once

#include "host/app/workbench/ProgramOptions.h"

#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace host::app {

/// What became of one file, or of one case of a session over it.
enum class Outcome
{
    Done,
    Failed,
    NotRead,
    NotWritten,
    Incomplete, ///< written, but something is missing that was asked for
    CutShort    ///< a picture was written that shows less than it should
};

/// What is told of one file.
struct FileResult
{
    QString file;      ///< as it was given; "new drawing" where there is none
    QString part = {}; ///< the case of a session; else empty
    Outcome outcome = Outcome::Done;
    QStringList messages = {}; ///< sentences: what was done, what went wrong
    QStringList out = {};      ///< files that were written
    QJsonObject more = {};     ///< what the command has to tell beside that; see docs/cli.md

    bool isDone() const { return outcome == Outcome::Done; }
};

/// The status that a program which did nothing else ends with.
ExitStatus statusOf(Outcome outcome);
/// "not written", as lines of text have it, in the language of the program.
QString shownOf(Outcome outcome);

/// A result as it stands in "results", and back; nothing when the object is none.
QJsonObject objectOf(const FileResult &result);
std::optional<FileResult> resultOf(const QJsonObject &object);

/// What stands for a result as text, without the last line end.
using ResultText = std::function<QString(const FileResult &)>;

/// What a command tells of the files that it worked on, one after the other: lines of text on standard output, or with
/// --json one line with one object in the end, in the form that docs/report.schema.json describes.
class BatchReport
{
public:
    /// The form is what the options say. Without `text` results are told in a line that says what became of the file.
    explicit BatchReport(const ProgramOptions &options, ResultText text = {});

    /// Tells of the next file. `line` stands for it as text where it is not empty.
    void add(const FileResult &result, const QString &line = {});
    /// Something that "summary" has beside the numbers of files.
    void addToSummary(const QString &key, const QJsonValue &value) { m_summary.insert(key, value); }
    /// Tells what there is to tell in the end. Returns the status of it all: 0 when all is done, ExitPartly when only
    /// part of several results failed, else what they failed with.
    int finish();

    const QList<FileResult> &results() const { return m_results; }

private:
    int status() const;

    QString m_command;
    bool m_isJson;
    ResultText m_text;
    QList<FileResult> m_results;
    QJsonObject m_summary;
};

} // namespace host::app
