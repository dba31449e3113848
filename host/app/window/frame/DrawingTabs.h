#pragma once

#include "host/view/display/AciColor.h"

#include <QTabWidget>

namespace host::kernel {
class Document;
}

namespace host::app {

class DrawingCanvas;

/// A document's title with what is particular about it: "plan.dxf (recovered)", "plan.dxf (read only)".
QString shownTitle(const kernel::Document &document);

/// The window's drawings: a canvas for each open document, and on its tab the document's title, with what says that it
/// was changed or is open for reading only.
class DrawingTabs final : public QTabWidget
{
    Q_OBJECT

public:
    /// While many tabs come or go: each of them would have all others laid out anew. They are laid out once, when the
    /// last object of this kind ends.
    class Many
    {
    public:
        explicit Many(DrawingTabs &tabs);
        ~Many();
        Many(const Many &) = delete;
        Many &operator=(const Many &) = delete;

    private:
        DrawingTabs &m_tabs;
    };

    explicit DrawingTabs(QWidget *parent);

    /// Makes a tab behind the others, which does not become the current one. The document must outlive it.
    DrawingCanvas *add(kernel::Document &document);
    void remove(const kernel::Document *document);
    /// Null where there is no such tab.
    DrawingCanvas *canvas(int index) const;
    /// -1 for a document that has none.
    int tabOf(const kernel::Document *document) const;
    bool areMany() const { return m_many > 0; }

    /// Of this tab alone, and only what is another: each text that is set lays out all tabs.
    void updateTitle(const kernel::Document &document);
    /// Of the canvases there are and of those to come.
    void setGround(view::Ground ground);
    view::Ground ground() const { return m_ground; }

signals:
    /// The last Many has ended.
    void manyEnded();

private:
    view::Ground m_ground = view::Ground::Black;
    int m_many = 0; ///< how many Many there are
};

} // namespace host::app
