#include "host/commands/Commands.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/common/ObjectChoice.h"
#include "host/commands/edit/EntityProperties.h"
#include "host/drawing/geometry/TransformFields.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/Picker.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::FieldList;
using drawing::RecordId;

/// A property by the name that settings have for it, with its groups.
struct MatchedProperty
{
    QStringView name;
    std::vector<int> codes;
};

const std::vector<MatchedProperty> &matchedProperties()
{
    static const std::vector<MatchedProperty> rows = {
        {u"Color", {62, 420, 430}}, {u"Layer", {8}},          {u"LType", {6}},       {u"ltScale", {48}},
        {u"Weight", {370}},         {u"Transparency", {440}}, {u"PLotstyle", {390}},
    };
    return rows;
}

/// What a kind of entity has beside, that entities of the same kind take over.
struct MatchedKind
{
    QStringView name;
    QSet<QString> types;
    std::vector<int> codes;
};

const std::vector<MatchedKind> &matchedKinds()
{
    static const std::vector<MatchedKind> rows = {
        {u"THickness", {u"LINE"_s, u"CIRCLE"_s, u"ARC"_s, u"LWPOLYLINE"_s, u"POINT"_s, u"TEXT"_s, u"SOLID"_s}, {39}},
        {u"TEXt", {u"TEXT"_s, u"MTEXT"_s, u"ATTDEF"_s}, {7, 40}},
        {u"Dim", {u"DIMENSION"_s, u"LEADER"_s, u"TOLERANCE"_s}, {3}},
        {u"POlyline", {u"LWPOLYLINE"_s}, {43}},
    };
    return rows;
}

QString settingNames()
{
    QStringList names;
    for (const MatchedProperty &row : matchedProperties())
        names.append(row.name.toString());
    for (const MatchedKind &row : matchedKinds())
        names.append(row.name.toString());
    return names.join(u'/');
}

void matchCommon(FieldList &fields, const FieldList &source, int code)
{
    if (const drawing::Field *wanted = drawing::findField(source, code))
        setCommonField(fields, code, wanted->value);
    else
        std::erase_if(fields, [code](const drawing::Field &field) { return field.code == code; });
}

void matchOwn(FieldList &fields, const FieldList &source, int code)
{
    const drawing::Field *wanted = drawing::findField(source, code);
    const bool isWidth = code == 43;
    if (isWidth && wanted)
        std::erase_if(fields, [](const drawing::Field &field) { return field.code == 40 || field.code == 41; });
    if (wanted)
        drawing::setOwnField(fields, code, wanted->value);
}

/// All of the source's properties whose names are not in `off`.
PropertyChange matchOf(const FieldList &source, const QSet<QString> &off)
{
    return {[source, off](FieldList &fields) {
        for (const MatchedProperty &row : matchedProperties())
            for (const int code : row.codes)
                if (!off.contains(row.name.toString()))
                    matchCommon(fields, source, code);
        for (const MatchedKind &row : matchedKinds()) {
            const bool isShared =
                row.types.contains(source.front().text()) && row.types.contains(fields.front().text());
            for (const int code : isShared && !off.contains(row.name.toString()) ? row.codes : std::vector<int>())
                matchOwn(fields, source, code);
        }
    }};
}

/// Switches settings off and on until an empty answer.
Dialogue<QSet<QString>> askSettings(CommandContext &context, QSet<QString> off)
{
    for (;;) {
        const QString prompt = Commands::tr("Enter a setting to switch off or on [%1] <exit>: ").arg(settingNames());
        const PromptReply reply = co_await context.keyword(prompt, {}, u"exit"_s);
        if (!reply.hasValue())
            co_return off;
        if (!off.remove(reply.text))
            off.insert(reply.text);
        context.print(Commands::tr("\n%1 is %2.").arg(reply.text, off.contains(reply.text) ? u"off"_s : u"on"_s));
    }
}

// The source, unless it was chosen before; then those that take its properties over.
CommandTask matchProperties(CommandContext &context)
{
    PromptReply source;
    const bool isChosen = context.document().impliedSelection().size() == 1 &&
                          context.document().variables().integer(u"PICKFIRST", 1) != 0;
    if (isChosen)
        source = co_await context.selection();
    else
        do
            source = co_await context.entity(Commands::tr("Select source object: "));
        while (source.entities.empty() && source.isMiss);
    if (source.entities.empty())
        co_return;
    const FieldList fields = context.drawing().fields(source.entities.front());
    QSet<QString> off;
    context.print(Commands::tr("\nCurrent active settings:  ") + settingNames().replace(u'/', u' '));
    const QStringList options(u"Settings"_s);
    for (bool isMore = true; isMore;) {
        const ObjectChoice choice =
            co_await askObjects(context, Commands::tr("Select destination object(s) or [Settings]: "), options);
        changeProperties(context, editable(context, choice.entities), matchOf(fields, off));
        isMore = !choice.option.isEmpty();
        if (isMore)
            off = co_await askSettings(context, off);
    }
}

/// What makes entities similar: their type and layer, and the block of a reference.
QString likenessOf(const drawing::Drawing &drawing, RecordId entity)
{
    const drawing::TagList tags = drawing.tags(entity);
    const QString block = drawing.isType(entity, "INSERT") ? tags.text(2).toCaseFolded() : QString();
    return QStringList{QString::fromLatin1(drawing.typeName(entity)), tags.text(8, u"0"_s).toCaseFolded(), block}.join(
        u'\n');
}

// Everything in the space that is similar to what is chosen is chosen for the next command.
CommandTask selectSimilar(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    const drawing::Drawing &drawing = context.drawing();
    QSet<QString> wanted;
    for (const RecordId id : chosen.entities)
        wanted.insert(likenessOf(drawing, id));
    std::vector<RecordId> similar = Picker(context.document()).visible();
    std::erase_if(similar, [&](RecordId id) { return !wanted.contains(likenessOf(drawing, id)); });
    context.print(Commands::tr("\n%1 selected.").arg(similar.size()));
    context.document().setPreviousSelection(similar);
    context.document().setImpliedSelection(std::move(similar));
}

} // namespace

std::vector<CommandRow> matchCommands()
{
    return {{"MATCHPROP", matchProperties, "Gives entities the properties of another one"},
            {"SELECTSIMILAR", selectSimilar, "Chooses what is similar to the chosen entities"}};
}

} // namespace host::kernel
