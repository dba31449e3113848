// One record of each of 500 drawings in a folder, as the editing-time tracker reads them, beside reading the files and
// beside opening them as drawings.

#include "bench/Ratios.h"
#include "host/drawing/file/NewDrawing.h"
#include "host/drawing/file/XrecordInFile.h"
#include "host/drawing/records/Dictionaries.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace host::drawing;
using namespace Qt::StringLiterals;

namespace {

constexpr int drawingCount = 500;
constexpr int objectCount = 300;

/// Lines, circles and texts, some 200 bytes each.
QByteArray entities(int count)
{
    QByteArray text;
    char entity[512];
    for (int i = 0; i < count; ++i) {
        const char *type = i % 3 == 0 ? "LINE" : i % 3 == 1 ? "CIRCLE" : "TEXT";
        int length = std::snprintf(entity, sizeof entity,
                                   "  0\n%s\n  5\n%X\n330\n1F\n100\nAcDbEntity\n  8\nLAYER_%d\n 10\n%.10f\n 20\n%.10f\n"
                                   " 30\n0.0\n",
                                   type, 0x10000 + i, i % 12, (i % 1000) * 1.25, (i / 1000) * 0.75);
        text.append(entity, length);
        text += i % 3 == 0   ? " 11\n4.1254000000\n 21\n7.5112000000\n 31\n0.0\n"
                : i % 3 == 1 ? " 40\n2.750000\n"
                             : " 40\n2.5\n  1\nRoom number\n 50\n0.0\n";
    }
    return text;
}

/// A drawing with so many entities, and the record in the middle of the objects.
QByteArray sampleDrawing(int entityCount)
{
    const auto drawing = newDrawing();
    Dictionaries &dictionaries = drawing->dictionaries();
    for (int object = 0; object < objectCount; ++object) {
        const QString name = object == objectCount / 2 ? u"KORA_TRACKTIME"_s : u"OBJECT_%1"_s.arg(object);
        dictionaries.setXrecord(dictionaries.ensureRoot(), name,
                                {{280, qint64(1)}, {90, qint64(15)}, {40, 1.5}, {1, u"1700000000000"_s}});
    }
    QByteArray text = drawing->toBytes();
    const qsizetype section = text.indexOf("ENTITIES\n") + 9;
    return text.insert(section, entities(entityCount));
}

/// Drawings of 0.2 to 4.5 MB, most of them small.
struct Folder
{
    QTemporaryDir folder;
    QStringList paths;

    Folder()
    {
        constexpr int entityCounts[] = {500, 1'000, 2'000, 2'000, 3'000, 4'000, 5'000, 8'000, 12'000, 25'000};
        for (const int count : entityCounts) {
            const QByteArray bytes = sampleDrawing(count);
            for (int copy = 0; copy < drawingCount / int(std::size(entityCounts)); ++copy) {
                QFile file(folder.filePath(u"%1-%2.dxf"_s.arg(count).arg(copy)));
                if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size())
                    paths.append(file.fileName());
            }
        }
    }
};

const QStringList &paths()
{
    static const Folder folder;
    return folder.paths;
}

/// Goes through all files; `read` says whether one was as it should be.
template <class Read>
void readAll(benchmark::State &state, Read read)
{
    for (auto _ : state) {
        for (const QString &path : paths()) {
            if (!read(path))
                return state.SkipWithError("a drawing was not read");
        }
    }
    state.SetItemsProcessed(state.iterations() * paths().size());
}

void readRecords(benchmark::State &state)
{
    readAll(state, [](const QString &path) { return xrecordInFile(path, u"KORA_TRACKTIME").has_value(); });
}
BENCHMARK(readRecords)->Unit(benchmark::kMillisecond)->UseRealTime();

void readFiles(benchmark::State &state)
{
    readAll(state, [](const QString &path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) && !file.readAll().isEmpty();
    });
}
BENCHMARK(readFiles)->Unit(benchmark::kMillisecond)->UseRealTime();

void openDrawings(benchmark::State &state)
{
    readAll(state, [](const QString &path) {
        const ReadResult read = Drawing::open(path);
        if (!read)
            return false;
        const Dictionaries &dictionaries = read.drawing->dictionaries();
        return dictionaries.xrecord(dictionaries.root(), u"KORA_TRACKTIME").has_value();
    });
}
BENCHMARK(openDrawings)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char **argv)
{
    if (paths().size() != drawingCount) // and they are not made while the clock runs
        return 1;
    return bench::runWithRatios(argc, argv, {{"readRecords", "readFiles", 1.0}, {"openDrawings", "readRecords", 0, 5}});
}
