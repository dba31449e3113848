#pragma once

#include "platform/kernel/CKvDialog.h"

#include <QStringList>

#include <memory>

namespace Ui {
class Dlg_QT_RemoveFavorits;
}

/// The list of a tool's favourites, from which the user removes some. What was removed is gone at once, whichever way
/// the dialog is closed.
class Dlg_QT_RemoveFavorits final : public CKvDialog
{
    Q_OBJECT

public:
    /// `group` is the tool's name in the settings.
    Dlg_QT_RemoveFavorits(QWidget *parent, const QString &group);
    ~Dlg_QT_RemoveFavorits() override;

    /// In the order in which they were removed.
    const QStringList &removedNames() const { return m_removed; }

protected:
    void showEvent(QShowEvent *event) override;

private:
    void onSelectionChanged();
    void removeItems();

    std::unique_ptr<Ui::Dlg_QT_RemoveFavorits> m_ui;
    const QString m_group;
    QStringList m_removed;
};
