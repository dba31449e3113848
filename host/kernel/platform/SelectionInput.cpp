#include "host/kernel/platform/SelectionInput.h"

#include "host/kernel/documents/Document.h"
#include "host/kernel/input/SelectionQuery.h"
#include "host/kernel/input/UserInput.h"
#include "host/kernel/lisp/ObjectIds.h"
#include "host/kernel/lisp/ResBufConversion.h"
#include "host/kernel/lisp/SelectionFilterList.h"

#include <algorithm>

namespace host::kernel {

namespace {

using drawing::SelectionFilter;

/// A filter that lets everything in when there is no list.
SelectionFilter::Outcome filterFromChain(Document &document, const OdResBuf *list)
{
    if (!list)
        return SelectionFilter::create({});
    if (list->restype() != OdResBuf::kRtListBegin)
        return {{}, QStringLiteral("bad SSGET list")};
    return filterFromList(document, valueFromChain(list, document.interpreter(), {}));
}

OdString faultText(QueryFault fault, const SelectionQuery &query)
{
    switch (fault) {
    case QueryFault::UnknownMethod:
        return QStringLiteral("unknown selection mode \"%1\"").arg(query.method);
    case QueryFault::TooFewPoints:
        return QStringLiteral("not enough points for the selection mode \"%1\"").arg(query.method);
    case QueryFault::TooManyPoints:
        return QStringLiteral("more than one point without a selection mode");
    case QueryFault::None:
        break;
    }
    return {};
}

SelectionQuery queryFrom(const KvSelectionRequest &request)
{
    SelectionQuery query;
    query.prompt = request.prompt;
    query.setMode(request.method);
    query.points.resize(request.points.size());
    std::ranges::transform(request.points, query.points.begin(), [](const OdGePoint3d &point) {
        return drawing::Vec3{point.x, point.y, point.z};
    });
    return query;
}

} // namespace

int SelectionInput::select(const KvSelectionRequest &request, OdDbObjectIdArray &entities, OdString &error)
{
    SelectionQuery query = queryFrom(request);
    SelectionFilter::Outcome filter = filterFromChain(m_document, request.filter);
    const QueryFault fault = query.fault();
    if (fault != QueryFault::None || !filter.filter) {
        error = fault != QueryFault::None ? faultText(fault, query) : filter.error;
        return kRtError;
    }
    query.filter = std::move(filter.filter);
    const SelectionOutcome chosen = kernel::select(m_document, query);
    if (chosen.isCancelled)
        return kRtCancel;
    if (chosen.entities.empty())
        return kRtNone;
    entities = objectIds(chosen.entities);
    return kRtNormal;
}

int SelectionInput::keepMatching(OdDbObjectIdArray &entities, const OdResBuf *list, OdString &error) const
{
    const SelectionFilter::Outcome outcome = filterFromChain(m_document, list);
    if (!outcome.filter) {
        error = outcome.error;
        return kRtError;
    }
    const drawing::Drawing &drawing = m_document.drawing();
    std::vector<drawing::RecordId> records = recordsFrom(m_document, entities);
    std::erase_if(records,
                  [&](drawing::RecordId id) { return !drawing.isAlive(id) || !outcome.filter->matches(drawing, id); });
    entities = objectIds(records);
    return kRtNormal;
}

int SelectionInput::pickEntity(const OdString &prompt, OdDbObjectId &entity, OdGePoint3d &point)
{
    const PromptReply reply = m_document.prompts().askForEntity(prompt);
    switch (reply.kind) {
    case ReplyKind::Value:
        entity = objectId(reply.entities.front());
        point = {reply.point.x, reply.point.y, reply.point.z};
        return kRtNormal;
    case ReplyKind::Empty:
        return reply.isMiss ? kRtError : kRtNone;
    case ReplyKind::Keyword:
        return kRtKeyword;
    case ReplyKind::Cancelled:
        break;
    }
    return kRtCancel;
}

int SelectionInput::drag(const OdDbObjectIdArray &entities, const OdGePoint3d &base, const OdString &prompt,
                         OdGePoint3d &point)
{
    drawing::Vec3 picked;
    const int code =
        m_document.prompts().dragToPoint(prompt, {base.x, base.y, base.z}, recordsFrom(m_document, entities), picked);
    if (code == kRtNormal)
        point = {picked.x, picked.y, picked.z};
    return code;
}

} // namespace host::kernel
