#pragma once

#include "state/exchange/DialogState.h"

#include <QIcon>
#include <QObject>

class QAbstractButton;
class QComboBox;

/// The favourites of one tool's dialog: an editable combo box with their names, a button that saves the dialog's values
/// under the name in its edit field, and one that opens the list to remove some. Picking a name sets the widgets from
/// that favourite.
///
/// The name in the field is never part of a favourite or of a state file's loading.
class FavouritesBox : public QObject
{
    Q_OBJECT

public:
    /// The widgets of a dialog's form.
    struct Widgets
    {
        QComboBox *names; ///< "cb_favorits", in any case
        QAbstractButton *save;
        QAbstractButton *remove;
    };

    /// Belongs to `dialog`, whose `state` it sets and which asks and tells. `group` is the tool's name in the settings.
    FavouritesBox(QDialog *dialog, DialogState &state, const QString &group, const Widgets &widgets);

    /// Enter behind a typed name saves a new one and loads a known one.
    bool eventFilter(QObject *watched, QEvent *event) override;

    /// Shown in front of each name.
    void setIcon(const QIcon &icon);

    /// Fills the box anew from the settings, with an empty edit field.
    void refresh();
    /// Saves the dialog's values under the name in the edit field; asks when the box has exactly this name.
    void save();
    /// Sets the dialog's widgets from the favourite; one that is gone sets nothing.
    void load(const QString &name);
    /// Shows the list of favourites to remove some.
    void remove();

signals:
    /// The widgets are about to get the values of the favourite, one by one.
    void loading(const QString &name);
    /// The widgets have the values of the favourite now.
    void loaded(const QString &name);

private:
    /// Whether the edit field has a name that was typed; then it is saved or loaded. Left to the dialog's default
    /// button it would be lost.
    bool takeTypedName();
    /// The item with exactly this name, -1 when there is none.
    int itemOf(const QString &name) const;
    void leaveNameEmpty();

    QDialog *m_dialog;
    DialogState &m_state;
    QString m_group;
    Widgets m_widgets;
    QIcon m_icon;
};
