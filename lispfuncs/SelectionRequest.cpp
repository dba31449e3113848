#include "lispfuncs/SelectionRequest.h"

#include "lispfuncs/ArgumentValues.h"
#include "lispfuncs/EntityDuplicates.h"
#include "lispfuncs/LispCall.h"
#include "platform/kernel/CKvUserInput.h"

namespace ortakit {

using namespace Qt::StringLiterals;

namespace {

/// A list whose first item is a point.
bool isPointList(const OdResBuf *value)
{
    return isList(value) && pointIn(value->next());
}

/// The points of a list up to its end.
void appendPoints(const OdResBuf *list, const CKvDocument &document, std::vector<OdGePoint3d> &points)
{
    const OdResBuf *item = list->next();
    for (; item && item->restype() != OdResBuf::kRtListEnd; item = behindValue(item)) {
        const std::optional<OdGePoint3d> point = pointIn(item);
        if (!point)
            failArgument("the list of points has something else in it");
        points.push_back(document.userToWorld(*point));
    }
}

KvSelectionRequest hostRequest(const SelectionRequest &request, const CKvUserInput &input)
{
    KvSelectionRequest wanted;
    if (!request.prompt.isEmpty())
        wanted.prompt = u'\n' + input.formatPrompt(request.prompt, {});
    wanted.method = request.mode;
    wanted.points = request.points;
    wanted.filter = request.filter.list();
    return wanted;
}

/// What the request leaves of its selection set, or what is chosen by it; the code is the host's.
int choose(LispCall &call, const SelectionRequest &request, OdDbObjectIdArray &entities)
{
    CKvSelectionInput &input = *call.document.selectionInput();
    OdString error;
    int code = kRtNormal;
    if (request.set) {
        entities = call.lisp.selectionMembers(*request.set);
        code = input.keepMatching(entities, request.filter.list(), error);
    } else {
        code = input.select(hostRequest(request, *call.document.userInput()), entities, error);
    }
    if (code == kRtError)
        throw ArgumentError{error};
    return code;
}

} // namespace

void SelectionRequest::takeMode(const OdResBuf *value)
{
    if (isNil(value))
        return;
    if (!isString(value))
        failArgument("the selection mode is a string or nil");
    QStringList parts = value->getString().split(u':');
    const auto isDuplicateFlag = [](const QString &part) { return part.compare(u"D"_s, Qt::CaseInsensitive) == 0; };
    for (qsizetype i = parts.size() - 1; i > 0; --i) {
        if (!isDuplicateFlag(parts.at(i)))
            continue;
        duplicates = Duplicates::LeaveOut;
        parts.removeAt(i);
    }
    mode = parts.join(u':');
}

void SelectionRequest::takePointsAndFilter(const OdResBuf *first, const CKvDocument &document)
{
    for (const OdResBuf *value = first; value; value = behindValue(value)) {
        if (const std::optional<OdGePoint3d> point = pointIn(value))
            points.push_back(document.userToWorld(*point));
        else if (isPointList(value))
            appendPoints(value, document, points);
        else if (!isNil(value))
            filter = EntityFilter(value);
    }
}

int giveSelection(LispCall &call, const SelectionRequest &request)
{
    OdDbObjectIdArray entities;
    const int code = choose(call, request, entities);
    if (code != kRtNormal)
        return giveNoValue(call, code);
    if (request.duplicates == Duplicates::LeaveOut)
        leaveOutDuplicates(*call.document.database(), entities);
    call.lisp.returnSelectionSet(entities);
    return kRtNormal;
}

} // namespace ortakit
