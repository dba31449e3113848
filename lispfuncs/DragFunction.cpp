#include "lispfuncs/DragFunction.h"

#include "lispfuncs/ArgumentValues.h"
#include "lispfuncs/LispCall.h"
#include "lispfuncs/Translated.h"
#include "platform/db/OdDbDatabase.h"
#include "platform/kernel/CKvSelectionInput.h"
#include "platform/kernel/CKvUserInput.h"

namespace ortakit {

namespace {

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
    if (!set || set->restype() != OdResBuf::kRtPickSet || !point)
        failArgument("the arguments are a selection set and a point");
    DragRequest request{.entities = call.lisp.selectionMembers(*set),
                        .base = call.document.userToWorld(*point),
                        .prompt = promptIn(prompt),
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

int acetSsDragMove()
{
    return runCall("acet-ss-drag-move", dragMove);
}

} // namespace ortakit
