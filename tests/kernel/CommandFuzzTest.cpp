// Commands answered at random: nothing hangs or crashes, undo gives back the bytes that were, and what is left is a
// drawing that opens again as it is. See FuzzBench for how long, from where and in which drawings.

#include "host/kernel/running/CommandTable.h"
#include "tests/kernel/FuzzBench.h"

using namespace host::kernel;

namespace {

class CommandFuzz : public FuzzBench
{
protected:
    /// A command with answers, as arguments of (command).
    QString anyCall(const QStringList &commands)
    {
        QString call = QStringLiteral("(command \"%1\"").arg(any(commands));
        for (unsigned count = m_random() % 12; count > 0; --count)
            call += u' ' + anyAnswer();
        return call + u')';
    }
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
    beginAnew();
    const QStringList commands = undoneCommands();
    repeatedly([&] {
        const QByteArray before = drawing().toBytes();
        const QStringList faultsBefore = faults() + dangling();
        const QString call = anyCall(commands);
        runTimed(call);
        const bool isChanged = drawing().toBytes() != before;
        if (isChanged)
            expectNoMore(faultsBefore, faults() + dangling(), call);
        if (isChanged)
            stepBack();
        EXPECT_EQ(drawing().toBytes() == before, true) << call.toStdString();
        // Go on from what the command has made, now and then, but not for ever.
        if (isChanged && oneIn(4) && before.size() < 1'000'000)
            stepOn();
        if (oneIn(48))
            beginAnew();
    });
}

TEST_F(CommandFuzz, NothingHangsOrCrashes)
{
    beginAnew();
    QStringList commands;
    for (const CommandRow &row : CommandTable::all())
        commands.append(QLatin1String(row.name));
    repeatedly([&] {
        runTimed(anyCall(commands));
        if (!session.documents().active() || drawing().toBytes().size() > 1'000'000 || oneIn(64))
            beginAnew();
    });
}

TEST_F(CommandFuzz, LoggedStepsAgain)
{
    if (!qEnvironmentVariableIsSet("ORTAKIT_FUZZ_AGAIN"))
        GTEST_SKIP() << "ORTAKIT_FUZZ_AGAIN names no log";
    playAgain(qEnvironmentVariable("ORTAKIT_FUZZ_AGAIN"));
}

} // namespace
