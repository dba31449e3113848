#include "tests/platform/DevelopmentPackage.h"

#include <QDir>
#include <QFile>
#include <QProcess>

namespace ortakit::test {

namespace {

using namespace Qt::StringLiterals;

Ended cmake(const QStringList &arguments)
{
    return runProgram(QStringLiteral(SAMPLE_CMAKE), arguments, qEnvironmentVariable("ORTAKIT_BUILD"));
}

/// Installed into one folder and moved to another, as an archive is that people unpack where they like.
QString install(const QString &folder, const QString &moved)
{
    QString log;
    const QString prefix = folder + u"/installed"_s;
    for (const QString &component : {u"module"_s, u"dev"_s}) {
        const Ended ended = cmake({u"--install"_s, u"."_s, u"--component"_s, component, u"--prefix"_s, prefix});
        if (ended.status != 0)
            log += ended.messages;
    }
    if (!QDir().rename(prefix, moved))
        log += u"nothing was installed"_s;
    return log;
}

QString build(const QString &source, const QString &binary, const QString &prefix)
{
    const Ended configured =
        cmake({u"-S"_s, source, u"-B"_s, binary, u"-G"_s, QStringLiteral(SAMPLE_GENERATOR),
               u"-DCMAKE_PREFIX_PATH="_s + prefix, u"-DCMAKE_CXX_COMPILER="_s + QStringLiteral(SAMPLE_COMPILER),
               u"-DCMAKE_CXX_FLAGS="_s + QStringLiteral(SAMPLE_FLAGS),
               u"-DCMAKE_CXX_COMPILER_LAUNCHER="_s + QStringLiteral(SAMPLE_LAUNCHER), u"-DCMAKE_UNITY_BUILD=ON"_s,
               u"-DCMAKE_UNITY_BUILD_BATCH_SIZE=0"_s});
    const Ended built = cmake({u"--build"_s, binary});
    return configured.output + configured.messages + built.output + built.messages;
}

} // namespace

Ended runProgram(const QString &program, const QStringList &arguments, const QString &folder, const QByteArray &input)
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    constexpr int milliseconds = 120'000;
    const bool isEnded = process.waitForFinished(milliseconds) && process.exitStatus() == QProcess::NormalExit;
    return {isEnded ? process.exitCode() : -1, QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QString textOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

const DevelopmentPackage &DevelopmentPackage::installed()
{
    static const DevelopmentPackage package = [] {
        const QString folder = qEnvironmentVariable("ORTAKIT_BUILD") + u"/development-package"_s;
        QDir(folder).removeRecursively();
        DevelopmentPackage made;
        made.prefix = folder + u"/moved"_s;
        made.installLog = install(folder, made.prefix);
        made.buildLog = build(made.prefix + u'/' + QStringLiteral(INSTALLED_SAMPLE), folder + u"/build"_s, made.prefix);
        made.sampleHost = folder + u"/build/sample_host"_s;
        return made;
    }();
    return package;
}

} // namespace ortakit::test
