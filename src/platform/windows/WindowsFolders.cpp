#ifdef _WIN32

#include "platform/AppFolder.h"

#include <array>
#include <cstdlib>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

namespace gatewise {

namespace fs = std::filesystem;

fs::path programFolder() {
    std::array<wchar_t, 32768> file{};
    const DWORD length = GetModuleFileNameW(nullptr, file.data(), static_cast<DWORD>(file.size()));
    return fs::path(file.data(), file.data() + length).parent_path();
}

fs::path userDataFolder() {
    if (const wchar_t* named = _wgetenv(L"LOCALAPPDATA"); named != nullptr && *named != L'\0') return named;
    return fs::temp_directory_path();
}

} // namespace gatewise

#endif
