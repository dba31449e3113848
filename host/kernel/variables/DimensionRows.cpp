// The variables of dimensions that the format itself has, by its own table, and the few beyond it.

#include "host/drawing/records/DimensionVariables.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Tables.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/variables/VariableRows.h"

namespace host::kernel {

namespace {

/// DIMDSEP is one letter to programs and its number in the file.
constexpr char separatorName[] = "DIMDSEP";

VariableValue dimensionValue(const drawing::DimensionVariable::Value &value)
{
    if (const auto *number = std::get_if<int>(&value))
        return qint32(*number);
    if (const auto *real = std::get_if<double>(&value))
        return *real;
    return rows::text(std::get<const char *>(value));
}

VariableValue decimalSeparator(const Document &document)
{
    const drawing::DimensionVariable *row = drawing::dimensionVariable(u"DIMDSEP");
    const drawing::Field usual = drawing::usualValue(document.drawing(), *row);
    const qint64 letter = document.drawing().header().integer(u"$DIMDSEP", usual.integer());
    return letter > 0 ? QString(QChar(static_cast<char16_t>(letter))) : QString();
}

void setDecimalSeparator(Document &document, const VariableValue &value)
{
    const qint64 letter = std::get<QString>(value).front().unicode();
    document.drawing().header().set(u"$DIMDSEP", drawing::Field{70, letter});
}

std::optional<VariableValue> oneLetter(const Document &, const VariableValue &value)
{
    return std::get<QString>(value).size() == 1 ? std::optional(value) : std::nullopt;
}

/// The extended data that annotative styles have say whose they are.
VariableValue isStyleAnnotative(const Document &document)
{
    const drawing::Drawing &drawing = document.drawing();
    const drawing::RecordId style =
        drawing.tables().find(drawing::TableKind::DimStyle, drawing.header().text(u"$DIMSTYLE"));
    if (!isValid(style))
        return 0;
    const drawing::TagList tags = drawing.tags(style);
    const bool isSo = std::ranges::any_of(
        tags, [](const drawing::Tag &tag) { return tag.code == 1001 && tag.trimmed() == "AcadAnnotative"; });
    return isSo ? 1 : 0;
}

HostVariable dimensionRow(const drawing::DimensionVariable &variable)
{
    HostVariable row = rows::inHeader(variable.name, variable.headerCode, dimensionValue(variable.imperial),
                                      variable.low, variable.high);
    row.metric = dimensionValue(variable.metric);
    row.since = variable.since;
    row.until = variable.until;
    return row;
}

} // namespace

VariableRows dimensionRows()
{
    using namespace rows;
    VariableRows all = {
        readOnly(inHeader("DIMSTYLE", 2, text("Standard"))),
        checked(oneLetter, settable(setDecimalSeparator, text("."), computed(separatorName, decimalSeparator))),
        computed("DIMANNO", isStyleAnnotative),
        ofUser("DIMCONTINUEMODE", 1, 0, 1),
        kept("DIMLAYER", text("use current")),
        kept("DIMMZF", 100.0),
        kept("DIMMZS", text("")),
        kept("DIMALTMZF", 100.0),
        kept("DIMALTMZS", text("")),
        ofUser("DIMPICKBOX", 5, 0, 50)};
    for (const drawing::DimensionVariable &variable : drawing::dimensionVariables())
        if (QByteArrayView(variable.name) != separatorName)
            all.push_back(dimensionRow(variable));
    return all;
}

} // namespace host::kernel
