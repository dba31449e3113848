#include "dialogs/tracktime/Dlg_QT_TrackTime.h"
#include "platform/kernel/CKvUtils.h"
#include "tests/dialogs/DialogTest.h"

#include <QProgressDialog>
#include <QSpinBox>
#include <QThread>
#include <QTimer>

namespace {

QString recordName()
{
    return u"kora_TrackTime"_s;
}

/// Open drawings of a test.
class FakeOpenDrawings final : public OpenDrawings
{
public:
    QList<Drawing> open;
    unsigned long delay = 0; ///< milliseconds that a change takes

    QList<Drawing> drawings() const override { return open; }
    QString change(const QString &path, const EditingTimeChange &change) override
    {
        QThread::msleep(delay);
        for (Drawing &drawing : open) {
            if (QFileInfo(drawing.path) == QFileInfo(path))
                drawing.time = change.applied(drawing.time, 77);
        }
        return {};
    }
};

/// A folder with the plan six times: tracked, not tracked, without a record, with a damaged one, open, and in a folder.
class TrackTime : public DialogTest<Dlg_QT_TrackTime>
{
protected:
    TrackTime()
    {
        QDir(host.path({})).mkpath(u"project/sub"_s);
        write(u"project/a.dxf"_s, EditingTime{true, 15, 10.5, 1});
        write(u"project/B.DXF"_s, EditingTime{false, 0, 9.25, 1});
        write(u"project/c 2.dxf"_s, std::nullopt);
        write(u"project/damaged.dxf"_s, EditingTime{true, 5, 1, 1});
        const OdResBufPtr broken = OdResBuf::newInteger(280, 1);
        EXPECT_TRUE(CKvUtils::setDrawingRecord(path(u"damaged.dxf"_s), recordName(), broken.get()));
        write(u"project/open.dxf"_s, EditingTime{true, 5, 1, 1});
        write(u"project/sub/d.dxf"_s, EditingTime{true, 0, 100, 1});
        host.writeFile(u"project/notes.txt"_s, "no drawing");
        open.open = {{path(u"sub/../open.dxf"_s), {true, 30, 2.75, 1}}};
    }

    void SetUp() override
    {
        DialogTest::SetUp();
        dialog->setOpenDrawings(&open);
        showWith(u"directory=%1\nidlelimit=20\n"_s.arg(folder));
    }

    void write(const QString &name, const std::optional<EditingTime> &time)
    {
        QFile::copy(qEnvironmentVariable("ORTAKIT_SOURCE") + u"/samples/plan.dxf"_s, host.path(name));
        QFile::setPermissions(host.path(name), QFile::ReadOwner | QFile::WriteOwner);
        OdString error;
        if (time)
            CKvUtils::setDrawingRecord(host.path(name), recordName(), editingTimeChain(*time).get(), &error);
        EXPECT_EQ(error, QString());
    }

    QString path(const QString &name) const { return folder + u'/' + name; }
    std::optional<EditingTime> stored(const QString &name) const
    {
        std::optional<EditingTime> time = editingTimeFromChain(CKvUtils::drawingRecord(path(name), recordName()).get());
        if (time)
            time->lastActivity = 0;
        return time;
    }
    QTableWidget *table() const { return find<QTableWidget>("tblDrawings"); }
    QString rows() const { return tableRows("tblDrawings").join(u"; "_s); }
    int rowOf(const QString &name) const { return table()->findItems(name, Qt::MatchExactly).value(0)->row(); }
    void select(const QStringList &names)
    {
        QList<int> rows;
        for (const QString &name : names)
            rows.append(rowOf(name));
        selectRows(table(), rows);
    }
    void sort(int column) { clickHeader("tblDrawings", column); }
    /// Clicks on the box of the row, as with the mouse.
    void toggle(const QString &name)
    {
        const QRect cell = table()->visualItemRect(table()->item(rowOf(name), 1));
        QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, cell.topLeft() + QPoint(12, cell.height() / 2));
        QCoreApplication::processEvents();
    }
    QByteArray file(const QString &name) const { return FakeHost::readFile(path(name)); }

