#include "lispfuncs/SelectionFunctions.h"

#include "lispfuncs/ArgumentValues.h"
#include "lispfuncs/EntityData.h"
#include "lispfuncs/Keywords.h"
#include "lispfuncs/LispCall.h"
#include "lispfuncs/SelectionRequest.h"
#include "lispfuncs/Translated.h"
#include "platform/kernel/CKvUserInput.h"

namespace ortakit {

using namespace Qt::StringLiterals;

namespace {

int ssget(LispCall &call)
{
    SelectionRequest request;
    const OdResBuf *prompt = call.lisp.arguments();
    const OdResBuf *mode = behindValue(prompt);
    request.prompt = promptIn(prompt);
    request.takeMode(mode);
    request.takePointsAndFilter(behindValue(mode), call.document);
    return giveSelection(call, request);
}

int ssgetFilter(LispCall &call)
{
    SelectionRequest request;
    const OdResBuf *filter = call.lisp.arguments();
    const OdResBuf *prompt = behindValue(filter);
    const OdResBuf *modeOrSet = behindValue(prompt);
    if (!filter)
        failArgument("the filter is missing");
    request.prompt = promptIn(prompt);
    if (modeOrSet && modeOrSet->restype() == OdResBuf::kRtPickSet)
        request.set = modeOrSet;
    else
        request.takeMode(modeOrSet);
    request.takePointsAndFilter(behindValue(modeOrSet), call.document);
    request.filter = EntityFilter(filter);
    return giveSelection(call, request);
}

/// What (KORA_EntSel) was called with.
struct PickRequest
{
    QString prompt;
    EntityFilter filter;
    QStringList keywords;
};

PickRequest readPickRequest(const OdResBuf *prompt)
{
    const OdResBuf *filter = behindValue(prompt);
    const OdResBuf *keywords = behindValue(filter);
    if ((!isNil(keywords) && !isString(keywords)) || behindValue(keywords))
        failArgument("the arguments are a prompt, a filter and keywords");
    PickRequest request{.prompt = promptIn(prompt), .filter = EntityFilter(filter), .keywords = {}};
    if (request.prompt.isEmpty())
        request.prompt = translated("Select object");
    if (isString(keywords))
        request.keywords = splitKeywords(keywords->getString());
    return request;
}

void sayUnfit(LispCall &call, const OdDbObjectId &entity, const EntityFilter &filter)
{
    const QString type = EntityData(*call.document.database(), entity).type();
    if (filter.types().isEmpty())
        call.lisp.print(translated("\nThis %1 is not what is asked for.").arg(type));
    else
        call.lisp.print(translated("\nThis is a %1; asked for is %2.").arg(type, filter.types()));
}

bool isFit(LispCall &call, const OdDbObjectId &entity, const EntityFilter &filter)
{
    OdDbObjectIdArray picked = {entity};
    OdString error;
    if (call.document.selectionInput()->keepMatching(picked, filter.list(), error) != kRtNormal)
        throw ArgumentError{error};
    if (picked.empty())
        sayUnfit(call, entity, filter);
    return !picked.empty();
}

/// A filter that cannot be is found out before anybody is asked.
void checkFilter(LispCall &call, const EntityFilter &filter)
{
    OdDbObjectIdArray nothing;
    OdString error;
    if (call.document.selectionInput()->keepMatching(nothing, filter.list(), error) != kRtNormal)
        throw ArgumentError{error};
}

/// (entity point)
void giveEntityAndPoint(LispCall &call, const OdDbObjectId &entity, const OdGePoint3d &world)
{
    OdResBufPtr list = OdResBuf::newRb(OdResBuf::kRtListBegin);
    list->setNext(OdResBuf::newInteger(OdResBuf::kRtEntityName, qint64(entity.number())))
        ->setNext(OdResBuf::newPoint(OdResBuf::kRtPoint3d, call.document.worldToUser(world)))
        ->setNext(OdResBuf::newRb(OdResBuf::kRtListEnd));
    call.lisp.returnList(std::move(list));
}

int entSel(LispCall &call)
{
    const PickRequest request = readPickRequest(call.lisp.arguments());
    checkFilter(call, request.filter);
    CKvUserInput &input = *call.document.userInput();
    for (;;) {
        // Keywords are forgotten with each answer.
        input.initget(0, request.keywords);
        OdDbObjectId entity;
        OdGePoint3d point;
        const OdString prompt = u'\n' + input.formatPrompt(request.prompt, {});
        const int code = call.document.selectionInput()->pickEntity(prompt, entity, point);
        if (code == kRtError) {
            call.lisp.print(translated("\nNothing is there."));
        } else if (code != kRtNormal) {
            return giveNoValue(call, code);
        } else if (isFit(call, entity, request.filter)) {
            giveEntityAndPoint(call, entity, point);
            return kRtNormal;
        }
    }
}

} // namespace

int koraSsget()
{
    return runCall("KORA_ssget", ssget);
}

int koraSsgetFilter()
{
    return runCall("KORA_ssget_filter", ssgetFilter);
}

int koraEntSel()
{
    return runCall("KORA_EntSel", entSel);
}

} // namespace ortakit
