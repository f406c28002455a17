#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

// Names as the system's own calls take them. Where those take wide characters, a path made of bytes would
// take each byte for a character.

namespace gatewise::files {

/// A path out of UTF-8; other bytes stay as they are where names are bytes.
std::filesystem::path pathOfUtf8(std::string_view utf8);

/// The path in UTF-8, or its bytes where names are bytes.
std::string utf8Of(const std::filesystem::path& path);

enum class Kind { None, File, Folder, Other }; // other: a device, a pipe

/// What the path leads to, behind links; nothing for what cannot be asked.
Kind kindOf(const std::filesystem::path& path);

/// The entries of a folder by their own names; none where there is no folder, or none that can be read.
struct FolderEntry {
    std::filesystem::path name;
    bool folder = false;
};
std::vector<FolderEntry> entriesOf(const std::filesystem::path& folder);

/// Takes a file away; no error where there is none.
std::error_code removeFile(const std::filesystem::path& file);

/// The same file in the form that reaches it however long the path is; short paths stay as they are.
std::filesystem::path reachable(std::filesystem::path path);

/// The words behind the program's name on its command line, in UTF-8.
std::vector<std::string> commandLine(int count, char** arguments);

} // namespace gatewise::files
