#include "schedule/CodeIndex.h"

#include <bit>

namespace gatewise {

namespace {

constexpr std::size_t kCodeWidth = 3;

std::uint32_t keyOf(std::string_view code) {
    std::uint32_t key = 0;
    for (std::size_t i = 0; i < kCodeWidth; ++i) key = key << 8U | static_cast<unsigned char>(code[i]);
    return key + 1;
}

} // namespace

void CodeIndex::start(std::size_t rows) {
    slots_.assign(std::bit_ceil(rows * 2 + 2), Slot());
    rows_ = 0;
}

/// The slot that holds `key` or the free one where it belongs. At least half of the slots are always free.
std::size_t CodeIndex::slotOf(std::uint32_t key) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = (key * 2654435761U >> 8U) & mask;
    while (slots_[at].key != 0 && slots_[at].key != key) at = (at + 1) & mask;
    return at;
}

void CodeIndex::add(std::string_view code, bool lastCounts) {
    const std::uint32_t key = keyOf(code);
    Slot& slot = slots_[slotOf(key)];
    if (slot.key == 0 || lastCounts) slot = {key, static_cast<std::uint32_t>(rows_)};
    ++rows_;
}

std::optional<std::size_t> CodeIndex::find(std::string_view code) const {
    if (code.size() != kCodeWidth || slots_.empty()) return std::nullopt;
    const Slot& slot = slots_[slotOf(keyOf(code))];
    if (slot.key == 0) return std::nullopt;
    return slot.row;
}

} // namespace gatewise
