#include "support/RatioTable.h"

#include <algorithm>
#include <cstdio>

namespace
{
constexpr auto floors = {"floor", "durable"};
}

void RatioTable::ReportRuns(const std::vector<Run> &runs)
{
    for (const Run &run : runs) {
        if (run.error_occurred) {
            std::printf("%s: %s\n", run.benchmark_name().c_str(), run.error_message.c_str());
            continue;
        }
        if (run.run_type == Run::RT_Iteration) {
            double &least = timesOf(run).least;
            least = std::min(least, run.GetAdjustedRealTime());
        } else if (run.aggregate_name == "median") {
            const auto late = run.counters.find("late");
            timesOf(run).median = run.GetAdjustedRealTime();
            if (late != run.counters.end())
                timesOf(run).late = late->second.value;
        }
    }
}

RatioTable::Times &RatioTable::timesOf(const Run &run)
{
    const std::string name = run.run_name.function_name;
    const std::size_t end = name.rfind('/');
    const std::string row = name.substr(0, end);
    if (std::ranges::find(m_names, row) == m_names.end())
        m_names.push_back(row);
    return m_rows[row][name.substr(end + 1)];
}

void RatioTable::Finalize()
{
    std::printf("%-26s %-10s", "", "");
    for (const char *time : {"median, ms", "least, ms"}) {
        std::printf(" %12s", time);
        for (const char *name : floors)
            if (isUsed(name))
                std::printf(" × %7s", name);
    }
    std::printf("\n");
    for (const std::string &name : m_names) {
        for (const auto &[way, times] : m_rows[name]) {
            std::printf("%-26s %-10s", name.c_str(), way.c_str());
            printRatios(m_rows[name], times, &Times::median);
            printRatios(m_rows[name], times, &Times::least);
            if (times.late)
                std::printf("   %.0f frames late", *times.late);
            std::printf("\n");
        }
    }
}

bool RatioTable::isUsed(const std::string &floor) const
{
    return std::ranges::any_of(m_rows, [&floor](const auto &row) { return row.second.contains(floor); });
}

void RatioTable::printRatios(const Row &row, const Times &times, double Times::*time) const
{
    std::printf(" %12.4f", times.*time);
    for (const char *name : floors) {
        const auto floor = row.find(name);
        if (floor != row.end())
            std::printf(" %9.2f", times.*time / (floor->second.*time));
        else if (isUsed(name))
            std::printf(" %9s", "");
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
