#include "platform/NativePath.h"

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <shellapi.h>

namespace gatewise::files {

namespace fs = std::filesystem;

namespace {

// Calls that make folders stop at 248 characters, and a file that is replaced is written under a longer name.
constexpr std::size_t kShort = 230;

bool isWhole(const std::wstring& path) {
    return path.size() > 2 && (path[1] == L':' || (path[0] == L'\\' && path[1] == L'\\'));
}

} // namespace

// The library's own calls take "?" for a sign that stands for any other, and lists for short: not so the
// system's.

Kind kindOf(const fs::path& path) {
    const DWORD attributes = GetFileAttributesW(reachable(path).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return Kind::None;
    if ((attributes & FILE_ATTRIBUTE_DEVICE) != 0) return Kind::Other;
    return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? Kind::Folder : Kind::File;
}

std::vector<FolderEntry> entriesOf(const fs::path& folder) {
    std::vector<FolderEntry> out;
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW(reachable(folder / "*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return out;
    do {
        const std::wstring_view name = found.cFileName;
        if (name != L"." && name != L"..")
            out.push_back({name, (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0});
    } while (FindNextFileW(search, &found) != 0);
    FindClose(search);
    return out;
}

std::error_code removeFile(const fs::path& file) {
    if (DeleteFileW(reachable(file).c_str()) != 0) return {};
    const auto error = static_cast<int>(GetLastError());
    const bool gone = error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
    return gone ? std::error_code() : std::error_code(error, std::system_category());
}

/// "\\?\" before a whole path lifts the limit, "\\?\UNC" where it begins with a computer's name. Behind it
/// the system takes every character as it stands, so that all slashes have to lean its way.
fs::path reachable(fs::path path) {
    if (path.native().size() < kShort) return path;
    const std::wstring whole = path.make_preferred().native();
    if (!isWhole(whole) || whole.starts_with(L"\\\\?\\")) return path;
    return whole[1] == L':' ? L"\\\\?\\" + whole : L"\\\\?\\UNC" + whole.substr(1);
}

/// The bytes that `main` gets have lost what the code page cannot hold.
std::vector<std::string> commandLine(int, char**) {
    int count = 0;
    LPWSTR* words = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> out;
    for (int i = 1; words != nullptr && i < count; ++i) out.push_back(utf8Of(words[i]));
    LocalFree(words);
    return out;
}

} // namespace gatewise::files
