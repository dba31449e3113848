#include "lispfuncs/KeywordPrompts.h"

#include "lispfuncs/KeywordRequest.h"
#include "lispfuncs/LispCall.h"
#include "lispfuncs/Translated.h"
#include "platform/kernel/CKvUserInput.h"

namespace ortakit {

namespace {

/// Reads the call and hands its options to the host; what is left is to ask.
KeywordRequest begin(LispCall &call, PromptKind kind)
{
    const KeywordRequest request = KeywordRequest::read(kind, call.lisp.arguments(), call.document);
    request.setOptions(*call.document.userInput());
    return request;
}

int getPoint(LispCall &call)
{
    const KeywordRequest request = begin(call, PromptKind::Point);
    CKvUserInput &input = *call.document.userInput();
    OdGePoint3d point;
    const int code = input.getPoint(request.shown(input), request.base, point);
    if (code != kRtNormal)
        return giveNoValue(call, code);
    call.lisp.returnPoint(call.document.worldToUser(point));
    return kRtNormal;
}

/// An empty text is an empty answer.
int giveText(LispCall &call, int code, const OdString &text)
{
    if (code != kRtNormal)
        return giveNoValue(call, code);
    if (text.isEmpty())
        return giveNil(call);
    call.lisp.returnString(text);
    return kRtNormal;
}

int getString(LispCall &call)
{
    const KeywordRequest request = begin(call, PromptKind::String);
    CKvUserInput &input = *call.document.userInput();
    OdString text = request.defaultText;
    const int code = input.getString(request.shown(input), request.blanks == Blanks::BelongToIt, text);
    return giveText(call, code, text);
}

int getKword(LispCall &call)
{
    KeywordRequest request = begin(call, PromptKind::Keyword);
    if (request.prompt.isEmpty())
        request.prompt = translated("Specify option");
    CKvUserInput &input = *call.document.userInput();
    OdString text = request.defaultText;
    const int code = input.getKeyword(request.shown(input), text);
    return giveText(call, code, text);
}

} // namespace

int koraGetPoint()
{
    return runCall("KORA_getpoint", getPoint);
}

int koraGetString()
{
    return runCall("KORA_getstring", getString);
}

int koraGetKword()
{
    return runCall("KORA_getkword", getKword);
}

} // namespace ortakit
