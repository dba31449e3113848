// Loading and saving drawings beside the least that could be done with the same bytes: finding their lines, writing
// them.

#include "bench/DimeLoad.h"
#include "bench/Ratios.h"
#include "host/drawing/file/Save.h"
#include "host/drawing/records/Drawing.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <cstring>
#include <fstream>
#include <unistd.h>

using namespace host::drawing;

namespace {

constexpr int entityCount = 250'000;

/// A drawing of lines, circles and texts on a dozen layers, as a file has it.
QByteArray sampleDrawing()
{
    QByteArray text =
        "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1027\n  9\n$HANDSEED\n  5\nFFFFFF\n  0\nENDSEC\n"
        "  0\nSECTION\n  2\nENTITIES\n";
    text.reserve(60'000'000);
    char entity[512];
    for (int i = 0; i < entityCount; ++i) {
        const double x = (i % 1000) * 1.25;
        const double y = (i / 1000) * 0.75;
        const int kind = i % 3;
        const char *type = kind == 0 ? "LINE" : kind == 1 ? "CIRCLE" : "TEXT";
        int length = std::snprintf(
            entity, sizeof entity,
            "  0\n%s\n  5\n%X\n330\n1F\n100\nAcDbEntity\n  8\nLAYER_%d\n 10\n%.10f\n 20\n%.10f\n 30\n0.0\n", type,
            0x100 + i, i % 12, x, y);
        text.append(entity, length);
        if (kind == 0)
            length = std::snprintf(entity, sizeof entity, " 11\n%.10f\n 21\n%.10f\n 31\n0.0\n", x + 1, y + 0.5);
        else if (kind == 1)
            length = std::snprintf(entity, sizeof entity, " 40\n%.6f\n", 0.25 + i % 7);
        else
            length = std::snprintf(entity, sizeof entity, " 40\n2.5\n  1\nRoom %d\n 50\n0.0\n", i);
        text.append(entity, length);
    }
    return text + "  0\nENDSEC\n  0\nEOF\n";
}

/// The sample, in memory and on disk.
struct Sample
{
    QTemporaryDir folder;
    QByteArray bytes = sampleDrawing();
    QString path = folder.filePath(QStringLiteral("sample.dxf"));

    Sample()
    {
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write(bytes);
    }
};

Sample &sample()
{
    static Sample instance;
    return instance;
}

void setRate(benchmark::State &state)
{
    state.SetBytesProcessed(state.iterations() * sample().bytes.size());
}

QByteArray readAll()
{
    QFile file(sample().path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll();
}

void splitLines(benchmark::State &state)
{
    for (auto _ : state) {
        const QByteArray bytes = readAll();
        const char *at = bytes.constData();
        const char *const end = at + bytes.size();
        std::size_t lines = 0;
        while (const void *feed = std::memchr(at, '\n', static_cast<std::size_t>(end - at))) {
            at = static_cast<const char *>(feed) + 1;
            ++lines;
        }
        benchmark::DoNotOptimize(lines);
    }
    setRate(state);
}
BENCHMARK(splitLines)->Unit(benchmark::kMillisecond)->MinTime(1);

/// Kilobytes of the process that are its own, not the mapping of a file.
long privateMemory()
{
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        if (word == "RssAnon:") {
            long kilobytes = 0;
            status >> kilobytes;
            return kilobytes;
        }
    }
    return 0;
}

void loadDrawing(benchmark::State &state)
{
    for (auto _ : state) {
        const ReadResult result = Drawing::open(sample().path);
        if (!result)
            return state.SkipWithError(qPrintable(result.error.text));
        benchmark::DoNotOptimize(result.drawing->first());
    }
    setRate(state);
    const long before = privateMemory();
    const ReadResult result = Drawing::open(sample().path);
    state.counters["memory/file"] = double(privateMemory() - before) * 1024 / double(sample().bytes.size());
}
BENCHMARK(loadDrawing)->Unit(benchmark::kMillisecond)->MinTime(1);

#ifdef ORTAKIT_HAS_DIME
void loadWithLibdime(benchmark::State &state)
{
    const QByteArray path = QFile::encodeName(sample().path);
    for (auto _ : state) {
        if (!bench::loadWithDime(path.constData()))
            return state.SkipWithError("libdime cannot read the sample");
    }
    setRate(state);
}
BENCHMARK(loadWithLibdime)->Unit(benchmark::kMillisecond);
#endif

/// Whether the bytes of the sample could be written to `path`, and put on the disk where `sync` says so.
bool writeSample(const QString &path, bool sync)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(sample().bytes) == sample().bytes.size() && file.flush() &&
           (!sync || fsync(file.handle()) == 0);
}

void writePlainly(benchmark::State &state)
{
    for (auto _ : state) {
        if (!writeSample(sample().folder.filePath(QStringLiteral("plain.dxf")), false))
            return state.SkipWithError("cannot write");
    }
    setRate(state);
}
BENCHMARK(writePlainly)->Unit(benchmark::kMillisecond)->MinTime(1)->UseRealTime();

// What saving has to do at the least: its bytes are on the disk when it says so.
void writeToDisk(benchmark::State &state)
{
    for (auto _ : state) {
        if (!writeSample(sample().folder.filePath(QStringLiteral("synced.dxf")), true))
            return state.SkipWithError("cannot write");
    }
    setRate(state);
}
BENCHMARK(writeToDisk)->Unit(benchmark::kMillisecond)->MinTime(1)->UseRealTime();

void saveUnchanged(benchmark::State &state)
{
    const ReadResult drawing = Drawing::fromBytes(sample().bytes);
    const QString path = sample().folder.filePath(QStringLiteral("saved.dxf"));
    for (auto _ : state) {
        if (const SaveResult result = saveCopy(*drawing.drawing, path); !result)
            return state.SkipWithError(qPrintable(result.error));
    }
    setRate(state);
}
BENCHMARK(saveUnchanged)->Unit(benchmark::kMillisecond)->MinTime(1)->UseRealTime();

} // namespace

int main(int argc, char **argv)
{
    return bench::runWithRatios(argc, argv,
                                {{"loadDrawing", "splitLines", 4.0},
                                 {"loadWithLibdime", "splitLines"},
                                 {"saveUnchanged", "writeToDisk", 2.0},
                                 {"saveUnchanged", "writePlainly", 2.0}});
}
