// Copies of changed drawings, and drawings made of them after a crash.

#include "host/kernel/files/Autosave.h"

#include "host/drawing/file/Save.h"
#include "tests/kernel/Bench.h"

#include <QDir>
#include <QTest>

#include <filesystem>

using namespace host::kernel;
using namespace Qt::StringLiterals;

namespace {

/// Soon enough for tests, the longest wait far behind the pause.
constexpr AutosavePace quickPace{.look = std::chrono::milliseconds(5),
                                 .pause = std::chrono::milliseconds(30),
                                 .longest = std::chrono::milliseconds(300)};

class Autosaving : public Bench
{
protected:
    Autosaving()
    {
        QObject::connect(autosave.get(), &Autosave::copied, [this] { ++copies; });
        QObject::connect(autosave.get(), &Autosave::failed,
                         [this](Document *, const QString &reason) { failures.append(reason); });
    }
    QStringList files(const QString &folderName = u"home/recovery"_s) const
    {
        return QDir(path(folderName.toUtf8().constData())).entryList(QDir::Files | QDir::Hidden);
    }
    bool waitForCopy()
    {
        const int before = copies;
        return QTest::qWaitFor([&] { return copies > before; }, 5000);
    }
    bool waitForNone()
    {
        return QTest::qWaitFor([&] { return files().isEmpty(); }, 5000);
    }
    /// What a program that is killed now would leave, in the home of another session.
    RecoveryFile killed(const char *home)
    {
        const QString folderThere = path(home) + u"/recovery"_s;
        QDir().mkpath(folderThere);
        for (const QString &name : files())
            if (!name.endsWith(".lock"_L1))
                QFile::copy(path("home/recovery/") + name, QDir(folderThere).filePath(name));
        const QList<RecoveryFile> left = RecoveryCopy::leftIn(folderThere);
        EXPECT_EQ(left.size(), 1);
        return left.value(0);
    }

    std::unique_ptr<Autosave> autosave = std::make_unique<Autosave>(session, quickPace);
    int copies = 0;
    QStringList failures;
};

TEST_F(Autosaving, keepsACopyAsLongAsTheDrawingIsChanged)
{
    QTest::qWait(100);
    EXPECT_EQ(files(), QStringList()) << "nothing has changed";
    change();
    ASSERT_TRUE(waitForCopy());
    const QStringList all = files();
    ASSERT_EQ(all.size(), 3) << "the copy, its note and its lock";
    EXPECT_EQ(lisp("(findfile (getvar \"SAVEFILE\"))"),
              '"' + path("home/recovery/").toStdString() + all[1].toStdString() + '"');
    const auto copied = [&] { return read((u"home/recovery/"_s + all[1]).toUtf8().constData()); };
    EXPECT_EQ(copied(), drawing().toBytes());
    change();
    ASSERT_TRUE(waitForCopy());
    EXPECT_EQ(copied(), drawing().toBytes()) << "the newer one in the same place";
    EXPECT_EQ(files(), all);
    EXPECT_EQ(Autosave::left(session).size(), 0) << "it belongs to a program that runs";
    EXPECT_EQ(RecoveryCopy::adopt(path("home/recovery/") + all[1]), nullptr);
    const int before = copies;
    QTest::qWait(100);
    EXPECT_EQ(copies, before) << "what has not changed is not written again";

    document().undoSteps().undo();
    document().undoSteps().undo();
    EXPECT_TRUE(waitForNone()) << "all changes were taken back";
    change();
    ASSERT_TRUE(waitForCopy());
    EXPECT_TRUE(document().saveAs(path("plan.dxf")));
    EXPECT_TRUE(waitForNone()) << "it was saved";
    change();
    ASSERT_TRUE(waitForCopy());
    EXPECT_TRUE(session.documents().close(&document()));
    EXPECT_EQ(files(), QStringList()) << "it was closed";
    session.documents().create();
    change();
    ASSERT_TRUE(waitForCopy());
    autosave.reset();
    EXPECT_EQ(files(), QStringList()) << "the program ended";
}

TEST_F(Autosaving, comesToADrawingThatNeverRests)
{
    QElapsedTimer time;
    time.start();
    const bool isCopied = QTest::qWaitFor(
        [&] {
            change();
            return copies > 0;
        },
        5000);
    EXPECT_TRUE(isCopied);
    EXPECT_GE(time.elapsed(), 250) << "not before the longest wait";
}

TEST_F(Autosaving, isAsTheVariablesSay)
{
    lisp("(setvar \"SAVETIME\" 0)");
    change();
    QTest::qWait(150);
    EXPECT_EQ(copies, 0);
    lisp("(setvar \"SAVETIME\" 1)(setvar \"SAVEFILEPATH\" \"" + path("copies").toStdString() + "\")");
    ASSERT_TRUE(waitForCopy());
    EXPECT_EQ(files(u"copies"_s).size(), 3);
    EXPECT_EQ(files(), QStringList());
}

TEST_F(Autosaving, tellsOnceWhyThereIsNoCopy)
{
    write("copies", "a file");
    lisp("(setvar \"SAVEFILEPATH\" \"" + path("copies").toStdString() + "\")");
    change();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !failures.isEmpty(); }, 5000));
    QTest::qWait(150);
    EXPECT_EQ(failures, QStringList{u"the folder %1 takes no files"_s.arg(path("copies"))});
    EXPECT_EQ(lisp("(getvar \"SAVEFILE\")"), "\"\"");
}

