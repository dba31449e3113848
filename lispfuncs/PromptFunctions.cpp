#include "lispfuncs/PromptFunctions.h"

#include "lispfuncs/ArgumentValues.h"
#include "lispfuncs/AskUser.h"
#include "lispfuncs/LispCall.h"
#include "platform/kernel/CKvDocument.h"
#include "platform/kernel/CKvLispEngine.h"
#include "platform/kernel/CKvUserInput.h"

namespace ortakit {

namespace {

/// One for the whole module, as Lisp programs rely on: bits set in one document count in the next prompt of any.
int sharedOptionBits = 0;

void giveValue(CKvLispEngine &lisp, const CKvDocument &document, PromptKind kind, const PromptAnswer &answer)
{
    switch (kind) {
    case PromptKind::Integer:
        return lisp.returnInteger(answer.integer);
    case PromptKind::Real:
    case PromptKind::Distance:
    case PromptKind::Angle:
        return lisp.returnReal(answer.real);
    case PromptKind::String:
    case PromptKind::Keyword:
        return lisp.returnString(answer.string);
    case PromptKind::Point:
    case PromptKind::Corner:
        return lisp.returnPoint(document.worldToUser(answer.point));
    }
}

void giveKeyword(CKvLispEngine &lisp, const OdString &typed)
{
    if (typed.isEmpty())
        lisp.returnNil();
    else
        lisp.returnString(typed);
}

/// Gives the outcome to Lisp; returns the code of the function.
int giveAnswer(CKvDocument &document, CKvLispEngine &lisp, PromptKind kind, const PromptAnswer &answer)
{
    if (answer.code == kRtNormal) {
        giveValue(lisp, document, kind, answer);
        return kRtNormal;
    }
    if (answer.code == kRtKeyword) {
        giveKeyword(lisp, document.userInput()->input());
        return kRtNormal;
    }
    if (answer.code == kRtCancel && kind == PromptKind::Point) {
        lisp.returnNil();
        return kRtNormal;
    }
    return answer.code;
}

int prompt(PromptKind kind)
{
    const std::optional<LispCall> call = beginCall();
    if (!call)
        return kRtError;
    PromptRequest request = readRequest(kind, call->lisp.arguments(), call->document);
    request.optionBits = sharedOptionBits;
    return giveAnswer(call->document, call->lisp, kind, askUser(*call->document.userInput(), request));
}

} // namespace

int getIntOrtakit()
{
    return prompt(PromptKind::Integer);
}

int getStringOrtakit()
{
    return prompt(PromptKind::String);
}

int getPointOrtakit()
{
    sharedOptionBits = 0;
    return prompt(PromptKind::Point);
}

int getKwordOrtakit()
{
    return prompt(PromptKind::Keyword);
}

int getRealOrtakit()
{
    return prompt(PromptKind::Real);
}

int getDistOrtakit()
{
    return prompt(PromptKind::Distance);
}

int getCornerOrtakit()
{
    return prompt(PromptKind::Corner);
}

int getAngleOrtakit()
{
    return prompt(PromptKind::Angle);
}

int initgetOrtakit()
{
    sharedOptionBits = 0;
    CKvDocument *document = ACTIVE_DOCUMENT();
    CKvLispEngine *lisp = document ? document->lispEngine() : nullptr;
    if (!lisp)
        return kRtError;
    OdResBuf *unused = lisp->arguments();
    if (isInteger(unused)) {
        sharedOptionBits = int(unused->getInteger());
        unused = unused->next();
    }
    lisp->releaseArguments(unused);
    return kRtNormal;
}

} // namespace ortakit
