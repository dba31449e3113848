// Editing time from the first command to the next session, in the embedded host and with the module's own dialog.

#include "dialogs/tracktime/Dlg_QT_TrackTime.h"
#include "host/drawing/file/NewDrawing.h"
#include "host/kernel/documents/Session.h"
#include "module/CLispFunctionsModule.h"
#include "module/DialogRegistry.h"
#include "platform/kernel/CKvUtils.h"
#include "platform/rx/OdRxWin32Module.h"
#include "tests/support/ModuleTest.h"

#include <QAbstractButton>
#include <QTableWidget>
#include <QTemporaryDir>

namespace {

using host::kernel::Document;

constexpr qint64 trackedMinute = 60 * 1000;

qint64 trackedNow = 0;

class TrackedDocument : public testing::Test
{
protected:
    TrackedDocument()
    {
        trackedNow = 1700000000000;
        ortakit::setClock([] { return trackedNow; });
        const auto drawing = host::drawing::newDrawing();
        EXPECT_TRUE(host::drawing::saveCopy(*drawing, m_path));
        EXPECT_TRUE(host::drawing::saveCopy(*drawing, m_folder.filePath(u"other.dxf"_s)));
        m_module->initApp();
        openDrawing();
    }
    ~TrackedDocument() override
    {
        m_module->uninitApp();
        m_module->deleteModule();
        ortakit::setClock(nullptr);
    }

    Document &document() { return *m_session.documents().active(); }
    void openDrawing() { ASSERT_TRUE(m_session.documents().open(m_path)); }
    void closeDrawing() { ASSERT_TRUE(m_session.documents().close(&document())); }
    void lisp(const QString &text)
    {
        const host::kernel::RunResult result = document().run(text);
        EXPECT_TRUE(result.ok) << result.error.toStdString();
    }
    /// Of the record that the module keeps, in minutes.
    static double minutes() { return DialogRegistry::instance().records().at(0).editingTime.hours * 60; }
    static bool isTracked() { return DialogRegistry::instance().records().at(0).editingTime.isTracked; }
    /// Of the file; nothing without a record.
    std::optional<EditingTime> inFile() const
    {
        return ortakit::editingTimeFromChain(CKvUtils::drawingRecord(m_path, u"KORA_TRACKTIME"_s).get());
    }

