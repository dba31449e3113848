#pragma once

#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"

#include <QObject>

#include <functional>

namespace host::app {

class DrawingCanvas;

/// What the parts of the window ask of it: panels, bars and dialogs know this and not the window. It lives as long as
/// the window, which its parts do not outlive.
class WindowServices : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    virtual kernel::Session &session() = 0;
    /// The active one; null when no drawing is open.
    virtual kernel::Document *document() const = 0;
    /// That shows the active document; null likewise.
    virtual DrawingCanvas *canvas() const = 0;
    /// Whether a command, program or session runs: parts are to be looked at then, not to change anything.
    virtual bool isBusy() const = 0;
    /// Runs a line as the command line would, in place of what was begun there; it is recorded as such. Nothing while
    /// something runs. Returns when what it started has ended.
    virtual void run(const QString &line) = 0;
    /// Changes the active drawing in one undo step of this name, which `change` is called within. False, without a
    /// call, while something runs or no drawing is open.
    virtual bool change(const QString &step, const std::function<void(kernel::Document &)> &change) = 0;
    /// Tells the person something, on the command line.
    virtual void tell(const QString &text) = 0;

signals:
    /// Another document is the active one, or none.
    void documentChanged(host::kernel::Document *document);
    /// What parts show may be other now: something ran, was undone, or began to run. Comes once for what comes together
    /// with it; whoever needs long for an answer compares Drawing::revision() first.
    void stateChanged();
    /// A tool has listed what it did in a document.
    void resultsChanged();
    /// Other entities are chosen in the active document.
    void selectionChanged();
};

} // namespace host::app
