#include "lispfuncs/SelectionFunctions.h"

#include "lispfuncs/ArgumentValues.h"
#include "lispfuncs/EntityData.h"
#include "lispfuncs/Keywords.h"
#include "lispfuncs/LispCall.h"
#include "lispfuncs/PromptText.h"
#include "lispfuncs/SelectionRequest.h"
#include "platform/kernel/CKvUserInput.h"

#include <QCoreApplication>

namespace ortakit {

using namespace Qt::StringLiterals;

namespace {

QString translated(const char *text)
{
    return QCoreApplication::translate("LispExtension", text);
}

int ssget(LispCall &call)
{
    SelectionRequest request;
    const OdResBuf *prompt = call.lisp.arguments();
    const OdResBuf *mode = behindValue(prompt);
    request.takePrompt(prompt);
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
        throw ArgumentError{translated("the filter is missing")};
    request.takePrompt(prompt);
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
    if ((!isNil(prompt) && !isString(prompt)) || (!isNil(keywords) && !isString(keywords)) || behindValue(keywords))
        throw ArgumentError{translated("the arguments are a prompt, a filter and keywords")};
    PickRequest request{.prompt = {}, .filter = EntityFilter(filter), .keywords = {}};
    if (isString(prompt))
        request.prompt = parsePrompt(prompt->getString()).given.trimmed();
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

/// What (acet-ss-drag-move) was called with.
struct DragRequest
{
    OdDbObjectIdArray entities;
    OdGePoint3d base; ///< world coordinates
    QString prompt;
    bool moves = false;
};

DragRequest readDragRequest(const LispCall &call)
{
    const OdResBuf *set = call.lisp.arguments();
    const OdResBuf *base = behindValue(set);
    const OdResBuf *prompt = behindValue(base);
    const std::optional<OdGePoint3d> point = pointIn(base);
    if (!set || set->restype() != OdResBuf::kRtPickSet || !point || (!isNil(prompt) && !isString(prompt)))
        throw ArgumentError{translated("the arguments are a selection set, a point and a prompt")};
    DragRequest request{.entities = call.lisp.selectionMembers(*set),
                        .base = call.document.userToWorld(*point),
                        .prompt = isString(prompt) ? parsePrompt(prompt->getString()).given.trimmed() : QString(),
                        .moves = !isNil(behindValue(prompt))};
    if (request.prompt.isEmpty())
        request.prompt = translated("Specify second point");
    return request;
}

void moveEntities(LispCall &call, const DragRequest &request, const OdGePoint3d &to)
{
    const OdGePoint3d by = {to.x - request.base.x, to.y - request.base.y, to.z - request.base.z};
    const int left = call.document.database()->moveEntities(request.entities, by);
    if (left > 0)
        call.lisp.print(translated("\n%1 could not be moved.").arg(left));
}

int dragMove(LispCall &call)
{
    const DragRequest request = readDragRequest(call);
    const OdString prompt = u'\n' + call.document.userInput()->formatPrompt(request.prompt, {});
    OdGePoint3d to;
    const int code = call.document.selectionInput()->drag(request.entities, request.base, prompt, to);
    if (code != kRtNormal)
        return giveNoValue(call, code);
    if (request.moves)
        moveEntities(call, request, to);
    call.lisp.returnPoint(call.document.worldToUser(to));
    return kRtNormal;
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

int acetSsDragMove()
{
    return runCall("acet-ss-drag-move", dragMove);
}

} // namespace ortakit
