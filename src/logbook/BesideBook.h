#pragma once

#include <string>
#include <string_view>

namespace gatewise {

/// The path of a file in the folder of the log book, whose path is `book`.
inline std::string besideBook(std::string_view book, std::string_view name) {
    const auto slash = book.find_last_of("/\\");
    return std::string(book.substr(0, slash == std::string_view::npos ? 0 : slash + 1)).append(name);
}

} // namespace gatewise
