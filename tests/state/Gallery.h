#pragma once

#include "platform/widgets/CKvQtColorComboBox.h"
#include "platform/widgets/CKvQtUnitSpinBox.h"

#include <QCheckBox>
#include <QDialog>
#include <QFontComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QToolButton>

/// A dialog with a widget of every class that a form may hold, each with a value.
class Gallery : public QDialog
{
public:
    QLabel *label = add(new QLabel(QStringLiteral("shown")), "Lb_Text");
    QPushButton *push = add(new QPushButton(QStringLiteral("press")), "Bt_Push");
    QToolButton *tool = add(new QToolButton, "Bt_Tool");
    QCheckBox *check = add(new QCheckBox, "Ck_Flag");
    QLineEdit *edit = add(new QLineEdit(QStringLiteral("typed")), "Tx_Edit");
    QRadioButton *radio = add(new QRadioButton, "Rd_Choice");
    CKvQtColorComboBox *color = add(new CKvQtColorComboBox, "Cb_Color");
    QComboBox *combo = add(new QComboBox, "Cb_Fixed");
    QComboBox *free = add(new QComboBox, "Cb_Free");
    QComboBox *favourites = add(new QComboBox, "cb_Favorits");
    QFontComboBox *font = add(new QFontComboBox, "Cb_Font");
    QListWidget *list = add(new QListWidget, "Ls_Names");
    CKvQtUnitSpinBox *length = add(new CKvQtUnitSpinBox, "Sp_Length");
    CKvQtUnitSpinBox *angle = add(new CKvQtUnitSpinBox, "Sp_Angle");
    CKvQtUnitSpinBox *rotation = add(new CKvQtUnitSpinBox, "Sp_Rotation");
    QDoubleSpinBox *real = add(new QDoubleSpinBox, "Sp_Real");
    QSpinBox *whole = add(new QSpinBox, "Sp_Whole");
    QTabWidget *tabs = add(new QTabWidget, "Tb_Pages");
    QTableWidget *table = add(new QTableWidget(4, 2), "Tb_Rows");
    QSlider *slider = add(new QSlider, "Sl_Other");

    Gallery()
    {
        edit->resize(400, 20);
        combo->addItems({QStringLiteral("one"), QStringLiteral("two")});
        free->setEditable(true);
        free->setEditText(QStringLiteral("anything"));
        favourites->setEditable(true);
        favourites->setEditText(QStringLiteral("mine"));
        // Which fonts there are differs between machines.
        font->setCurrentIndex(-1);
        font->setEditText(QStringLiteral("Nowhere Sans"));
        list->addItems({QStringLiteral("first"), QStringLiteral("second")});
        list->setCurrentRow(1);
        for (QDoubleSpinBox *box : {static_cast<QDoubleSpinBox *>(length), real}) {
            box->setDecimals(6);
            box->setRange(-1e9, 1e9);
        }
        for (CKvQtUnitSpinBox *box : {angle, rotation})
            box->setRange(-1000, 1000);
        angle->setUnitType(CKvQtUnitSpinBox::Angle);
        rotation->setUnitType(CKvQtUnitSpinBox::Rotation);
        whole->setRange(-1000000, 1000000);
        for (int page = 0; page < 3; ++page)
            tabs->addTab(new QWidget, QString::number(page));
        fillTable();
    }

private:
    // Member initialisers run in order, so this order is that of the dialog's children.
    template <class Widget>
    Widget *add(Widget *widget, const char *name)
    {
        widget->setParent(this);
        widget->setObjectName(QString::fromLatin1(name));
        return widget;
    }

    void fillTable()
    {
        table->setSelectionBehavior(QAbstractItemView::SelectRows);
        const QStringList names{QStringLiteral("Door"), QStringLiteral("Window"), QStringLiteral("Wall"), QString()};
        for (int row = 0; row < 3; ++row)
            table->setItem(row, 0, new QTableWidgetItem(names[row]));
        table->setItem(2, 1, new QTableWidgetItem(QStringLiteral("door")));
    }
};