    QString folder = host.path(u"project"_s);
    FakeOpenDrawings open;
};

TEST_F(TrackTime, ListsTheDrawingsOfAFolder)
{
    const QString listed = u"a.dxf|On, 15 min|10.50; B.DXF|Off|9.25; c 2.dxf|Off|0.00; damaged.dxf|Off|0.00; "
                           "open.dxf|On, 30 min|2.75"_s;
    EXPECT_EQ(rows(), listed);
    EXPECT_TRUE(table()->item(4, 0)->font().bold()) << "open";
    EXPECT_FALSE(table()->item(0, 0)->font().bold());
    EXPECT_EQ(find<QLabel>("lblTotal")->text(), u"Total: 22.50 h. Drawings: 5, open (bold): 1"_s);
    find<QCheckBox>("subfolders")->setChecked(true);
    EXPECT_EQ(rows(), listed + u"; sub/d.dxf|On|100.00"_s);
    sort(2);
    EXPECT_TRUE(rows().startsWith(u"c 2.dxf|Off|0.00; damaged.dxf|Off|0.00; open.dxf|On, 30 min|2.75; B.DXF|"_s));
    sort(2);
    EXPECT_TRUE(rows().startsWith(u"sub/d.dxf|On|100.00; a.dxf|On, 15 min|10.50; B.DXF"_s)) << rows().toStdString();
    sort(1);
    EXPECT_TRUE(rows().startsWith(u"sub/d.dxf|On|100.00; a.dxf|On, 15 min|10.50; open.dxf"_s));
    select({u"a.dxf"_s, u"open.dxf"_s});
    setText("filter", u"[ac].*\\.dxf"_s);
    EXPECT_EQ(rows(), u"a.dxf|On, 15 min|10.50; c 2.dxf|Off|0.00; damaged.dxf|Off|0.00"_s);
    EXPECT_EQ(table()->selectedItems().value(0)->text(), u"a.dxf"_s) << "what is shown keeps its selection";
    setText("filter", u"("_s);
    EXPECT_EQ(rows(), QString()) << "half an expression";
    EXPECT_FALSE(isEnabled("btnExport"));
}

TEST_F(TrackTime, WritesWhatWasChangedWithOkOnly)
{
    const QByteArray before = file(u"a.dxf"_s) + file(u"damaged.dxf"_s) + file(u"open.dxf"_s);
    const auto edit = [this] {
        select({u"c 2.dxf"_s, u"open.dxf"_s, u"a.dxf"_s});
        EXPECT_EQ(enabledOf(u"btnTrackOn btnTrackOff btnIdle btnReset"_s),
                  u"btnTrackOn btnTrackOff btnIdle btnReset"_s);
        click("btnTrackOff");
        EXPECT_EQ(enabledOf(u"btnTrackOn btnTrackOff"_s), u"btnTrackOn"_s);
        select({u"B.DXF"_s, u"damaged.dxf"_s});
        toggle(u"B.DXF"_s); // the box stands for the selected rows
        select({u"a.dxf"_s, u"open.dxf"_s});
        find<QSpinBox>("idleLimit")->setValue(60);
        click("btnIdle");
        EXPECT_EQ(shownBy("btnReset", {QMessageBox::No}).size(), 1);
        select({u"open.dxf"_s});
        shownBy("btnReset", {QMessageBox::Yes});
    };
    edit();
    EXPECT_EQ(rows(),
              u"a.dxf|Off|10.50; B.DXF|On|9.25; c 2.dxf|Off|0.00; damaged.dxf|On, 20 min|0.00; open.dxf|Off|0.00"_s);
    click("ButtonCancel");
    EXPECT_EQ(file(u"a.dxf"_s) + file(u"damaged.dxf"_s) + file(u"open.dxf"_s), before);
    EXPECT_EQ(open.open[0].time.hours, 2.75);

    show();
    find<QSpinBox>("idleLimit")->setValue(20);
    edit();
    const QByteArray untouched = file(u"c 2.dxf"_s);
    click("acceptButton");
    EXPECT_TRUE(isAccepted());
    EXPECT_EQ(stored(u"a.dxf"_s), (EditingTime{false, 60, 10.5, 0}));
    EXPECT_EQ(stored(u"B.DXF"_s), (EditingTime{true, 0, 9.25, 0}));
    EXPECT_EQ(stored(u"damaged.dxf"_s), (EditingTime{true, 20, 0, 0}));
    EXPECT_EQ(stored(u"open.dxf"_s), (EditingTime{true, 5, 1, 0})) << "open: not in the file";
    EXPECT_EQ(open.open[0].time, (EditingTime{false, 60, 0, 1}));
    EXPECT_EQ(file(u"c 2.dxf"_s), untouched);
    EXPECT_EQ(missingInState({u"!action!=OK"_s, u"directory="_s + folder, u"idlelimit=60"_s, u"subfolders=FALSE"_s}),
              QStringList());
}

