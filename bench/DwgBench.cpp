// Reading DWG files to the text that the drawing store takes: beside what the store does with this text, and at a size
// and ten times that, where the times must grow as the sizes do. Where ORTAKIT_CORPUS names the folder of drawings made
// elsewhere, those in it and in the folder dwg beside it are read as well.

#include "bench/MadeDwg.h"
#include "bench/Ratios.h"
#include "host/drawing/records/Drawing.h"
#include "host/dwg/drawing/DrawingText.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <filesystem>
#include <fstream>

using namespace bench;

namespace {

constexpr int smallCount = 10'000;
constexpr int largeCount = 100'000;

host::dwg::DrawingText textOf(const FileBytes &file)
{
    return host::dwg::readDrawing({file.data(), file.size()});
}

/// Drawings made elsewhere may have what is told as a problem.
enum class Origin
{
    Here,
    Elsewhere
};

void readFrom(benchmark::State &state, const FileBytes &file, Origin origin)
{
    std::size_t textSize = 0;
    for (auto _ : state) {
        const host::dwg::DrawingText read = textOf(file);
        if (read.text.empty() || (origin == Origin::Here && !read.problems.list().empty()))
            return state.SkipWithError("the drawing cannot be read");
        textSize = read.text.size();
        benchmark::DoNotOptimize(read.text.data());
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(file.size()));
    state.counters["text/file"] = static_cast<double>(textSize) / static_cast<double>(file.size());
}

void readFile(benchmark::State &state, const FileBytes &file)
{
    readFrom(state, file, Origin::Here);
}

void readForeign(benchmark::State &state, const FileBytes &file)
{
    readFrom(state, file, Origin::Elsewhere);
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

/// Drawings made elsewhere that are large enough for their time to be more than that of looking for it.
std::vector<std::filesystem::path> foreignDrawings()
{
    constexpr std::uintmax_t smallest = 50'000;
    std::vector<std::filesystem::path> files;
    const char *const corpus = std::getenv("ORTAKIT_CORPUS");
    if (!corpus)
        return files;
    for (const std::filesystem::path &folder :
         {std::filesystem::path(corpus), std::filesystem::path(corpus) / "../dwg"}) {
        std::error_code isMissing;
        for (const auto &entry : std::filesystem::directory_iterator(folder, isMissing)) {
            if (entry.path().extension() == ".dwg" && entry.file_size() >= smallest)
                files.push_back(entry.path());
        }
    }
    std::ranges::sort(files, {}, [](const std::filesystem::path &file) { return file.filename(); });
    return files;
}

FileBytes bytesOf(const std::filesystem::path &file)
{
    FileBytes bytes(std::filesystem::file_size(file));
    std::ifstream(file, std::ios::binary)
        .read(reinterpret_cast<char *>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    return bytes;
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
    for (const std::filesystem::path &file : foreignDrawings())
        add(file.filename().string(), readForeign, bytesOf(file));
    return runWithRatios(argc, argv, ratios);
}
