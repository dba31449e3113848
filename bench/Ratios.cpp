#include "bench/Ratios.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <map>

namespace bench {

namespace {

/// Prints as usual and keeps the time of each benchmark; of repetitions the median.
class KeepingReporter final : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            const bool isMedian = run.run_type == Run::RT_Aggregate && run.aggregate_name == "median";
            if (isMedian || run.run_type == Run::RT_Iteration)
                m_seconds[nameOf(run)] = run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit);
        }
        ConsoleReporter::ReportRuns(runs);
    }

    /// Seconds an iteration; 0 for a benchmark that did not run.
    double seconds(const std::string &name) const
    {
        const auto found = m_seconds.find(name);
        return found == m_seconds.end() ? 0.0 : found->second;
    }

private:
    /// "name", or "name/argument".
    static std::string nameOf(const Run &run)
    {
        const std::string &arguments = run.run_name.args;
        return arguments.empty() ? run.run_name.function_name : run.run_name.function_name + '/' + arguments;
    }

    std::map<std::string, double> m_seconds;
};

void printRatio(const Ratio &ratio, double measured, double baseline)
{
    std::printf("%-32s / %-32s %8.2f", ratio.measurement.c_str(), ratio.baseline.c_str(), measured / baseline);
    if (ratio.goal > 0)
        std::printf("   goal %.1f %s", ratio.goal, measured / baseline <= ratio.goal ? "met" : "MISSED");
    if (ratio.atLeast > 0)
        std::printf("   at least %.0f %s", ratio.atLeast, measured / baseline >= ratio.atLeast ? "met" : "MISSED");
    std::printf("\n");
}

} // namespace

int runWithRatios(int argc, char **argv, const std::vector<Ratio> &ratios)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    KeepingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    std::printf("\n");
    for (const Ratio &ratio : ratios) {
        const double measured = reporter.seconds(ratio.measurement);
        const double baseline = reporter.seconds(ratio.baseline);
        if (measured > 0 && baseline > 0)
            printRatio(ratio, measured, baseline);
    }
    return 0;
}

} // namespace bench
