#include "host/kernel/documents/ExpressionSurroundings.h"

#include "host/drawing/text/DrawingVariables.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/units/Units.h"

namespace host::kernel {

namespace {

using drawing::MacroSurroundings;
using Variable = std::function<std::optional<QString>(const QString &)>;

std::optional<QString> documentVariable(const Document &document, const QString &name)
{
    const std::optional<VariableValue> value = document.variables().get(name);
    if (!value)
        return {};
    // A date needs more digits than other numbers for its seconds.
    const bool isDate = name.endsWith(QLatin1String("DATE"), Qt::CaseInsensitive);
    const double *number = isDate ? std::get_if<double>(&*value) : nullptr;
    return number ? drawing::dateNumberText(*number) : document.variables().display(name);
}

double numberOf(const Variable &variable, const char *name)
{
    return variable(QString::fromLatin1(name)).value_or(QString()).toDouble();
}

MacroSurroundings surroundingsWith(const Variable &variable)
{
    MacroSurroundings surroundings{.variable = variable};
    surroundings.length = [variable](double value, int mode, int precision) {
        const int zeros = static_cast<int>(numberOf(variable, "DIMZIN"));
        return QString::fromStdString(units::formatDistance(value, {mode, precision, zeros}));
    };
    surroundings.angle = [variable](double radians, int mode, int precision) {
        const units::AngleFormat format{.mode = mode,
                                        .precision = precision,
                                        .zeros = static_cast<int>(numberOf(variable, "DIMZIN")),
                                        .base = numberOf(variable, "ANGBASE"),
                                        .isClockwise = numberOf(variable, "ANGDIR") != 0.0};
        return QString::fromStdString(units::formatAngle(radians, format));
    };
    return surroundings;
}

} // namespace

MacroSurroundings expressionSurroundings(Document &document)
{
    MacroSurroundings surroundings =
        surroundingsWith([&document](const QString &name) { return documentVariable(document, name); });
    surroundings.file = [&document](const QString &name) { return document.findNamedFile(name); };
    surroundings.unread = [&document](const QString &path, const QString &reason) {
        document.tellUnread(path, reason);
    };
    surroundings.incomplete = [&document](const QString &path, const drawing::ReadingNotes &notes) {
        document.tellIncomplete(path, notes);
    };
    return surroundings;
}

MacroSurroundings expressionSurroundings(const drawing::Drawing &drawing, drawing::ReadableFiles readable)
{
    MacroSurroundings surroundings =
        surroundingsWith([&drawing](const QString &name) { return drawing::drawingVariable(drawing, name); });
    surroundings.unread = readable.refused;
    surroundings.incomplete = readable.incomplete;
    surroundings.file = drawing::namedFiles(drawing, std::move(readable));
    return surroundings;
}

} // namespace host::kernel
