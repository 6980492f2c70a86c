#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <optional>
#include <string>

/// Runs every registered benchmark and prints a table of their medians. A benchmark is named
/// "task/library/way"; the way "floor" is what the machine itself needs, and the others of the same task and
/// library are also told as multiples of it. The counter "late" of a benchmark is how many of its frames took
/// longer than a screen gives them.
class RatioTable : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &) override { return true; }
    void ReportRuns(const std::vector<Run> &runs) override;
    void Finalize() override;

private:
    struct Median {
        double milliseconds;
        std::optional<double> late;
    };
    using Medians = std::map<std::string, Median>; // by way

    std::vector<std::string> m_rows; // "task/library", in the order of their running
    std::map<std::string, Medians> m_medians;
};

/// The whole `main` of a benchmark program.
int runAndPrintRatios(int argc, char **argv);