TEST_F(Autosaving, letsADrawingBeRecovered)
{
    EXPECT_TRUE(document().saveAs(path("plan.dxf")));
    change();
    ASSERT_TRUE(waitForCopy());
    const QByteArray expected = drawing().toBytes();
    const RecoveryFile copy = killed("later");
    EXPECT_EQ(copy.note.path, path("plan.dxf"));
    EXPECT_EQ(copy.size, expected.size());
    autosave.reset();
    session.documents().close(&document());

    const QByteArray saved = read("plan.dxf");
    const struct
    {
        const char *what;
        std::function<void()> happens;
        const char *refusal; ///< of saving; null: it is saved
    } rows[] = {
        {"nothing", [] {}, nullptr},
        {"another one in its place", [&] { write("plan.dxf", saved + "999\nx\n"); }, " was changed by another program"},
        {"one as long", [&] { write("plan.dxf", QByteArray(saved).replace("SECTION", "SEXTION")); },
         " was changed by another program"},
        {"gone", [&] { QFile::remove(path("plan.dxf")); }, " is not there any more"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        write("plan.dxf", saved);
        row.happens();
        Session later(homeIn("later"));
        const OpenOutcome opened = later.documents().openCopy(copy);
        ASSERT_TRUE(opened) << opened.error.toStdString();
        Document &recovered = *opened.document;
        EXPECT_TRUE(recovered.isModified() && recovered.isRecovered());
        EXPECT_EQ(recovered.path(), path("plan.dxf"));
        EXPECT_EQ(recovered.drawing().toBytes(), expected);
        const host::drawing::SaveResult result = recovered.save();
        EXPECT_EQ(bool(result), !row.refusal);
        EXPECT_TRUE(result.error.contains(QLatin1StringView(row.refusal))) << result.error.toStdString();
        EXPECT_TRUE(recovered.save(Overrule::Obstacles));
        EXPECT_EQ(read("plan.dxf"), expected);
        EXPECT_FALSE(recovered.isRecovered() || recovered.isModified());
    }
}

TEST_F(Autosaving, recoversWhatItsFileIsOpenBesideAndWhatIsDamaged)
{
    drawing().setForm(host::drawing::FileForm::Binary);
    EXPECT_TRUE(document().saveAs(path("plan.dxf")));
    change();
    ASSERT_TRUE(waitForCopy());
    const RecoveryFile copy = killed("later");
    const OpenOutcome beside = session.documents().openCopy(copy);
    ASSERT_TRUE(beside);
    EXPECT_EQ(beside.document->path(), QString()) << "the file is open";
    EXPECT_EQ(beside.document->title(), u"plan.dxf"_s);
    {
        Session other(homeIn("other"));
        const OpenOutcome elsewhere = other.documents().openCopy(copy);
        ASSERT_TRUE(elsewhere);
        EXPECT_TRUE(elsewhere.document->isReadOnly());
        EXPECT_EQ(elsewhere.document->drawing().form(), host::drawing::FileForm::Binary);
    }
    EXPECT_TRUE(QFile::resize(copy.file, copy.size * 3 / 4));
    const OpenOutcome mended = session.documents().openCopy(copy);
    ASSERT_TRUE(mended) << mended.error.toStdString();
    EXPECT_FALSE(mended.recovered.isEmpty());
    EXPECT_FALSE(host::drawing::Drawing::open(copy.file)) << "the copy itself stays as it is";
    write("later/recovery/plan.dxf", "no drawing");
    EXPECT_FALSE(session.documents().openCopy({path("later/recovery/plan.dxf"), {}, 10}));
}

TEST_F(Autosaving, recoversWhatWasRecoveredBefore)
{
    change();
    ASSERT_TRUE(waitForCopy());
    const RecoveryFile copy = killed("later");
    Session later(homeIn("later"));
    {
        Autosave again(later, quickPace);
        const OpenOutcome opened = later.documents().openCopy(copy);
        ASSERT_TRUE(opened);
        again.adopt(*opened.document, RecoveryCopy::adopt(copy.file));
        EXPECT_EQ(Autosave::left(later).size(), 0);
        QTest::qWait(100);
        EXPECT_TRUE(QFile::exists(copy.file)) << "nobody has saved it";
        opened.document->run(u"(entmake '((0 . \"POINT\") (10 5.0 5.0 0.0)))"_s);
        EXPECT_TRUE(QTest::qWaitFor([&] { return QFileInfo(copy.file).size() > copy.size; }, 5000));
    }
    EXPECT_FALSE(QFile::exists(copy.file));
}

TEST_F(Autosaving, leavesForeignFilesAlone)
{
    QDir().mkpath(path("copies"));
    write("copies/plan.dxf", "drawing");
    write("copies/plan.dxf.json", "{\"title\": \"plan\"}");
    write("copies/lost.dxf.json", "{\"what\": \"ortakit recovery copy 1\"}");
    write("copies/torn.dxf", "drawing");
    write("copies/torn.dxf.json", "{\"what\": \"ortakit rec");
    write("copies/bare.dxf", "drawing");
    write("copies/bare.dxf.json",
          "{\"what\": \"ortakit recovery copy 1\", \"title\": 5, \"base\": [], \"time\": \"x\"}");
    const QList<RecoveryFile> left = RecoveryCopy::leftIn(path("copies"));
    ASSERT_EQ(left.size(), 1);
    EXPECT_EQ(left[0].file, path("copies/bare.dxf"));
    EXPECT_TRUE(left[0].note.time.isValid());
    EXPECT_EQ(files(u"copies"_s).size(), 6) << "only the note without a copy went";
}

} // namespace
