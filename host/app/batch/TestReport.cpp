#include "host/app/batch/TestReport.h"

#include <QRegularExpression>
#include <QXmlStreamWriter>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

QString shownName(const TestResult &result)
{
    return result.name.isEmpty() ? u"loads"_s : result.name;
}

/// The message without its place, and that: "walls.lsp:12".
std::pair<QString, QString> messageAndPlace(const QString &error)
{
    static const QRegularExpression place(u"^(.*) \\(([^()]*:[0-9]+)\\)$"_s,
                                          QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = place.match(error);
    return match.hasMatch() ? std::pair(match.captured(1), match.captured(2)) : std::pair(error, QString());
}

/// In quotes, as YAML has texts of one line.
QString quoted(QString text)
{
    text.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s).replace(u'\n', u"\\n"_s).replace(u'\t', u"\\t"_s);
    return u'"' + text + u'"';
}

/// What TAP reads in a name by itself.
QString escaped(QString name)
{
    return name.replace(u'\\', u"\\\\"_s).replace(u'#', u"\\#"_s).replace(u'\n', u' ');
}

/// XML has no signs for other control characters.
QString withoutControls(QString text)
{
    text.removeIf([](QChar c) { return c.unicode() < 0x20 && c != u'\n' && c != u'\t'; });
    return text;
}

void writeCase(QXmlStreamWriter &xml, const TestResult &result)
{
    xml.writeStartElement(u"testcase"_s);
    xml.writeAttribute(u"classname"_s, result.file);
    xml.writeAttribute(u"name"_s, withoutControls(shownName(result)));
    xml.writeAttribute(u"time"_s, QString::number(result.seconds, 'f', 3));
    if (!result.error.isEmpty()) {
        const auto [message, place] = messageAndPlace(result.error);
        xml.writeStartElement(u"failure"_s);
        xml.writeAttribute(u"message"_s, withoutControls(message));
        xml.writeCharacters(place);
        xml.writeEndElement();
    }
    if (!result.output.isEmpty())
        xml.writeTextElement(u"system-out"_s, withoutControls(result.output));
    xml.writeEndElement();
}

void writeSuite(QXmlStreamWriter &xml, const QList<TestResult> &results, const QString &file)
{
    QList<TestResult> own;
    std::ranges::copy_if(results, std::back_inserter(own),
                         [&](const TestResult &result) { return result.file == file; });
    const auto failures = std::ranges::count_if(own, [](const TestResult &result) { return !result.error.isEmpty(); });
    double seconds = 0.0;
    for (const TestResult &result : own)
        seconds += result.seconds;
    xml.writeStartElement(u"testsuite"_s);
    xml.writeAttribute(u"name"_s, file);
    xml.writeAttribute(u"tests"_s, QString::number(own.size()));
    xml.writeAttribute(u"failures"_s, QString::number(failures));
    xml.writeAttribute(u"time"_s, QString::number(seconds, 'f', 3));
    for (const TestResult &result : own)
        writeCase(xml, result);
    xml.writeEndElement();
}

} // namespace

QString tapLine(const TestResult &result, qsizetype number)
{
    const QString head = u"ok %1 - %2: %3\n"_s.arg(number).arg(escaped(result.file), escaped(shownName(result)));
    if (result.error.isEmpty())
        return head;
    const auto [message, place] = messageAndPlace(result.error);
    QString text = u"not "_s + head + u"  ---\n  message: "_s + quoted(message) + u'\n';
    if (!place.isEmpty())
        text += u"  at: "_s + quoted(place) + u'\n';
    if (!result.output.isEmpty())
        text += u"  output: "_s + quoted(result.output) + u'\n';
    return text + u"  ...\n"_s;
}

QByteArray junitReport(const QList<TestResult> &results)
{
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(u"testsuites"_s);
    QStringList files;
    for (const TestResult &result : results) {
        if (!files.contains(result.file))
            files.append(result.file);
    }
    for (const QString &file : files)
        writeSuite(xml, results, file);
    xml.writeEndElement();
    xml.writeEndDocument();
    return bytes;
}

} // namespace host::app
