#include "host/commands/annotate/NewDimension.h"

#include "host/commands/annotate/DimensionDialogues.h"
#include "host/drawing/annotation/DimensionBlock.h"
#include "host/drawing/annotation/DimensionText.h"
#include "host/drawing/annotation/StyleValues.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/tags/GroupCodes.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/variables/SystemVariables.h"

#include <numbers>

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::FieldList;
using drawing::RecordId;
using drawing::Vec2;

namespace {

constexpr qint64 pictureIsOwnFlag = 32;

/// What the style does not say: a jogged radius has its angle with it in any case.
FieldList newOverrides(CommandContext &context, const QString &type, const QString &style)
{
    FieldList overrides = drawing::currentOverrides(context.drawing(), style);
    const int jogCode = drawing::dimensionVariable(u"DIMJOGANG")->styleCode;
    if (type == u"LARGE_RADIAL_DIMENSION" && !drawing::findField(overrides, jogCode))
        overrides.push_back({jogCode, context.document().variables().real(u"DIMJOGANG", std::numbers::pi / 4.0)});
    return overrides;
}

/// What does not depend on the kind of dimension.
void addDimensionCommons(CommandContext &context, FieldList &fields, const DimensionAnswers &answers)
{
    const UserPlane plane(context.document());
    const QString style = currentDimensionStyle(context);
    drawing::Field *flags = drawing::findField(fields, 70);
    flags->value = flags->integer() | pictureIsOwnFlag;
    fields.push_back({3, style});
    if (context.drawing().version() >= drawing::Version::R2000)
        fields.push_back({71, qint64(5)});
    if (!answers.text.isEmpty())
        fields.push_back({1, answers.text});
    if (answers.textAngle)
        fields.push_back({53, plane.objectDegrees(*answers.textAngle)});
    if (const double level = plainDegrees(-plane.objectDegrees(0.0)); level != 0.0)
        fields.push_back({51, level});
    fields = plane.placed(std::move(fields));
    drawing::setOverrides(fields, newOverrides(context, fields.front().text(), style));
}

/// A record in the order of its parts, of which the last is `own`. What drawing it finds out has its place in front.
FieldList inParts(const FieldList &commons, const FieldList &own)
{
    const auto isXdata = [](const drawing::Field &field) { return field.code >= drawing::applicationCode; };
    const auto xdata = std::ranges::find_if(commons, isXdata);
    FieldList fields = {commons.front(), {100, u"AcDbEntity"_s}, {100, u"AcDbDimension"_s}, {2, QString()}};
    fields.insert(fields.end(), commons.begin() + 1, xdata);
    if (!drawing::findField(fields, 11))
        fields.push_back({11, drawing::Vec3{}});
    fields.push_back({42, 0.0});
    fields.insert(fields.end(), own.begin(), own.end());
    fields.insert(fields.end(), xdata, commons.end());
    return fields;
}

/// An entity of a picture as one of its own: what was as the dimension is as new entities are.
FieldList freed(const FieldList &part)
{
    FieldList fields;
    for (const drawing::Field &field : part) {
        const bool isAsBlock = (field.code == 62 && field.integer() == 0) ||
                               (field.code == 6 && field.text() == u"ByBlock") ||
                               (field.code == 370 && field.integer() == -2);
        if (!isAsBlock && field.code != 8)
            fields.push_back(field);
    }
    return fields;
}

/// Leaves the entities of the picture in place of the dimension, without the measured points. One without a picture,
/// too far off to be drawn, stays.
void replaceByPicture(CommandContext &context, RecordId dimension)
{
    drawing::Drawing &drawing = context.drawing();
    const RecordId block = drawing.blocks().find(drawing.tags(dimension).text(2));
    if (!isValid(block))
        return;
    std::vector<FieldList> parts;
    for (const RecordId part : drawing.children(block))
        if (!drawing.isType(part, "POINT"))
            parts.push_back(freed(drawing.fields(part)));
    drawing.setErased(dimension, true);
    drawing.blocks().erase(block);
    for (const FieldList &part : parts)
        context.create(part);
}

/// The place that was given for a radius or diameter is where its line ends: the text stands above that end, or beside
/// it.
void placeBesideLine(CommandContext &context, RecordId dimension)
{
    drawing::Drawing &drawing = context.drawing();
    const auto data = readDimension(drawing, dimension, drawing.tags(dimension));
    const bool isJogged = data && data->kind == drawing::DimensionKind::LargeRadius;
    const bool isRound =
        isJogged ||
        (data && (data->kind == drawing::DimensionKind::Radius || data->kind == drawing::DimensionKind::Diameter));
    if (!isRound || !data->textAt)
        return;
    const drawing::DimensionStyle style = readDimensionStyle(drawing, drawing.tags(dimension));
    const Vec2 size =
        dimensionTextSize(context, style.textStyle)(dimensionText(*data, style), style.textHeight * style.scale);
    const Vec2 middle =
        data->kind == drawing::DimensionKind::Diameter ? (data->definition + data->third) * 0.5 : data->definition;
    const Vec2 out = *data->textAt - middle;
    const bool isInside = out.length() < (data->third - middle).length();
    const bool isLevel = isInside ? style.isLevelInside : style.isLevelOutside;
    const double turn = isLevel ? data->horizontal : std::atan2(out.y, out.x);
    Vec2 along{std::cos(turn), std::sin(turn)};
    if (isLevel && dot(out, along) < 0.0)
        along = along * -1.0;
    const bool isReadLeft = along.x < -1e-9 || (std::abs(along.x) <= 1e-9 && along.y < 0.0);
    const double gap = std::abs(style.gap) * style.scale;
    Vec2 at = *data->textAt;
    if (isLevel && !isJogged)
        at = at + along * (style.arrowSize * style.scale + gap + size.x / 2.0);
    if (style.textPlace != 0)
        at = at + turnedLeft(along) * ((isReadLeft ? -1.0 : 1.0) * (gap + size.y / 2.0));
    FieldList fields = drawing.fields(dimension);
    drawing::Field *text = drawing::findField(fields, 11);
    text->value = drawing::Vec3{at.x, at.y, text->point().z};
    drawing.setFields(dimension, fields);
}

} // namespace

