#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace host::app {

/// What came of one test.
struct TestResult
{
    QString file;
    QString name;         ///< empty: the file itself could not be loaded
    QString error = {};   ///< in one line, with its place behind it where that is known; empty: it passed
    QString output = {};  ///< what the program wrote meanwhile
    double seconds = 0.0; ///< loading the file included
};

/// A test as version 14 of the Test Anything Protocol has it, with its line end: "ok 3 - walls.lsp: corners", and of a
/// failed one its message, place and output behind that.
QString tapLine(const TestResult &result, qsizetype number);

/// All of them as XML in the form that JUnit made customary, a suite for each file.
QByteArray junitReport(const QList<TestResult> &results);

} // namespace host::app
