#pragma once

#include "host/app/workbench/Workbench.h"
#include "host/drawing/records/Drawing.h"

#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tools_test {

/// What the program did with a session.
struct RunOutcome
{
    int status = -1; ///< exit status of the program, as host::app::ExitStatus has it
};

/// A folder of a test's own with a user's home, and the program's batch runs in it, with the built module and tools.
/// They run in the test's own process: messages go to its standard error.
class ToolRun
{
public:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    QString writeFile(const QString &name, const QByteArray &content) const;
    static QByteArray readFile(const QString &path);
    static QString sample(const QString &name);

    /// Plays `session` (its text) over `drawing`; what it changed goes to path("out").
    RunOutcome play(const QString &session, const QString &drawing) const;
    RunOutcome playFile(const QString &sessionPath, const QString &drawing) const;
    QString result(const QString &drawing) const;
    /// For a workbench in the test itself, with the built module and tools and the same home.
    host::app::WorkbenchOptions workbench() const;
    /// Where the tool of that name keeps its dialog's state.
    QString stateFile(const QString &tool) const { return path(QStringLiteral("home/Ortakit/%1.state").arg(tool)); }

private:
    QTemporaryDir m_folder;
};

/// Tools played over a sample drawing.
class ToolTest : public testing::Test
{
protected:
    /// Plays `session` over `drawing`, the plan when there is none, and expects that it ends well.
    void plays(const QString &session, const QString &drawing = {}) const;

    ToolRun run;
    const QString plan = ToolRun::sample(QStringLiteral("plan.dxf"));
};

/// What Python with an independent reader of drawings prints, on both streams, for these arguments.
QString runPython(const QStringList &arguments);

/// What an independent reader complains about in the drawing; empty when it is sound. One reader, started once, for all
/// tests.
QString complaints(const QString &drawing);
/// The same to expect: its complaints are the message.
testing::AssertionResult isSound(const QString &drawing);

/// host::drawing::differences() of two files.
QStringList differences(const QString &before, const QString &after);

} // namespace tools_test
