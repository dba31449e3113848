#pragma once

#include <string>
#include <vector>

namespace bench {

/// One line of what a benchmark program prints at its end: how long a measurement took in times of its baseline.
struct Ratio
{
    std::string measurement; ///< name of a benchmark; with an argument "name/argument"
    std::string baseline;    ///< name of another one of the same program
    double goal = 0;         ///< at most this; 0 for no goal
    double atLeast = 0;      ///< the goal of a baseline that is to be outrun: at least this
};

/// Runs the registered benchmarks and prints their times, then the ratios. Returns the exit status of the program:
/// goals that are missed are said, not punished, because machines differ.
int runWithRatios(int argc, char **argv, const std::vector<Ratio> &ratios);

} // namespace bench
