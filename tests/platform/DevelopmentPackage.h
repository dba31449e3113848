#pragma once

#include <QString>
#include <QStringList>

namespace ortakit::test {

/// What came of running a program to its end.
struct Ended
{
    int status = -1; ///< -1 as well where it did not start or crashed
    QString output;
    QString messages;
};

/// Runs the program in `folder` with `input` on its standard input, off screen.
Ended runProgram(const QString &program, const QStringList &arguments, const QString &folder,
                 const QByteArray &input = {});

/// The text of a file; empty when it cannot be read.
QString textOf(const QString &path);

/// The development package in a folder of its own, with the sample host that is built from what is installed there.
/// Made once for the whole program, by the first test that asks.
struct DevelopmentPackage
{
    static const DevelopmentPackage &installed();

    QString prefix;     ///< where it was moved after the installation
    QString installLog; ///< what went wrong; empty when all is there
    QString buildLog;   ///< of configuring and building the sample
    QString sampleHost; ///< the program
};

} // namespace ortakit::test
