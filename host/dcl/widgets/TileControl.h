#pragma once

#include "host/dcl/Tile.h"

#include <QObject>
#include <QPoint>
#include <QString>
#include <QStringList>

#include <functional>

class QWidget;

namespace host::dcl {

class ImageTile;

/// Why an action is called, as programs see it in $reason.
enum class Reason
{
    Chosen = 1,     ///< pressed, selected, or an edit box was left by Enter
    Left = 2,       ///< an edit box was left by other means, with another text than before
    Dragged = 3,    ///< a slider moves under the mouse
    DoubleClick = 4 ///< in a list or an image
};

/// Something that the user did with a tile.
struct TileEvent
{
    QString key;   ///< of the tile
    QString value; ///< its value then
    Reason reason = Reason::Chosen;
    QPoint at; ///< in an image, from its upper left corner
};

/// A tile of an open dialog: its widgets, and its value as programs know it, which is always a text. Made by the dialog
/// and gone with it. What programs set calls no action.
class TileControl : public QObject
{
public:
    /// Told what the user does with the tile.
    using Listener = std::function<void(const TileControl &, Reason, const QPoint &at)>;

    TileControl(const Tile &tile, QWidget *widget, QWidget *field);

    const Tile &tile() const { return m_tile; }
    QString key() const { return m_tile.key(); }
    /// All of it, with its label.
    QWidget *widget() const { return m_widget; }
    /// What the user works with, which has the key as its object name.
    QWidget *field() const { return m_field; }

    /// Of toggles and radio buttons "1" or "0"; of radio clusters the key of the button that is on; of lists the
    /// numbers of the selected items from 0, with a blank between; of sliders a whole number; of the others the text.
    virtual QString value() const { return m_value; }
    /// A value that the tile cannot have is passed over.
    virtual void setValue(const QString &value) { m_value = value; }

    /// Of a list; nothing for other tiles.
    virtual QStringList items() const { return {}; }
    /// The selection stays where there are still such items; a popup list without one selects its first.
    virtual void setItems(const QStringList &) {}
    virtual bool isList() const { return false; }
    /// Of images; null for other tiles.
    virtual ImageTile *image() const { return nullptr; }

    void setEnabled(bool enabled);
    void giveFocus();
    /// The text of an edit box; nothing for other tiles.
    virtual void selectText() {}
    /// Marks an image, or takes the mark away; nothing for other tiles.
    virtual void flipHighlight() {}

    /// Nobody listens in the beginning.
    void setListener(Listener listener) { m_listener = std::move(listener); }

protected:
    void report(Reason reason, const QPoint &at = {}) const;

private:
    Tile m_tile; ///< without its children
    QWidget *m_widget;
    QWidget *m_field;
    QString m_value;
    Listener m_listener;
};

} // namespace host::dcl
