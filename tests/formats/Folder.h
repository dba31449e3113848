#pragma once

// What tests of file formats are written with, and the names they are written in.

#include "tests/support/QtTestPrinters.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace formats_test {

/// A folder of a test's own that goes away with it.
class Folder
{
public:
    QString path(const QString &name) const { return m_folder.filePath(name); }

    /// Writes `content` to the file `name` there and gives its path.
    QString writeFile(const QString &name, const QByteArray &content) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("The test's folder takes no file");
        return file.fileName();
    }

    /// What the file at `path` holds; empty when it cannot be read.
    static QByteArray readFile(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QTemporaryDir m_folder;
};

} // namespace formats_test

namespace ortakit {
}
using namespace ortakit;
using namespace formats_test;
using namespace Qt::StringLiterals;
