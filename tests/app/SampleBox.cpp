#include "tests/app/SampleBox.h"

#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace host::app::test {

SampleBox::SampleBox(QWidget *parent) : QDialog(parent)
{
    ++s_count;
    setWindowTitle(u"Sample"_s);
    auto *layout = new QFormLayout(this);
    auto *edit = new QLineEdit;
    edit->setObjectName(u"name"_s);
    layout->addRow(edit);
    auto *size = new QDoubleSpinBox;
    size->setObjectName(u"_dist_size"_s);
    layout->addRow(size);
    const auto addButton = [&](const QString &name, auto slot) {
        auto *button = new QPushButton(name);
        button->setObjectName(name);
        connect(button, &QPushButton::clicked, this, slot);
        layout->addRow(button);
    };
    addButton(u"accept"_s, &SampleBox::acceptChecked);
    addButton(u"browse"_s, &SampleBox::browse);
    addButton(u"again"_s, &SampleBox::askTwice);
    addButton(u"more"_s, &SampleBox::showMenu);
    addButton(u"late"_s, [this] { askLater(1); });
    addButton(u"later"_s, [this] { askLater(4); });
}

QString SampleBox::name() const
{
    return findChild<QLineEdit *>(u"name"_s)->text();
}

void SampleBox::reject()
{
    if (isStubborn)
        QMessageBox::warning(this, u"Stay"_s, u"You must answer."_s);
    else
        QDialog::reject();
}

void SampleBox::acceptChecked()
{
    if (name().isEmpty())
        QMessageBox::warning(this, {}, u"Filename can`t be empty"_s);
    else if (name() != u"old"_s || QMessageBox::question(this, {}, u"Replace \"old\"?"_s) == QMessageBox::Yes)
        accept();
}

void SampleBox::browse()
{
    auto *edit = findChild<QLineEdit *>(u"name"_s);
    edit->setText(QFileDialog::getSaveFileName(this, u"Save"_s, edit->text()));
}

void SampleBox::askLater(int turns)
{
    QTimer::singleShot(0, this, [this, turns] { turns > 1 ? askLater(turns - 1) : askTwice(); });
}

void SampleBox::askTwice()
{
    QMessageBox outer(QMessageBox::Question, u"Outer"_s, u"Really?"_s, QMessageBox::Yes | QMessageBox::No, this);
    connect(outer.button(QMessageBox::Yes), &QAbstractButton::clicked, &outer,
            [&outer] { QMessageBox::information(&outer, u"Inner"_s, u"Are you sure?"_s); });
    outer.exec();
}

void SampleBox::showMenu()
{
    QMenu menu;
    for (const QString &text : {u"&First"_s, u"Second..."_s})
        connect(menu.addAction(text), &QAction::triggered, this,
                [this, text] { findChild<QLineEdit *>(u"name"_s)->setText(text); });
    menu.addAction(u"Off"_s)->setEnabled(false);
    menu.exec(QPoint(10, 10));
}

} // namespace host::app::test
