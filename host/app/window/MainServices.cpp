// What the window does for its parts.

#include "host/app/playback/SessionRecorder.h"
#include "host/app/window/MainWindow.h"
#include "host/app/window/canvas/DrawingCanvas.h"
#include "host/app/window/entry/CommandLine.h"
#include "host/app/window/entry/CommandRunner.h"
#include "host/app/window/frame/Panels.h"
#include "host/app/window/frame/WindowServices.h"
#include "host/kernel/documents/Results.h"

#include <QDockWidget>

using namespace Qt::StringLiterals;

namespace host::app {

class MainWindow::Services final : public WindowServices
{
public:
    explicit Services(MainWindow &window) : m_window(window) {}

    kernel::Session &session() override { return m_window.workbench().session(); }
    kernel::Document *document() const override { return m_window.document(); }
    DrawingCanvas *canvas() const override { return m_window.canvas(); }
    bool isBusy() const override { return m_window.m_runner->isBusy(); }
    void run(const QString &line) override { m_window.m_runner->start(line); }
    void tell(const QString &text) override { m_window.m_commandLine->print(u'\n' + text + u'\n'); }

    bool change(const QString &step, const std::function<void(kernel::Document &)> &change) override
    {
        kernel::Document *active = document();
        if (!active || isBusy())
            return false;
        if (m_window.m_recorder)
            m_window.m_recorder->add(u"# %1: what was changed in a panel is not repeated"_s.arg(step));
        active->runAs(step, [&] { change(*active); });
        m_window.updateState();
        return true;
    }

private:
    MainWindow &m_window;
};

void MainWindow::buildServices()
{
    m_services = std::make_unique<Services>(*this);
    connect(&m_workbench->documents(), &kernel::DocumentManager::activeChanged, m_services.get(),
            &WindowServices::documentChanged);
    connect(&m_workbench->documents(), &kernel::DocumentManager::opened, m_services.get(),
            [this](kernel::Document *opened) {
                opened->results().setShown(true);
                connect(&opened->results(), &kernel::Results::ended, m_services.get(), [this] {
                    emit m_services->resultsChanged();
                    m_panels->find(u"resultsPanel")->show();
                });
                connect(opened, &kernel::Document::impliedSelectionChanged, m_services.get(), [this, opened] {
                    if (opened == document())
                        emit m_services->selectionChanged();
                });
            });
}

} // namespace host::app
