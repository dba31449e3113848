#include "host/drawing/file/Recovery.h"

#include "files/qt/Files.h"
#include "host/drawing/dwg/DwgText.h"
#include "host/drawing/file/DamagedBinary.h"
#include "host/drawing/file/SectionSorter.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/FileIndexer.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Structure.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/tags/DrawingTexts.h"

#include <QFileInfo>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

/// Places in a file are kept in 32 bits.
constexpr qint64 largestDamagedFile = 0xFFFFFFFELL;

Recovered nothingRecovered(const QString &reason)
{
    return {nullptr, {}, {0, reason}};
}

void addRecoveryStep(RecoveryReport &report, const QString &what, const QString &why)
{
    report.add({RecoveryStep::Done::Added, RecoveryStep::Unit::Line, 0, 0, what, why});
}

/// Records by the line ends that lose less of the file: a carriage return alone is text in some files and a line end in
/// others.
FoundRecords recordsOf(const QByteArray &text, RecoveryReport &report, ByteArena &arena)
{
    RecoveryReport byLineFeeds;
    FoundRecords found = findRecords(text, LineEnds::LineFeed, byLineFeeds, arena);
    if (!byLineFeeds.isEmpty() && hasLoneCarriageReturn(text)) {
        RecoveryReport byAll;
        FoundRecords other = findRecords(text, LineEnds::Any, byAll, arena);
        if (other.lostBytes < found.lostBytes) {
            report = byAll;
            return other;
        }
    }
    report = byLineFeeds;
    return found;
}

/// Gives blocks whose table entry is lost another one, with the handle that the block and others refer to.
void completeBlocks(Drawing &drawing, RecoveryReport &report)
{
    Tables &tables = drawing.tables();
    for (const RecordId block : drawing.blocks().all()) {
        const QString name = drawing.blocks().name(block);
        const Handle owner = drawing.owner(block);
        const RecordId entry = owner.isNull() ? noRecord : drawing.find(owner);
        if (name.isEmpty() || isValid(entry) || isValid(tables.find(TableKind::BlockRecord, name)))
            continue;
        const Handle handle = owner.isNull() ? drawing.takeHandle() : owner;
        const RecordId table = tables.ensureTable(TableKind::BlockRecord);
        FieldList fields = {{0, u"BLOCK_RECORD"_s}, {5, handle}};
        if (hasOwners(drawing))
            fields.push_back({330, drawing.handle(table)});
        fields.push_back({100, u"AcDbSymbolTableRecord"_s});
        fields.push_back({100, u"AcDbBlockTableRecord"_s});
        fields.push_back({2, name});
        drawing.insert(noRecord, table, RecordKind::TableEntry, fields);
        addRecoveryStep(report, u"BLOCK_RECORD"_s, DrawingTexts::tr("the one of block %1 was lost").arg(name));
    }
}

/// What drawings from R13 on need besides sections.
void completeDrawing(Drawing &drawing, const FileTraits &traits, quint64 firstNewHandle, RecoveryReport &report)
{
    if (!hasMarkers(drawing))
        return;
    const std::optional<Field> seed = drawing.header().get(u"$HANDSEED");
    if (!seed || (traits.nextHandle > firstNewHandle && seed->handle().value < traits.nextHandle))
        drawing.header().set(u"$HANDSEED", {5, Handle{traits.nextHandle}});
    completeBlocks(drawing, report);
}

/// Reading a DWG file leaves out what is damaged; its text may lack what holds the rest together.
Recovered recoverDwg(QByteArrayView bytes)
{
    DwgText dwg = textOfDwg(bytes);
    if (!dwg)
        return nothingRecovered(dwg.error);
    Recovered result = recoverDrawing(std::move(dwg.text));
    RecoveryReport reading;
    for (const ReadingNote &note : dwg.notes.list) {
        if (note.kind == ReadingNote::Kind::Lost)
            reading.add({RecoveryStep::Done::Dropped, RecoveryStep::Unit::Byte, 0, 0,
                         note.type.isEmpty() ? DrawingTexts::tr("a part of the file") : note.type,
                         note.handle.isEmpty() ? note.text : u"%1, %2"_s.arg(note.handle, note.text)});
    }
    result.report.putInFront(reading);
    return result;
}

} // namespace

Recovered recoverDrawing(QByteArray bytes)
{
    if (bytes.size() > largestDamagedFile)
        return nothingRecovered(DrawingTexts::tr("the file is larger than 4 GB"));
    if (const QString foreign = foreignContent(bytes); !foreign.isEmpty())
        return nothingRecovered(foreign);
    if (isDwg(bytes))
        return recoverDwg(bytes);
    Recovered result;
    RecoveryReport binaryReport;
    const bool isBinary = bytes.startsWith(binaryMark());
    const QByteArray text = isBinary ? textOfDamagedBinary(bytes, binaryReport) : bytes;
    bytes.clear();
    ByteArena arena;
    FoundRecords found = recordsOf(text, result.report, arena);
    if (found.records.size() < 2)
        return nothingRecovered(DrawingTexts::tr("nothing in this file is a part of a drawing"));
    FileTraits traits = traitsOf(found.records, text, result.report);
    dropNameless(found.records, result.report);
    mendVariables(found.records, result.report, arena);
    const quint64 firstNewHandle = traits.nextHandle;
    mendHandles(found.records, traits, result.report, arena);
    mendTexts(found.records, traits, result.report, arena);
    if (!result.report.isEmpty() || !binaryReport.isEmpty())
        mendRoot(found.records, traits, result.report, arena);
    QByteArray sorted = sortedText(found, traits, result.report, arena);
    const bool isDamaged = !result.report.isEmpty() || !binaryReport.isEmpty();
    ReadResult read = Drawing::fromBytes(isDamaged || isBinary ? std::move(sorted) : text);
    if (!read)
        return {nullptr, result.report, read.error};
    result.drawing = std::move(read.drawing);
    if (isDamaged)
        completeDrawing(*result.drawing, traits, firstNewHandle, result.report);
    result.drawing->journal().clear();
    result.drawing->journal().markUnsaved();
    if (isBinary) {
        result.report.countInTags();
        result.report.putInFront(binaryReport);
        result.drawing->setForm(FileForm::Binary);
    }
    return result;
}

Recovered recoverFile(const QString &path)
{
    if (QFileInfo(path).isDir())
        return nothingRecovered(DrawingTexts::tr("%1: this is a folder").arg(path));
    files::WholeBytes file = files::readWhole(path, largestDamagedFile);
    if (!file)
        return nothingRecovered(u"%1: %2"_s.arg(path, file.reason));
    return recoverDrawing(std::move(file.bytes));
}

QString openingError(const QString &path, const ReadResult &failed)
{
    QString message = failed.error.message();
    if (!message.startsWith(path))
        message = u"%1: %2"_s.arg(path, message);
    return failed.isDamaged ? message + DrawingTexts::tr(" (--recover opens what is sound of it)") : message;
}

} // namespace host::drawing
