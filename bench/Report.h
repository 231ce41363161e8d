// Rows of the table that the benchmarks print, one format for all.
#pragma once

#include "Statistics.h"

#include <cstdio>
#include <vector>

// One row: the medians of both sides and what their comparison comes to against its limit. True when it is
// kept.
inline bool reportRatio(const char *what, const char *unit, const std::vector<double> &ours,
                        const std::vector<double> &peer, double limit)
{
    const double ratio = median(ours) / median(peer);
    std::printf("%-44s %9.1f %9.1f %-3s %8.2f  <= %-6.2f %s\n", what, median(ours), median(peer), unit, ratio,
                limit, ratio <= limit ? "kept" : "MISSED");
    std::fflush(stdout);
    return ratio <= limit;
}

// The same for a difference in the rows' own unit.
inline bool reportDifference(const char *what, const char *unit, const std::vector<double> &ours,
                             const std::vector<double> &peer, double limit)
{
    const double difference = median(ours) - median(peer);
    std::printf("%-44s %9.1f %9.1f %-3s %+8.1f  <= %-6.1f %s\n", what, median(ours), median(peer), unit,
                difference, limit, difference <= limit ? "kept" : "MISSED");
    std::fflush(stdout);
    return difference <= limit;
}

// The same for what has nothing to be compared with, in its own unit.
inline bool reportOwn(const char *what, const char *unit, const std::vector<double> &values, double limit)
{
    const double value = median(values);
    std::printf("%-44s %9.1f %9s %-3s %8.1f  <= %-6.1f %s\n", what, value, "-", unit, value, limit,
                value <= limit ? "kept" : "MISSED");
    std::fflush(stdout);
    return value <= limit;
}
