#include "tests/platform/DevelopmentPackage.h"

#include <QDirIterator>
#include <QMap>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

using namespace Qt::StringLiterals;
using namespace ortakit::test;

QString sourcePath(const QString &name)
{
    return qEnvironmentVariable("ORTAKIT_SOURCE") + u'/' + name;
}

QString document()
{
    return textOf(sourcePath(u"docs/porting.md"_s));
}

/// The lines without what all of them are indented by.
QString outdented(const QString &text)
{
    QStringList lines = text.split(u'\n');
    qsizetype indent = text.size();
    for (const QString &line : lines) {
        if (!line.trimmed().isEmpty())
            indent = std::min(indent, line.size() - line.trimmed().size());
    }
    for (QString &line : lines)
        line.remove(0, indent);
    return lines.join(u'\n');
}

QStringList sampleFiles()
{
    QStringList files;
    for (QDirIterator found(sourcePath(u"samples/host"_s), {u"*.cpp"_s, u"*.h"_s}, QDir::Files); found.hasNext();)
        files.append(found.next());
    return files;
}

/// The marked regions of the sample host by "FILE NAME": what stands between "// [NAME]" and "// [/NAME]".
QMap<QString, QString> regions()
{
    static const QRegularExpression region(u"^ *// \\[([^/\\]]+)\\]\\n(.*?)\\n *// \\[/\\1\\]$"_s,
                                           QRegularExpression::MultilineOption |
                                               QRegularExpression::DotMatchesEverythingOption);
    QMap<QString, QString> found;
    for (const QString &file : sampleFiles()) {
        for (auto matches = region.globalMatch(textOf(file)); matches.hasNext();) {
            const QRegularExpressionMatch match = matches.next();
            found[file.section(u'/', -1) + u' ' + match.captured(1)] = outdented(match.captured(2));
        }
    }
    return found;
}

TEST(PortingDocument, ShowsTheSampleHostAsItIs)
{
    static const QRegularExpression snippet(u"<!-- (\\S+ [^>]+) -->\\n```cpp\\n(.*?)\\n```"_s,
                                            QRegularExpression::DotMatchesEverythingOption);
    QMap<QString, QString> unused = regions();
    EXPECT_FALSE(unused.isEmpty());
    for (auto matches = snippet.globalMatch(document()); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        EXPECT_EQ(match.captured(2).toStdString(), regions().value(match.captured(1)).toStdString())
            << match.captured(1).toStdString();
        unused.remove(match.captured(1));
    }
    EXPECT_EQ(unused.keys().join(u", "_s).toStdString(), "") << "marked in samples/host and not shown";
}

/// Lines that are neither blank nor a comment.
int codeLines(const QString &file)
{
    static const QRegularExpression code(u"^\\s*(?!//)\\S"_s, QRegularExpression::MultilineOption);
    int lines = 0;
    for (auto matches = code.globalMatch(textOf(file)); matches.hasNext(); matches.next())
        ++lines;
    return lines;
}

TEST(PortingDocument, CountsTheLinesOfTheSampleHost)
{
    // Rows: a group, its files without "cpp" and "h", their lines.
    static const QRegularExpression row(u"^\\| [^|]+ \\| (`\\w+`(?:, `\\w+`)*) \\| (\\d+) \\|$"_s,
                                        QRegularExpression::MultilineOption);
    QMap<QString, int> lines;
    for (const QString &file : sampleFiles())
        lines[file.section(u'/', -1).section(u'.', 0, 0)] += codeLines(file);
    for (auto matches = row.globalMatch(document()); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        int counted = 0;
        for (const QString &name : match.captured(1).remove(u'`').split(u", "_s))
            counted += lines.take(name);
        EXPECT_EQ(counted, match.captured(2).toInt()) << match.captured().toStdString();
    }
    EXPECT_EQ(lines.keys().join(u", "_s).toStdString(), "") << "not in the table";
}

} // namespace
