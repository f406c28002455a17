#pragma once

#include <cstdint>
#include <vector>

namespace gatewise {

/// What an entry of the board is sorted by: a number or the bytes of a text, in `high` and then `low`.
struct BoardSortKey {
    std::uint64_t high = 0;
    std::uint64_t low = 0;
    bool canWin = true; // below the sentinel of the sort: else it is never found to be the smallest
};

/// The order in which the board's selection sort leaves its entries: element i of the result is the entry
/// that ends at place i. Entries of equal keys keep their order unless an exchange carried one of them away.
std::vector<std::uint32_t> SortBoard(const std::vector<BoardSortKey>& keys);

} // namespace gatewise
