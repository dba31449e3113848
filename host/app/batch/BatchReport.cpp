#include "host/app/batch/BatchReport.h"

#include "host/app/batch/BatchWork.h"
#include "host/app/workbench/ProgramOutput.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

#include <array>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// The form of the object. It grows by keys; what is there keeps its meaning as long as this number stays.
constexpr int reportSchema = 1;

struct OutcomeRow
{
    Outcome outcome;
    const char *word;
    ExitStatus status;
    const char *shown; ///< in a line of text
};

constexpr std::array outcomeRows{
    OutcomeRow{Outcome::Done, "done", ExitDone, QT_TRANSLATE_NOOP("Batch", "done")},
    OutcomeRow{Outcome::Failed, "failed", ExitFailed, QT_TRANSLATE_NOOP("Batch", "failed")},
    OutcomeRow{Outcome::NotRead, "not-read", ExitFileError, QT_TRANSLATE_NOOP("Batch", "not read")},
    OutcomeRow{Outcome::NotWritten, "not-written", ExitFileError, QT_TRANSLATE_NOOP("Batch", "not written")},
    OutcomeRow{Outcome::Incomplete, "incomplete", ExitPartly, QT_TRANSLATE_NOOP("Batch", "incomplete")},
    OutcomeRow{Outcome::CutShort, "cut-short", ExitCutShort, QT_TRANSLATE_NOOP("Batch", "cut short")},
};

const OutcomeRow &outcomeRow(Outcome outcome)
{
    return outcomeRows[static_cast<std::size_t>(outcome)];
}

QStringList stringsOf(const QJsonValue &value)
{
    QStringList texts;
    for (const QJsonValue &text : value.toArray())
        texts.append(text.toString());
    return texts;
}

/// "not-written", as JSON has it.
QString wordOf(Outcome outcome)
{
    return QString::fromLatin1(outcomeRow(outcome).word);
}

QString lineOf(const FileResult &result)
{
    QString line = native(result.file);
    if (!result.part.isEmpty())
        line = QCoreApplication::translate("Batch", "%1, case %2").arg(line, result.part);
    line += u": "_s + shownOf(result.outcome);
    QStringList out;
    for (const QString &file : result.out)
        out.append(native(file));
    return out.isEmpty() || result.outcome == Outcome::NotWritten ? line : line + u", "_s + out.join(", "_L1);
}

} // namespace

ExitStatus statusOf(Outcome outcome)
{
    return outcomeRow(outcome).status;
}

QString shownOf(Outcome outcome)
{
    return QCoreApplication::translate("Batch", outcomeRow(outcome).shown);
}

QJsonObject objectOf(const FileResult &result)
{
    QJsonObject object = result.more;
    object.insert(u"file"_s, result.file);
    if (!result.part.isEmpty())
        object.insert(u"case"_s, result.part);
    object.insert(u"status"_s, wordOf(result.outcome));
    object.insert(u"messages"_s, QJsonArray::fromStringList(result.messages));
    object.insert(u"out"_s, QJsonArray::fromStringList(result.out));
    return object;
}

std::optional<FileResult> resultOf(const QJsonObject &object)
{
    const QString word = object.value(u"status"_s).toString();
    for (const OutcomeRow &row : outcomeRows) {
        if (word != QLatin1StringView(row.word) || !object.value(u"file"_s).isString())
            continue;
        FileResult result{.file = object.value(u"file"_s).toString(),
                          .part = object.value(u"case"_s).toString(),
                          .outcome = row.outcome,
                          .messages = stringsOf(object.value(u"messages"_s)),
                          .out = stringsOf(object.value(u"out"_s)),
                          .more = object};
        for (const char *key : {"file", "case", "status", "messages", "out"})
            result.more.remove(QLatin1StringView(key));
        return result;
    }
    return {};
}

BatchReport::BatchReport(const ProgramOptions &options, ResultText text)
    : m_command(options.commandName), m_isJson(options.withJson), m_text(text ? std::move(text) : lineOf)
{
}

void BatchReport::add(const FileResult &result, const QString &line)
{
    m_results.append(result);
    if (!m_isJson)
        writeResult((line.isEmpty() ? m_text(result) : line) + u'\n');
}

int BatchReport::status() const
{
    QList<int> failures;
    for (const FileResult &result : m_results)
        if (!result.isDone())
            failures.append(statusOf(result.outcome));
    if (failures.isEmpty())
        return ExitDone;
    if (failures.size() < m_results.size())
        return ExitPartly;
    // Of several kinds the one that says most about what went wrong.
    for (const int status : {ExitFailed, ExitFileError, ExitPartly})
        if (failures.contains(status))
            return status;
    return ExitCutShort;
}

int BatchReport::finish()
{
    const int ended = status();
    if (!m_isJson)
        return ended;
    QJsonArray results;
    qsizetype done = 0;
    for (const FileResult &result : m_results) {
        results.append(objectOf(result));
        done += result.isDone() ? 1 : 0;
    }
    m_summary.insert(u"results"_s, m_results.size());
    m_summary.insert(u"done"_s, done);
    m_summary.insert(u"failed"_s, m_results.size() - done);
    m_summary.insert(u"exit"_s, ended);
    const QJsonObject whole{
        {u"schema"_s, reportSchema}, {u"command"_s, m_command}, {u"results"_s, results}, {u"summary"_s, m_summary}};
    writeResult(QString::fromUtf8(QJsonDocument(whole).toJson(QJsonDocument::Compact)) + u'\n');
    return ended;
}

} // namespace host::app
