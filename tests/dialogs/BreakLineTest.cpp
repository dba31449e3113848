#include "dialogs/breakline/Dlg_QT_Breakline.h"
#include "platform/widgets/CKvQtUnitSpinBox.h"
#include "tests/dialogs/DialogTest.h"

namespace {

class BreakLine : public DialogTest<Dlg_QT_Breakline>
{
protected:
    CKvQtUnitSpinBox *size() const { return find<CKvQtUnitSpinBox>("_dist_size"); }
    QString path() const { return fullText("LbTitleblock"); }
    /// The path typed, and the field left without Return.
    void typePath(const QString &path)
    {
        find("LbTitleblock")->setFocus();
        setText("LbTitleblock", path);
        find("name")->setFocus();
    }

    QString symbol = host.writeFile(u"zigzag.dxf"_s, "0\nEOF\n");
};

TEST_F(BreakLine, ValuesOfEarlierCallsStayUntilCreate)
{
    // The two distances come first in the state, so that looser keys in the file never answer for them.
    showWith(u"old_dist_size=9\nold_dist_offset=8\n_dist_size=2\n_dist_offset=1\n"_s);
    EXPECT_EQ(size()->value(), 2);
    EXPECT_EQ(find<CKvQtUnitSpinBox>("_dist_offset")->value(), 1);
    size()->setValue(7);
    setText("name", u"wave"_s);
    showWith(u"_dist_size=3\n!action!=OK\n"_s);
    EXPECT_EQ(size()->value(), 7);

    showWith(u"_dist_size=4\nlbtitleblock=%1\n!action!=CREATE\n"_s.arg(symbol));
    EXPECT_EQ(size()->value(), 4);
    EXPECT_EQ(path(), symbol);
    EXPECT_EQ(text("name"), QString());
}

TEST_F(BreakLine, TheUsualSymbolsAreThereUnlessTheFolderHasOthers)
{
    const QDir folder(host.path(u"Ortakit/BreakLine"_s));
    show();
    EXPECT_EQ(path(), folder.filePath(u"zigzag.dxf"_s));
    EXPECT_TRUE(isEnabled("acceptButton"));
    EXPECT_GE(folder.entryList({u"*.dxf"_s}).size(), 3);
    EXPECT_TRUE(QFileInfo(path()).isWritable());
    for (const QString &name : folder.entryList({u"*.dxf"_s}))
        QFile::remove(folder.filePath(name));
    host.writeFile(u"Ortakit/BreakLine/own.dwg"_s, "0\nEOF\n");
    const Dlg_QT_Breakline another;
    EXPECT_EQ(folder.entryList(QDir::Files), QStringList{u"own.dwg"_s});
}

TEST_F(BreakLine, OkNeedsAnExistingFile)
{
    const std::pair<QString, bool> rows[] = {
        {{}, false},
        {symbol + u".missing"_s, false},
        {QFileInfo(symbol).path(), false},
        // An elided text is what the field shows of the path it has, no new path.
        {u"/some\u2026where"_s, true},
    };
    show();
    for (const auto &[typed, enabled] : rows) {
        enterText("LbTitleblock", symbol);
        EXPECT_TRUE(dialog->isVisible()) << "Return takes the path and does not confirm";
        ASSERT_TRUE(isEnabled("acceptButton"));
        typePath(typed);
        EXPECT_EQ(isEnabled("acceptButton"), enabled) << typed.toStdString();
    }
    ASSERT_TRUE(QFile::remove(symbol));
    EXPECT_EQ(shownBy("acceptButton"), QStringList{u"warning \"\" \"Cannot find the specified drawing file.\" OK"_s});
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(BreakLine, BrowseTakesWhatIsNamedLikeADrawing)
{
    const std::pair<QString, bool> rows[] = {
        {u"PLAN.DXF"_s, true},
        {u"plan.dwg.bak"_s, true},
        {u"plan.txt"_s, false},
        {u"dwg"_s, false},
    };
    show();
    for (const auto &[name, taken] : rows) {
        const QString file = host.writeFile(name, "0\nEOF\n");
        shownChoosing("Bt_selectBlock", file);
        EXPECT_EQ(path(), taken ? file : QString());
        EXPECT_EQ(isEnabled("acceptButton"), taken) << name.toStdString();
    }
    shownChoosing("Bt_selectBlock", symbol);
    shownChoosing("Bt_selectBlock", {});
    EXPECT_EQ(path(), symbol) << "cancelled";
}

TEST_F(BreakLine, NewSymbolNamesAreChecked)
{
    const std::tuple<QString, QList<QMessageBox::StandardButton>, bool> rows[] = {
        {u"arrow"_s, {}, true},
        {u"a'b"_s, {QMessageBox::Ok}, false},
        {u"wave"_s, {QMessageBox::No}, false},
        {u"wave"_s, {QMessageBox::Yes}, true},
    };
    const QString existing = host.writeFile(u"Ortakit/BreakLine/wave.dwg"_s, "old");
    for (const auto &[name, answers, accepted] : rows) {
        show();
        EXPECT_EQ(enabledOf(u"SelectEntities label_entities"_s), QString()) << "without a name";
        setText("name", name);
        EXPECT_EQ(enabledOf(u"SelectEntities label_entities"_s), u"SelectEntities label_entities"_s);
        EXPECT_EQ(shownBy("SelectEntities", answers).size(), answers.size()) << name.toStdString();
        EXPECT_EQ(isAccepted(), accepted) << name.toStdString();
        if (accepted)
            EXPECT_EQ(dialog->state().action(), u"CREATE"_s);
        else
            EXPECT_EQ(focusName(), u"name"_s);
    }
    EXPECT_EQ(FakeHost::readFile(existing), "old") << "Lisp replaces it, not the dialog";
}

} // namespace
