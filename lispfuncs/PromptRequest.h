#pragma once

#include "lispfuncs/PromptText.h"
#include "platform/kernel/OdResBuf.h"

#include <optional>

class CKvDocument;

namespace ortakit {

/// What the user is asked for.
enum class PromptKind : qint32
{
    Integer = 1,
    String = 2,
    Point = 3,
    Keyword = 4,
    Real = 6,
    Distance = 7,
    Corner = 8,
    Angle = 9,
};

/// Whether blanks belong to a string that the user types or end it.
enum class Blanks
{
    EndTheAnswer,
    BelongToIt
};

/// One call of a prompting function: what Lisp asked for.
struct PromptRequest
{
    PromptKind kind;
    PromptText prompt;
    /// World coordinates. A corner always has one.
    std::optional<OdGePoint3d> base;
    Blanks blanks = Blanks::EndTheAnswer;
    /// As the bits of CKvUserInput::initget().
    int optionBits = 0;
};

/// Reads the arguments of a call, which come in any order: a point in user coordinates is the base point, T or nil says
/// whether blanks belong to a string, a string is the prompt. Of two of a kind the later one counts; what is none of
/// these is passed over, other lists with all that is in them.
PromptRequest readRequest(PromptKind kind, const OdResBuf *arguments, const CKvDocument &document);

} // namespace ortakit
