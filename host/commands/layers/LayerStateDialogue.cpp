#include "host/commands/layers/LayerStateDialogue.h"

#include "files/qt/Files.h"
#include "host/commands/common/OutputFile.h"
#include "host/commands/layers/StoredLayerStates.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

struct PartWord
{
    QStringView word;
    qint64 part;
};

constexpr PartWord partWords[] = {
    {u"On", StateOn},
    {u"Frozen", StateFrozen},
    {u"Lock", StateLock},
    {u"Plot", StatePlot},
    {u"Newvpfreeze", StateNewViewports},
    {u"Color", StateColour},
    {u"lineType", StateLinetype},
    {u"lineWeight", StateLineweight},
    {u"plotStyle", StatePlotStyle},
    {u"TRansparency", StateTransparency},
};

/// Each word switches what the state gives back.
Dialogue<qint64> askParts(CommandContext &context, qint64 parts)
{
    for (;;) {
        QStringList given;
        for (const PartWord &row : partWords)
            if (parts & row.part)
                given.append(row.word.toString());
        context.print(Commands::tr("\nStates to restore: ") + given.join(u", "_s));
        const PromptReply word = co_await context.keyword(
            Commands::tr("Enter states to change [On/Frozen/Lock/Plot/Newvpfreeze/Color/lineType/lineWeight/plotStyle/"
                         "TRansparency]: "));
        if (!word.hasValue())
            co_return parts;
        parts ^= std::ranges::find(partWords, QStringView(word.text), &PartWord::word)->part;
    }
}

void listStates(CommandContext &context)
{
    const QStringList names = layerStateNames(context.drawing());
    context.print(names.isEmpty() ? Commands::tr("\nNo layer states.")
                                  : Commands::tr("\nLayer states: ") + names.join(u", "_s));
}

/// The name of a state that is there; empty when there is none, which was told.
Dialogue<QString> askState(CommandContext &context, const QString prompt)
{
    PromptReply reply = co_await context.text(prompt, {}, u"?"_s);
    while (reply.isKeyword(u"?")) {
        listStates(context);
        reply = co_await context.text(prompt, {}, u"?"_s);
    }
    const QString name = reply.text.trimmed();
    if (!reply.hasValue() || !layerStateParts(context.drawing(), name)) {
        context.refuse(Commands::tr("Cannot find layer state \"%1\".").arg(name));
        co_return QString();
    }
    co_return name;
}

Dialogue<bool> saveState(CommandContext &context)
{
    const PromptReply reply = co_await context.text(Commands::tr("Enter new layer state name: "));
    const QString name = reply.text.trimmed();
    if (name.isEmpty())
        co_return false;
    if (context.drawing().version() < drawing::Version::R2000) {
        context.refuse(Commands::tr("A drawing of this version keeps no layer states."));
        co_return false;
    }
    const qint64 parts = co_await askParts(context, WholeState);
    co_return storeLayerState(context.drawing(), name, parts);
}

Dialogue<bool> restoreState(CommandContext &context)
{
    const QString name = co_await askState(context, Commands::tr("Enter name of layer state to restore or [?]: "));
    if (!name.isEmpty())
        restoreLayerState(context.drawing(), name);
    co_return true;
}

Dialogue<bool> editState(CommandContext &context)
{
    const QString name = co_await askState(context, Commands::tr("Enter name of layer state to edit or [?]: "));
    if (name.isEmpty())
        co_return false;
    const qint64 parts = co_await askParts(context, *layerStateParts(context.drawing(), name));
    setLayerStateParts(context.drawing(), name, parts);
    co_return true;
}

Dialogue<bool> renameState(CommandContext &context)
{
    const QString name = co_await askState(context, Commands::tr("Enter name of layer state to rename or [?]: "));
    if (name.isEmpty())
        co_return false;
    const PromptReply reply = co_await context.text(Commands::tr("Enter new layer state name: "));
    if (!renameLayerState(context.drawing(), name, reply.text.trimmed()))
        context.refuse(Commands::tr("Layer state \"%1\" already exists or cannot be one.").arg(reply.text.trimmed()));
    co_return true;
}

Dialogue<bool> deleteState(CommandContext &context)
{
    const QString name = co_await askState(context, Commands::tr("Enter name of layer state to delete or [?]: "));
    if (!name.isEmpty())
        removeLayerState(context.drawing(), name);
    co_return true;
}

Dialogue<bool> importState(CommandContext &context)
{
    constexpr qint64 largestFile = 10'000'000;
    const PromptReply file = co_await context.text(Commands::tr("Enter name of file to import: "));
    if (!file.hasValue())
        co_return false;
    const QString path = context.document().findFile(file.text.trimmed());
    const files::WholeBytes text = files::readWhole(path, largestFile);
    const QString name = text ? takeLayerStateText(context.drawing(), text.bytes) : QString();
    if (name.isEmpty())
        context.refuse(Commands::tr("No layer state was taken from \"%1\".").arg(file.text.trimmed()));
    else
        context.print(Commands::tr("\nLayer state \"%1\" imported.").arg(name));
    co_return true;
}

Dialogue<bool> exportState(CommandContext &context)
{
    const QString name = co_await askState(context, Commands::tr("Enter name of layer state to export or [?]: "));
    if (name.isEmpty())
        co_return false;
    const PromptReply file = co_await context.text(Commands::tr("Enter name of file to export: "));
    if (!file.hasValue())
        co_return false;
    QString path = QFileInfo(QDir::current(), file.text.trimmed()).absoluteFilePath();
    if (QFileInfo(path).suffix().isEmpty())
        path += u".las"_s;
    const bool isAllowed = co_await mayReplaceFile(context, path);
    const QString problem = isAllowed ? files::replaceFile(path, layerStateText(context.drawing(), name)) : QString();
    if (!problem.isEmpty())
        context.fail(problem);
    co_return isAllowed;
}

Dialogue<bool> listOption(CommandContext &context)
{
    listStates(context);
    co_return true;
}

struct StateAction
{
    QStringView option;
    Dialogue<bool> (*act)(CommandContext &context);
};

constexpr StateAction stateActions[] = {
    {u"?", listOption},     {u"Save", saveState},     {u"Restore", restoreState}, {u"Edit", editState},
    {u"Name", renameState}, {u"Delete", deleteState}, {u"Import", importState},   {u"EXport", exportState},
};

} // namespace

Dialogue<bool> askLayerStates(CommandContext &context)
{
    while (!context.hasFailed()) {
        const PromptReply option =
            co_await context.keyword(Commands::tr("Enter an option [?/Save/Restore/Edit/Name/Delete/Import/EXport]: "));
        if (!option.hasValue())
            break;
        co_await std::ranges::find(stateActions, QStringView(option.text), &StateAction::option)->act(context);
    }
    co_return true;
}

} // namespace host::kernel
