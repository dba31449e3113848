#include "lispfuncs/PromptRequest.h"

#include "platform/kernel/CKvDocument.h"

namespace ortakit {

PromptRequest readRequest(PromptKind kind, const OdResBuf *arguments, const CKvDocument &document)
{
    PromptRequest request{.kind = kind, .prompt = {}, .base = {}};
    for (const OdResBuf *argument = arguments; argument; argument = argument->next()) {
        switch (argument->restype()) {
        case OdResBuf::kRtPoint:
        case OdResBuf::kRtPoint3d:
            request.base = document.userToWorld(argument->getPoint3d());
            break;
        case OdResBuf::kRtTrue:
            request.blanks = Blanks::BelongToIt;
            break;
        case OdResBuf::kRtNil:
            request.blanks = Blanks::EndTheAnswer;
            break;
        case OdResBuf::kRtString:
            request.prompt = parsePrompt(argument->getString());
            break;
        default:
            break;
        }
    }
    return request;
}

} // namespace ortakit
