#include "import/OnTime.h"

#include <algorithm>
#include <numeric>

namespace gatewise::importer {

std::uint32_t Names::add(std::string_view text) {
    const auto found = numbers_.find(text);
    if (found != numbers_.end()) return found->second;
    const auto number = static_cast<std::uint32_t>(texts_.size());
    numbers_.emplace(texts_.emplace_back(text), number);
    return number;
}

std::vector<std::uint32_t> Names::ranks() const {
    std::vector<std::uint32_t> order(texts_.size());
    std::iota(order.begin(), order.end(), 0U);
    std::sort(order.begin(), order.end(),
              [&](std::uint32_t a, std::uint32_t b) { return texts_[a] < texts_[b]; });
    std::vector<std::uint32_t> out(order.size());
    for (std::uint32_t i = 0; i < order.size(); ++i) out[order[i]] = i;
    return out;
}

} // namespace gatewise::importer
