#include "host/kernel/functions/ParagraphSize.h"

#include "host/kernel/Document.h"
#include "host/view/TextMeasure.h"

#include <algorithm>

namespace host::kernel {

namespace {

using drawing::Field;
using drawing::FieldList;

constexpr int widthCode = 42;
constexpr int heightCode = 43;
constexpr int sizeCodes[] = {widthCode, heightCode};

/// Where an object that is embedded in the entity begins, or extended data: what follows is not the entity's own.
bool endsOwnFields(const Field &field)
{
    return field.code == 101 || field.code >= 1000;
}

template <typename Fields>
auto findOwn(Fields &fields, int code)
{
    const auto end = std::ranges::find_if(fields, endsOwnFields);
    const auto found = std::find_if(fields.begin(), end, [code](const Field &field) { return field.code == code; });
    return found == end ? fields.end() : found;
}

void removeOwn(FieldList &fields, int code)
{
    if (const auto field = findOwn(fields, code); field != fields.end())
        fields.erase(field);
}

FieldList withCode(const FieldList &fields, int code)
{
    FieldList found;
    std::ranges::copy_if(fields, std::back_inserter(found), [code](const Field &field) { return field.code == code; });
    return found;
}

} // namespace

FieldList withParagraphSize(const Document &document, FieldList fields)
{
    const drawing::Vec2 size = document.textMeasure().paragraphSize(fields);
    for (const int code : sizeCodes) {
        const double value = code == widthCode ? size.x : size.y;
        if (const auto field = findOwn(fields, code); field != fields.end())
            field->value = value;
        else
            fields.insert(std::ranges::find_if(fields, endsOwnFields), {code, value});
    }
    return fields;
}

void keepParagraphSize(FieldList &given, const FieldList &own)
{
    for (const int code : sizeCodes) {
        const auto mine = findOwn(own, code);
        const auto theirs = findOwn(given, code);
        if (mine == own.end())
            removeOwn(given, code);
        else if (theirs != given.end())
            *theirs = *mine;
    }
}

void dropOldParagraphSize(FieldList &changed, const FieldList &before)
{
    constexpr int shaping[] = {1, 3, 7, 40, 41, 44};
    const auto isOther = [&](int code) { return withCode(changed, code) != withCode(before, code); };
    if (!std::ranges::any_of(shaping, isOther))
        return;
    for (const int code : sizeCodes)
        removeOwn(changed, code);
}

} // namespace host::kernel
