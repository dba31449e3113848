#include "host/commands/common/TextSizes.h"

#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/TextSizes.h"
#include "host/kernel/running/CommandContext.h"

namespace host::kernel {

drawing::TextSize dimensionTextSize(CommandContext &context, const QString &textStyle)
{
    return textSizeIn(context.document(), textStyle);
}

} // namespace host::kernel
