#pragma once

#include "host/kernel/documents/Session.h"

#include <QTemporaryDir>
#include <QTimer>

#include <functional>

namespace host::app::test {

/// The text of a small drawing: a LINE (handle 2A) from 0,0 to 10,0, a CIRCLE (2B) and a LINE (2C).
QByteArray smallDrawing();

/// A DWG file with circles, some of which cannot be read.
QByteArray dwgFile(int whole, int damaged = 0);

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

/// What a person does bit by bit, whatever windows open meanwhile.
struct Hands : QObject
{
    explicit Hands(QList<std::function<void()>> acts) : left(std::move(acts)) { goOn(); }
    void goOn()
    {
        QTimer::singleShot(20, this, [this] {
            if (left.isEmpty())
                return;
            const auto act = left.takeFirst();
            goOn(); // what is done now may open a window and return late
            act();
        });
    }
    QList<std::function<void()>> left;
};

} // namespace host::app::test
