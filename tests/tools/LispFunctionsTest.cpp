// The manual of the Lisp functions: it has all of them, and every example does what it says.

#include "host/app/SessionPlayer.h"
#include "host/app/Workbench.h"
#include "host/kernel/DocumentManager.h"
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

QList<Section> sectionsOf(const QString &manual)
{
    QList<Section> sections;
    bool isExample = false;
    for (const QString &line : manual.split(u'\n')) {
        const bool isFence = line.startsWith(u"```");
        if (line.startsWith(u"### `"))
            sections.append({line.section(u'`', 1, 1), {}});
        else if (isExample && !isFence)
            sections.last().examples.last() += line + u'\n';
        if (isFence && !isExample && line == u"```session")
            sections.last().examples.append(QString());
        if (isFence)
            isExample = line == u"```session";
    }
    return sections;
}

class LispFunctionsManual : public testing::Test
{
protected:
    static QString source(const QString &file) { return qEnvironmentVariable("ORTAKIT_SOURCE") + u'/' + file; }

    /// The functions that the module defines, as it spells them; the manual is looked up by that.
    static QStringList tableNames()
    {
        static const QRegularExpression row(u"function<\\w+>\\(\"([^\"]+)\""_s);
        QStringList names;
        const QString table = QString::fromUtf8(ToolRun::readFile(source(u"module/LispFunctionTable.cpp"_s)));
        for (const QRegularExpressionMatch &match : row.globalMatch(table))
            names.append(match.captured(1));
        return names;
    }

    ToolRun run;
    host::app::Workbench bench{run.workbench()};
    const QList<Section> sections =
        sectionsOf(QString::fromUtf8(ToolRun::readFile(source(u"docs/lisp-functions.md"_s))));
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
    const QString plan = run.path(u"plan.dxf"_s);
    ASSERT_TRUE(QFile::copy(ToolRun::sample(u"plan.dxf"_s), plan));
    host::app::PlaybackOptions options;
    options.variables.insert(u"SAMPLES"_s, ToolRun::sample({}));
    options.outFolder = run.path(u"out"_s);
    ASSERT_TRUE(QDir().mkpath(options.outFolder));
    for (const Section &section : sections) {
        for (const QString &example : section.examples) {
            SCOPED_TRACE(section.name.toStdString());
            Document *document = bench.documents().open(plan).document;
            ASSERT_TRUE(document);
            const auto outcome = host::app::runSession(example, *document, options);
            EXPECT_TRUE(outcome.ok) << outcome.message.toStdString();
            EXPECT_TRUE(bench.documents().close(document));
        }
    }
}

} // namespace
