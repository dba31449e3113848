#include "bench/TableDialog.h"

#include "bench/Ratios.h"

#include <QApplication>

namespace bench {

int runTableBench(int argc, char **argv, const std::vector<TableMeasurement> &measurements,
                  const std::vector<long> &rowCounts, double goal)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    std::vector<Ratio> ratios;
    for (const auto &[name, measure] : measurements) {
        std::string before;
        for (const long count : rowCounts) {
            benchmark::RegisterBenchmark(name.c_str(), measure)->Arg(count)->Unit(benchmark::kMillisecond);
            const std::string now = name + '/' + std::to_string(count);
            if (!before.empty())
                ratios.push_back({now, before, goal});
            before = now;
        }
    }
    return runWithRatios(argc, argv, ratios);
}

} // namespace bench
