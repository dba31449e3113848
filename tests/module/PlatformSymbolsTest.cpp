#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace {

using namespace Qt::StringLiterals;

QString readText(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList moduleSymbols(const QString &kind)
{
    QProcess nm;
    nm.start(QStringLiteral(NM), {u"-D"_s, u"-C"_s, kind, QStringLiteral(MODULE_FILE)});
    if (!nm.waitForFinished() || nm.exitCode() != 0)
        return {};
    return QString::fromLocal8Bit(nm.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
}

/// What the module's file leaves to its host, as Class::function or function.
QSet<QString> namesAskedFor()
{
    static const QRegularExpression name(
        u" [UwV] ((?:(?:Od|CKv|RText)\\w*::~?\\w+)|odrx\\w+|oded\\w+|GetKv\\w+|ACTIVE_DOCUMENT)(?:\\(|$)"_s);
    QSet<QString> names;
    for (const QString &line : moduleSymbols(u"--undefined-only"_s)) {
        const QRegularExpressionMatch match = name.match(line);
        if (match.hasMatch())
            names.insert(match.captured(1));
    }
    return names;
}

/// The list in the document: the lines of the fenced block of its section.
QSet<QString> namesListed(const QString &document)
{
    const QStringList parts = document.section(u"## What the file leaves to its host"_s, 1).split(u"```"_s);
    const QString block = parts.value(1).section(u'\n', 1);
    const QStringList lines = block.split(u'\n', Qt::SkipEmptyParts);
    return {lines.begin(), lines.end()};
}

std::string sorted(const QSet<QString> &names)
{
    QStringList list(names.begin(), names.end());
    list.sort();
    return list.join(u'\n').toStdString();
}

TEST(PlatformSymbols, TheDocumentListsWhatTheModuleAsksFor)
{
    const QSet<QString> asked = namesAskedFor();
    const QSet<QString> listed = namesListed(readText(QStringLiteral(PORTING_DOCUMENT)));
    ASSERT_FALSE(asked.isEmpty());
    EXPECT_EQ(sorted(asked - listed), "") << "asked for and not in docs/porting.md";
    EXPECT_EQ(sorted(listed - asked), "") << "in docs/porting.md and not asked for";
}

TEST(PlatformSymbols, TheModuleShowsItsTwoEntryPointsOnly)
{
    QStringList names;
    for (const QString &line : moduleSymbols(u"--defined-only"_s))
        names.append(line.section(u' ', 2));
    names.sort();
    EXPECT_EQ(names, (QStringList{u"odrxCreateModuleObject"_s, u"odrxGetAPIVersion"_s}));
}

TEST(PlatformSymbols, TheModuleKnowsNothingOfTheHostBehindThePlatform)
{
    for (const QString &line : moduleSymbols(u"--undefined-only"_s))
        EXPECT_FALSE(line.contains(u"host::"_s)) << line.toStdString();
}

/// Names that a header of the platform declares: classes, free and virtual and static functions.
QSet<QString> declaredNames(const QString &header)
{
    static const QRegularExpression declaration(
        u"^(?:(?:class|struct) (?:KV_EXPORT )?(\\w+)(?: :.*| final.*)?$|\\s*(?:virtual|static|KV_EXPORT) [^(~=]*?(\\w+)\\()"_s,
        QRegularExpression::MultilineOption);
    QSet<QString> names;
    for (auto matches = declaration.globalMatch(readText(header)); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        names.insert(match.captured(1) + match.captured(2));
    }
    return names;
}

TEST(PlatformSymbols, TheDocumentNamesEveryDeclaration)
{
    const QString document = readText(QStringLiteral(PORTING_DOCUMENT));
    const QString folder = qEnvironmentVariable("ORTAKIT_SOURCE") + u"/platform"_s;
    int headers = 0;
    for (QDirIterator found(folder, {u"*.h"_s}, QDir::Files, QDirIterator::Subdirectories); found.hasNext();) {
        const QString header = found.next();
        ++headers;
        for (const QString &name : declaredNames(header)) {
            const QRegularExpression word(u"\\b%1\\b"_s.arg(name));
            EXPECT_TRUE(document.contains(word)) << name.toStdString() << " of " << header.toStdString();
        }
    }
    EXPECT_GT(headers, 10);
}

} // namespace
