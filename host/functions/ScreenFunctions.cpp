// What programs take from the pointer and the keys without a prompt, and what they show for the moment.

#include "host/functions/FunctionGroups.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/ScreenSketch.h"
#include "host/kernel/input/UserInput.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/lisp/Interpreter.h"

#include <array>

namespace host::kernel {

namespace {

using drawing::Vec3;
using lisp::Arguments;
using lisp::Value;

// Kinds of events and keys, as (grread) numbers them.
constexpr int keyEvent = 2;
constexpr int pressEvent = 3;
constexpr int moveEvent = 5;
constexpr int rightPressEvent = 25;
constexpr int escapeKey = 27;
// Bits of its second argument.
constexpr int tracksAlways = 1;
constexpr int givesEscape = 8;

Value eventList(int kind, const Value &data)
{
    return Value::list({Value::integer(kind), data});
}

Value pointEvent(Arguments &args, int kind, const Vec3 &world)
{
    return eventList(kind, toLisp(toUser(documentOf(args), world)));
}

/// What an answer is as an event; nothing for one that is none.
std::optional<Value> eventFrom(Arguments &args, const InputAnswer &answer)
{
    if (const auto *key = std::get_if<KeyAnswer>(&answer))
        return eventList(keyEvent, Value::integer(key->code));
    if (const auto *pointer = std::get_if<PointerAnswer>(&answer))
        return pointEvent(args, pointer->isRightPress ? rightPressEvent : moveEvent, pointer->point);
    if (const auto *press = std::get_if<PointAnswer>(&answer))
        return pointEvent(args, pressEvent, press->point);
    if (const auto *entity = std::get_if<EntityAnswer>(&answer))
        return pointEvent(args, pressEvent, entity->point);
    return {};
}

// (grread [track [bits [cursor]]]) -> what the user does next: (2 code) a key, (3 point) a press, (25 point) one of the
// right button, and with track or bit 1 (5 point) the pointer's place when it moves; points in user coordinates. Typed
// text comes character by character, Enter as 13. Esc cancels the program, with bit 8 it is (2 27); where nobody is
// there the program is cancelled in any case. The cursor's shape, and bit 2, change nothing.
Value grread(Arguments &args)
{
    const int bits = args.integerOr(1, 0);
    args.integerOr(2, 0);
    PromptRequest request;
    request.kind = PromptKind::Event;
    request.prompt = QStringLiteral("(grread)");
    request.tracksPointer = args.has(0) || (bits & tracksAlways);
    for (;;) {
        const InputAnswer answer = documentOf(args).prompts().nextAnswer(request);
        if (const auto *cancel = std::get_if<CancelAnswer>(&answer)) {
            if (!(bits & givesEscape) || cancel->isFinal)
                throw lisp::Error::cancelled();
            return eventList(keyEvent, Value::integer(escapeKey));
        }
        if (const std::optional<Value> event = eventFrom(args, answer))
            return *event;
    }
}

constexpr int largestColour = 255;

void drawLine(Document &document, const Vec3 &from, const Vec3 &to, int colour, bool isHighlighted)
{
    document.sketch().draw({toWorld(document, from), toWorld(document, to),
                            colour > largestColour ? ScreenSketch::inverted : colour, isHighlighted});
}

// (grdraw from to colour [highlight]) -> nil. Draws a line between two points in user coordinates until the next
// redraw. Colours are those of the table; -1 is one that drawing the line again takes away. Highlighted lines are
// dashed.
Value grdraw(Arguments &args)
{
    Document &document = documentOf(args);
    const Vec3 from = pointAt(args, 0);
    const Vec3 to = pointAt(args, 1);
    const int colour = args.integer(2);
    if (colour < ScreenSketch::inverted || colour > largestColour)
        args.badValue(2, "colour");
    drawLine(document, from, to, colour, args.integerOr(3, 0) != 0);
    emit document.sketchChanged();
    return {};
}

/// Rows of four numbers, the last one for nothing: points are no planes.
drawing::Matrix matrixAt(Arguments &args, std::size_t index)
{
    std::array<std::array<double, 4>, 4> cells{};
    Value rows = args.list(index);
    for (auto &row : cells) {
        Value numbers = rows.isCons() ? rows.car() : Value();
        for (double &cell : row) {
            if (!numbers.isCons() || !numbers.car().isNumber())
                args.badValue(index, "matrix of four by four");
            cell = numbers.car().asReal();
            numbers = numbers.cdr();
        }
        rows = rows.isCons() ? rows.cdr() : Value();
    }
    const auto column = [&cells](std::size_t at) { return Vec3{cells[0][at], cells[1][at], cells[2][at]}; };
    return {column(0), column(1), column(2), column(3)};
}

// (grvecs list [matrix]) -> nil. Draws lines until the next redraw: the list has pairs of points, in user coordinates,
// with a colour in front of any of them, which holds from there on; a negative one is highlighted, one above 255 as -1
// in (grdraw). The matrix, of four rows of four, moves the points.
Value grvecs(Arguments &args)
{
    Document &document = documentOf(args);
    const drawing::Matrix matrix = args.has(1) ? matrixAt(args, 1) : drawing::Matrix();
    int colour = 7;
    std::optional<Vec3> from;
    std::vector<ScreenSketch::Line> lines;
    for (Value rest = args.list(0); rest.isCons(); rest = rest.cdr()) {
        const Value &item = rest.car();
        const std::optional<Vec3> point = pointFrom(item);
        if (!from && item.isInteger())
            colour = item.asInteger();
        else if (!point)
            args.badValue(0, "vector list");
        else if (!from)
            from = matrix.point(*point);
        else
            lines.push_back({*std::exchange(from, std::nullopt), matrix.point(*point), std::abs(colour), colour < 0});
    }
    if (from)
        args.badValue(0, "vector list");
    for (const ScreenSketch::Line &line : lines)
        drawLine(document, line.from, line.to, line.colour, line.isHighlighted);
    emit document.sketchChanged();
    return {};
}

// (grtext [box text [highlight]]) -> the text. Writes into the status line (box -1) or in place of the coordinates
// (-2); without arguments both are as usual. nil for other boxes: there is no screen menu.
Value grtext(Arguments &args)
{
    Document &document = documentOf(args);
    if (args.size() == 0) {
        document.sketch().clearTexts();
        emit document.sketchChanged();
        return {};
    }
    const int box = args.integer(0);
    const QString text = stringAt(args, 1);
    if (box != -1 && box != -2)
        return {};
    document.sketch().write(box == -1 ? ScreenSketch::Place::Status : ScreenSketch::Place::Coordinates, text);
    emit document.sketchChanged();
    return toLisp(text);
}

// (grclear) -> nil. Takes away what programs have drawn for the moment.
Value grclear(Arguments &args)
{
    documentOf(args).clearSketch();
    return {};
}

} // namespace

void addScreenFunctions(lisp::Interpreter &interpreter)
{
    static constexpr lisp::NativeRow rows[] = {
        {"grclear", grclear, lisp::Arity::exactly(0), "", "takes away what was drawn for the moment"},
        {"grdraw", grdraw, lisp::Arity::between(3, 4), "from to colour [highlight]",
         "draws a line on the screen, until the next redraw"},
        {"grread", grread, lisp::Arity::between(0, 3), "[track [bits [cursor]]]",
         "what the user does next: a key, a press, a place of the pointer"},
        {"grtext", grtext, lisp::Arity::between(0, 3), "[box text [highlight]]",
         "writes into the status line; without arguments puts it back"},
        {"grvecs", grvecs, lisp::Arity::between(1, 2), "vectors [matrix]",
         "draws many lines on the screen, until the next redraw"},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
