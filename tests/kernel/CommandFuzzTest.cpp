// Commands answered at random: nothing hangs or crashes, and undo gives back the bytes that were.

#include "tests/kernel/Bench.h"

#include <random>

using namespace host::kernel;

namespace {

const QStringList &commands()
{
    static const QStringList names = {QStringLiteral("CIRCLE"), QStringLiteral("TEXT"),    QStringLiteral("PLINE"),
                                      QStringLiteral("LINE"),   QStringLiteral("MOVE"),    QStringLiteral("COPY"),
                                      QStringLiteral("ROTATE"), QStringLiteral("SCALE"),   QStringLiteral("ERASE"),
                                      QStringLiteral("ZOOM"),   QStringLiteral("-INSERT"), QStringLiteral("-LAYER"),
                                      QStringLiteral("-PURGE"), QStringLiteral("-XREF"),   QStringLiteral("DRAWORDER")};
    return names;
}

const QStringList &answers()
{
    static const QStringList texts = {QString(),
                                      QStringLiteral("0,0"),
                                      QStringLiteral("10,0"),
                                      QStringLiteral("3,4"),
                                      QStringLiteral("@5<30"),
                                      QStringLiteral("1e308,1e308"),
                                      QStringLiteral("0"),
                                      QStringLiteral("-1"),
                                      QStringLiteral("2.5"),
                                      QStringLiteral("1e300"),
                                      QStringLiteral("90"),
                                      QStringLiteral("ALL"),
                                      QStringLiteral("L"),
                                      QStringLiteral("P"),
                                      QStringLiteral("2P"),
                                      QStringLiteral("3P"),
                                      QStringLiteral("T"),
                                      QStringLiteral("D"),
                                      QStringLiteral("A"),
                                      QStringLiteral("CE"),
                                      QStringLiteral("CL"),
                                      QStringLiteral("R"),
                                      QStringLiteral("S"),
                                      QStringLiteral("W"),
                                      QStringLiteral("U"),
                                      QStringLiteral("C"),
                                      QStringLiteral("J"),
                                      QStringLiteral("FIT"),
                                      QStringLiteral("*"),
                                      QStringLiteral("?"),
                                      QStringLiteral("Door"),
                                      QStringLiteral("*Door"),
                                      QStringLiteral("Y"),
                                      QStringLiteral("N"),
                                      QStringLiteral("M"),
                                      QStringLiteral("LA"),
                                      QStringLiteral("2x"),
                                      QStringLiteral("!pi"),
                                      QStringLiteral("\u00e4/\"")};
    return texts;
}

class CommandFuzz : public Bench, public testing::WithParamInterface<unsigned>
{
};

TEST_P(CommandFuzz, UndoGivesBackTheBytes)
{
    lisp("(entmake '((0 . \"BLOCK\") (2 . \"Door\") (70 . 0) (10 0.0 0.0 0.0)))(entmake '((0 . \"LINE\") (10 0.0 0.0 "
         "0.0) (11 "
         "1.0 0.0 0.0)))(entmake '((0 . \"ENDBLK\")))(command \"LINE\" '(0 0) '(9 9) \"\")");
    std::minstd_rand random(GetParam());
    const auto pick = [&random](const QStringList &list) { return list[qsizetype(random() % quint32(list.size()))]; };
    for (int round = 0; round < 150; ++round) {
        const QByteArray before = drawing().toBytes();
        QString call = QStringLiteral("(command \"%1\"").arg(pick(commands()));
        for (unsigned count = random() % 9; count > 0; --count)
            call += QStringLiteral(" \"%1\"").arg(pick(answers()).replace(u'"', QStringLiteral("\\\"")));
        const RunResult result = document().run(call + u')');
        EXPECT_TRUE(result.ok) << call.toStdString() << result.error.toStdString();
        const int steps = drawing().toBytes() == before ? 0 : 1;
        document().undoSteps().undo(steps);
        ASSERT_EQ(drawing().toBytes(), before) << call.toStdString();
        // Go on from what the command has made, now and then.
        if (steps == 1 && random() % 4 == 0)
            document().undoSteps().redo();
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, CommandFuzz, testing::Range(1u, 9u));

} // namespace
