// Commands answered at random: nothing hangs or crashes, and undo gives back the bytes that were.
//
// Every built-in command gets answers of all kinds: points, numbers, options, words of snaps and filters, entities,
// selection sets, commands in the middle, files of a temporary folder. A test run takes a few seconds of it;
// ORTAKIT_FUZZ_SECONDS says how long each way goes on, ORTAKIT_FUZZ_SEED where it begins, and with ORTAKIT_FUZZ_LOG
// each call stands in that file before it is made, and behind it how long it took if that was more than a second.

#include "host/kernel/running/CommandTable.h"
#include "host/kernel/variables/SystemVariables.h"
#include "tests/kernel/Bench.h"

#include <QDir>
#include <QElapsedTimer>

#include <random>

using namespace host::kernel;

namespace {

constexpr double usualSeconds = 2.0;
/// What one call may take, on a machine that has other work as well.
constexpr qint64 longestCall = 30'000;

const char *const fuzzedDrawing =
    "(progn (setvar \"FILEDIA\" 0) (setvar \"CMDDIA\" 0) (setvar \"EXPERT\" 5)"
    "(foreach e '(((0 . \"BLOCK\") (2 . \"Door\") (70 . 2) (10 0.0 0.0 0.0)) ((0 . \"LINE\") (10 0.0 0.0 0.0) (11 1.0 "
    "0.0 0.0))"
    " ((0 . \"ATTDEF\") (10 1.0 0.0 0.0) (40 . 1.0) (1 . \"7\") (2 . \"NO\") (3 . \"Number\") (70 . 0)) ((0 . "
    "\"ENDBLK\"))"
    " ((0 . \"LINE\") (10 0.0 0.0 0.0) (11 9.0 9.0 0.0)) ((0 . \"LINE\") (10 0.0 9.0 0.0) (11 9.0 0.0 0.0))"
    " ((0 . \"CIRCLE\") (10 5.0 5.0 0.0) (40 . 3.0)) ((0 . \"ARC\") (10 5.0 5.0 0.0) (40 . 4.0) (50 . 1.0) (51 . 2.0))"
    " ((0 . \"LWPOLYLINE\") (100 . \"AcDbEntity\") (100 . \"AcDbPolyline\") (90 . 3) (70 . 1) (10 0.0 0.0) (42 . 0.5) "
    "(10 8.0 0.0)"
    " (10 8.0 8.0)) ((0 . \"TEXT\") (10 2.0 2.0 0.0) (40 . 1.0) (1 . \"Text\")) ((0 . \"POINT\") (10 3.0 4.0 0.0))"
    " ((0 . \"INSERT\") (2 . \"Door\") (10 3.0 3.0 0.0))) (entmake e)))";

/// Answers as Lisp writes them; what a command leaves over is the name of the next one, so that none of them is U.
const QStringList &fuzzedAnswers()
{
    static const QStringList answers =
        QString::fromUtf8(
            R"a(""|"0,0"|"10,0"|"3,4"|"@5<30"|"1e308,1e308"|"0"|"-1"|"2.5"|"1e300"|"90"|"100000"|"ALL"|"L"|"P"|"2P"|"3P")a"
            R"a(|"T"|"D"|"A"|"CE"|"CL"|"R"|"S"|"W"|"UN"|"C"|"J"|"FIT"|"*"|"?"|"Door"|"*Door"|"Y"|"N"|"M"|"LA"|"2x"|"!pi")a"
            R"a(|"E"|"B"|"F"|"G"|"H"|"I"|"K"|"O"|"Q"|"V"|"X"|"Z"|"ON"|"OFF"|"_end"|"_mid"|"_int,_cen"|"_non"|"_per"|"_tan")a"
            R"a(|"_nea"|".x"|".xy"|".z"|"m2p"|"from"|"tk"|"tt"|"<45"|"#1,1"|"*1,1"|"'ZOOM"|"'_.-LAYER"|"'ORTHOMODE"|"'LINE")a"
            R"a(|"(list 1 2)"|"Standard"|"0"|"Layer1"|"Model"|"Layout1"|"x.dxf"|"y.txt"|"Continuous"|"ANSI31"|"ByLayer"|"1=2")a"
            R"a(|"a b"|"ä/\""|'(0 0)|'(3.5 4.5)|'(5 8 1)|'(9 9)|'(1e200 1e200)|1|-3|0.5|7|1e-9|pi|nil|PAUSE|(entlast))a"
            R"a(|(ssname (ssget "X") 0)|(ssname (ssget "X") 1)|(list (entlast) '(3 3))|(list (ssname (ssget "X") 0) '(0 0)))a"
            R"a(|(ssget "X")|(ssget "L"))a")
            .split(u'|');
    return answers;
}

double fuzzSeconds()
{
    bool isNumber = false;
    const double seconds = qEnvironmentVariable("ORTAKIT_FUZZ_SECONDS").toDouble(&isNumber);
    return isNumber ? seconds : usualSeconds;
}

class CommandFuzz : public Bench
{
protected:
    CommandFuzz()
    {
        m_random.seed(qEnvironmentVariableIsSet("ORTAKIT_FUZZ_SEED")
                          ? unsigned(qEnvironmentVariableIntValue("ORTAKIT_FUZZ_SEED"))
                          : 1U);
        // Files that commands read and write by their names alone.
        m_folderBefore = QDir::currentPath();
        QDir::setCurrent(folder.path());
    }
    ~CommandFuzz() override { QDir::setCurrent(m_folderBefore); }

