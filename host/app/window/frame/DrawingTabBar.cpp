#include "host/app/window/frame/DrawingTabBar.h"

namespace host::app {

QSize DrawingTabBar::tabSizeHint(int index) const
{
    const QChar button = tabButton(index, RightSide) || tabButton(index, LeftSide) ? u'1' : u'0';
    const QString key = button + tabText(index);
    const auto known = m_sizes.constFind(key);
    if (known != m_sizes.constEnd())
        return *known;
    // The texts of tabs that were closed or renamed are not kept for ever.
    if (m_sizes.size() > 4 * count() + 100)
        m_sizes.clear();
    return *m_sizes.insert(key, QTabBar::tabSizeHint(index));
}

void DrawingTabBar::changeEvent(QEvent *event)
{
    // Another style or font measures otherwise.
    m_sizes.clear();
    QTabBar::changeEvent(event);
}

} // namespace host::app
