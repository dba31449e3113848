#include "host/commands/Commands.h"
#include "host/commands/common/KeptValues.h"
#include "host/commands/common/UserPlane.h"
#include "host/commands/curves/PickedCurve.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/records/Blocks.h"
#include "host/kernel/languages/Texts.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::EntityCurve;
using drawing::FieldList;
using drawing::Matrix;
using drawing::Vec3;

/// What is put on the curve: points, or a block.
struct CurveMark
{
    QString block; ///< empty for points
    bool isAligned = true;
};

void putMark(CommandContext &context, const EntityCurve &curve, double parameter, const CurveMark &mark)
{
    const Vec3 point = curve.point(parameter);
    if (mark.block.isEmpty()) {
        context.create({{0, u"POINT"_s}, {10, point}});
        return;
    }
    const Vec3 up = curve.normal().value_or(userNormal(context));
    const Matrix toObject = Matrix::fromExtrusion(up).inverted();
    const Vec3 along = toObject.direction(mark.isAligned ? curve.firstDerivative(parameter) : Vec3{1, 0, 0});
    const double angle = mark.isAligned ? std::atan2(along.y, along.x) / drawing::radians : 0.0;
    FieldList fields = {{0, u"INSERT"_s}, {2, mark.block}, {10, toObject.point(point)}, {50, angle}};
    if (up != Vec3{0, 0, 1})
        fields.push_back({210, up});
    context.create(fields);
}

void putMarks(CommandContext &context, const EntityCurve &curve, const std::vector<double> &distances,
              const CurveMark &mark)
{
    for (const double parameter : curve.parametersAtDistances(distances))
        putMark(context, curve, parameter, mark);
}

constexpr int mostMarks = 32767;

/// Asks for a block that is in the drawing, and whether it follows the curve.
Dialogue<std::optional<CurveMark>> askBlock(CommandContext &context)
{
    CurveMark mark;
    for (;;) {
        mark.block = (co_await context.name(Commands::tr("Enter name of block to insert: "))).text;
        const bool isThere = isValid(context.drawing().blocks().find(mark.block));
        if (isThere && !mark.block.startsWith(u'*'))
            break;
        if (mark.block.isEmpty() || context.refuse(Commands::tr("Cannot find block \"%1\".").arg(mark.block)))
            co_return std::nullopt;
    }
    mark.isAligned = co_await askYesNo(context, Commands::tr("Align block with object?"), true);
    co_return mark;
}

// Points, or blocks, that cut a curve into as many parts of one length.
CommandTask divide(CommandContext &context)
{
    const CurveAnswer answer = co_await askCurve(context, Commands::tr("Select object to divide: "), u"DIVIDE"_s);
    if (!answer.picked || answer.picked->curve.isEndless())
        co_return;
    CurveMark mark;
    PromptReply parts = co_await context.integer(Commands::tr("Enter the number of segments or [Block]: "), {}, {},
                                                 NoEmptyAnswer | NoZero | NoNegative);
    if (parts.isKeyword(u"Block")) {
        const std::optional<CurveMark> block = co_await askBlock(context);
        if (!block)
            co_return;
        mark = *block;
        parts = co_await context.integer(Commands::tr("Enter the number of segments: "), {}, {},
                                         NoEmptyAnswer | NoZero | NoNegative);
    }
    if (parts.integer < 2 || parts.integer > mostMarks)
        co_return context.fail(Commands::tr("The number must be between 2 and %1.").arg(mostMarks));
    const EntityCurve &curve = answer.picked->curve;
    const double length = curve.length();
    std::vector<double> distances;
    for (int i = curve.isClosed() ? 0 : 1; i < parts.integer; ++i)
        distances.push_back(length * i / parts.integer);
    putMarks(context, curve, distances, mark);
}

// Points, or blocks, at steps of one length, from the end that was nearer to the pick.
CommandTask measure(CommandContext &context)
{
    const CurveAnswer answer = co_await askCurve(context, Commands::tr("Select object to measure: "), u"MEASURE"_s);
    if (!answer.picked || answer.picked->curve.isEndless())
        co_return;
    constexpr int bits = NoEmptyAnswer | NoZero | NoNegative;
    CurveMark mark;
    PromptReply step =
        co_await context.distance(Commands::tr("Specify length of segment or [Block]: "), {}, {}, {}, bits);
    if (step.isKeyword(u"Block")) {
        const std::optional<CurveMark> block = co_await askBlock(context);
        if (!block)
            co_return;
        mark = *block;
        step = co_await context.distance(Commands::tr("Specify length of segment: "), {}, {}, {}, bits);
    }
    const EntityCurve &curve = answer.picked->curve;
    const double length = curve.length();
    if (length / step.real > mostMarks)
        co_return context.fail(Commands::tr("These would be more than %1.").arg(mostMarks));
    const bool fromEnd = !curve.isClosed() && !answer.picked->isNearStart();
    std::vector<double> distances;
    for (int i = 1; i * step.real < length * (1.0 - 1e-9); ++i)
        distances.push_back(fromEnd ? length - i * step.real : i * step.real);
    std::ranges::sort(distances);
    putMarks(context, curve, distances, mark);
}

} // namespace

std::vector<CommandRow> divideCommands()
{
    return {
        {"DIVIDE", divide, "puts points or blocks that cut a curve into equal parts"},
        {"MEASURE", measure, "puts points or blocks at steps along a curve"},
    };
}

} // namespace host::kernel
