#include "tests/tools/ToolRun.h"

#include "host/app/batch/BatchRuns.h"
#include "host/app/playback/DrawingAudit.h"
#include "host/drawing/file/Differences.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>

namespace tools_test {

using namespace Qt::StringLiterals;
using namespace host::drawing;

QString ToolRun::writeFile(const QString &name, const QByteArray &content) const
{
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << name.toStdString();
    file.write(content);
    return path(name);
}

QByteArray ToolRun::readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString ToolRun::sample(const QString &name)
{
    return qEnvironmentVariable("ORTAKIT_SOURCE") + u"/samples/"_s + name;
}

RunOutcome ToolRun::play(const QString &session, const QString &drawing) const
{
    return playFile(writeFile(u"session.txt"_s, session.toUtf8()), drawing);
}

RunOutcome ToolRun::playFile(const QString &sessionPath, const QString &drawing) const
{
    const host::app::WorkbenchOptions bench = workbench();
    host::app::ProgramOptions options;
    options.session = sessionPath;
    options.drawings = QStringList{drawing};
    options.outFolder = path(u"out"_s);
    options.home = bench.home;
    options.module = bench.module;
    options.tools = bench.tools;
    return {host::app::runSessions(options)};
}

QString ToolRun::result(const QString &drawing) const
{
    return path(u"out/"_s + QFileInfo(drawing).completeBaseName() + u".dxf"_s);
}

host::app::WorkbenchOptions ToolRun::workbench() const
{
    const QString built = qEnvironmentVariable("ORTAKIT_BUILD");
    return {path(u"home"_s), built + u"/lib/Ortakit.so"_s, built + u"/share/ortakit/tools"_s};
}

void ToolTest::plays(const QString &session, const QString &drawing) const
{
    EXPECT_EQ(run.play(session, drawing.isEmpty() ? plan : drawing).status, 0) << "its message is above";
}

QString runPython(const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    // Debian's interpreter by its path: another one that comes first does not know Debian's packages.
    process.start(u"/usr/bin/python3"_s, arguments);
    process.waitForFinished(120'000);
    return QString::fromUtf8(process.readAll());
}

QString complaints(const QString &drawing)
{
    static host::app::DrawingAudit audit(qEnvironmentVariable("ORTAKIT_SOURCE") + u"/scripts/audit"_s);
    return audit.complaints(drawing);
}

testing::AssertionResult isSound(const QString &drawing)
{
    const QString said = complaints(drawing);
    return said.isEmpty() ? testing::AssertionSuccess() : testing::AssertionFailure() << said.toStdString();
}

QStringList differences(const QString &before, const QString &after)
{
    const ReadResult old = Drawing::open(before);
    const ReadResult now = Drawing::open(after);
    EXPECT_TRUE(old && now) << before.toStdString() << after.toStdString();
    return old && now ? host::drawing::differences(*old.drawing, *now.drawing) : QStringList();
}

} // namespace tools_test
