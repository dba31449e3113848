#include "lispfuncs/LispCall.h"

#include "lispfuncs/Translated.h"
#include "platform/kernel/CKvUserInput.h"

namespace ortakit {

using namespace Qt::StringLiterals;

namespace {

void setCancelled(CKvLispEngine &lisp, bool isCancelled)
{
    lisp.setSymbol(u"LispCanceled"_s, *OdResBuf::newInteger(OdResBuf::kRtShort, isCancelled ? 1 : 0));
}

} // namespace

void failArgument(const char *text)
{
    throw ArgumentError{translated(text)};
}

std::optional<LispCall> beginCall()
{
    CKvDocument *document = ACTIVE_DOCUMENT();
    CKvLispEngine *lisp = document ? document->lispEngine() : nullptr;
    if (!lisp || !document->userInput())
        return std::nullopt;
    setCancelled(*lisp, false);
    return LispCall{*document, *lisp};
}

int runCall(const char *name, int (*body)(LispCall &call))
{
    std::optional<LispCall> call = beginCall();
    if (!call)
        return kRtError;
    try {
        return body(*call);
    } catch (const ArgumentError &error) {
        call->lisp.print(u"\n%1: %2\n"_s.arg(QLatin1StringView(name), error.text));
        return kRtError;
    }
}

int giveCancelled(LispCall &call)
{
    setCancelled(call.lisp, true);
    return giveNil(call);
}

int giveNil(LispCall &call)
{
    call.lisp.returnNil();
    return kRtNormal;
}

int giveNoValue(LispCall &call, int code)
{
    if (code == kRtCancel)
        return giveCancelled(call);
    if (code == kRtNone)
        return giveNil(call);
    if (code != kRtKeyword)
        return code;
    const OdString typed = call.document.userInput()->input();
    if (typed.isEmpty())
        return giveNil(call);
    call.lisp.returnString(typed);
    return kRtNormal;
}

} // namespace ortakit
