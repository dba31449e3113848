// The manual of the Lisp functions: it has all of them, and every example does what it says.

#include "host/app/playback/SessionPlayer.h"
#include "host/app/workbench/Workbench.h"
#include "host/kernel/documents/DocumentManager.h"
#include "host/lisp/Interpreter.h"
#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <QFile>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tools_test;
using namespace Qt::StringLiterals;
using host::kernel::Document;

namespace {

/// What the manual says of one function.
struct Section
{
    QString name;
    QStringList examples; ///< sessions
};

QStringList sessionsIn(const QString &text)
{
    static const QRegularExpression session(u"^```session\\n(.*?)^```$"_s,
                                            QRegularExpression::MultilineOption |
                                                QRegularExpression::DotMatchesEverythingOption);
    QStringList sessions;
    for (const QRegularExpressionMatch &match : session.globalMatch(text))
        sessions.append(match.captured(1));
    return sessions;
}

QList<Section> sectionsOf(const QString &manual)
{
    QList<Section> sections;
    for (const QString &section : manual.split(u"\n### `"_s).mid(1))
        sections.append({section.section(u'`', 0, 0), sessionsIn(section)});
    return sections;
}

class Manual : public testing::Test
{
protected:
    static QString source(const QString &file) { return qEnvironmentVariable("ORTAKIT_SOURCE") + u'/' + file; }

    static QString text(const QString &file) { return QString::fromUtf8(ToolRun::readFile(source(file))); }

    /// Plays an example over the sample plan.
    void plays(const QString &example)
    {
        const QString plan = run.path(u"plan.dxf"_s);
        ASSERT_TRUE(QFile::exists(plan) || QFile::copy(ToolRun::sample(u"plan.dxf"_s), plan));
        host::app::PlaybackOptions options;
        options.variables = {{u"SAMPLES"_s, ToolRun::sample({})}, {u"SESSION_DIR"_s, ToolRun::sample({})}};
        options.outFolder = run.path(u"out"_s);
        ASSERT_TRUE(QDir().mkpath(options.outFolder));
        const host::app::PlaybackScript script = host::app::parsePlayback(example);
        EXPECT_TRUE(script.errors.isEmpty()) << script.errors.value(0).message.toStdString();
        for (const host::app::PlaybackCase &one : host::app::casesToPlay(script)) {
            Document *document = bench.documents().open(plan).document;
            ASSERT_TRUE(document);
            const auto outcome = host::app::runCase(one, *document, options);
            EXPECT_TRUE(outcome.ok) << outcome.message.toStdString();
            EXPECT_TRUE(bench.documents().close(document));
        }
    }

    ToolRun run;
    host::app::Workbench bench{run.workbench()};
};

TEST_F(Manual, RecordedSessionsDoWhatTheirManualSays)
{
    const QStringList examples = sessionsIn(text(u"docs/playback.md"_s));
    EXPECT_FALSE(examples.isEmpty());
    for (const QString &example : examples)
        plays(example);
}

class LispFunctionsManual : public Manual
{
protected:
    /// The functions that the module defines, as it spells them; the manual is looked up by that.
    static QStringList tableNames()
    {
        static const QRegularExpression row(u"function<\\w+>\\(\"([^\"]+)\""_s);
        QStringList names;
        for (const QRegularExpressionMatch &match : row.globalMatch(text(u"module/LispFunctionTable.cpp"_s)))
            names.append(match.captured(1));
        return names;
    }

    const QList<Section> sections = sectionsOf(text(u"docs/lisp-functions.md"_s));
};

TEST_F(LispFunctionsManual, HasEveryFunctionWithAnExample)
{
    QStringList names;
    for (const Section &section : sections) {
        names.append(section.name);
        EXPECT_FALSE(section.examples.isEmpty()) << section.name.toStdString();
    }
    const QStringList table = tableNames();
    EXPECT_EQ(table.size(), 44);
    EXPECT_THAT(names, testing::UnorderedElementsAreArray(table));
    Document *document = bench.documents().create();
    for (const QString &name : names)
        EXPECT_TRUE(document->interpreter().isDefined(name.toStdString())) << name.toStdString();
}

TEST_F(LispFunctionsManual, ExamplesDoWhatTheySay)
{
    for (const Section &section : sections) {
        SCOPED_TRACE(section.name.toStdString());
        for (const QString &example : section.examples)
            plays(example);
    }
}

/// What the window, the help and the dialogs of the tools call them.
class ToolNames : public Manual
{
protected:
    static QStringList found(const QString &folder, const QString &files, const QString &pattern)
    {
        QStringList texts;
        for (const QString &file : QDir(source(folder)).entryList({files})) {
            const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
            for (const QRegularExpressionMatch &match : expression.globalMatch(text(folder + u'/' + file)))
                texts.append(match.captured(1));
        }
        return texts;
    }
    static QString plain(const QString &name) { return QString(name).remove(u' ').toLower(); }
};

TEST_F(ToolNames, AreTheSameInMenuHelpAndTitle)
{
    const QStringList headings = found(u"docs/manual/tools"_s, u"*.md"_s, u"^# (.*)$"_s);
    QStringList titles;
    for (const QString &folder : QDir(source(u"dialogs"_s)).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        for (const QString &title :
             found(u"dialogs/"_s + folder, u"*.ui"_s, u"\"windowTitle\">\\s*<string>([^<]*)<"_s) +
                 found(u"dialogs/"_s + folder, u"*.cpp"_s, u"setWindowTitle\\((.*)\\);"_s))
            titles.append(plain(title));
    }
    // The second page of another tool's dialog.
    const QStringList withoutPage = {u"Lisp dump"_s};
    // What programs know these dialogs by says less.
    const QStringList titledOtherwise =
        withoutPage + QStringList{u"Convert simple notes"_s, u"Export information"_s, u"Export block attributes"_s};
    const QList<host::app::ToolEntry> &tools = bench.tools().entries;
    EXPECT_GT(tools.size(), 25);
    for (const host::app::ToolEntry &tool : tools) {
        SCOPED_TRACE(tool.caption.toStdString());
        EXPECT_EQ(headings.count(tool.caption), withoutPage.contains(tool.caption) ? 0 : 1);
        EXPECT_NE(titles.filter(plain(tool.caption)).isEmpty(), !titledOtherwise.contains(tool.caption));
    }
}

} // namespace
