#pragma once

#include <QHash>
#include <QTabBar>

namespace host::app {

/// Tabs that measure each text once: whenever one comes, goes or is another, all of them are laid out, some times over.
class DrawingTabBar final : public QTabBar
{
    Q_OBJECT

public:
    using QTabBar::QTabBar;

protected:
    QSize tabSizeHint(int index) const override;
    void changeEvent(QEvent *event) override;

private:
    mutable QHash<QString, QSize> m_sizes; ///< by the text, with what else makes a tab wide
};

} // namespace host::app
