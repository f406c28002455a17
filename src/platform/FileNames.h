#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <system_error>

// Names that come from outside the program: an airline out of a data set, a plan's stem, what somebody typed.
// None of them may become a path of its own.

namespace gatewise::files {

/// Whether every system that the program runs on takes `name` as the name of one file: not empty, not "." or
/// "..", none of \ / : * ? " < > | and no control character in it, no blank or dot at its end, and no device
/// (CON, NUL, COM1 and their like, with any extension).
[[nodiscard]] bool isFileName(std::string_view name);

/// The path of a file in `folder` whose name comes from outside. Nothing, with invalid_argument in `error`,
/// when no file can have that name. The one way by which such a name gets into a path.
[[nodiscard]] std::optional<std::string> namedIn(std::string_view folder, std::string_view name,
                                                 std::error_code& error);

} // namespace gatewise::files
