// Reading DWG files to the text that the drawing store takes: beside what the store does with this text, and at a size
// and ten times that, where the times must grow as the sizes do.

#include "bench/MadeDwg.h"
#include "bench/Ratios.h"
#include "host/drawing/records/Drawing.h"
#include "host/dwg/drawing/DrawingText.h"

#include <benchmark/benchmark.h>

using namespace bench;

namespace {

constexpr int smallCount = 10'000;
constexpr int largeCount = 100'000;

host::dwg::DrawingText textOf(const FileBytes &file)
{
    return host::dwg::readDrawing({file.data(), file.size()});
}

void readFile(benchmark::State &state, const FileBytes &file)
{
    std::size_t textSize = 0;
    for (auto _ : state) {
        const host::dwg::DrawingText read = textOf(file);
        if (read.text.empty() || !read.problems.list().empty())
            return state.SkipWithError("the drawing made here cannot be read");
        textSize = read.text.size();
        benchmark::DoNotOptimize(read.text.data());
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(file.size()));
    state.counters["text/file"] = static_cast<double>(textSize) / static_cast<double>(file.size());
}

/// What the store does with the text: it finds its records and tags.
void indexText(benchmark::State &state, const FileBytes &file)
{
    const std::string text = textOf(file).text;
    const QByteArray bytes(text.data(), static_cast<qsizetype>(text.size()));
    for (auto _ : state) {
        const host::drawing::ReadResult result = host::drawing::Drawing::fromBytes(bytes);
        if (!result)
            return state.SkipWithError("the text of the drawing made here cannot be read");
        benchmark::DoNotOptimize(result.drawing->first());
    }
    state.SetBytesProcessed(state.iterations() * bytes.size());
}

/// The least that could be done with as many bytes of text.
void copyText(benchmark::State &state, const FileBytes &file)
{
    const std::string text = textOf(file).text;
    for (auto _ : state) {
        std::string copy;
        copy.reserve(text.size());
        copy += text;
        benchmark::DoNotOptimize(copy.data());
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

struct Row
{
    const char *name;
    FileBytes (*make)(Release, int);
    Release release;
};

constexpr Row rows[] = {
    {"entitiesR2000", manyEntities, Release::R2000}, {"entitiesR2004", manyEntities, Release::R2004},
    {"entitiesR2007", manyEntities, Release::R2007}, {"entitiesR2018", manyEntities, Release::R2018},
    {"dictionary", largeDictionary, Release::R2018}, {"inserts", manyInserts, Release::R2018},
    {"polyline", longPolyline, Release::R2018},
};

void add(const std::string &name, void (*run)(benchmark::State &, const FileBytes &), const FileBytes &file)
{
    benchmark::RegisterBenchmark(name.c_str(), run, file)->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char **argv)
{
    std::vector<Ratio> ratios;
    for (const Row &row : rows) {
        const std::string name = row.name;
        const std::string large = name + '/' + std::to_string(largeCount);
        const std::string small = name + '/' + std::to_string(smallCount);
        const FileBytes file = row.make(row.release, largeCount);
        add(large, readFile, file);
        add(small, readFile, row.make(row.release, smallCount));
        ratios.push_back({large, small, 13});
        if (row.make != manyEntities)
            continue;
        add(name + "/index", indexText, file);
        add(name + "/copy", copyText, file);
        ratios.push_back({large, name + "/index", 0});
        ratios.push_back({large, name + "/copy", 0});
    }
    return runWithRatios(argc, argv, ratios);
}
