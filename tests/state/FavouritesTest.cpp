#include "state/exchange/FavouriteStore.h"
#include "state/favourites/Dlg_QT_RemoveFavorits.h"
#include "state/favourites/FavouritesBox.h"
#include "tests/state/Gallery.h"
#include "tests/support/ModuleTest.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTest>

namespace {

/// A dialog with favourites, its settings in the test's folder.
class Favourites : public testing::Test
{
protected:
    Favourites()
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, host.path(u"settings"_s));
        box->refresh();
    }

    QStringList shownNames() const
    {
        QStringList names;
        for (int item = 0; item < dialog.favourites->count(); ++item)
            names.append(dialog.favourites->itemText(item));
        return names;
    }
    void saveAs(const QString &name)
    {
        dialog.favourites->setEditText(name);
        save.click();
    }
    void pick(const QString &name)
    {
        dialog.favourites->setCurrentIndex(dialog.favourites->findText(name));
        emit dialog.favourites->textActivated(name);
    }

    FakeHost host;
    Gallery dialog;
    DialogState state{&dialog};
    QPushButton save;
    QPushButton remove;
    FavouritesBox *box = new FavouritesBox(&dialog, state, u"Sample"_s, {dialog.favourites, &save, &remove});
    static FavouriteStore store() { return FavouriteStore(u"Sample"_s); }
};

TEST_F(Favourites, SaveWithTheQuestionsOfItsNames)
{
    const QString question = u"\"Door\" already exists. Do you want to replace it?"_s;
    // What is said and pressed, what is listed then, and what "Door" has for the edit field.
    const std::tuple<QString, QString, QMessageBox::StandardButton, QString, QString> rows[] = {
        {{}, u"Favorite name is required."_s, QMessageBox::Ok, {}, {}},
        {u"Door"_s, {}, {}, u"Door"_s, u"1"_s},
        {u"Door"_s, question, QMessageBox::No, u"Door"_s, u"1"_s},
        {u"Door"_s, question, QMessageBox::Yes, u"Door"_s, u"3"_s},
        {u"dooR"_s, {}, {}, u"Door"_s, u"3"_s}, // written beside it, but not listed again
        {u"a/b\\c %2F"_s, {}, {}, u"Door|a/b\\c %2F"_s, u"3"_s},
    };
    EXPECT_FALSE(remove.isEnabled());
    int step = 0;
    for (const auto &[name, said, answer, listed, kept] : rows) {
        dialog.edit->setText(QString::number(step++));
        ModalAnswers answers;
        if (!said.isEmpty())
            answers.press(answer);
        saveAs(name);
        EXPECT_EQ(answers.shown().size(), said.isEmpty() ? 0 : 1) << step;
        EXPECT_TRUE(answers.shown().join(u' ').contains(said)) << step;
        EXPECT_EQ(shownNames().join(u'|'), listed) << step;
        EXPECT_EQ(remove.isEnabled(), !listed.isEmpty()) << step;
        EXPECT_TRUE(store().load(u"Door"_s).contains({u"tx_edit"_s, kept}) || kept.isEmpty()) << step;
    }
    EXPECT_EQ(dialog.favourites->currentText(), QString());
    QStringList names = store().names();
    names.sort();
    EXPECT_EQ(names, (QStringList{u"Door"_s, u"a/b\\c %2F"_s, u"dooR"_s}));
    for (const QString &name : {u"a"_s, u"a/b"_s, u"/"_s}) {
        store().save(name, {{u"tx_edit"_s, name}});
        EXPECT_EQ(store().load(name).size(), 1) << name.toStdString();
        store().remove(name);
        EXPECT_EQ(store().names().size(), 3) << name.toStdString();
    }
}

