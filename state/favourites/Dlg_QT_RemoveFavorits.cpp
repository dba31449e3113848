#include "state/favourites/Dlg_QT_RemoveFavorits.h"

#include "platform/kernel/CKvMessageBox.h"
#include "state/exchange/FavouriteStore.h"
#include "state/widgets/ButtonIcons.h"
#include "state/widgets/PlainTexts.h"
#include "ui_Dlg_QT_RemoveFavorits.h"

#include <QListWidget>
#include <QShowEvent>

Dlg_QT_RemoveFavorits::Dlg_QT_RemoveFavorits(QWidget *parent, const QString &group)
    : CKvDialog(parent), m_ui(std::make_unique<Ui::Dlg_QT_RemoveFavorits>()), m_group(group)
{
    m_ui->setupUi(this);
    connect(m_ui->ListFavorits, &QListWidget::itemSelectionChanged, this, &Dlg_QT_RemoveFavorits::onSelectionChanged);
    connect(m_ui->BtnRemove, &QPushButton::clicked, this, &Dlg_QT_RemoveFavorits::removeItems);
    connect(m_ui->acceptButton, &QPushButton::clicked, this, &Dlg_QT_RemoveFavorits::accept);
    connect(m_ui->ButtonCancel, &QPushButton::clicked, this, &Dlg_QT_RemoveFavorits::reject);
}

Dlg_QT_RemoveFavorits::~Dlg_QT_RemoveFavorits() = default;

void Dlg_QT_RemoveFavorits::showEvent(QShowEvent *event)
{
    CKvDialog::showEvent(event);
    if (event->spontaneous())
        return;
    ortakit::decorateButtons(*this);
    ortakit::showPlainTexts(*this);
    m_ui->ListFavorits->clear();
    m_ui->ListFavorits->addItems(ortakit::FavouriteStore(m_group).names());
    onSelectionChanged();
    m_ui->ListFavorits->setFocus();
}

void Dlg_QT_RemoveFavorits::onSelectionChanged()
{
    m_ui->BtnRemove->setEnabled(!m_ui->ListFavorits->selectedItems().isEmpty());
}

void Dlg_QT_RemoveFavorits::removeItems()
{
    const QList<QListWidgetItem *> selected = m_ui->ListFavorits->selectedItems();
    if (selected.isEmpty()) {
        CKvMessageBox::information(this, tr("Remove favorites"), tr("Select items for remove."));
        return;
    }
    ortakit::FavouriteStore store(m_group);
    for (const QListWidgetItem *item : selected) {
        m_removed.append(item->text());
        store.remove(item->text());
    }
    qDeleteAll(selected);
}
