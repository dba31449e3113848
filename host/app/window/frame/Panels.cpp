#include "host/app/window/frame/Panels.h"

#include "host/app/window/frame/WindowServices.h"
#include "host/app/window/panels/LayerPanel.h"
#include "host/app/window/panels/PropertiesPanel.h"
#include "host/app/window/panels/ResultsPanel.h"

#include <QAction>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>

#include <span>

namespace host::app {

namespace {

template <typename Panel>
QWidget *makePanel(WindowServices &services, QWidget *parent)
{
    return new Panel(services, parent);
}

std::span<const PanelRow> panelRows()
{
    static const std::vector<PanelRow> rows = {
        {"propertiesPanel", QT_TRANSLATE_NOOP("Panels", "Properties"), "Ctrl+1", Qt::LeftDockWidgetArea,
         makePanel<PropertiesPanel>},
        {"layersPanel", QT_TRANSLATE_NOOP("Panels", "Layers"), "Ctrl+2", Qt::RightDockWidgetArea,
         makePanel<LayerPanel>},
        {"resultsPanel", QT_TRANSLATE_NOOP("Panels", "Results"), "", Qt::RightDockWidgetArea, makePanel<ResultsPanel>},
    };
    return rows;
}

} // namespace

Panels::Panels(QMainWindow &window, WindowServices &services)
{
    for (const PanelRow &row : panelRows()) {
        auto *dock = new QDockWidget(tr(row.title), &window);
        dock->setObjectName(QString::fromLatin1(row.name));
        dock->toggleViewAction()->setShortcut(QKeySequence(QString::fromLatin1(row.shortcut)));
        window.addDockWidget(row.area, dock);
        dock->hide();
        QObject::connect(dock, &QDockWidget::visibilityChanged, dock, [dock, make = row.make, &services](bool isShown) {
            if (isShown && !dock->widget())
                dock->setWidget(make(services, dock));
        });
        m_docks.append(dock);
    }
}

void Panels::addTo(QMenu &menu) const
{
    for (const QDockWidget *dock : m_docks)
        menu.addAction(dock->toggleViewAction());
}

void Panels::show(QStringView name) const
{
    QDockWidget *dock = find(name);
    if (!dock)
        return;
    dock->show();
    dock->raise();
    if (dock->widget())
        dock->widget()->setFocus();
}

QDockWidget *Panels::find(QStringView name) const
{
    for (QDockWidget *dock : m_docks)
        if (dock->objectName() == name)
            return dock;
    return nullptr;
}

} // namespace host::app
