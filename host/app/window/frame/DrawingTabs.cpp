#include "host/app/window/frame/DrawingTabs.h"

#include "host/app/window/canvas/DrawingCanvas.h"
#include "host/app/window/frame/DrawingTabBar.h"

#include <QDir>
#include <QTextDocument>

namespace host::app {

QString shownTitle(const kernel::Document &document)
{
    QString title = document.title();
    if (document.isRecovered())
        title = DrawingTabs::tr("%1 (recovered)").arg(title);
    return document.isReadOnly() ? DrawingTabs::tr("%1 (read only)").arg(title) : title;
}

DrawingTabs::Many::Many(DrawingTabs &tabs) : m_tabs(tabs)
{
    ++m_tabs.m_many;
    m_tabs.tabBar()->hide();
}

DrawingTabs::Many::~Many()
{
    if (--m_tabs.m_many > 0)
        return;
    m_tabs.tabBar()->show();
    emit m_tabs.manyEnded();
}

DrawingTabs::DrawingTabs(QWidget *parent) : QTabWidget(parent)
{
    setTabBar(new DrawingTabBar(this));
    setDocumentMode(true);
    setTabsClosable(true);
    setFocusPolicy(Qt::NoFocus);
}

DrawingCanvas *DrawingTabs::add(kernel::Document &document)
{
    auto *canvas = new DrawingCanvas(document);
    canvas->setGround(m_ground);
    addTab(canvas, {});
    updateTitle(document);
    return canvas;
}

void DrawingTabs::remove(const kernel::Document *document)
{
    delete canvas(tabOf(document));
}

DrawingCanvas *DrawingTabs::canvas(int index) const
{
    return qobject_cast<DrawingCanvas *>(widget(index));
}

int DrawingTabs::tabOf(const kernel::Document *document) const
{
    for (int i = 0; i < count(); ++i)
        if (DrawingCanvas *tab = canvas(i); tab && &tab->document() == document)
            return i;
    return -1;
}

void DrawingTabs::updateTitle(const kernel::Document &document)
{
    const int index = tabOf(&document);
    if (index < 0)
        return;
    // An & in a file name is no mnemonic.
    const QString name = shownTitle(document).replace(u'&', QStringLiteral("&&"));
    const QString text = document.isModified() ? name + u'*' : name;
    if (tabText(index) != text)
        setTabText(index, text);
    setTabToolTip(index, Qt::convertFromPlainText(QDir::toNativeSeparators(document.path()), Qt::WhiteSpaceNormal));
}

void DrawingTabs::setGround(view::Ground ground)
{
    m_ground = ground;
    for (int i = 0; i < count(); ++i)
        if (DrawingCanvas *tab = canvas(i))
            tab->setGround(ground);
}

} // namespace host::app
