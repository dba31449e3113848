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

    QTemporaryDir folder;
    host::kernel::Session session;

private:
    QString m_printed;
};

/// One row of a table of Lisp cases.
struct LispCase
{
    const char *name;
    const char *setUp; ///< evaluated first
    const char *expression;
    const char *expected;
    const char *typed = nullptr; ///< for the prompts of the expression
};

std::ostream &operator<<(std::ostream &stream, const LispCase &row);

/// Gives the row its host and compares.
class LispTable : public Bench, public testing::WithParamInterface<LispCase>
{
protected:
    void check();
};
