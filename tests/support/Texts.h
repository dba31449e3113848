#pragma once

#include "tests/support/CaseFile.h"

#include <QByteArray>
#include <QFile>

namespace ortakit::test {

/// A drawing's file as a test writes it: "0 LINE 8 0" is four lines. Blanks and line ends stand between codes and
/// values, so no value is empty or holds any.
inline QByteArray dxfText(const QByteArray &tags)
{
    return tags.simplified().replace(' ', '\n') + '\n';
}

/// The bytes of a file below the folder of the tests; empty when it cannot be read.
inline QByteArray testText(const char *name)
{
    QFile file(testFile(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace ortakit::test
