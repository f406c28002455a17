#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Folders in which Wine keeps a Windows of its own.

namespace gatewise::native {

/// The prefixes that a person usually has and that exist, the one named by WINEPREFIX first.
std::vector<std::filesystem::path> winePrefixes();

/// The prefix that `path` lies in; nothing when it lies in none.
std::optional<std::filesystem::path> prefixOf(const std::filesystem::path& path);

/// A text value below HKEY_LOCAL_MACHINE out of the content of a prefix's system.reg, as UTF-8. 64-bit
/// prefixes keep what 32-bit programs wrote in a branch of its own, which counts as well. `key` has single
/// backslashes.
std::optional<std::string> registryText(std::string_view systemReg, std::string_view key,
                                        std::string_view value);

/// The native path of a Windows path ("C:\Games\FS2002") in a prefix; nothing when the drive is unknown.
std::optional<std::filesystem::path> nativePath(const std::filesystem::path& prefix,
                                                std::string_view windowsPath);

} // namespace gatewise::native
