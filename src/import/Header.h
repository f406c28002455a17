#pragma once

#include "import/Cells.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace gatewise::importer {

/// The header line of a table: columns are found by their names, without regard to letter case and
/// underscores, wherever they stand.
class Header {
public:
    Header() = default;
    explicit Header(const Cells& cells);

    /// The place of the first of these names that the table has, from 0; -1 when it has none of them.
    /// Names are given in small letters without underscores.
    [[nodiscard]] int column(std::initializer_list<std::string_view> names) const;
    [[nodiscard]] std::size_t size() const { return names_.size(); }

private:
    std::vector<std::string> names_;
};

/// The cell in a column that column() named; empty for -1.
inline std::string_view cellAt(const Cells& cells, int column) {
    return column < 0 ? std::string_view() : cells[static_cast<std::size_t>(column)];
}

} // namespace gatewise::importer
