#pragma once

#include <QCoreApplication>
#include <QList>

class QDockWidget;
class QMainWindow;
class QMenu;

namespace host::app {

class WindowServices;

/// One panel beside the drawing.
struct PanelRow
{
    const char *name;     ///< of its dock, "layersPanel": what is kept of the window's places knows it by this
    const char *title;    ///< to be translated in the context "Panels"
    const char *shortcut; ///< that shows and hides it; empty for none
    Qt::DockWidgetArea area;
    QWidget *(*make)(WindowServices &services, QWidget *parent);
};

/// The panels of the window: all are rows of one table, in the order of the View menu. A panel is made when it is first
/// shown, so that those nobody looks at cost nothing at the start.
class Panels
{
    Q_DECLARE_TR_FUNCTIONS(Panels)

public:
    /// Adds the docks, hidden; both arguments must outlive this.
    Panels(QMainWindow &window, WindowServices &services);

    /// Adds an entry a panel that shows and hides it.
    void addTo(QMenu &menu) const;
    /// Null for a name of no panel.
    QDockWidget *find(QStringView name) const;
    /// Shows it, with the keyboard; nothing for a name of no panel.
    void show(QStringView name) const;

private:
    QList<QDockWidget *> m_docks;
};

} // namespace host::app
