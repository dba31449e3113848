#pragma once

#include "host/kernel/documents/Session.h"

#include <QTemporaryDir>

namespace host::app::test {

/// The text of a small drawing: a LINE (handle 2A) from 0,0 to 10,0, a CIRCLE (2B) and a LINE (2C).
QByteArray smallDrawing();

/// A folder of the test's own. Names are relative to it; files are made with the folders they lie in.
struct TestFolder
{
    QString path(const QString &name) const { return folder.filePath(name); }
    /// The full path.
    QString write(const QString &name, const QByteArray &bytes) const;
    QByteArray read(const QString &name) const;

    QTemporaryDir folder;
};

/// A host with an empty home and a small drawing open, and a Lisp function that shows a dialog:
///     (samplebox)  runs a SampleBox; T when it was accepted, and sets `entered` to its text
struct HostFixture : TestFolder
{
    HostFixture();

    kernel::Session session;
    kernel::Document *document = nullptr;
};

/// Defines (samplebox) in a document.
void defineSampleBox(kernel::Document &document);

} // namespace host::app::test
