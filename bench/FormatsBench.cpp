// Reading text formats beside finding the lines of the same bytes.

#include "bench/Ratios.h"
#include "formats/LispSource.h"
#include "formats/TextReading.h"

#include <benchmark/benchmark.h>

namespace {

constexpr qsizetype fileSize = 5'000'000;

/// A Lisp program as people write it: comments, tabs, strings, functions of a dozen lines.
QByteArray lispProgram()
{
    const QByteArray function = ";; (breakline:cut data points size) -> (from to), distances along the line.\n"
                                ";;\tThe second point may lie in front of the first.\n"
                                "\n"
                                "(defun breakline:cut (data points size offset / along middle half)\n"
                                "\t(setq along  (mapcar '(lambda (point) (breakline:along data point)) points)\n"
                                "\t      middle (/ (apply '+ along) 2.0) ; between the two\n"
                                "\t      half   (max (/ (abs (apply '- along)) 2.0) (+ (/ size 2.0) offset)))\n"
                                "\t(if (<= 0.0 middle (breakline:length data))\n"
                                "\t\t(princ \"\\nThe break lies on the line.\")\n"
                                "\t\t(list (- middle half) (+ middle half))))\n"
                                "\n";
    return function.repeated(fileSize / function.size());
}

void findLines(benchmark::State &state)
{
    const QByteArray text = lispProgram();
    for (auto _ : state) {
        qsizetype length = 0;
        for (ortakit::LineReader reader(text); reader.next();)
            length += reader.line().size();
        benchmark::DoNotOptimize(length);
    }
    state.SetBytesProcessed(int64_t(state.iterations()) * text.size());
}
BENCHMARK(findLines)->Unit(benchmark::kMillisecond);

void scanLisp(benchmark::State &state)
{
    const QByteArray text = lispProgram();
    for (auto _ : state)
        benchmark::DoNotOptimize(ortakit::scanLispSource(text));
    state.SetBytesProcessed(int64_t(state.iterations()) * text.size());
}
BENCHMARK(scanLisp)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    return bench::runWithRatios(argc, argv, {{"scanLisp", "findLines"}});
}
