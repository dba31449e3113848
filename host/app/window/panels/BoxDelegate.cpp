#include "host/app/window/panels/BoxDelegate.h"

#include <QComboBox>

namespace host::app {

QComboBox *BoxDelegate::asEditor(QComboBox *box) const
{
    connect(box, &QComboBox::activated, this, [this, box] {
        auto *delegate = const_cast<BoxDelegate *>(this);
        emit delegate->commitData(box);
        emit delegate->closeEditor(box);
    });
    QMetaObject::invokeMethod(box, &QComboBox::showPopup, Qt::QueuedConnection);
    return box;
}

void BoxDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    if (auto *box = qobject_cast<QComboBox *>(editor))
        box->setCurrentIndex(int(box->findText(index.data().toString(), Qt::MatchFixedString)));
    else
        QStyledItemDelegate::setEditorData(editor, index);
}

void BoxDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    auto *box = qobject_cast<QComboBox *>(editor);
    if (!box)
        QStyledItemDelegate::setModelData(editor, model, index);
    else if (box->currentIndex() >= 0)
        model->setData(index, box->currentText());
}

} // namespace host::app
