#include "tests/tools/ToolRun.h"

#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QProcess>

namespace tools_test {

using namespace Qt::StringLiterals;
using namespace host::drawing;

namespace {

QString program()
{
    return qEnvironmentVariable("ORTAKIT_BUILD") + u"/bin/ortakit"_s;
}

RunOutcome runProgram(const QString &name, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(name, arguments);
    const bool hasEnded = process.waitForFinished(120'000) && process.exitStatus() == QProcess::NormalExit;
    return {hasEnded ? process.exitCode() : -1, QString::fromUtf8(process.readAll())};
}

/// Records by what names them: the handle, or the name of a header variable.
QMap<QString, QPair<QString, QByteArray>> namedRecords(const QString &path)
{
    QMap<QString, QPair<QString, QByteArray>> records;
    const ReadResult file = Drawing::open(path);
    EXPECT_TRUE(file) << path.toStdString();
    if (!file)
        return records;
    const Drawing &drawing = *file.drawing;
    QHash<QString, int> nameless;
    for (RecordId id = drawing.first(); isValid(id); id = drawing.next(id)) {
        const QString type = QString::fromUtf8(drawing.typeName(id));
        QString name = drawing.handle(id).toString();
        if (drawing.kind(id) == RecordKind::Variable)
            name = type;
        else if (drawing.handle(id).isNull())
            name = u"%1 number %2"_s.arg(type).arg(++nameless[type]);
        records.insert(name, {type, drawing.bytes(id).toByteArray()});
    }
    return records;
}

} // namespace

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
    return runProgram(program(),
                      {u"run"_s, sessionPath, drawing, u"--out"_s, path(u"out"_s), u"--home"_s, path(u"home"_s)});
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
    const RunOutcome outcome = run.play(session, drawing.isEmpty() ? plan : drawing);
    EXPECT_EQ(outcome.status, 0) << outcome.output.toStdString();
}

QString runPython(const QStringList &arguments)
{
    // Debian's interpreter by its path: another one that comes first does not know Debian's packages.
    return runProgram(u"/usr/bin/python3"_s, arguments).output;
}

testing::AssertionResult isSound(const QString &drawing)
{
    const QString script = u"import sys, ezdxf\n"
                           "errors = ezdxf.readfile(sys.argv[1]).audit().errors\n"
                           "print('; '.join(e.message for e in errors) or 'ok')\n"_s;
    const QString said = runPython({u"-c"_s, script, drawing}).trimmed();
    if (said == u"ok"_s)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << said.toStdString();
}

QStringList differences(const QString &before, const QString &after)
{
    const auto old = namedRecords(before);
    const auto now = namedRecords(after);
    QStringList found;
    for (auto record = old.cbegin(); record != old.cend(); ++record) {
        if (!now.contains(record.key()))
            found.append(u'-' + record->first);
        else if (now.value(record.key()).second != record->second)
            found.append(u'~' + record->first);
    }
    for (auto record = now.cbegin(); record != now.cend(); ++record) {
        if (!old.contains(record.key()))
            found.append(u'+' + record->first);
    }
    found.sort();
    return found;
}

} // namespace tools_test
