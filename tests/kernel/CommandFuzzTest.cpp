// Commands answered at random: nothing hangs or crashes, and undo gives back the bytes that were.

#include "tests/kernel/Bench.h"

#include <random>

using namespace host::kernel;

namespace {

class CommandFuzz : public Bench, public testing::WithParamInterface<unsigned>
{
};

TEST_P(CommandFuzz, UndoGivesBackTheBytes)
{
    lisp("(entmake '((0 . \"BLOCK\") (2 . \"Door\") (70 . 0) (10 0.0 0.0 0.0)))(entmake '((0 . \"LINE\") (10 0.0 0.0 "
         "0.0) (11 "
         "1.0 0.0 0.0)))(entmake '((0 . \"ENDBLK\")))(command \"LINE\" '(0 0) '(9 9) \"\")");
    std::minstd_rand random(GetParam());
    const QStringList commands =
        QStringLiteral(
            "CIRCLE|TEXT|PLINE|LINE|MOVE|COPY|ROTATE|SCALE|ERASE|ZOOM|-INSERT|-LAYER|-PURGE|-XREF|DRAWORDER|"
            "ARC|ELLIPSE|SPLINE|XLINE|RAY|RECTANG|POLYGON|DONUT|3DPOLY|SOLID|TRACE|3DFACE|REVCLOUD|MLINE|-"
            "MTEXT|-STYLE|TXT2MTXT|DDEDIT|"
            "MIRROR|ARRAY|ALIGN|EXPLODE|STRETCH|CHANGE|CHPROP|MATCHPROP|ROTATE3D|MIRROR3D|-BLOCK|-ATTDEF|ATTSYNC|"
            "-ATTEDIT|-GROUP|XCLIP|COPYBASE|CUTCLIP|PASTECLIP|PASTEBLOCK|LIST|DIST|SELECT|SELECTSIMILAR")
            .split(u'|');
    const QStringList answers =
        QStringLiteral(
            "|0,0|10,0|3,4|@5<30|1e308,1e308|0|-1|2.5|1e300|90|ALL|L|P|2P|3P|T|D|A|CE|CL|R|S|W|UN|C|J|FIT|*|?|Door"
            "|*Door|Y|N|M|LA|2x|!pi|\u00e4/\"")
            .split(u'|');
    const auto pick = [&random](const QStringList &list) { return list[qsizetype(random() % quint32(list.size()))]; };
    for (int round = 0; round < 150; ++round) {
        const QByteArray before = drawing().toBytes();
        QString call = QStringLiteral("(command \"%1\"").arg(pick(commands));
        for (unsigned count = random() % 9; count > 0; --count)
            call += QStringLiteral(" \"%1\"").arg(pick(answers).replace(u'"', QStringLiteral("\\\"")));
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