TEST_F(TrackTime, NamesFilesThatCannotBeWrittenAndWritesTheOthers)
{
    QFile::setPermissions(path(u"B.DXF"_s), QFile::ReadOwner);
    host.writeFile(u"project/cut.dxf"_s, file(u"c 2.dxf"_s));
    click("btnRefresh");
    host.writeFile(u"project/cut.dxf"_s, file(u"a.dxf"_s).chopped(100));
    const QByteArray kept = file(u"B.DXF"_s) + file(u"cut.dxf"_s);
    table()->selectAll();
    click("btnTrackOn");
    const QStringList shown = shownBy("acceptButton", {QMessageBox::Ok});
    ASSERT_EQ(shown.size(), 1);
    EXPECT_TRUE(shown[0].contains(u"could not be changed"_s)) << shown[0].toStdString();
    const bool isRoot = QFileInfo(path(u"B.DXF"_s)).isWritable();
    EXPECT_EQ(shown[0].contains(u"B.DXF: "_s), !isRoot);
    EXPECT_TRUE(shown[0].contains(u"cut.dxf: "_s) && !shown[0].contains(u"c 2.dxf"_s)) << shown[0].toStdString();
    EXPECT_TRUE(isAccepted());
    EXPECT_EQ(stored(u"c 2.dxf"_s), (EditingTime{true, 20, 0, 0}));
    EXPECT_EQ((isRoot ? QByteArray() : file(u"B.DXF"_s)) + file(u"cut.dxf"_s),
              isRoot ? kept.last(file(u"cut.dxf"_s).size()) : kept);
}

TEST_F(TrackTime, ShowsWhatItCannotReadAndLeavesItAlone)
{
    for (const QString &name : QDir(folder).entryList(QDir::Files))
        QFile::remove(path(name));
    const std::pair<QString, QByteArray> files[] = {{u"cut.dxf"_s, "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1015\n"},
                                                    {u"empty.dwg"_s, {}},
                                                    {u"other.dwg"_s, "AC1032" + QByteArray(200, '\0')},
                                                    {u"words.dxf"_s, "no drawing <b>\n"}};
    QStringList listed;
    for (const auto &[name, content] : files) {
        host.writeFile(u"project/"_s + name, content);
        listed.append(name + u"|Not readable|"_s);
    }
    click("btnRefresh");
    EXPECT_EQ(this->rows(), listed.join(u"; "_s));
    table()->selectAll();
    EXPECT_EQ(enabledOf(u"btnTrackOn btnTrackOff btnIdle btnReset"_s), QString());
    for (const auto &[name, content] : files) {
        EXPECT_TRUE(table()->item(rowOf(name), 1)->toolTip().contains(name)) << name.toStdString();
        toggle(name);
    }
    EXPECT_EQ(this->rows(), listed.join(u"; "_s));
    EXPECT_EQ(shownBy("acceptButton"), QStringList());
    for (const auto &[name, content] : files)
        EXPECT_EQ(file(name), content) << name.toStdString();
}

