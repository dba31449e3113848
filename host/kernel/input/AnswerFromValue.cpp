#include "host/kernel/input/AnswerFromValue.h"

#include "host/kernel/documents/Document.h"
#include "host/kernel/lisp/LispConversion.h"

namespace host::kernel {

namespace {

/// A selection's members that the drawing knows.
EntitiesAnswer members(const Document &document, const lisp::SelectionSet &set)
{
    EntitiesAnswer answer;
    for (std::uint64_t name : set.entities)
        if (const drawing::RecordId record = recordFrom(document, name); isValid(record))
            answer.entities.push_back(record);
    answer.steps = std::static_pointer_cast<const SelectionSteps>(set.details);
    return answer;
}

/// Layers, dictionaries and the like have names as well, and are nothing that a command works on.
EntityAnswer entityAnswer(const Document &document, const lisp::Value &name, const drawing::Vec3 &at)
{
    const drawing::RecordId record = recordFrom(document, name.asEntityName());
    const drawing::RecordKind kind = isValid(record) ? document.drawing().kind(record) : drawing::RecordKind::Preamble;
    const bool isDrawn = kind == drawing::RecordKind::Entity || kind == drawing::RecordKind::Child;
    return {isDrawn ? record : drawing::noRecord, at};
}

} // namespace

std::optional<InputAnswer> answerFromValue(const Document &document, const lisp::Value &value)
{
    if (value.isNil())
        return CancelAnswer{};
    if (value.isString())
        return TextAnswer{QString::fromStdString(value.asString())};
    if (value.isInteger())
        return TextAnswer{QString::number(value.asInteger())};
    if (value.isReal())
        return TextAnswer{QString::number(value.asReal(), 'g', 17)};
    if (value.isSelectionSet())
        return members(document, value.asSelectionSet());
    if (value.isEntityName())
        return entityAnswer(document, value, {});
    if (const std::optional<drawing::Vec3> point = pointFrom(value))
        return PointAnswer{toWorld(document, *point)};
    if (value.isCons() && value.car().isEntityName()) {
        const std::optional<drawing::Vec3> at = pointFrom(value.cdr().car());
        return entityAnswer(document, value.car(), at ? toWorld(document, *at) : drawing::Vec3{});
    }
    return {};
}

} // namespace host::kernel
