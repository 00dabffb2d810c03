#pragma once

#include <algorithm>
#include <numeric>
#include <vector>

using Numbers = std::vector<double>;

/// 0 when there are none.
[[nodiscard]] inline double mean(const Numbers &numbers) {
    const double sum = std::accumulate(numbers.begin(), numbers.end(), 0.0);
    return numbers.empty() ? 0 : sum / static_cast<double>(numbers.size());
}

/// 0 when there are none.
[[nodiscard]] inline double median(Numbers numbers) {
    std::sort(numbers.begin(), numbers.end());
    return numbers.empty() ? 0 : numbers[numbers.size() / 2];
}
