#pragma once

#include <QTabBar>

namespace host::kernel {
class Document;
}

namespace host::app {

/// The layouts of a drawing, model space first, as tabs below it; long names are cut, and many tabs scroll. It shows
/// what is there and which one is current, and tells which one the user chose.
class LayoutTabs final : public QTabBar
{
    Q_OBJECT

public:
    explicit LayoutTabs(QWidget *parent = nullptr);

    /// Those of the document as they are now; null: none. Cheap when nothing is other than before.
    void show(const kernel::Document *document);
    /// The layout whose tab is there; empty for none.
    QString nameAt(const QPoint &place) const;

signals:
    /// The user chose the layout of this name.
    void chosen(const QString &name);

private:
    QStringList m_names; ///< as the drawing spells them
    bool m_isShowing = false;
};

} // namespace host::app
