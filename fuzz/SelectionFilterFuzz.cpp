// Any conditions over any entities: a filter that was made obeys the laws of logic, and one that was not says why.

#include "fuzz/FuzzedDrawing.h"
#include "fuzz/Require.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/selection/SelectionFilter.h"

using namespace host::drawing;
using namespace Qt::StringLiterals;

namespace {

constexpr int operatorCode = -4;

Field condition(const QByteArray &line)
{
    const qsizetype blank = line.indexOf(' ');
    const int code = line.first(std::max<qsizetype>(blank, 0)).toInt();
    const QByteArray value = line.mid(blank + 1);
    if (const QByteArrayList parts = value.split(','); isPointCode(code) && parts.size() > 1)
        return {code, Vec3{parts[0].toDouble(), parts[1].toDouble(), parts.value(2).toDouble()}};
    switch (code < 0 ? TagType::Text : tagType(code)) {
    case TagType::Real:
        return {code, value.toDouble()};
    case TagType::Int16:
    case TagType::Int32:
    case TagType::Int64:
    case TagType::Bool:
        return {code, value.toLongLong()};
    case TagType::Handle:
        return {code, Handle::fromText(QByteArrayView(value)).value_or(Handle{})};
    default:
        return {code, QString::fromUtf8(value)};
    }
}

/// The conditions in a group, `times` times.
FieldList grouped(const QString &join, const FieldList &conditions, int times)
{
    FieldList all{{operatorCode, QString(u'<' + join)}};
    for (int i = 0; i < times; ++i) {
        all.push_back({operatorCode, u"<AND"_s});
        all.insert(all.end(), conditions.begin(), conditions.end());
        all.push_back({operatorCode, u"AND>"_s});
    }
    all.push_back({operatorCode, QString(join + u'>')});
    return all;
}

std::vector<RecordId> matching(const Drawing &drawing, const FieldList &conditions)
{
    const SelectionFilter::Outcome outcome = SelectionFilter::create(conditions);
    require(outcome.filter.has_value());
    return outcome.filter->matching(drawing, drawing.entities().all());
}

void checkLaws(const Drawing &drawing, const SelectionFilter &filter, const FieldList &conditions)
{
    const std::vector<RecordId> all = drawing.entities().all();
    const std::vector<RecordId> chosen = filter.matching(drawing, all);
    for (const RecordId entity : all)
        require(filter.matches(drawing, entity) == (std::ranges::find(chosen, entity) != chosen.end()));
    require(matching(drawing, grouped(u"AND"_s, conditions, 2)) == chosen);
    require(matching(drawing, grouped(u"OR"_s, conditions, 2)) == chosen);
    require(matching(drawing, grouped(u"XOR"_s, conditions, 2)).empty());
    require(matching(drawing, grouped(u"NOT"_s, conditions, 1)).size() == all.size() - chosen.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    // Conditions, a line each, then the drawing.
    const qsizetype border = bytes.indexOf("\n\n");
    FieldList conditions;
    for (const QByteArray &line : bytes.first(std::max<qsizetype>(border, 0)).split('\n'))
        conditions.push_back(condition(line));
    const ReadResult read = Drawing::fromBytes(FuzzedDrawing(bytes.mid(border + 2)).text("AC1015"));
    if (!read)
        return 0;
    const SelectionFilter::Outcome outcome = SelectionFilter::create(conditions);
    require(outcome.filter.has_value() == outcome.error.isEmpty());
    // Three levels deeper it may be too deep.
    if (outcome.filter && conditions.size() < 190)
        checkLaws(*read.drawing, *outcome.filter, conditions);
    return 0;
}