TEST_F(TrackTime, AsksBeforeChangesAreLost)
{
    const QString sub = path(u"sub"_s);
    select({u"c 2.dxf"_s});
    QTest::keyClick(table(), Qt::Key_Space);
    EXPECT_EQ(table()->item(2, 1)->text(), u"On, 20 min"_s);
    EXPECT_EQ(shownBy("btnRefresh", {QMessageBox::No}).size(), 1);
    EXPECT_EQ(table()->item(2, 1)->text(), u"On, 20 min"_s);
    EXPECT_EQ(shownBy("subfolders", {QMessageBox::No}).size(), 1);
    EXPECT_FALSE(isChecked("subfolders"));
    EXPECT_EQ(shownChoosing("btnBrowse", sub, {QMessageBox::No}).size(), 2);
    EXPECT_EQ(fullText("directory"), folder);
    QTest::keyClick(table(), Qt::Key_Space);
    EXPECT_EQ(shownChoosing("btnBrowse", sub).size(), 1) << "nothing is changed any more";
    EXPECT_EQ(rows(), u"d.dxf|On|100.00"_s);
    EXPECT_EQ(shownEntering("directory", path(u"gone"_s)).size(), 1);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(rows(), u"d.dxf|On|100.00"_s);
    enterText("directory", folder);
    EXPECT_EQ(table()->rowCount(), 5);
}

TEST_F(TrackTime, ExportsWhatIsShown)
{
    QFile::rename(path(u"c 2.dxf"_s), path(u"c;\"2\".dxf"_s));
    click("btnRefresh");
    setText("filter", u"^[ac]"_s);
    sort(2);
    const std::pair<QString, QByteArray> rows[] = {
        {u"time.txt"_s, "Name\tTrack Active\tEditTime (hr)\n\"c;\"\"2\"\".dxf\"\tOff\t0.00\na.dxf\tOn\t10.50\n"},
        {u"time.CSV"_s, "Name;Track Active;EditTime (hr)\n\"c;\"\"2\"\".dxf\";Off;0.00\na.dxf;On;10.50\n"},
    };
    for (const auto &[name, text] : rows) {
        EXPECT_EQ(shownChoosing("btnExport", host.path(name)).size(), 1);
        EXPECT_EQ(FakeHost::readFile(host.path(name)), text);
    }
    EXPECT_EQ(shownChoosing("btnExport", path(u"gone/x.txt"_s)).size(), 2) << "told";
}

TEST_F(TrackTime, FavouritesBringTheirFolder)
{
    enterText("directory", path(u"sub"_s));
    saveFavourite("cb_favorits", "btnSave", u"details"_s);
    enterText("directory", folder);
    EXPECT_EQ(table()->rowCount(), 5);
    pickFavourite("cb_favorits", u"details"_s);
    EXPECT_EQ(rows(), u"d.dxf|On|100.00"_s);
}

// Whoever does not want to wait keeps what is written by then, and the rest is still to be written.
TEST_F(TrackTime, WritingCanBeLeftBetweenDrawings)
{
    open.open.clear();
    for (const QString &name : {u"a.dxf"_s, u"B.DXF"_s, u"c 2.dxf"_s, u"open.dxf"_s})
        open.open.append({path(name), {true, 30, 2.75, 1}});
    open.delay = 300;
    click("btnRefresh");
    table()->selectAll();
    click("btnTrackOff");
    QTimer canceller;
    canceller.callOnTimeout(dialog.get(), [this] {
        if (auto *bar = dialog->findChild<QProgressDialog *>(u"progressDialog"_s))
            bar->cancel();
    });
    canceller.start(0);
    click("acceptButton");
    canceller.stop();
    const auto tracked = [this] {
        return std::count_if(open.open.cbegin(), open.open.cend(), [](const auto &one) { return one.time.isTracked; });
    };
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(tracked(), 2);
    open.delay = 0;
    click("acceptButton");
    EXPECT_EQ(tracked(), 0);
    EXPECT_TRUE(isAccepted());
}

} // namespace
