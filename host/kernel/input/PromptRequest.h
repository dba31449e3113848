#pragma once

#include "host/drawing/math/Vec.h"
#include "host/drawing/records/Record.h"
#include "host/kernel/input/DragShape.h"
#include "host/kernel/input/SelectionStep.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <variant>
#include <vector>

namespace host::kernel {

/// What a prompt asks for.
enum class PromptKind
{
    Command,     ///< the next command, Lisp expression or `!variable`
    Integer,     ///< of 32 bits
    Real,        ///< without unit
    Distance,    ///< drawing units, typed as LUNITS has them or shown by points
    Angle,       ///< relative to the ANGBASE direction, as getangle has it
    Orientation, ///< absolute, as getorient has it
    Point,
    Corner,    ///< the corner opposite to the base point
    String,    ///< up to a blank, or with blanks (allowSpaces)
    Keyword,   ///< one of the keywords and nothing else
    Entity,    ///< one entity, with the point it was picked at
    Selection, ///< one step of a selection: an entity, a window, a word such as "ALL", or nothing to end it
    Event      ///< whatever is done next with pointer and keys; nothing of it is echoed or checked
};

/// Whether a point answers it, or the first of two.
constexpr bool takesPoints(PromptKind kind)
{
    return kind == PromptKind::Distance || kind == PromptKind::Angle || kind == PromptKind::Orientation ||
           kind == PromptKind::Point || kind == PromptKind::Corner;
}

/// Option bits of a request, as (initget) has them.
enum InputBit : int
{
    NoEmptyAnswer = 1,     ///< asked again until there is a value or keyword
    NoZero = 2,            ///< of a number
    NoNegative = 4,        ///< likewise
    OutsideLimits = 8,     ///< a point may lie outside the drawing's limits though LIMCHECK is on
    DashedRubberBand = 32, ///< a window draws the line from `base` dashed
    FlatDistance = 64,     ///< a distance of points without their heights
    AnyText = 128,         ///< what is no value and no keyword is given back as it is
    DistanceFirst = 256,   ///< Point: a number is a distance towards the pointer though AnyText would take it
    SignedAngle = 1 << 16  ///< Angle: a typed one keeps its sign; none of (initget)
};

/// A question to the user, with all that a window needs to show it and a batch run to report it.
struct PromptRequest
{
    PromptKind kind = PromptKind::Command;
    QString prompt;                    ///< as it is printed, line feeds included
    QStringList keywords;              ///< as (initget) got them: "Auto", "LType,LT", a blank in a keyword is possible
    QStringList answers{};             ///< what each of them is told as; empty: itself
    QString defaultText;               ///< what an empty answer means; empty when there is no default
    int bits = 0;                      ///< InputBit
    std::optional<drawing::Vec3> base; ///< where a rubber band starts; world coordinates
    bool allowSpaces = false;          ///< String: blanks belong to the answer
    bool forCommand = false;           ///< asked by a command rather than by a Lisp program
    std::optional<int> snaps{};        ///< kinds that the next point snaps to in place of those of OSMODE; 0: none
    bool tracksPointer = false;        ///< Event: that the pointer moves is one
    bool isTransparent = false;        ///< asked by a command that was called in the middle of another prompt
    bool endsWhenRefused = false;      ///< a refused answer cancels the prompt when more was typed behind it
    bool isForBox = false;             ///< Point: a corner opposite to `base`, which nothing straightens
    Dragged dragged{};                 ///< what hangs at the pointer; null for nothing
    /// What is chosen so far, of a selection that grows or by the command that asks, to be shown as such while this
    /// prompt waits; null for nothing.
    std::shared_ptr<const std::vector<drawing::RecordId>> chosen{};
};

/// Whether `base` and the answer are opposite corners rather than ends of a line.
inline bool asksForBox(const PromptRequest &request)
{
    return request.kind == PromptKind::Corner || request.isForBox;
}

// What can answer. Which of them a request takes says PromptDialogue; one that it does not take is refused with a
// message and asked for again, like a wrong text.

/// Text as one whole answer: what a line edit or a recorded session hands over. Blanks do not split it.
struct TextAnswer
{
    QString text;
    bool isFromScript = false;
};
/// A point; world coordinates.
struct PointAnswer
{
    drawing::Vec3 point;
    bool isByHand = false; ///< from where the pointer is, so that it goes where HandAim says
};
/// An entity that was picked, at a point in world coordinates.
struct EntityAnswer
{
    drawing::RecordId entity = drawing::noRecord;
    drawing::Vec3 point;
};
/// Several entities at once, for a Selection, in this order. Such as are not there any more are left out.
struct EntitiesAnswer
{
    std::vector<drawing::RecordId> entities;
    std::shared_ptr<const SelectionSteps> steps{}; ///< how a program chose them; null when that is not known
};
/// Two corners, world coordinates. From left to right it takes what lies within, from right to left what it crosses.
struct WindowAnswer
{
    drawing::Vec3 first;
    drawing::Vec3 second;
};
/// A key, for an Event alone.
struct KeyAnswer
{
    int code = 0; ///< of its character; 13 for Enter
};
/// The pointer has moved, or the right button was pressed; for an Event alone. World coordinates.
struct PointerAnswer
{
    drawing::Vec3 point;
    bool isRightPress = false;
};
/// Esc: the prompt is cancelled, and the program or command that asks with it.
struct CancelAnswer
{
    bool isFinal = false; ///< nobody is there, or all is to stop: the next prompt would be cancelled too
};

using InputAnswer = std::variant<TextAnswer, PointAnswer, EntityAnswer, EntitiesAnswer, WindowAnswer, KeyAnswer,
                                 PointerAnswer, CancelAnswer>;

} // namespace host::kernel
