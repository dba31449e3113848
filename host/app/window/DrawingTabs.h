#pragma once

#include <QHash>
#include <QTabBar>
#include <QTabWidget>

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

/// The window's drawings.
class DrawingTabs final : public QTabWidget
{
    Q_OBJECT

public:
    explicit DrawingTabs(QWidget *parent) : QTabWidget(parent) { setTabBar(new DrawingTabBar(this)); }
};

} // namespace host::app
