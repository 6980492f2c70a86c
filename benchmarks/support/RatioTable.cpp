#include "support/RatioTable.h"

#include <algorithm>
#include <cstdio>
#include <set>

void RatioTable::ReportRuns(const std::vector<Run> &runs)
{
    for (const Run &run : runs) {
        if (run.error_occurred) {
            std::printf("%s: %s\n", run.benchmark_name().c_str(), run.error_message.c_str());
            continue;
        }
        if (run.aggregate_name != "median")
            continue;
        const std::string name = run.run_name.function_name;
        const std::size_t end = name.rfind('/');
        const std::string row = name.substr(0, end);
        if (std::ranges::find(m_rows, row) == m_rows.end())
            m_rows.push_back(row);
        const auto late = run.counters.find("late");
        m_medians[row][name.substr(end + 1)] = {
            .milliseconds = run.GetAdjustedRealTime(),
            .late = late == run.counters.end() ? std::nullopt : std::optional(late->second.value)};
    }
}

void RatioTable::Finalize()
{
    std::printf("%-26s %-10s %12s %10s\n", "", "", "median, ms", "× floor");
    for (const std::string &row : m_rows) {
        const Medians &medians = m_medians[row];
        const auto floor = medians.find("floor");
        for (const auto &[way, median] : medians) {
            std::printf("%-26s %-10s %12.4f", row.c_str(), way.c_str(), median.milliseconds);
            if (floor != medians.end())
                std::printf(" %10.2f", median.milliseconds / floor->second.milliseconds);
            if (median.late)
                std::printf("   %.0f frames late", *median.late);
            std::printf("\n");
        }
    }
}

int runAndPrintRatios(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    RatioTable table;
    benchmark::RunSpecifiedBenchmarks(&table);
    return 0;
}
