#pragma once

#include "host/app/window/canvas/TextEditing.h"

#include <QObject>

namespace host::app {

class DrawingCanvas;
class LayoutTabs;
class WindowServices;

/// Windows that stand in for the questions of commands when a person enters these by hand. Scripts, programs and
/// sessions are asked at the command line as ever.
class WindowDialogs final : public QObject
{
    Q_OBJECT

public:
    /// `services` must outlive it.
    explicit WindowDialogs(WindowServices &services);

    /// Opens what stands in for the command that was entered while nothing runs; returns when it is closed. False when
    /// nothing does, and the command is to run.
    bool open(const QString &entered);
    /// What is double-clicked there is edited.
    void connectCanvas(DrawingCanvas &canvas);
    /// What is done with the tabs of layouts runs as -LAYOUT.
    void connectLayouts(LayoutTabs &layouts);

private:
    /// The layout that is shown.
    void print();
    void setUpPage(const QString &layout);
    /// Asks for the file, which may be replaced after a question; empty when the person gave up.
    QString askFile(const QString &extension);
    /// The one text or block reference that is chosen.
    bool editChosen();
    void showLayoutMenu(LayoutTabs &layouts, const QPoint &place);
    void runLayout(const QStringList &answers);
    void renameLayout(const QString &name);
    /// Into the viewport that is pointed to, or out to the sheet. False where there is nothing to do.
    bool changeSpace(DrawingCanvas &canvas, const QPointF &at);
    void takeDoubleClick(DrawingCanvas &canvas, const QPointF &at);

    WindowServices &m_services;
    TextEditing m_textEditing;
};

} // namespace host::app
