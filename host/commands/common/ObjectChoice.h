#pragma once

#include "host/kernel/input/SelectionBuilder.h"
#include "host/kernel/running/Dialogue.h"

#include <QStringList>

#include <optional>
#include <vector>

namespace host::kernel {

class CommandContext;

/// What a selection came to.
struct ObjectChoice
{
    std::vector<drawing::RecordId> entities;
    SelectionSteps steps; ///< how they were chosen
    QString option;       ///< that ended it; empty when an empty answer did
};

/// When a selection ends.
enum class ChoiceEnd
{
    EmptyAnswer,
    FirstOfProgram ///< also when a Lisp program has chosen something: what follows is no answer of it any more
};

/// What a pick chooses.
enum class PickReach
{
    AsPickStyle, ///< groups and boundaries with it
    Alone
};

/// Asks for a selection with a prompt of its own, and with options that end it, beside the words that every selection
/// knows. What was chosen before the command started is not taken; the choice becomes the previous selection.
Dialogue<ObjectChoice> askObjects(CommandContext &context, QString prompt, QStringList options = {},
                                  ChoiceEnd end = ChoiceEnd::EmptyAnswer, PickReach reach = PickReach::AsPickStyle);

} // namespace host::kernel
