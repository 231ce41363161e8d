// Numbers of repeated measurements.
#pragma once

#include <algorithm>
#include <vector>

// The middle of the values, the mean of the two middle ones for an even number; values must not be empty.
[[nodiscard]] inline double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}
