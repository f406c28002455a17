#ifdef _WIN32

#include "platform/Files.h"
#include "platform/UserFolders.h"

#include <filesystem>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <knownfolders.h>
#include <shlobj.h>

namespace gatewise {

namespace {

/// Where the system keeps one of its folders for this person, who may have moved it to another drive or
/// cloud.
std::string known(const KNOWNFOLDERID& folder) {
    PWSTR path = nullptr;
    std::string text;
    if (SUCCEEDED(SHGetKnownFolderPath(folder, KF_FLAG_DONT_VERIFY, nullptr, &path)))
        text = files::textOf(std::filesystem::path(path));
    CoTaskMemFree(path);
    return text;
}

} // namespace

UserFolders userFolders() {
    return {known(FOLDERID_Profile), known(FOLDERID_Documents), known(FOLDERID_LocalAppData)};
}

} // namespace gatewise

#endif
