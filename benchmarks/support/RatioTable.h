#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>

/// Runs every registered benchmark and prints a table of their medians. A benchmark is named
/// "task/library/way"; the way "floor" is what the machine itself needs, and the others of the same task and
/// library are also told as multiples of it.
class RatioTable : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &) override { return true; }
    void ReportRuns(const std::vector<Run> &runs) override;
    void Finalize() override;

private:
    using Medians = std::map<std::string, double>; // by way, in milliseconds

    std::vector<std::string> m_rows; // "task/library", in the order of their running
    std::map<std::string, Medians> m_medians;
};

/// The whole `main` of a benchmark program.
int runAndPrintRatios(int argc, char **argv);
