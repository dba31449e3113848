#include "host/commands/common/InputFile.h"

#include "host/drawing/dwg/ReadingNotes.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/running/CommandContext.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

drawing::ReadResult openSource(CommandContext &context, const QString &path)
{
    drawing::ReadResult source = drawing::Drawing::open(path);
    if (source && source.drawing->readingNotes().hasFaults()) {
        context.print(u"\n%1: %2."_s.arg(path, source.drawing->readingNotes().summary()));
        context.document().countIncompleteAsTold(path);
    }
    return source;
}

QString fileName(const QString &typed)
{
    const QString name = typed.trimmed();
    const bool isQuoted = name.size() >= 2 && name.startsWith(u'"') && name.endsWith(u'"');
    return isQuoted ? name.sliced(1, name.size() - 2).trimmed() : name;
}

QStringList drawingFileNames(const QString &typed)
{
    // Other systems find files in any case; names in capitals come from there.
    return {typed, typed + u".dxf"_s, typed + u".dwg"_s, typed + u".DXF"_s, typed + u".DWG"_s};
}

QString findDrawingFile(const Document &document, const QString &typed)
{
    for (const QString &name : typed.isEmpty() ? QStringList() : drawingFileNames(typed))
        if (const QString path = document.findFile(name); !path.isEmpty())
            return path;
    return {};
}

} // namespace host::kernel
