#include "host/drawing/geometry/TransformFields.h"
#include "host/drawing/solids/SolidModel.h"
#include "host/drawing/solids/SolidText.h"
#include "host/drawing/tags/GroupCodes.h"

#include <charconv>

namespace host::drawing {

namespace {

using ModelWords = SolidRecords::Words;

std::string shownNumbers(std::initializer_list<Vec3> rows)
{
    std::string text;
    for (const Vec3 &row : rows) {
        for (const double value : {row.x, row.y, row.z}) {
            char digits[32];
            const auto end = std::to_chars(std::begin(digits), std::end(digits), value == 0.0 ? 0.0 : value);
            text += ' ' + std::string(digits, end.ptr);
        }
    }
    return text;
}

/// What stands behind the name of the record that places a model.
std::string placementText(const Matrix &placement, int version)
{
    const double scale = placement.xAxis.length();
    const double back = 1.0 / scale;
    const Vec3 x = placement.xAxis * back;
    const Vec3 y = placement.yAxis * back;
    const Vec3 z = placement.zAxis * back;
    const bool isTurned = Matrix{x, y, z, {}} != Matrix();
    const bool isMirrored = placement.determinant() < 0.0;
    const std::string numbers = shownNumbers({x, y, z, placement.origin});
    const std::string factor = shownNumbers({{scale, 0.0, 0.0}});
    const bool hasWords = version >= 200;
    const std::string flags = hasWords ? std::string(isTurned ? " rotate" : " no_rotate") +
                                             (isMirrored ? " reflect" : " no_reflect") + " no_shear"
                                       : std::string(isTurned ? " 1" : " 0") + (isMirrored ? " 1" : " 0") + " 0";
    return numbers + factor.substr(0, factor.find(' ', 1)) + flags;
}

/// In front of what a program has saved for the records that follow the last one.
std::size_t endOfRecords(const std::string &text)
{
    const std::size_t last = text.rfind('#');
    return last == std::string::npos ? text.size() : last + 1;
}

/// The text with its model placed elsewhere; empty when it has no body.
std::string placedText(const SolidRecords &records, const Matrix &placement)
{
    const ModelWords *body = records.first("body");
    const auto named = body ? std::ranges::find_if(body->rbegin(), body->rend(),
                                                   [](std::string_view word) { return word.starts_with('$'); })
                            : ModelWords::const_reverse_iterator();
    if (!body || named == body->rend())
        return {};
    const std::string placed = placementText(placement, records.version());
    std::string text = records.text();
    const auto offset = [&records](const char *at) { return static_cast<std::size_t>(at - records.text().data()); };
    const auto existing = records.referred(*body, "transform");
    if (existing.empty()) {
        const bool hasNumber = records.version() >= 700;
        text.insert(endOfRecords(text), (hasNumber ? "\ntransform $-1 -1" : "\ntransform $-1") + placed + " #");
        text.replace(offset(named->data()), named->size(), "$" + std::to_string(records.all().size()));
        return text;
    }
    // Behind the last reference, or the number that later versions have there.
    const ModelWords &old = *existing.front();
    const auto last = std::ranges::find_if(old.rbegin(), old.rend(), [](auto word) { return word.starts_with('$'); });
    const std::size_t from = offset(last->data()) + last->size();
    const std::size_t to = text.find('#', from);
    const bool hasNumber =
        last.base() != old.end() && SolidRecords::numbersOf(old).size() > 13 && records.version() >= 700;
    text.replace(from, to - from, (hasNumber ? " -1" : "") + placed + ' ');
    return text;
}

/// The picture that a program has left of the model shows it where it was.
void dropKeptPicture(FieldList &fields)
{
    const auto isPicture = [](const Field &field) {
        return field.code == 92 || field.code == 160 || field.code == 310;
    };
    const bool hasPicture = std::ranges::any_of(fields, [](const Field &field) { return field.code == 310; });
    if (hasPicture)
        std::erase_if(fields, isPicture);
}

} // namespace

bool transformSolid(FieldList &fields, const Matrix &matrix)
{
    const SolidRecords records(solidText(fields));
    const std::string text = isUniform(matrix) ? placedText(records, matrix * solidPlacement(records)) : std::string();
    if (text.empty())
        return false;
    dropKeptPicture(fields);
    const auto isText = [](const Field &field) { return field.code == 1 || field.code == 3; };
    const auto at = std::ranges::find_if(fields, isText) - fields.begin();
    std::erase_if(fields, isText);
    const FieldList lines = solidTextFields(text);
    fields.insert(fields.begin() + at, lines.begin(), lines.end());
    return true;
}

} // namespace host::drawing