    /// Runs the tracker's command as a tool does, and presses these in its dialog with the row of the drawing selected.
    /// Gives what the row shows at last.
    QString inTracker(const QStringList &buttons)
    {
        QString shown;
        ModalAnswers user;
        user.drive([&](QWidget *window) {
            auto *table = window->findChild<QTableWidget *>(u"tblDrawings"_s);
            ASSERT_TRUE(table);
            const int row = table->findItems(u"plan.dxf"_s, Qt::MatchExactly).value(0)->row();
            table->selectRow(row);
            for (const QString &button : buttons.first(buttons.size() - 1))
                window->findChild<QAbstractButton *>(button)->click();
            shown = table->item(row, 1)->text() + u' ' + table->item(row, 2)->text();
            window->findChild<QAbstractButton *>(buttons.last())->click();
        });
        lisp(u"(command \"ORTAKIT_TRACKTIME\" \"%1\")"_s.arg(m_folder.filePath(u"tracker.state"_s)));
        EXPECT_TRUE(user.isDone());
        return shown;
    }

    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(u"plan.dxf"_s);
    host::kernel::Session m_session{{.home = m_folder.filePath(u"home"_s), .supportFolders = {}, .helpFolder = {}}};
    OdRxModule *m_module = OdRxWin32Module<CLispFunctionsModule>::instance(nullptr);
};

TEST_F(TrackedDocument, TimeGrowsIsSavedAndComesBack)
{
    trackedNow += 10 * trackedMinute;
    lisp(u"(command \"POINT\" '(1 2))"_s);
    EXPECT_FALSE(isTracked());
    EXPECT_EQ(minutes(), 0);
    EXPECT_EQ(inTracker({u"btnTrackOn"_s, u"ButtonCancel"_s}), u"On, 15 min 0.00"_s);
    EXPECT_FALSE(isTracked()) << "cancelled";
    EXPECT_EQ(inTracker({u"btnTrackOn"_s, u"acceptButton"_s}), u"On, 15 min 0.00"_s);
    EXPECT_TRUE(isTracked());
    EXPECT_TRUE(document().isModified());
    EXPECT_FALSE(inFile()) << "not before it is saved";

    // counted: minutes
    const std::tuple<const char *, std::function<void()>, qint64, double> rows[] = {
        {"command", [this] { lisp(u"(command \"POINT\" '(1 2))"_s); }, 6 * trackedMinute, 6},
        {"expression", [this] { lisp(u"(+ 1 2)"_s); }, 3 * trackedMinute, 3},
        {"pause of the limit", [this] { lisp(u"(+ 1 2)"_s); }, 15 * trackedMinute, 15},
        {"longer pause", [this] { lisp(u"(+ 1 2)"_s); }, 15 * trackedMinute + 1000, 0},
        {"prompts", [this] { document().printPrompt(u"Specify: "_s); }, 2 * trackedMinute, 0},
        {"after prompts", [this] { lisp(u"(setvar \"CMDECHO\" 0)"_s); }, 2 * trackedMinute, 4},
    };
    double expected = 0;
    for (const auto &[name, act, pause, counted] : rows) {
        trackedNow += pause;
        act();
        expected += counted;
        EXPECT_NEAR(minutes(), expected, 1e-6) << name;
    }

    trackedNow += 2 * trackedMinute;
    EXPECT_TRUE(document().save());
    ASSERT_TRUE(inFile());
    EXPECT_NEAR(inFile()->hours * 60, 30, 1e-6);
    closeDrawing();
    trackedNow += 600 * trackedMinute;
    openDrawing();
    EXPECT_NEAR(minutes(), 30, 1e-6) << "closed is not worked on";
    trackedNow += 4 * trackedMinute;
    lisp(u"(+ 1 2)"_s);
    EXPECT_NEAR(minutes(), 34, 1e-6);
    EXPECT_EQ(inTracker({u"ButtonCancel"_s}), u"On, 15 min 0.57"_s);

    inTracker({u"btnTrackOff"_s, u"acceptButton"_s});
    trackedNow += 5 * trackedMinute;
    lisp(u"(+ 1 2)"_s);
    EXPECT_NEAR(minutes(), 34, 1e-6);
    EXPECT_TRUE(document().save());
    EXPECT_FALSE(inFile()->isTracked);
    closeDrawing();
    openDrawing();
    EXPECT_FALSE(isTracked());
    EXPECT_NEAR(minutes(), 34, 1e-6);
}

TEST_F(TrackedDocument, DamagedRecordsStayUntilTrackingIsSwitchedOn)
{
    closeDrawing();
    const OdResBufPtr damaged = OdResBuf::newReal(40, -3);
    ASSERT_TRUE(CKvUtils::setDrawingRecord(m_path, u"Kora_TrackTime"_s, damaged.get()));
    openDrawing();
    EXPECT_FALSE(isTracked());
    lisp(u"(command \"POINT\" '(1 2))"_s);
    EXPECT_TRUE(document().save());
    const OdResBufPtr kept = CKvUtils::drawingRecord(m_path, u"KORA_TRACKTIME"_s);
    ASSERT_TRUE(kept);
    EXPECT_EQ(kept->getDouble(), -3);
    inTracker({u"btnTrackOn"_s, u"acceptButton"_s});
    trackedNow += 3 * trackedMinute;
    EXPECT_TRUE(document().save());
    ASSERT_TRUE(inFile());
    EXPECT_TRUE(inFile()->isTracked);
    EXPECT_NEAR(inFile()->hours * 60, 3, 1e-6);
}

} // namespace
