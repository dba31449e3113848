#pragma once

#include "host/kernel/running/CommandRun.h"

namespace host::kernel {

/// The name behind "'" that calls a command in the middle of the prompt, which goes on afterwards. Nothing for other
/// answers, and where text is asked for, which may begin so.
std::optional<QString> transparentCall(const InputAnswer &answer, const PromptRequest &request);

/// Starts such a command, or SETVAR on a system variable. Null, which is told, when there is none of that name, when it
/// may not be called so, and in the middle of a command that was called so itself.
std::unique_ptr<CommandRun> startTransparent(Document &document, const QString &name, const PromptRequest &request);

/// Runs it with the user's answers; one that is defined in Lisp too.
void runTransparent(Document &document, const QString &name, const PromptRequest &request);

/// Tells which command goes on.
void tellResumed(Document &document);

} // namespace host::kernel