    template <typename List>
    auto any(const List &list)
    {
        return list[qsizetype(m_random() % quint64(list.size()))];
    }

    /// A command with answers, as arguments of (command).
    QString anyCall(const QStringList &commands)
    {
        QString call = QStringLiteral("\"%1\"").arg(any(commands));
        for (unsigned count = m_random() % 12; count > 0; --count)
            call += u' ' + any(fuzzedAnswers());
        return call;
    }

    /// Runs it by (command), now and then as a program that fails half-way; tells of calls that take too long.
    void run(const QString &call)
    {
        log(call);
        QElapsedTimer time;
        time.start();
        const RunResult result = document().run(QStringLiteral("(command %1)").arg(call));
        if (time.elapsed() > 1000)
            log(QStringLiteral("; %1 ms").arg(time.elapsed()));
        EXPECT_LT(time.elapsed(), longestCall) << call.toStdString();
        // Answers that are worked out by Lisp may fail there: without an entity, without a selection.
        EXPECT_TRUE(result.ok || call.contains(QStringLiteral("(ss")) || call.contains(QStringLiteral("(list")))
            << call.toStdString() << result.error.toStdString();
        session.input().clear();
    }

    /// Until the time is over.
    template <typename Round>
    void repeatedly(const Round &round)
    {
        QElapsedTimer time;
        time.start();
        while (time.elapsed() < fuzzSeconds() * 1000.0 && !HasFatalFailure() && !HasNonfatalFailure())
            round();
    }

    std::minstd_rand m_random;

private:
    void log(const QString &call)
    {
        if (!qEnvironmentVariableIsSet("ORTAKIT_FUZZ_LOG"))
            return;
        QFile file(qEnvironmentVariable("ORTAKIT_FUZZ_LOG"));
        if (file.open(QIODevice::Append))
            file.write(call.toUtf8() + '\n');
    }

    QString m_folderBefore;
};

/// All commands but those of which other documents, or the steps themselves, are the affair.
QStringList undoneCommands()
{
    static const QStringList left = {QStringLiteral("U"),     QStringLiteral("UNDO"),     QStringLiteral("REDO"),
                                     QStringLiteral("MREDO"), QStringLiteral("OPEN"),     QStringLiteral("NEW"),
                                     QStringLiteral("QNEW"),  QStringLiteral("CLOSE"),    QStringLiteral("QUIT"),
                                     QStringLiteral("EXIT"),  QStringLiteral("CLOSEALL"), QStringLiteral("END"),
                                     QStringLiteral("SAVE"),  QStringLiteral("QSAVE"),    QStringLiteral("SAVEAS")};
    QStringList names;
    for (const CommandRow &row : CommandTable::all())
        if (!left.contains(QLatin1String(row.name)))
            names.append(QLatin1String(row.name));
    return names;
}

TEST_F(CommandFuzz, UndoGivesBackTheBytes)
{
    lisp(fuzzedDrawing);
    const QStringList commands = undoneCommands();
    repeatedly([&] {
        const QByteArray before = drawing().toBytes();
        const QString call = anyCall(commands);
        run(call);
        const int steps = drawing().toBytes() == before ? 0 : 1;
        document().undoSteps().undo(steps);
        ASSERT_EQ(drawing().toBytes(), before) << call.toStdString();
        // Go on from what the command has made, now and then, but not for ever.
        if (steps == 1 && m_random() % 4 == 0 && before.size() < 1'000'000)
            document().undoSteps().redo();
    });
}

TEST_F(CommandFuzz, NothingHangsOrCrashes)
{
    lisp(fuzzedDrawing);
    QStringList commands;
    for (const CommandRow &row : CommandTable::all())
        commands.append(QLatin1String(row.name));
    repeatedly([&] {
        run(anyCall(commands));
        if (!session.documents().active())
            session.documents().create();
        if (drawing().toBytes().size() > 1'000'000 || m_random() % 64 == 0) {
            session.documents().setActive(session.documents().create());
            lisp(fuzzedDrawing);
        }
    });
}

} // namespace
