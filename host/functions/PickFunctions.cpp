// Picking single entities, and showing them.

#include "host/functions/FunctionGroups.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/ObjectSnap.h"
#include "host/kernel/input/Picker.h"
#include "host/kernel/input/SnapModes.h"
#include "host/kernel/input/UserInput.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/lisp/Interpreter.h"

namespace host::kernel {

namespace {

using drawing::RecordId;
using drawing::Vec3;
using lisp::Arguments;
using lisp::Value;

PromptReply pickEntity(Arguments &args, const QString &usualPrompt)
{
    const PromptReply reply = documentOf(args).prompts().askForEntity(args.has(0) ? stringAt(args, 0) : usualPrompt);
    if (reply.kind == ReplyKind::Cancelled)
        throw lisp::Error::cancelled();
    return reply;
}

// (entsel [prompt]) -> (entity point), nil when nothing was picked (ERRNO 7) or the answer was empty (ERRNO 52), the
// keyword when one of (initget) was entered. Esc cancels the program.
Value entsel(Arguments &args)
{
    const PromptReply reply = pickEntity(args, Functions::tr("\nSelect object: "));
    if (reply.kind == ReplyKind::Keyword)
        return toLisp(reply.text);
    if (!reply.hasValue() || reply.entities.empty())
        return {};
    return Value::list({toLisp(reply.entities.front()), toLisp(toUser(documentOf(args), reply.point))});
}

enum class MatrixForm
{
    FourRowsOfThree, ///< axes and origin as rows, as nentsel has it
    FourByFour       ///< columns, as nentselp has it
};

Value matrixList(const drawing::Matrix &matrix, MatrixForm form)
{
    const Vec3 &x = matrix.xAxis;
    const Vec3 &y = matrix.yAxis;
    const Vec3 &z = matrix.zAxis;
    const Vec3 &o = matrix.origin;
    if (form == MatrixForm::FourRowsOfThree)
        return Value::list({toLisp(x), toLisp(y), toLisp(z), toLisp(o)});
    const auto row = [](double a, double b, double c, double d) {
        return Value::list({Value::real(a), Value::real(b), Value::real(c), Value::real(d)});
    };
    return Value::list(
        {row(x.x, y.x, z.x, o.x), row(x.y, y.y, z.y, o.y), row(x.z, y.z, z.z, o.z), row(0.0, 0.0, 0.0, 1.0)});
}

Value nestedList(Arguments &args, const PromptReply &reply, MatrixForm form)
{
    Document &document = documentOf(args);
    const NestedPick pick = Picker(document).nestedAt(reply.entities.front(), reply.point);
    const Value point = toLisp(toUser(document, reply.point));
    if (pick.inserts.empty())
        return Value::list({toLisp(pick.entity), point});
    std::vector<Value> inserts(pick.inserts.size());
    std::transform(pick.inserts.begin(), pick.inserts.end(), inserts.begin(), [](RecordId id) { return toLisp(id); });
    return Value::list({toLisp(pick.entity), point, matrixList(pick.toWorld, form), Value::list(inserts)});
}

// (nentsel [prompt]) -> (entity point) or, of an entity inside a block, (entity point matrix inserts): the matrix from
// the block's coordinates to world coordinates, and the references it is in, innermost first. Otherwise as (entsel).
Value nentsel(Arguments &args)
{
    const PromptReply reply = pickEntity(args, Functions::tr("\nSelect object: "));
    if (reply.kind == ReplyKind::Keyword)
        return toLisp(reply.text);
    if (!reply.hasValue() || reply.entities.empty())
        return {};
    return nestedList(args, reply, MatrixForm::FourRowsOfThree);
}

// (nentselp [prompt] [point]) -> as (nentsel), with a matrix of four rows and columns; with a point nobody is asked.
Value nentselp(Arguments &args)
{
    const std::size_t pointIndex = args[0].isString() ? 1 : 0;
    PromptReply reply;
    if (args.has(pointIndex)) {
        reply.point = toWorld(documentOf(args), pointAt(args, pointIndex));
        const RecordId entity = Picker(documentOf(args)).entityAt(reply.point);
        if (isValid(entity))
            reply.entities.push_back(entity);
    } else {
        reply = pickEntity(args, Functions::tr("\nSelect object: "));
    }
    if (reply.kind == ReplyKind::Keyword)
        return toLisp(reply.text);
    if (!reply.hasValue() || reply.entities.empty())
        return {};
    return nestedList(args, reply, MatrixForm::FourByFour);
}

// (osnap point modes) -> the point in user coordinates that modes such as "_end,_int" find near the point, on
// what comes within APERTURE pixels of it; nil when they find none, and for words that are no modes. A
// perpendicular or tangent starts from LASTPOINT.
Value osnap(Arguments &args)
{
    Document &document = documentOf(args);
    const Vec3 place = toWorld(document, pointAt(args, 0));
    const std::optional<int> modes = parseSnapModes(stringAt(args, 1));
    const Vec3 base = toWorld(document, document.variables().point(u"LASTPOINT"));
    const auto found = ObjectSnap(document).find(place, modes.value_or(0), base);
    return found ? toLisp(toUser(document, found->point)) : Value();
}

// (redraw [entity [mode]]) -> nil. Alone it takes away what programs have drawn for the moment. Mode 3 highlights the
// entity, 4 ends that; 1 and 2, which show and hide it, have no visible effect.
Value redraw(Arguments &args)
{
    Document &document = documentOf(args);
    if (!args.has(0)) {
        document.clearSketch();
        return {};
    }
    const RecordId entity = recordAt(args, 0);
    const int mode = std::abs(args.integerOr(1, 1));
    std::vector<RecordId> shown = document.highlighted();
    std::erase(shown, entity);
    if (mode == 3)
        shown.push_back(entity);
    if (mode == 3 || mode == 4)
        document.setHighlighted(std::move(shown));
    return {};
}

} // namespace

void addPickFunctions(lisp::Interpreter &interpreter)
{
    static constexpr lisp::NativeRow rows[] = {
        {"entsel", entsel, lisp::Arity::between(0, 1), "[prompt]",
         "asks for an entity: its name and where it was picked"},
        {"nentsel", nentsel, lisp::Arity::between(0, 1), "[prompt]",
         "asks for an entity within blocks: name, point, matrix and the blocks around it"},
        {"nentselp", nentselp, lisp::Arity::between(0, 2), "[prompt] [point]",
         "the same, with the matrix as four by four; or at a point"},
        {"osnap", osnap, lisp::Arity::exactly(2), "point modes",
         "the point that object snap finds near another, by modes such as \"_end,_int\""},
        {"redraw", redraw, lisp::Arity::between(0, 2), "[entity [mode]]",
         "draws again; shows, hides or highlights an entity"},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
