// Files of drawings that other tabs, sessions and programs have open or have changed.

#include "host/drawing/file/NewDrawing.h"
#include "host/kernel/files/DrawingLock.h"
#include "platform/kernel/CKvUtils.h"
#include "tests/kernel/Bench.h"

#include <QDir>

#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace host::kernel;
using namespace Qt::StringLiterals;

namespace {

/// The saved drawing "plan.dxf", which is the active one, and a second one without a file.
class OpenFiles : public Bench
{
protected:
    OpenFiles()
    {
        EXPECT_TRUE(document().saveAs(path("plan.dxf")));
        plan = &document();
        other = session.documents().create();
        session.documents().setActive(plan);
    }
    QStringList locks() const { return QDir(folder.path()).entryList({u".*.lock"_s}, QDir::Files | QDir::Hidden); }
    std::string notWritten() { return session.takeNotWritten().join(u'|').toStdString(); }

    Document *plan;
    Document *other;
};

TEST_F(OpenFiles, lieBesideALockUntilTheyAreClosed)
{
    EXPECT_EQ(locks(), QStringList{u".plan.dxf.lock"_s});
    EXPECT_NE(read(".plan.dxf.lock").indexOf("process " + QByteArray::number(getpid())), -1);
    const QByteArray first = read(".plan.dxf.lock");
    change();
    EXPECT_TRUE(plan->save());
    EXPECT_EQ(read(".plan.dxf.lock"), first) << "the file is another, the lock is not";
    EXPECT_TRUE(plan->saveAs(path("moved.dxf")));
    EXPECT_EQ(locks(), QStringList{u".moved.dxf.lock"_s});
    EXPECT_FALSE(plan->saveAs(path("nowhere/plan.dxf")));
    EXPECT_FALSE(plan->saveAs(path("plan.dwg")));
    EXPECT_EQ(locks(), QStringList{u".moved.dxf.lock"_s}) << "a save that failed moves nothing";
    EXPECT_FALSE(session.documents().open(write("broken.dxf", "0\nSECTION\n2\nENT")));
    EXPECT_TRUE(session.documents().close(plan));
    EXPECT_EQ(locks(), QStringList());
}

TEST_F(OpenFiles, areOneByAllTheirNames)
{
    EXPECT_TRUE(QFile::link(path("plan.dxf"), path("symbolic.dxf")));
    std::filesystem::create_hard_link(path("plan.dxf").toStdString(), path("hard.dxf").toStdString());
    const QByteArray before = read("plan.dxf");
    for (const char *name : {"plan.dxf", "symbolic.dxf", "hard.dxf", "../", "./plan.dxf"}) {
        SCOPED_TRACE(name);
        const QString way = QLatin1StringView(name) == "../"_L1
                                ? path("../") + QFileInfo(folder.path()).fileName() + u"/plan.dxf"_s
                                : path(name);
        session.documents().setActive(other);
        EXPECT_EQ(session.documents().open(way).document, plan);
        const std::string refusal = " is open in this program; close it first, or give another name.";
        EXPECT_EQ(other->saveAs(way).error.toStdString(), way.toStdString() + refusal);
        EXPECT_EQ(other->saveCopy(way).error.toStdString(), way.toStdString() + refusal);
        OdString error;
        EXPECT_FALSE(CKvUtils::setDrawingRecord(way, u"X"_s, nullptr, &error));
        EXPECT_EQ(error.toStdString(), way.toStdString() + refusal);
        session.documents().setActive(other);
        notWritten();
        takePrinted();
        const std::string quoted = '"' + way.toStdString() + '"';
        EXPECT_EQ(lisp("(merge-sheets " + quoted + " nil nil)"), '"' + way.toStdString() + refusal + '"');
        lisp("(setvar \"EXPERT\" 2)(command \"WBLOCK\" " + quoted + " \"*\")");
        EXPECT_TRUE(notWritten().ends_with(refusal));
        lisp("(command \"SAVEAS\" " + quoted + ")");
        EXPECT_TRUE(notWritten().ends_with(refusal));
    }
    EXPECT_EQ(read("plan.dxf"), before);
    EXPECT_TRUE(plan->save());
}

TEST_F(OpenFiles, thatChangedAreNotReplacedUnasked)
{
    const std::string file = path("plan.dxf").toStdString();
    const auto setTime = [&](time_t seconds) {
        const timespec times[] = {{seconds, 0}, {seconds, 0}};
        EXPECT_EQ(utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
    };
    const struct
    {
        const char *what;
        std::function<void(const QByteArray &now)> happens;
        const char *refusal; ///< null: it is saved
    } rows[] = {
        {"nothing", [](const QByteArray &) {}, nullptr},
        {"touched", [&](const QByteArray &) { setTime(1'000'000); }, nullptr},
        {"replaced by the same",
         [&](const QByteArray &now) {
             QFile::rename(path("plan.dxf"), path("old.dxf"));
             write("plan.dxf", now);
             QFile::remove(path("old.dxf"));
         },
         nullptr},
        {"as long as before, within the same tick",
         [&](const QByteArray &now) { write("plan.dxf", QByteArray(now).replace("SECTION", "SEXTION")); },
         " was changed by another program since it was opened or saved here."},
        {"longer", [&](const QByteArray &now) { write("plan.dxf", now + "999\nx\n"); },
         " was changed by another program since it was opened or saved here."},
        {"gone", [&](const QByteArray &) { QFile::remove(path("plan.dxf")); }, " is not there any more."},
        {"a folder now",
         [&](const QByteArray &) {
             QFile::remove(path("plan.dxf"));
             QDir().mkdir(path("plan.dxf"));
         },
         " is not there any more."},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        row.happens(read("plan.dxf"));
        const QByteArray found = read("plan.dxf");
        change();
        notWritten();
        const QString error = plan->save().error;
        EXPECT_EQ(error.toStdString(), row.refusal ? file + row.refusal : "");
        EXPECT_EQ(plan->isModified(), row.refusal != nullptr);
        if (!row.refusal)
            continue;
        EXPECT_EQ(notWritten(), error.toStdString());
        EXPECT_EQ(read("plan.dxf"), found);
        QDir().rmdir(path("plan.dxf"));
        EXPECT_TRUE(plan->save(Overrule::Obstacles));
        EXPECT_FALSE(plan->isModified());
    }
}

TEST_F(OpenFiles, byALinkAreNotSavedWhereItLeadsByThen)
{
    const QByteArray theirs = "another drawing";
    write("other.dxf", theirs);
    const QString file = write("real.dxf", host::drawing::newDrawing()->toBytes());
    ASSERT_TRUE(QFile::link(file, path("link.dxf")));
    Document *document = session.documents().open(path("link.dxf")).document;
    ASSERT_TRUE(document);
    EXPECT_TRUE(document->save());
    QFile::remove(path("link.dxf"));
    ASSERT_TRUE(QFile::link(path("other.dxf"), path("link.dxf")));
    EXPECT_TRUE(document->save().error.contains(QStringLiteral("leads to another file")));
    QFile kept(path("other.dxf"));
    EXPECT_TRUE(kept.open(QIODevice::ReadOnly) && kept.readAll() == theirs);
}

TEST_F(OpenFiles, areAskedAboutByTheCommands)
{
    const struct
    {
        const char *typed;    ///< at the command line
        const char *answered; ///< the same, by a program
        const char *saved;    ///< the file that holds the drawing then; null: none
    } rows[] = {
        {"qsave\nanyway\n", "(command \"QSAVE\" \"Anyway\")", "plan.dxf"},
        {"qsave\nname\nnew.dxf\n", "(command \"QSAVE\" \"Name\" \"new.dxf\")", "new.dxf"},
        {"saveas\nplan.dxf\nanyway\n", "(command \"SAVEAS\" \"plan.dxf\" \"_A\")", "plan.dxf"},
        {"qsave\ncancel\n", "(command \"QSAVE\" \"Cancel\")", nullptr},
        {"qsave\n\n", "(command \"QSAVE\" \"\")", nullptr},
        {"qsave\n", "(command \"QSAVE\")", nullptr},
        {"save\nplan.dxf\nlater\n", "(command \"SAVE\" \"plan.dxf\" \"later\")", nullptr},
    };
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder.path());
    for (const auto &row : rows) {
        for (const bool isTyped : {true, false}) {
            SCOPED_TRACE(isTyped ? row.typed : row.answered);
            change();
            EXPECT_TRUE(plan->saveAs(path("plan.dxf"), Overrule::Obstacles));
            QFile::remove(path("new.dxf"));
            write("plan.dxf", "someone else's");
            change();
            takePrinted();
            notWritten();
            if (isTyped)
                runTyped(row.typed);
            else
                lisp(row.answered);
            EXPECT_NE(takePrinted().find("was changed by another program"), std::string::npos);
            EXPECT_EQ(plan->isModified(), row.saved == nullptr);
            EXPECT_EQ(read("plan.dxf") == "someone else's",
                      !row.saved || QLatin1StringView(row.saved) != "plan.dxf"_L1);
            EXPECT_EQ(plan->path(), path(row.saved ? row.saved : "plan.dxf"));
            EXPECT_EQ(notWritten().empty(), row.saved != nullptr);
        }
    }
    QDir::setCurrent(before);
}

TEST_F(OpenFiles, ofAnotherSessionAreReadOrTakenOver)
{
    Session second(homeIn("home2"));
    DocumentManager &documents = second.documents();
    const OpenOutcome refused = documents.open(path("plan.dxf"));
    EXPECT_FALSE(refused);
    ASSERT_TRUE(refused.holder);
    EXPECT_EQ(refused.holder->process, getpid());
    EXPECT_NE(refused.error.indexOf(u"plan.dxf is open in another program ("_s), -1) << refused.error.toStdString();

    Document *reader = documents.open(path("plan.dxf"), OpenMode::ReadOnly).document;
    ASSERT_TRUE(reader && reader->isReadOnly());
    EXPECT_NE(reader->save().error.indexOf(u"was opened for reading only"_s), -1);
    EXPECT_FALSE(reader->save(Overrule::Obstacles));
    EXPECT_TRUE(reader->saveAs(path("copy.dxf")));
    EXPECT_FALSE(reader->isReadOnly());
    EXPECT_NE(reader->saveAs(path("plan.dxf")).error.indexOf(u"is open in another program"_s), -1);
    EXPECT_TRUE(plan->save());

    EXPECT_TRUE(documents.open(path("plan.dxf"), OpenMode::Anyway));
    EXPECT_EQ(locks().size(), 2) << "one for each file";
    EXPECT_NE(plan->save().error.indexOf(u"is open in another program"_s), -1) << "it was taken from here";
    EXPECT_TRUE(documents.active()->save());
    documents.close(documents.active());
    EXPECT_TRUE(plan->save()) << "the lock came back, and the file holds what it held";
}

TEST_F(OpenFiles, canBeSavedWithoutAsking)
{
    session.setOverrule(Overrule::Obstacles);
    write("plan.dxf", "someone else's");
    EXPECT_TRUE(plan->save());
    EXPECT_FALSE(other->saveAs(path("plan.dxf"))) << "two of this program would not know of each other";
    EXPECT_TRUE(session.documents().close(plan));
    Session second(homeIn("home2"));
    EXPECT_TRUE(second.documents().open(path("plan.dxf")));
    EXPECT_TRUE(session.documents().open(path("plan.dxf")));
}

TEST_F(OpenFiles, needNoLockWhereThereCanBeNone)
{
    const QByteArray longName = QByteArray(248, 'x') + ".dxf";
    write(longName, read("plan.dxf"));
    EXPECT_TRUE(session.documents().open(path(longName))) << "the name of the lock would be too long";
    EXPECT_EQ(locks(), QStringList{u".plan.dxf.lock"_s});
    EXPECT_TRUE(session.documents().close(&document()));
    QDir().mkpath(path(".taken.dxf.lock/x"));
    EXPECT_FALSE(plan->saveAs(path("taken.dxf"))) << "what is no lock of this program may be one of another";
    EXPECT_TRUE(plan->saveAs(path("taken.dxf"), Overrule::Obstacles));
    EXPECT_TRUE(QFileInfo(path(".taken.dxf.lock/x")).isDir());
}

/// A line of this process's lock, replaced.
struct LeftLock
{
    const char *what;
    const char *line;
    QByteArray value;
    bool isLeftBehind;
};

TEST_F(OpenFiles, whoseHolderIsGoneAreFree)
{
    const pid_t gone = fork();
    if (gone == 0)
        _exit(0);
    waitpid(gone, nullptr, 0);
    const LeftLock rows[] = {
        {"of this process", "token", "1", false},
        {"of a process that ended", "process", QByteArray::number(gone), true},
        {"of an earlier process of this number", "started", "1", true},
        {"from before the machine was started anew", "boot", "0", true},
        {"of another machine", "host", "far", false},
        {"of a container", "space", "pid:[1]", false},
        {"without a token", "token ", {}, false},
        {"of another program", "ortakit", "lock 2", false},
    };
    const QByteArray own = read(".plan.dxf.lock");
    const bool isMachineKnown = !QSysInfo::machineUniqueId().isEmpty();
    for (const LeftLock &row : rows) {
        SCOPED_TRACE(row.what);
        QByteArrayList lines = own.split('\n');
        for (QByteArray &line : lines)
            if (line.startsWith(row.line))
                line = row.value.isEmpty() ? QByteArray() : row.line + QByteArray(" ") + row.value;
        write(".left.dxf.lock", lines.join('\n'));
        const bool isFree = row.isLeftBehind && (isMachineKnown || QLatin1StringView(row.line) != "boot"_L1);
        EXPECT_EQ(DrawingLock::holderOf(path("left.dxf")).has_value(), !isFree);
        const DrawingLock::Attempt attempt = DrawingLock::take(path("left.dxf"));
        EXPECT_EQ(attempt.lock != nullptr, isFree);
        EXPECT_TRUE(DrawingLock::take(path("left.dxf"), DrawingLock::Wanted::Anyway).lock);
        EXPECT_FALSE(attempt.lock && attempt.lock->isHeld()) << "it was taken away";
    }
    write(".left.dxf.lock", "ortakit lock 1\nuser \x1b[31mred%0A\ntoken 1\n");
    EXPECT_EQ(DrawingLock::holderOf(path("left.dxf"))->description(), u"[31mred"_s) << "no control characters";
}

/// How many of so many processes that try at once get the lock.
int lockWinners(const QString &file, int processes)
{
    int starts[2];
    int results[2];
    int ends[2];
    EXPECT_EQ(pipe(starts) + pipe(results) + pipe(ends), 0);
    for (int i = 0; i < processes; ++i) {
        if (fork() != 0)
            continue;
        close(starts[1]);
        close(ends[1]);
        char unused;
        (void)!::read(starts[0], &unused, 1);
        std::optional<DrawingLock::Attempt> attempt = DrawingLock::take(file);
        const char got = attempt->lock ? 1 : 0;
        (void)!::write(results[1], &got, 1);
        (void)!::read(ends[0], &unused, 1);
        attempt.reset();
        _exit(0);
    }
    close(starts[1]);
    int count = 0;
    for (int i = 0; i < processes; ++i) {
        char got = 0;
        EXPECT_EQ(::read(results[0], &got, 1), 1);
        count += got;
    }
    close(ends[1]);
    while (wait(nullptr) > 0) {
    }
    for (const int open : {starts[0], results[0], results[1], ends[0]})
        close(open);
    return count;
}

TEST_F(OpenFiles, haveOneLockWhoeverTriesAtOnce)
{
    const pid_t gone = fork();
    if (gone == 0)
        _exit(0);
    waitpid(gone, nullptr, 0);
    const QByteArray left =
        read(".plan.dxf.lock")
            .replace("process " + QByteArray::number(getpid()) + '\n', "process " + QByteArray::number(gone) + '\n');
    for (int round = 0; round < 8; ++round) {
        if (round % 2 == 1)
            write(".race.dxf.lock", left);
        EXPECT_EQ(lockWinners(path("race.dxf"), 8), 1) << (round % 2 == 1 ? "one was left behind" : "there was none");
        EXPECT_FALSE(QFile::exists(path(".race.dxf.lock")));
    }
}

} // namespace