TEST_F(Favourites, PickingOneSetsTheWidgetsAndNothingOfEarlierStates)
{
    dialog.edit->setText(u"oak, \"old\" = ä;\\x"_s);
    dialog.check->setChecked(true);
    state.setAction(u"OK"_s);
    const QString name = u"Door tx_edit=900"_s; // is not taken for a value
    saveAs(name);
    for (const auto &[key, value] : store().load(name))
        EXPECT_FALSE(key.contains(u"_index"_s) || key.contains(u"action"_s) || value.isEmpty()) << key.toStdString();
    store().save(u"Odd"_s, {{u"tx_edit"_s, u"odd"_s}, {u"buttonCancel"_s, u"x"_s}, {u"qtEntities"_s, u"y"_s}});
    box->refresh();

    state.setLines({u"ck_flag=FALSE"_s, u"!action!=SHOW"_s});
    dialog.edit->setText(u"changed"_s);
    dialog.check->setChecked(false);
    const QSignalSpy loaded(box, &FavouritesBox::loaded);
    pick(name);
    // A value is cut at the second "=", as everywhere in a state.
    EXPECT_EQ(dialog.edit->property("value").toString(), u"oak, \"old\" "_s);
    EXPECT_TRUE(dialog.check->isChecked());
    EXPECT_EQ(dialog.favourites->currentText(), name);
    EXPECT_EQ(state.lookup(u"!action!"_s), QString());
    EXPECT_EQ(loaded.size(), 1);

    pick(u"Odd"_s);
    EXPECT_EQ(state.lines(), QStringList{u"tx_edit=odd"_s});

    store().remove(u"Odd"_s);
    pick(u"Odd"_s);
    EXPECT_EQ(state.lines(), QStringList());
    EXPECT_EQ(dialog.edit->text(), u"odd"_s);
}

// A name that is typed to save over it must not bring its old values first.
TEST_F(Favourites, TypingAKnownNameLoadsNothingUntilEnter)
{
    dialog.edit->setText(u"old"_s);
    saveAs(u"Door"_s);
    dialog.edit->setText(u"new"_s);
    dialog.show();
    dialog.favourites->setFocus();
    QTest::keyClicks(dialog.favourites, u"Door"_s);
    dialog.edit->setFocus();
    EXPECT_EQ(dialog.edit->text(), u"new"_s);
    EXPECT_EQ(dialog.favourites->currentText(), u"Door"_s);

    dialog.favourites->setFocus();
    QTest::keyClick(dialog.favourites, Qt::Key_Return);
    EXPECT_EQ(dialog.edit->text(), u"old"_s);

    dialog.favourites->setEditText(u"Doo"_s);
    QTest::keyClick(dialog.favourites, Qt::Key_Return);
    EXPECT_EQ(shownNames(), (QStringList{u"Door"_s, u"Doo"_s}));
}

TEST_F(Favourites, WhatWasRemovedStaysRemovedWhenTheListIsCancelled)
{
    for (const QString &name : {u"a"_s, u"b"_s, u"c"_s})
        saveAs(name);
    ModalAnswers answers;
    answers.drive([](QWidget *window) {
        auto *list = window->findChild<QListWidget *>(u"ListFavorits"_s);
        auto *button = window->findChild<QPushButton *>(u"BtnRemove"_s);
        ASSERT_EQ(list->count(), 3);
        EXPECT_FALSE(button->isEnabled());
        list->item(2)->setSelected(true);
        list->item(0)->setSelected(true);
        EXPECT_TRUE(button->isEnabled());
        button->click();
        EXPECT_EQ(list->count(), 1);
        EXPECT_FALSE(button->isEnabled());
        window->findChild<QPushButton *>(u"ButtonCancel"_s)->click();
    });
    remove.click();
    EXPECT_TRUE(answers.isDone());
    EXPECT_EQ(shownNames(), QStringList{u"b"_s});
    EXPECT_EQ(store().names(), QStringList{u"b"_s});
}

TEST_F(Favourites, RemovingNothingIsSaid)
{
    Dlg_QT_RemoveFavorits list(nullptr, u"Sample"_s);
    list.show();
    auto *button = list.findChild<QPushButton *>(u"BtnRemove"_s);
    button->setEnabled(true);
    ModalAnswers answers;
    button->click();
    EXPECT_TRUE(answers.shown().value(0).contains(u"Select items for remove."_s));
}

} // namespace
