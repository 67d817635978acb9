#pragma once

#include <QString>

#include <chrono>
#include <optional>
#include <vector>

/// One reported line: "what: 1.2 ms / 1 ms = 1.2 (at most 1.3)".
struct Ratio
{
    QString what;
    double measured = 0;
    double baseline = 0;
    QString unit;
    std::optional<double> limit = {}; ///< the highest allowed ratio
};

/// Writes a line to the file that BENCHMARK_RATIOS names; ends it with "MISSED" beyond the limit.
void report(const Ratio &ratio);

/// The value that a fraction (0 to 1) of the values does not exceed. \a values is not empty.
[[nodiscard]] double quantile(std::vector<double> values, double fraction);

/// The time that \a work takes, in milliseconds.
template<typename Work>
[[nodiscard]] double millisecondsOf(const Work &work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}
