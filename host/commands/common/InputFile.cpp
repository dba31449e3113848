#include "host/commands/common/InputFile.h"

#include "host/drawing/dwg/ReadingNotes.h"
#include "host/kernel/running/CommandContext.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

drawing::ReadResult openSource(CommandContext &context, const QString &path)
{
    drawing::ReadResult source = drawing::Drawing::open(path);
    if (source && source.drawing->readingNotes().hasFaults())
        context.print(u"\n%1: %2."_s.arg(path, source.drawing->readingNotes().summary()));
    return source;
}

} // namespace host::kernel
