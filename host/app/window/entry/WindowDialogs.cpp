#include "host/app/window/entry/WindowDialogs.h"

#include "host/app/window/canvas/DrawingCanvas.h"
#include "host/app/window/files/PrintDialog.h"
#include "host/app/window/frame/LayoutTabs.h"
#include "host/app/window/frame/WindowServices.h"
#include "host/drawing/editing/Viewports.h"
#include "host/drawing/geometry/ViewportView.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/running/CommandTable.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QPrinter>
#include <QTimer>

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::app {

WindowDialogs::WindowDialogs(WindowServices &services) : m_services(services), m_textEditing(services) {}

bool WindowDialogs::open(const QString &entered)
{
    if (m_services.isBusy() || !m_services.canvas())
        return false;
    const QString name = kernel::CommandTable::plainName(entered.trimmed());
    if (name == u"DDEDIT" || name == u"TEXTEDIT" || name == u"EATTEDIT")
        return editChosen();
    if (name == u"PLOT" || name == u"PRINT")
        print();
    else if (name == u"PAGESETUP")
        setUpPage(kernel::currentLayout(m_services.document()->drawing()));
    else
        return false;
    return true;
}

void WindowDialogs::print()
{
    kernel::Document &document = *m_services.document();
    const QString layout = kernel::currentLayout(document.drawing());
    PrintDialog dialog(document, layout, PrintDialog::Purpose::Print, m_services.canvas()->window());
    if (dialog.exec() != QDialog::Accepted)
        return;
    PrintSettings settings = dialog.settings();
    if (settings.isFile()) {
        settings.path = askFile(settings.device.toLower());
        if (!settings.path.isEmpty())
            m_services.run(
                plotLine(document.drawing(), settings, dialog.isKept() ? PlotUse::PlotAndKeep : PlotUse::Plot));
        return;
    }
    QPrinter printer(QPrinter::HighResolution);
    const QString problem = printPage(document, settings, printer);
    m_services.tell(problem.isEmpty() ? tr("Printed on %1.").arg(settings.device) : problem);
    if (dialog.isKept())
        m_services.run(plotLine(document.drawing(), settings, PlotUse::Keep));
}

void WindowDialogs::setUpPage(const QString &layout)
{
    kernel::Document &document = *m_services.document();
    PrintDialog dialog(document, layout, PrintDialog::Purpose::SetUpPage, m_services.canvas()->window());
    if (dialog.exec() == QDialog::Accepted)
        m_services.run(plotLine(document.drawing(), dialog.settings(), PlotUse::Keep));
}

QString WindowDialogs::askFile(const QString &extension)
{
    const kernel::Document &document = *m_services.document();
    const QFileInfo drawing(document.path().isEmpty() ? document.title() : document.path());
    const QString proposal = drawing.dir().filePath(drawing.completeBaseName() + u'.' + extension);
    QFileDialog dialog(m_services.canvas()->window(), tr("Print to file"), proposal,
                       tr("%1 files (*.%2)").arg(extension.toUpper(), extension));
    dialog.setObjectName(u"fileDialog"_s);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(extension);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

void WindowDialogs::connectCanvas(DrawingCanvas &canvas)
{
    // A dialog must not begin inside an event of the canvas.
    connect(&canvas, &DrawingCanvas::doubleClicked, this, [this, shown = QPointer(&canvas)](const QPointF &at) {
        QTimer::singleShot(0, this, [this, shown, at] {
            if (shown && shown == m_services.canvas())
                takeDoubleClick(*shown, at);
        });
    });
}

bool WindowDialogs::editChosen()
{
    DrawingCanvas &canvas = *m_services.canvas();
    const std::vector<drawing::RecordId> chosen = canvas.document().impliedSelection();
    return chosen.size() == 1 && m_textEditing.edit(canvas, chosen.front(), QRectF(canvas.rect()).center());
}

void WindowDialogs::takeDoubleClick(DrawingCanvas &canvas, const QPointF &at)
{
    if (!m_textEditing.editAt(canvas, at))
        changeSpace(canvas, at);
}

bool WindowDialogs::changeSpace(DrawingCanvas &canvas, const QPointF &at)
{
    const drawing::Drawing &drawing = canvas.document().drawing();
    const auto layout = drawing::findLayout(drawing, kernel::currentLayout(drawing));
    if (!layout || layout->isModel())
        return false;
    const drawing::RecordId current = kernel::currentViewport(drawing);
    const drawing::Vec2 point = canvas.sheetPoint(at);
    drawing::RecordId pointed = drawing::noRecord;
    for (const drawing::RecordId viewport : drawing::viewportsOf(drawing, *layout)) {
        const drawing::ViewportView view = drawing::readViewport(drawing.tags(viewport));
        const drawing::Vec2 way = point - view.center.xy();
        if (std::abs(way.x) <= view.width / 2.0 && std::abs(way.y) <= view.height / 2.0)
            pointed = viewport;
    }
    if (isValid(pointed) && pointed != current)
        m_services.run(u"(progn (command \"_.MSPACE\") (setvar \"CVPORT\" %1) (princ))"_s.arg(
            drawing::viewportNumber(drawing, pointed)));
    else if (!isValid(pointed) && isValid(current))
        m_services.run(u"_.PSPACE"_s);
    return true;
}

void WindowDialogs::connectLayouts(LayoutTabs &layouts)
{
    connect(&layouts, &QWidget::customContextMenuRequested, this,
            [this, &layouts](const QPoint &place) { showLayoutMenu(layouts, place); });
}

void WindowDialogs::showLayoutMenu(LayoutTabs &layouts, const QPoint &place)
{
    const QString name = layouts.nameAt(place);
    if (name.isEmpty() || m_services.isBusy())
        return;
    const int at = layouts.tabAt(place);
    const bool isSheet = name.compare(u"Model"_s, Qt::CaseInsensitive) != 0;
    QMenu menu(&layouts);
    menu.setObjectName(u"layoutMenu"_s);
    menu.addAction(tr("&New"), this, [this] { runLayout({u"_N"_s, QString()}); });
    menu.addAction(tr("&Rename..."), this, [this, name] { renameLayout(name); })->setEnabled(isSheet);
    menu.addAction(tr("&Copy"), this, [this, name] { runLayout({u"_C"_s, name, QString()}); })->setEnabled(isSheet);
    menu.addAction(tr("&Delete"), this, [this, name] { runLayout({u"_D"_s, name}); })->setEnabled(isSheet);
    menu.addAction(tr("Move &left"), this,
                   [this, name, at] {
                       runLayout({u"_M"_s, name, QString::number(at - 1)});
                   })
        ->setEnabled(isSheet && at > 1);
    menu.addAction(tr("Move righ&t"), this,
                   [this, name, at] {
                       runLayout({u"_M"_s, name, QString::number(at + 1)});
                   })
        ->setEnabled(isSheet && at + 1 < layouts.count());
    menu.addAction(tr("&Page setup..."), this, [this, name] { setUpPage(name); });
    menu.exec(layouts.mapToGlobal(place));
}

void WindowDialogs::runLayout(const QStringList &answers)
{
    QStringList words;
    for (const QString &answer : answers)
        words += lispString(answer);
    m_services.run(u"(progn (command \"_.-LAYOUT\" %1) (princ))"_s.arg(words.join(u' ')));
}

void WindowDialogs::renameLayout(const QString &name)
{
    bool isTaken = false;
    const QString wanted = QInputDialog::getText(m_services.canvas()->window(), tr("Rename layout"), tr("&Name:"),
                                                 QLineEdit::Normal, name, &isTaken);
    if (isTaken && !wanted.trimmed().isEmpty() && wanted != name)
        runLayout({u"_R"_s, name, wanted.trimmed()});
}

} // namespace host::app
