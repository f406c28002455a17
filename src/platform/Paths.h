#pragma once

#include <filesystem>
#include <string>
#include <string_view>

// Files by the system's own paths: a native absolute folder followed by tails such as "\Data\index.gt1". "\"
// and "/" are the same; each component is looked up as written first and then without regard to letter case;
// what does not exist yet is created as written. Paths are texts of the program (Windows-1252); a component
// that is valid UTF-8 with bytes above 127 is taken as it is, and one that only exists with its bytes as they
// are is found by them, so that folders whose names the page cannot hold still work.

namespace gatewise::files {

/// The native path that stands for `path` now, to write to; empty for a text with a NUL, which the system
/// would cut there.
std::filesystem::path target(std::string_view path);

/// A native path as a text of the program.
std::string textOf(const std::filesystem::path& path);

} // namespace gatewise::files
