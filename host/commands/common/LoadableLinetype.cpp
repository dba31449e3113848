#include "host/commands/common/LoadableLinetype.h"

#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Tables.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::LinetypeDefinition;
using drawing::TableKind;

drawing::LinetypeUnit linetypeUnit(CommandContext &context)
{
    const bool isMetric = context.drawing().header().integer(u"$MEASUREMENT") != 0;
    return isMetric ? drawing::LinetypeUnit::Millimetre : drawing::LinetypeUnit::Inch;
}

drawing::RecordId loadedLinetype(CommandContext &context, const QString &name)
{
    const drawing::Tables &tables = context.drawing().tables();
    if (const drawing::RecordId entry = tables.find(TableKind::Linetype, name); isValid(entry))
        return entry;
    const std::vector<LinetypeDefinition> all = drawing::predefinedLinetypes(linetypeUnit(context));
    const auto found = std::ranges::find_if(all, [&](const LinetypeDefinition &definition) {
        return definition.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    if (found == all.end())
        return drawing::noRecord;
    drawing::ShapeFiles shapes([&](const QString &file) { return context.document().findNamedFile(file); });
    if (drawing::loadLinetype(context.drawing(), *found, shapes).isEmpty())
        context.print(Commands::tr("\nLinetype \"%1\" loaded.").arg(found->name));
    return tables.find(TableKind::Linetype, name);
}

} // namespace host::kernel
