#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace gatewise {

/// Rows of cells apart by `sign`; a cell with that sign, a quote or a line end stands in double quotes, a
/// quote inside is doubled. A quote that never ends takes the rest of the text. Empty lines are left out.
std::vector<std::vector<std::string>> separatedRows(std::string_view text, char sign);

} // namespace gatewise