double plainDegrees(double degrees)
{
    const double rest = std::fmod(degrees, 360.0);
    const double positive = rest < 0.0 ? rest + 360.0 : rest;
    return positive < 1e-9 || positive > 360.0 - 1e-9 ? 0.0 : positive;
}

QString currentDimensionStyle(CommandContext &context)
{
    drawing::Tables &tables = context.drawing().tables();
    const QString name = context.drawing().header().text(u"$DIMSTYLE", u"Standard"_s);
    const RecordId style = tables.find(drawing::TableKind::DimStyle, name);
    return tables.name(isValid(style) ? style : tables.add(drawing::TableKind::DimStyle, u"Standard"_s));
}

bool isDimension(const drawing::Drawing &drawing, RecordId entity)
{
    return drawing.isAlive(entity) && drawing.typeName(entity).endsWith("DIMENSION");
}

Dialogue<PromptReply> askDimensionLine(CommandContext &context, LineQuestion question, DimensionAnswers &answers)
{
    for (;;) {
        const PromptReply place = co_await context.neededPoint(question.prompt, question.base);
        if (place.isKeyword(u"Mtext") || place.isKeyword(u"Text")) {
            const PromptReply text = co_await context.text(
                Commands::tr("Enter dimension text <%1>: ").arg(question.measured), question.measured);
            answers.text = text.hasValue() ? text.text : QString();
        } else if (place.isKeyword(u"Angle")) {
            const PromptReply angle = co_await context.orientation(Commands::tr("Specify angle of dimension text: "));
            answers.textAngle = angle.hasValue() ? std::optional(angle.real) : std::nullopt;
        } else {
            co_return place;
        }
    }
}

Dialogue<bool> askTextBehind(CommandContext &context, TextAsked asked, QString measured, DimensionAnswers &answers)
{
    if (asked == TextAsked::AsOption)
        co_return false;
    const QString usual = answers.text.isEmpty() ? measured : answers.text;
    const PromptReply text = co_await context.text(Commands::tr("Enter dimension text <%1>: ").arg(usual), usual);
    if (text.hasValue() && !text.text.isEmpty())
        answers.text = text.text;
    co_return true;
}

void redrawDimension(CommandContext &context, RecordId dimension, bool movesTextHome)
{
    drawing::Drawing &drawing = context.drawing();
    const drawing::DimensionStyle style = readDimensionStyle(drawing, drawing.tags(dimension));
    drawDimension(drawing, dimension, dimensionTextSize(context, style.textStyle),
                  movesTextHome ? drawing::TextPlace::ByStyle : drawing::TextPlace::AsNoted);
}

RecordId createDimension(CommandContext &context, FieldList fields, const DimensionAnswers &answers)
{
    const auto marker = std::ranges::find(fields, 100, &drawing::Field::code);
    const FieldList own(marker, fields.end());
    fields.erase(marker, fields.end());
    addDimensionCommons(context, fields, answers);
    const RecordId made = context.create(own.empty() ? fields : inParts(fields, own));
    if (!isValid(made))
        return made;
    placeBesideLine(context, made);
    redrawDimension(context, made);
    drawing::Drawing &drawing = context.drawing();
    if (const auto data = readDimension(drawing, made, drawing.tags(made))) {
        drawing::DimensionData measured = *data;
        measured.text.clear();
        context.print(Commands::tr("\nDimension text = ") +
                      drawing::dimensionText(measured, readDimensionStyle(drawing, drawing.tags(made))));
    }
    if (context.document().variables().integer(u"DIMASSOC", 2) == 0)
        replaceByPicture(context, made);
    return made;
}

} // namespace host::kernel
