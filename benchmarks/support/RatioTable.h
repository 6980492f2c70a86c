#pragma once

#include <benchmark/benchmark.h>

#include <limits>
#include <map>
#include <optional>
#include <string>

/// Runs every registered benchmark and prints a table of their medians and of the least times, which is what
/// they take when the machine does nothing else. A benchmark is named "task/library/way"; the way "floor" is
/// what the machine itself needs, and the others of the same task and library are also told as multiples of
/// it. So they are of the way "durable", where there is one. The counter "late" of a benchmark is how many of
/// its frames took longer than a screen gives them.
class RatioTable : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &) override { return true; }
    void ReportRuns(const std::vector<Run> &runs) override;
    void Finalize() override;

private:
    struct Times {
        double median = 0;
        double least = std::numeric_limits<double>::infinity();
        std::optional<double> late;
    };
    using Row = std::map<std::string, Times>; // by way

    Times &timesOf(const Run &run);
    bool isUsed(const std::string &floor) const;
    void printRatios(const Row &row, const Times &times, double Times::*time) const;

    std::vector<std::string> m_names; // "task/library", in the order of their running
    std::map<std::string, Row> m_rows;
};

/// The whole `main` of a benchmark program.
int runAndPrintRatios(int argc, char **argv);
