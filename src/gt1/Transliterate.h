#pragma once

#include <string>
#include <string_view>

namespace gatewise::gt1 {

struct Converted {
    std::string text;     // Windows-1252
    bool changed = false; // a character outside the page was replaced by its nearest letters, or by "?"
    bool broken = false;  // the bytes are no UTF-8
};

/// The text of a table's cell as the .gt1 files hold it.
Converted converted(std::string_view utf8);

} // namespace gatewise::gt1
