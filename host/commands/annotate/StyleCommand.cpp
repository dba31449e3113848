#include "host/commands/Commands.h"
#include "host/commands/annotate/TextStyles.h"
#include "host/commands/common/KeptValues.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/records/Tables.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/view/text/StrokeFontTable.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::FieldList;
using drawing::TableKind;
using drawing::TextStyle;

/// Slants from here on would lay the letters flat.
constexpr double steepestSlant = 85.0;

/// The style of a name, or what a new one begins as. An empty name: the dialogue ended.
Dialogue<TextStyle> askStyleName(CommandContext &context)
{
    for (;;) {
        const QString usual = context.document().variables().text(u"TEXTSTYLE");
        const QString name = co_await askTextStyleName(context, Commands::tr("Enter name of text style"));
        if (name.isEmpty())
            co_return TextStyle();
        if (name.contains(QRegularExpression(u"[<>/\\\\\":;?*|,=`]"_s))) {
            if (context.refuse(Commands::tr("Invalid style name.")))
                co_return TextStyle();
            continue;
        }
        if (std::optional<TextStyle> present = drawing::findTextStyle(context.drawing(), name))
            co_return *present;
        TextStyle fresh = drawing::findTextStyle(context.drawing(), usual).value_or(TextStyle());
        fresh.record = drawing::noRecord;
        fresh.name = name;
        co_return fresh;
    }
}

/// "font" or "font,big font".
void setFonts(TextStyle &style, const QString &typed)
{
    style.fontFile = typed.section(u',', 0, 0).trimmed();
    style.bigFontFile = typed.section(u',', 1).trimmed();
}

/// Whether the letters are strokes: only such can be written from top to bottom.
bool isStrokeFont(CommandContext &context, const QString &font)
{
    const QString ending = QFileInfo(font).suffix().toLower();
    if (!ending.isEmpty())
        return ending == u"shx" || ending == u"shp";
    return host::view::strokeFontLook(font) || !context.document().findNamedFile(font + u".shx"_s).isEmpty();
}

Dialogue<TextStyle> askStyleLook(CommandContext &context, TextStyle style)
{
    const QString font = style.fontFile + (style.bigFontFile.isEmpty() ? QString() : u',' + style.bigFontFile);
    const PromptReply fonts = co_await context.text(
        Commands::tr("Specify full font name or font filename (TTF or SHX) <%1>: ").arg(font), font);
    if (fonts.hasValue())
        setFonts(style, fonts.text);
    style.fixedHeight = co_await askUsualLength(context, Commands::tr("Specify height of text"), style.fixedHeight);
    style.widthFactor =
        co_await askUsualLength(context, Commands::tr("Specify width factor"), style.widthFactor, NoZero | NoNegative);
    const QString slant = context.shownAngle(style.obliqueAngle * drawing::radians);
    const PromptReply oblique =
        co_await context.angle(Commands::tr("Specify obliquing angle <%1>: ").arg(slant), {}, {}, slant, SignedAngle);
    if (oblique.hasValue())
        style.obliqueAngle = std::remainder(oblique.real, 2.0 * M_PI) / drawing::radians;
    if (std::abs(style.obliqueAngle) > steepestSlant) {
        context.fail(Commands::tr("The obliquing angle is from -85 to 85 degrees."));
        co_return style;
    }
    style.isBackward = co_await askYesNo(context, Commands::tr("Display text backwards?"), style.isBackward);
    style.isUpsideDown = co_await askYesNo(context, Commands::tr("Display text upside-down?"), style.isUpsideDown);
    if (isStrokeFont(context, style.fontFile))
        style.isVertical = co_await askYesNo(context, u"Vertical?"_s, style.isVertical);
    else
        style.isVertical = false;
    co_return style;
}

void storeStyle(CommandContext &context, const TextStyle &style)
{
    drawing::Tables &tables = context.drawing().tables();
    constexpr qint64 verticalFlag = 4;
    FieldList fields = isValid(style.record) ? context.drawing().fields(style.record) : FieldList();
    const drawing::Field *flags = drawing::findField(fields, 70);
    const drawing::Field *font = drawing::findField(fields, 3);
    // The family that another font was noted with.
    if (font && font->text() != style.fontFile)
        fields.erase(drawing::ownEnd(fields), fields.end());
    const qint64 others = flags ? flags->integer() & ~verticalFlag : 0;
    drawing::setField(fields, 70, others | (style.isVertical ? verticalFlag : 0));
    drawing::setField(fields, 40, style.fixedHeight);
    drawing::setField(fields, 41, style.widthFactor);
    drawing::setField(fields, 50, style.obliqueAngle);
    drawing::setField(fields, 71, qint64(style.isBackward ? 2 : 0) + (style.isUpsideDown ? 4 : 0));
    if (!drawing::findField(fields, 42) || style.fixedHeight > 0.0)
        drawing::setField(fields, 42,
                          style.fixedHeight > 0.0 ? style.fixedHeight
                                                  : context.document().variables().real(u"TEXTSIZE", 0.2));
    drawing::setField(fields, 3, style.fontFile);
    drawing::setField(fields, 4, style.bigFontFile);
    if (isValid(style.record))
        tables.modify(style.record, fields);
    else
        tables.add(TableKind::Style, style.name, fields);
}

// The name and what the style looks like; it is current afterwards.
CommandTask textStyle(CommandContext &context)
{
    const TextStyle named = co_await askStyleName(context);
    if (named.name.isEmpty())
        co_return;
    context.print(isValid(named.record) ? Commands::tr("\nExisting style.") : Commands::tr("\nNew style."));
    const TextStyle style = co_await askStyleLook(context, named);
    if (context.hasFailed())
        co_return;
    storeStyle(context, style);
    keepValue(context, u"TEXTSTYLE", style.name);
    context.print(Commands::tr("\n\"%1\" is now the current text style.").arg(style.name));
}

} // namespace

std::vector<CommandRow> styleCommands()
{
    return {{"-STYLE", textStyle, "Makes and changes text styles", WhenCancelled::TakeBack, Interrupts::Prompts},
            {"STYLE", textStyle, "Makes and changes text styles"}};
}

} // namespace host::kernel
