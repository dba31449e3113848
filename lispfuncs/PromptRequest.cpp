#include "lispfuncs/PromptRequest.h"

#include "lispfuncs/ArgumentValues.h"
#include "platform/kernel/CKvDocument.h"

namespace ortakit {

PromptRequest readRequest(PromptKind kind, const OdResBuf *arguments, const CKvDocument &document)
{
    PromptRequest request{.kind = kind, .prompt = {}, .base = {}};
    // A rectangle has a corner to start from, the user's own origin where nothing is said.
    if (kind == PromptKind::Corner)
        request.base = document.userToWorld({});
    for (const OdResBuf *argument = arguments; argument; argument = behindValue(argument)) {
        if (const std::optional<OdGePoint3d> point = pointIn(argument))
            request.base = document.userToWorld(*point);
        else if (isTrue(argument) || isNil(argument))
            request.blanks = isTrue(argument) ? Blanks::BelongToIt : Blanks::EndTheAnswer;
        else if (isString(argument))
            request.prompt = parsePrompt(argument->getString());
    }
    return request;
}

} // namespace ortakit
