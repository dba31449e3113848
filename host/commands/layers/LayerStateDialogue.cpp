#include "host/commands/layers/LayerStateDialogue.h"

#include "files/qt/Files.h"
#include "host/commands/common/OutputFile.h"
#include "host/commands/layers/StoredLayerStates.h"
#include "host/kernel/documents/Document.h"
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
        context.print(u"\nStates to restore: "_s + given.join(u", "_s));
        const PromptReply word = co_await context.keyword(
            u"Enter states to change [On/Frozen/Lock/Plot/Newvpfreeze/Color/lineType/lineWeight/plotStyle/"
            "TRansparency]: "_s);
        if (!word.hasValue())
            co_return parts;
        parts ^= std::ranges::find(partWords, QStringView(word.text), &PartWord::word)->part;
    }
}

void listStates(CommandContext &context)
{
    const QStringList names = layerStateNames(context.drawing());
    context.print(names.isEmpty() ? u"\nNo layer states."_s : u"\nLayer states: "_s + names.join(u", "_s));
}

/// The name of a state that is there; empty when there is none, which was told.
Dialogue<QString> askState(CommandContext &context, const QString what)
{
    const QString prompt = u"Enter name of layer state to %1 or [?]: "_s.arg(what);
    PromptReply reply = co_await context.text(prompt, {}, u"?"_s);
    while (reply.isKeyword(u"?")) {
        listStates(context);
        reply = co_await context.text(prompt, {}, u"?"_s);
    }
    const QString name = reply.text.trimmed();
    if (!reply.hasValue() || !layerStateParts(context.drawing(), name)) {
        context.refuse(u"Cannot find layer state \"%1\"."_s.arg(name));
        co_return QString();
    }
    co_return name;
}

Dialogue<bool> saveState(CommandContext &context)
{
    const PromptReply reply = co_await context.text(u"Enter new layer state name: "_s);
    const QString name = reply.text.trimmed();
    if (name.isEmpty())
        co_return false;
    if (context.drawing().version() < drawing::Version::R2000) {
        context.refuse(u"A drawing of this version keeps no layer states."_s);
        co_return false;
    }
    const qint64 parts = co_await askParts(context, WholeState);
    co_return storeLayerState(context.drawing(), name, parts);
}

Dialogue<bool> restoreState(CommandContext &context)
{
    const QString name = co_await askState(context, u"restore"_s);
    if (!name.isEmpty())
        restoreLayerState(context.drawing(), name);
    co_return true;
}

Dialogue<bool> editState(CommandContext &context)
{
    const QString name = co_await askState(context, u"edit"_s);
    if (name.isEmpty())
        co_return false;
    const qint64 parts = co_await askParts(context, *layerStateParts(context.drawing(), name));
    setLayerStateParts(context.drawing(), name, parts);
    co_return true;
}

Dialogue<bool> renameState(CommandContext &context)
{
    const QString name = co_await askState(context, u"rename"_s);
    if (name.isEmpty())
        co_return false;
    const PromptReply reply = co_await context.text(u"Enter new layer state name: "_s);
    if (!renameLayerState(context.drawing(), name, reply.text.trimmed()))
        context.refuse(u"Layer state \"%1\" already exists or cannot be one."_s.arg(reply.text.trimmed()));
    co_return true;
}

Dialogue<bool> deleteState(CommandContext &context)
{
    const QString name = co_await askState(context, u"delete"_s);
    if (!name.isEmpty())
        removeLayerState(context.drawing(), name);
    co_return true;
}

Dialogue<bool> importState(CommandContext &context)
{
    constexpr qint64 largestFile = 10'000'000;
    const PromptReply file = co_await context.text(u"Enter name of file to import: "_s);
    if (!file.hasValue())
        co_return false;
    const QString path = context.document().findFile(file.text.trimmed());
    const files::WholeBytes text = files::readWhole(path, largestFile);
    const QString name = text ? takeLayerStateText(context.drawing(), text.bytes) : QString();
    if (name.isEmpty())
        context.refuse(u"No layer state was taken from \"%1\"."_s.arg(file.text.trimmed()));
    else
        context.print(u"\nLayer state \"%1\" imported."_s.arg(name));
    co_return true;
}

Dialogue<bool> exportState(CommandContext &context)
{
    const QString name = co_await askState(context, u"export"_s);
    if (name.isEmpty())
        co_return false;
    const PromptReply file = co_await context.text(u"Enter name of file to export: "_s);
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
            co_await context.keyword(u"Enter an option [?/Save/Restore/Edit/Name/Delete/Import/EXport]: "_s);
        if (!option.hasValue())
            break;
        co_await std::ranges::find(stateActions, QStringView(option.text), &StateAction::option)->act(context);
    }
    co_return true;
}

} // namespace host::kernel
