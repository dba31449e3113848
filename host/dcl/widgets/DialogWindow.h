#pragma once

#include "host/dcl/widgets/TileControl.h"

#include <QDialog>
#include <QHash>
#include <QList>

namespace host::dcl {

class EditControl;

/// A dialog of a dialog file, as a modal window. The object name of the window is the dialog's name, that of each
/// tile's field its key.
///
/// Enter presses the button with "is_default", Esc and the window's own button press the one with "is_cancel", as in
/// any dialog; who listens decides what closes the window, which is open until finish(). Without such a button Esc
/// closes.
class DialogWindow final : public QDialog
{
    Q_OBJECT

public:
    /// The size of everything is settled from here on, before it is shown.
    DialogWindow(const QString &name, const Tile &dialog, QWidget *parent);
    ~DialogWindow() override;

    /// The tile of this key, in the case that it is written in; the first of several. Null when there is none.
    TileControl *tile(const QString &key) const { return m_byKey.value(key); }
    /// The dialog's own key; empty when it has none.
    const QString &dialogKey() const { return m_key; }
    /// The radio cluster that a radio button belongs to; null for other tiles.
    const TileControl *radioClusterOf(const TileControl &tile) const { return m_clusters.value(&tile); }

    /// Gets what the user does, one event after the other; an event that comes while another one is being dealt with,
    /// because a program opens another window, is passed on as well.
    using EventListener = std::function<void(const TileControl &, const TileEvent &)>;
    void setEventListener(EventListener listener) { m_listener = std::move(listener); }

    /// Hides the window and has exec() return `status`; the tiles stay what they are. What the user does later is
    /// passed over.
    void finish(int status);
    bool isFinished() const { return m_isFinished; }
    /// As the button with "is_cancel", or as Esc where there is none.
    void reject() override;
    /// As the button with "is_default"; nothing where there is none.
    void pressDefault();

    // For what puts it together.

    void add(TileControl &control, TileControl *radioCluster);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void tell(const TileControl &control, Reason reason, const QPoint &at);
    TileControl *firstWith(const QString &flag) const;
    void focusFirst(const QString &key);

    QString m_key;
    QList<TileControl *> m_controls;
    QList<EditControl *> m_edits;
    QHash<QString, TileControl *> m_byKey;
    QHash<const TileControl *, TileControl *> m_clusters;
    EventListener m_listener;
    bool m_isFinished = false;
};

} // namespace host::dcl
