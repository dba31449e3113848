#pragma once

#include "host/dcl/widgets/TileControl.h"

class QComboBox;
class QListView;
class QStringListModel;

namespace host::dcl {

class TileMetrics;

/// A list of which one item is selected, or none, or any number with "multiple_select". A tab in an item goes to the
/// next place of "tabs", which count in characters.
class ListControl final : public TileControl
{
public:
    ListControl(const Tile &tile, const TileMetrics &metrics);
    QString value() const override;
    void setValue(const QString &value) override;
    QStringList items() const override;
    void setItems(const QStringList &items) override;
    bool isList() const override { return true; }
    /// What a double click does beyond the action.
    void setOnDoubleClick(std::function<void(const ListControl &)> onDoubleClick)
    {
        m_onDoubleClick = std::move(onDoubleClick);
    }

private:
    ListControl(const Tile &tile, const TileMetrics &metrics, QListView *list);
    bool eventFilter(QObject *object, QEvent *event) override;
    QListView *list() const;
    QStringListModel *model() const;

    bool m_isPressed = false; ///< the mouse is: the action waits until it is released
    bool m_isSetting = false; ///< a program changes the selection
    std::function<void(const ListControl &)> m_onDoubleClick;
};

/// A list that drops down, of which one item is selected as soon as there are any.
class PopupControl final : public TileControl
{
public:
    PopupControl(const Tile &tile, const TileMetrics &metrics);
    QString value() const override;
    void setValue(const QString &value) override;
    QStringList items() const override;
    void setItems(const QStringList &items) override;
    bool isList() const override { return true; }

private:
    PopupControl(const Tile &tile, const TileMetrics &metrics, QComboBox *box);
    QComboBox *box() const;
};

} // namespace host::dcl
