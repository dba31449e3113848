#include "host/commands/blocks/AttachedDrawing.h"

#include "host/commands/common/InputFile.h"
#include "host/drawing/editing/ExternalReferences.h"
#include "host/drawing/records/FileIndexer.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/references/NamedFiles.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/units/Units.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <array>

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::Block;
using drawing::Drawing;
using drawing::FileFinder;
using drawing::RecordId;

namespace {

constexpr int overlayFlag = 8;
/// How many files are followed from one reference; more is taken for damage.
constexpr qsizetype mostFiles = 500;

FileFinder finderOf(CommandContext &context)
{
    return [&context](const QString &name) { return context.document().findNamedFile(name); };
}

QString findExternal(const QString &path, const FileFinder &find)
{
    for (const QString &name : drawing::externalNames(path))
        if (const QString found = find(name); !found.isEmpty())
            return found;
    return {};
}

QString ownFile(CommandContext &context)
{
    return QFileInfo(context.document().path()).canonicalFilePath();
}

/// Goes through what is seen in a drawing, and in those within, each file once.
bool shows(const Drawing &source, const FileFinder &ofHost, const QString &wanted, QSet<QString> &seen)
{
    const FileFinder find = drawing::namedFilesWithin(source, ofHost);
    for (const RecordId id : source.blocks().all()) {
        const Block block = source.blocks().read(id);
        const bool isFollowed = block.isExternal() && (block.flags & overlayFlag) == 0;
        const QString path = isFollowed ? findExternal(block.externalPath, find) : QString();
        if (path.isEmpty() || seen.contains(path) || seen.size() >= mostFiles)
            continue;
        seen.insert(path);
        const drawing::ReadResult nested = path == wanted ? drawing::ReadResult{} : Drawing::open(path);
        if (path == wanted || (nested && shows(*nested.drawing, find, wanted, seen)))
            return true;
    }
    return false;
}

/// A binding under way.
struct Binding
{
    CommandContext &context;
    drawing::BindNames names;
    QSet<QString> open{}; ///< the files that are being bound, each within the one before
    int skipped = 0;
};

QSet<RecordId> externalBlocks(const Drawing &drawing)
{
    QSet<RecordId> found;
    for (const RecordId id : drawing.blocks().all())
        if (drawing.blocks().read(id).isExternal())
            found.insert(id);
    return found;
}

void bindOne(Binding &binding, const Block &block, const QString &path, const FileFinder &find);

/// What came with a bound drawing and stands for further ones.
void bindNew(Binding &binding, const QSet<RecordId> &before, const FileFinder &find)
{
    Drawing &drawing = binding.context.drawing();
    for (const RecordId id : externalBlocks(drawing)) {
        const Block block = drawing.blocks().read(id);
        const QString path = findExternal(block.externalPath, find);
        if (before.contains(id))
            continue;
        if ((block.flags & overlayFlag) != 0 || path.isEmpty() || binding.open.contains(path))
            drawing::eraseReference(drawing, block);
        else
            bindOne(binding, block, path, find);
    }
}

void bindOne(Binding &binding, const Block &block, const QString &path, const FileFinder &find)
{
    const drawing::ReadResult source = openSource(binding.context, path);
    if (!source)
        return binding.context.fail(u"%1: %2"_s.arg(path, source.error.message()));
    Drawing &drawing = binding.context.drawing();
    const QSet<RecordId> before = externalBlocks(drawing);
    const drawing::CopyResult made = drawing::bindReference(drawing, block, *source.drawing, binding.names);
    if (!made)
        return binding.context.fail(made.error);
    binding.skipped += made.skipped;
    if (binding.open.size() >= drawing::deepestNesting)
        return;
    binding.open.insert(path);
    bindNew(binding, before, drawing::namedFilesWithin(*source.drawing, find));
    binding.open.remove(path);
}

/// Names of units as the converter knows them, by the numbers of INSUNITS; empty for those that it does not know.
constexpr std::array<const char *, 15> unitNames = {"", "in",  "ft", "mile", "mm", "cm",     "m", "km",
                                                    "", "mil", "yd", "",     "",   "micron", "dm"};

const char *unitName(qint64 number)
{
    return number > 0 && number < qint64(unitNames.size()) ? unitNames[static_cast<std::size_t>(number)] : "";
}

} // namespace

QString keptPath(CommandContext &context, const QString &path)
{
    const qint64 kind = context.document().variables().integer(u"REFPATHTYPE");
    const QString own = context.document().path();
    const QFileInfo file(path);
    if (kind == 0)
        return file.fileName();
    if (kind == 2 || own.isEmpty())
        return file.absoluteFilePath();
    const QString relative = QFileInfo(own).absoluteDir().relativeFilePath(file.absoluteFilePath());
    return relative.startsWith(u"../"_s) || QFileInfo(relative).isAbsolute() ? relative : u"./"_s + relative;
}

QString fileOfReference(CommandContext &context, const Block &block)
{
    return findExternal(block.externalPath, finderOf(context));
}

std::unique_ptr<Drawing> readAttached(CommandContext &context, const QString &path)
{
    drawing::ReadResult result = openSource(context, path);
    if (!result)
        context.print(u"\n%1: %2"_s.arg(path, result.error.message()));
    return std::move(result.drawing);
}

bool showsThisDrawing(CommandContext &context, const Drawing &source)
{
    QSet<QString> seen;
    const QString own = ownFile(context);
    return !own.isEmpty() && shows(source, finderOf(context), own, seen);
}

double unitFactor(CommandContext &context, const Drawing &source)
{
    return units::unitFactor(unitName(source.header().integer(u"$INSUNITS")),
                             unitName(context.drawing().header().integer(u"$INSUNITS")))
        .value_or(1.0);
}

bool loadReference(CommandContext &context, const Block &block)
{
    const QString path = fileOfReference(context, block);
    if (path.isEmpty()) {
        context.print(
            Commands::tr("\nCannot find file \"%1\" of reference \"%2\".").arg(block.externalPath, block.name));
        return false;
    }
    const std::unique_ptr<Drawing> source = readAttached(context, path);
    if (!source)
        return false;
    if (showsThisDrawing(context, *source))
        context.print(Commands::tr("\nWarning: \"%1\" shows this drawing, which is left out there.").arg(block.name));
    const bool isKept = context.document().variables().integer(u"VISRETAIN") != 0;
    drawing::refreshDependents(context.drawing(), block.name, *source,
                               isKept ? drawing::DependentLook::Kept : drawing::DependentLook::OfFile);
    context.print(Commands::tr("\n\"%1\" loaded.").arg(block.name));
    return true;
}

void bindWithNested(CommandContext &context, const Block &block)
{
    const QString path = fileOfReference(context, block);
    if (path.isEmpty())
        return context.fail(
            Commands::tr("Cannot find file \"%1\" of reference \"%2\".").arg(block.externalPath, block.name));
    const bool isPrefixed = context.document().variables().integer(u"BINDTYPE") == 0;
    Binding binding{context, isPrefixed ? drawing::BindNames::Prefixed : drawing::BindNames::Merged};
    binding.open.insert(ownFile(context));
    bindOne(binding, block, path, finderOf(context));
    if (context.hasFailed())
        return;
    context.print(Commands::tr("\n\"%1\" is a block of this drawing now.").arg(block.name));
    if (binding.skipped > 0)
        context.print(Commands::tr(" %1 of its records could not be taken over.").arg(binding.skipped));
}

} // namespace host::kernel
