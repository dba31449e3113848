#include "host/app/window/frame/LayoutTabs.h"

#include "host/drawing/records/LayoutTabs.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"

#include <QScopedValueRollback>
#include <QTextDocument>

namespace host::app {

namespace {

constexpr qsizetype longestTabText = 32;

/// An & in a name is no mnemonic.
QString tabTextOf(const QString &name)
{
    const QString shown = name.size() > longestTabText ? name.left(longestTabText - 1) + u'\u2026' : name;
    return QString(shown).replace(u'&', QStringLiteral("&&"));
}

} // namespace

LayoutTabs::LayoutTabs(QWidget *parent) : QTabBar(parent)
{
    setObjectName(QStringLiteral("layouts"));
    setShape(QTabBar::RoundedNorth); // southern tabs do not show which one is current in the dark style
    setDocumentMode(true);
    setDrawBase(false);
    setExpanding(false);
    setUsesScrollButtons(true);
    setElideMode(Qt::ElideNone); // names are cut above: those that do not fit are scrolled to
    setFocusPolicy(Qt::NoFocus);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setAccessibleName(tr("Layouts"));
    connect(this, &QTabBar::currentChanged, this, [this](int index) {
        if (!m_isShowing && index >= 0 && index < m_names.size())
            emit chosen(m_names[index]);
    });
}

QString LayoutTabs::nameAt(const QPoint &place) const
{
    return m_names.value(tabAt(place));
}

void LayoutTabs::show(const kernel::Document *document)
{
    const QScopedValueRollback showing(m_isShowing, true);
    QStringList names;
    if (document)
        for (const drawing::LayoutTab &tab : drawing::layoutTabs(document->drawing()))
            names.append(tab.name);
    if (names != m_names) {
        m_names = names;
        while (count() > names.size())
            removeTab(count() - 1);
        for (int i = 0; i < names.size(); ++i) {
            if (i >= count())
                addTab(QString());
            setTabText(i, tabTextOf(names[i]));
            setTabToolTip(i, Qt::convertFromPlainText(names[i], Qt::WhiteSpaceNormal));
        }
    }
    setVisible(!names.isEmpty());
    if (document) {
        const QString current = kernel::currentLayout(document->drawing());
        for (int i = 0; i < names.size(); ++i)
            if (names[i].compare(current, Qt::CaseInsensitive) == 0)
                setCurrentIndex(i);
    }
}

} // namespace host::app
