#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace gatewise {

/// Positions of table rows by a code of three characters, so that a look-up costs the same in a table of ten
/// and of ten thousand rows. Codes can stand in a table more than once: each table decides whether the first
/// or the last of equal rows is the one that counts.
class CodeIndex {
public:
    /// Forgets everything and makes room for a table of `rows` rows.
    void start(std::size_t rows);

    /// Enters the next row of the table; rows come in table order. `code` has three characters.
    void addFirstCounts(std::string_view code) { add(code, false); }
    void addLastCounts(std::string_view code) { add(code, true); }

    /// Row of a code; nothing when there is none or the code has not three characters.
    [[nodiscard]] std::optional<std::size_t> find(std::string_view code) const;

    /// Rows entered. An index that covers fewer or more rows than its table was built for another one.
    [[nodiscard]] std::size_t rows() const { return rows_; }

private:
    struct Slot {
        std::uint32_t key = 0; // 0 is free; the codes are moved up by one
        std::uint32_t row = 0;
    };
    void add(std::string_view code, bool lastCounts);
    [[nodiscard]] std::size_t slotOf(std::uint32_t key) const;

    std::vector<Slot> slots_;
    std::size_t rows_ = 0;
};

} // namespace gatewise
