#include "board/SortBoard.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <numeric>
#include <utility>

namespace gatewise {

namespace {

// The selection sort that the board is defined by looks, for each place i, for the first smallest key from i
// on and exchanges the two entries. Only the exchange disturbs the order of equal keys: the entry at i moves
// to where the smallest stood. So it is enough to know, for each key, at which places its entries stand now:
// a heap of places for each key gives the first one, and the entry that gives way is always the first of its
// own key. That turns n scans into n steps of a heap, with the same exchanges in the same order.

constexpr std::uint32_t kNoHeap = static_cast<std::uint32_t>(-1);

/// The places where the entries of one key stand.
struct Heap {
    std::uint32_t* begin;
    std::uint32_t* end;

    [[nodiscard]] bool empty() const { return begin == end; }
    [[nodiscard]] std::uint32_t takeFirst() {
        std::pop_heap(begin, end, std::greater<>());
        return *--end;
    }
    void moveFirstTo(std::uint32_t place) {
        std::pop_heap(begin, end, std::greater<>());
        *(end - 1) = place;
        std::push_heap(begin, end, std::greater<>());
    }
};

/// Places of the keys that can win, by key and then by place.
std::vector<std::uint32_t> placesByKey(const std::vector<BoardSortKey>& keys) {
    struct Candidate {
        std::uint64_t high, low;
        std::uint32_t place;
    };
    std::vector<Candidate> candidates;
    candidates.reserve(keys.size());
    for (std::uint32_t i = 0; i < keys.size(); ++i) {
        if (keys[i].canWin) candidates.push_back({keys[i].high, keys[i].low, i});
    }
    std::sort(candidates.begin(), candidates.end(), [](const Candidate& a, const Candidate& b) {
        if (a.high != b.high) return a.high < b.high;
        return a.low != b.low ? a.low < b.low : a.place < b.place;
    });
    std::vector<std::uint32_t> places;
    places.reserve(candidates.size());
    for (const auto& candidate : candidates) places.push_back(candidate.place);
    return places;
}

} // namespace

std::vector<std::uint32_t> SortBoard(const std::vector<BoardSortKey>& keys) {
    const auto n = static_cast<std::uint32_t>(keys.size());
    auto places = placesByKey(keys);
    std::vector<Heap> heaps;
    heaps.reserve(places.size());
    std::vector<std::uint32_t> heapOf(n, kNoHeap);
    for (std::size_t i = 0; i < places.size(); ++i) {
        const auto& key = keys[places[i]];
        // A run of equal keys stands in ascending order: it is a heap already.
        const bool newKey =
            i == 0 || keys[places[i - 1]].high != key.high || keys[places[i - 1]].low != key.low;
        if (newKey) heaps.push_back({places.data() + i, places.data() + i});
        ++heaps.back().end;
        heapOf[places[i]] = static_cast<std::uint32_t>(heaps.size()) - 1;
    }

    std::vector<std::uint32_t> entryAt(n);
    std::iota(entryAt.begin(), entryAt.end(), 0U);
    std::uint32_t i = 0;
    std::uint32_t m = 0;
    for (auto& smallest : heaps) {
        for (; !smallest.empty(); ++i) {
            m = smallest.takeFirst();
            const std::uint32_t leaving = heapOf[entryAt[i]];
            if (m != i && leaving != kNoHeap) heaps[leaving].moveFirstTo(m);
            std::swap(entryAt[i], entryAt[m]);
        }
    }
    // No key is left that can win: every further pass exchanges with the place found last.
    for (; i < n; ++i) std::swap(entryAt[i], entryAt[m]);
    return entryAt;
}

} // namespace gatewise
