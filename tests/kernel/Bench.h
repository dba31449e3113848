#pragma once

#include "host/kernel/documents/Session.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

/// A running host with one new drawing, a home of its own and nobody to answer prompts.
class Bench : public testing::Test
{
protected:
    Bench();
    ~Bench() override;

    host::kernel::Document &document() { return *session.documents().active(); }
    host::drawing::Drawing &drawing() { return document().drawing(); }
    /// Evaluates; the value as Lisp prints it, or "error: " and the message.
    std::string lisp(const std::string &text);
    /// Typed lines that the next prompts take.
    void type(const char *lines);
    /// Does all that is queued.
    void runQueued();
    void runTyped(const char *lines);
    /// What was printed since the last call.
    std::string takePrinted();
    QString path(const char *name) const;
    /// A file in the bench's folder.
    QString write(const char *name, const QByteArray &content) const;

    /// Empty for a file that is not there.
    QByteArray read(const char *name) const;
    /// Makes a point, so that the next file is another.
    void change() { lisp("(entmake '((0 . \"POINT\") (10 1.0 2.0 3.0)))"); }
    /// What a session beside this one is set up with.
    host::kernel::SessionOptions homeIn(const char *name) const;

    QTemporaryDir folder;
    host::kernel::Session session;

private:
    QString m_printed;
};
