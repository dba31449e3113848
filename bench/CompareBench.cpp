// Two drawings of 1,000,000 entities compared, one entity in a thousand of which moved, beside reading both files.

#include "bench/Ratios.h"
#include "host/drawing/comparing/DifferenceText.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace host::drawing;
using namespace Qt::StringLiterals;

namespace {

constexpr int entityCount = 1'000'000;

enum class Handles
{
    Same,
    Other
};

/// Lines; of the second drawing every thousandth is longer.
QByteArray manyLines(bool isSecond, Handles handles)
{
    QByteArray text =
        "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1015\n  0\nENDSEC\n  0\nSECTION\n  2\nENTITIES\n";
    text.reserve(qsizetype(entityCount) * 170);
    char entity[256];
    for (int i = 0; i < entityCount; ++i) {
        const int handle = 0x100 + (handles == Handles::Other ? entityCount - i : i);
        const double length = isSecond && i % 1000 == 0 ? 2.0 : 1.0;
        const int size = std::snprintf(entity, sizeof entity,
                                       "  0\nLINE\n  5\n%X\n100\nAcDbEntity\n  8\nLAYER_%d\n100\nAcDbLine\n 10\n%.6f\n "
                                       "20\n%.6f\n 30\n0.0\n 11\n%.6f\n 21\n%.6f\n 31\n0.0\n",
                                       handle, i % 12, (i % 1000) * 1.25, (i / 1000) * 0.75, (i % 1000) * 1.25 + length,
                                       (i / 1000) * 0.75);
        text.append(entity, size);
    }
    return text + "  0\nENDSEC\n  0\nEOF\n";
}

struct ComparedFiles
{
    QTemporaryDir folder;

    ComparedFiles()
    {
        write(u"before"_s, manyLines(false, Handles::Same));
        write(u"after"_s, manyLines(true, Handles::Same));
        write(u"renumbered"_s, manyLines(true, Handles::Other));
    }
    void write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            std::abort();
    }
};

std::unique_ptr<Drawing> opened(const char *name)
{
    static const ComparedFiles files;
    return Drawing::open(files.folder.filePath(QString::fromLatin1(name))).drawing;
}

void readBoth(benchmark::State &state)
{
    opened("before");
    for (auto _ : state) {
        const auto before = opened("before");
        const auto after = opened("after");
        benchmark::DoNotOptimize(before->idLimit() + after->idLimit());
    }
}
BENCHMARK(readBoth)->Unit(benchmark::kMillisecond);

void compareWith(benchmark::State &state, const char *name)
{
    const auto before = opened("before");
    const auto after = opened(name);
    for (auto _ : state) {
        const Comparison comparison = compareDrawings(*before, *after);
        if (comparison.differences.size() < entityCount / 1000)
            state.SkipWithError("not all that differs was found");
    }
}
BENCHMARK_CAPTURE(compareWith, byHandle, "after")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(compareWith, byContent, "renumbered")->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    return bench::runWithRatios(
        argc, argv, {{"compareWith/byHandle", "readBoth", 2.0}, {"compareWith/byContent", "readBoth", 12.0}});
}
