// Listing a shape source beside a bare line splitter over the same bytes: a font of the folder ORTAKIT_FONTS, where it
// is given, and a source made here. The files are in memory, so that the disk says nothing.

#include "bench/Ratios.h"
#include "formats/ShapeFile.h"

#include <QDir>
#include <QFile>

#include <benchmark/benchmark.h>
#include <cstring>

using namespace ortakit;

namespace {

/// A source of 40,000 shapes with nine lines each, as fonts have them.
QByteArray generatedSource()
{
    QByteArray text = ";; generated\n";
    for (int shape = 1; shape <= 40'000; ++shape) {
        text += "\n; character " + QByteArray::number(shape) + "\n*0" + QByteArray::number(shape, 16).toUpper() +
                ",33,noname\n2\n14\n8,(-12,-32)\n9,10,28,9,-28,0,0\n1\n14,8,(-12,0)\n0\n";
    }
    return text;
}

/// The largest shape source in the folder ORTAKIT_FONTS; empty without one.
QByteArray largestFont()
{
    const QString folder = qEnvironmentVariable("ORTAKIT_FONTS");
    if (folder.isEmpty())
        return {};
    const QFileInfoList fonts = QDir(folder).entryInfoList({QStringLiteral("*.shp")}, QDir::Files, QDir::Size);
    QFile file(fonts.isEmpty() ? QString() : fonts.first().filePath());
    return !fonts.isEmpty() && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void splitLines(benchmark::State &state, const QByteArray &text)
{
    if (text.isEmpty())
        return state.SkipWithError("ORTAKIT_FONTS names no folder with shape sources");
    for (auto _ : state) {
        qsizetype lines = 0;
        const char *const end = text.constEnd();
        for (const char *at = text.constBegin(); at < end; ++lines) {
            const void *found = std::memchr(at, '\n', std::size_t(end - at));
            at = found ? static_cast<const char *>(found) + 1 : end;
        }
        benchmark::DoNotOptimize(lines);
    }
    state.SetBytesProcessed(state.iterations() * text.size());
}

void list(benchmark::State &state, const QByteArray &text)
{
    if (text.isEmpty())
        return state.SkipWithError("ORTAKIT_FONTS names no folder with shape sources");
    for (auto _ : state)
        benchmark::DoNotOptimize(listShapes(text).definitions.size());
    state.SetBytesProcessed(state.iterations() * text.size());
}

} // namespace

int main(int argc, char **argv)
{
    const QByteArray generated = generatedSource();
    const QByteArray font = largestFont();
    for (const auto &[name, text] : {std::pair("Generated", &generated), std::pair("Font", &font)}) {
        const std::string ending = name;
        benchmark::RegisterBenchmark(("split" + ending).c_str(), splitLines, *text)->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark(("list" + ending).c_str(), list, *text)->Unit(benchmark::kMillisecond);
    }
    return bench::runWithRatios(argc, argv, {{"listGenerated", "splitGenerated", 5}, {"listFont", "splitFont", 5}});
}
