#pragma once

#include <QProcess>
#include <QString>

namespace host::app {

/// A program that reads drawings and knows nothing of this one's code. It is started once, with "--serve", when the
/// first drawing is asked about: it reads the path of a drawing a line, and answers each with a line: "ok", or what it
/// complains about. See scripts/audit. What it prints to standard error comes out on this one's.
class DrawingAudit
{
public:
    /// `program`: its path. Nothing is started yet.
    explicit DrawingAudit(const QString &program);
    /// Ends the program, if it was started.
    ~DrawingAudit();

    /// What it finds wrong with the drawing, or that it cannot be asked; empty when the drawing is sound. Waits up to
    /// two minutes without handling events; a program that has not answered by then is ended, and started again by the
    /// next call.
    QString complaints(const QString &path);

private:
    /// Starts it at the first call.
    bool isRunning();

    QString m_program;
    QProcess m_process;
};

} // namespace host::app
