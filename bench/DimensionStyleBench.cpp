// Dimension style files of 500 and of 5,000 styles: listing them, reading the last style, copying a fifth of the
// styles. What takes time in proportion to the file takes ten times as long for the larger one.

#include "bench/Ratios.h"
#include "formats/DimensionStyleFile.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace ortakit;

namespace {

constexpr int fewStyles = 500;
constexpr int manyStyles = 5'000;
constexpr int variableCount = 75;

QString nameOf(int number)
{
    return QStringLiteral("Style %1").arg(number);
}

QByteArray section(int number)
{
    QByteArray text = "DIMENSION_STYLE_NAME " + nameOf(number).toUtf8() + "\r\nDIMFILE 1\r\n";
    for (int variable = 0; variable < variableCount; ++variable)
        text += "DIMVAR" + QByteArray::number(variable) + ' ' + QByteArray::number(number * 0.125) + "\r\n";
    return text + "DIMTXSTY Standard\r\nDIMTXT_FONT txt\r\nDIMTXT_HEIGHT 0\r\n"
                  "DIMLT DASHED 27\r\n*DASHED,dashes\r\nA,0.5,-0.25\r\nEND_OF_STYLE\r\n";
}

/// A file of so many styles, made once for all measurements.
QString fileOf(int styles)
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("%1.dim").arg(styles));
    QFile file(path);
    if (!file.exists() && file.open(QIODevice::WriteOnly)) {
        for (int number = 0; number < styles; ++number)
            file.write(section(number));
    }
    return path;
}

template <int styles>
void list(benchmark::State &state)
{
    const QString path = fileOf(styles);
    for (auto _ : state) {
        if (listStyleNames(path).size() != styles)
            return state.SkipWithError("styles are missing");
    }
}

template <int styles>
void readLast(benchmark::State &state)
{
    const QString path = fileOf(styles);
    for (auto _ : state) {
        if (readStyleVariables(path, nameOf(styles - 1)).entries.size() != variableCount + 3)
            return state.SkipWithError("variables are missing");
    }
}

template <int styles>
void copyFifth(benchmark::State &state)
{
    const QString path = fileOf(styles);
    QStringList names;
    for (int number = 0; number < styles; number += 5)
        names.prepend(nameOf(number));
    for (auto _ : state) {
        if (copyStyles(path, names, TextStyleCopy::Full).text.isEmpty())
            return state.SkipWithError("nothing was copied");
    }
}

template <int styles>
void readBytes(benchmark::State &state)
{
    const QString path = fileOf(styles);
    for (auto _ : state) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return state.SkipWithError("cannot read");
        benchmark::DoNotOptimize(file.readAll().count('\n'));
    }
}

BENCHMARK(list<fewStyles>)->Name("listFew")->Unit(benchmark::kMillisecond);
BENCHMARK(list<manyStyles>)->Name("listMany")->Unit(benchmark::kMillisecond);
BENCHMARK(readLast<fewStyles>)->Name("readLastOfFew")->Unit(benchmark::kMillisecond);
BENCHMARK(readLast<manyStyles>)->Name("readLastOfMany")->Unit(benchmark::kMillisecond);
BENCHMARK(copyFifth<fewStyles>)->Name("copyFifthOfFew")->Unit(benchmark::kMillisecond);
BENCHMARK(copyFifth<manyStyles>)->Name("copyFifthOfMany")->Unit(benchmark::kMillisecond);
BENCHMARK(readBytes<fewStyles>)->Name("readBytesOfFew")->Unit(benchmark::kMillisecond);
BENCHMARK(readBytes<manyStyles>)->Name("readBytesOfMany")->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    return bench::runWithRatios(argc, argv,
                                {{"readBytesOfMany", "readBytesOfFew"},
                                 {"listMany", "listFew"},
                                 {"readLastOfMany", "readLastOfFew"},
                                 {"copyFifthOfMany", "copyFifthOfFew"},
                                 {"listMany", "readBytesOfMany"},
                                 {"readLastOfMany", "readBytesOfMany"},
                                 {"copyFifthOfMany", "readBytesOfMany"}});
}
