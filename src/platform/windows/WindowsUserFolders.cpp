#ifdef _WIN32

#include "platform/Files.h"
#include "platform/UserFolders.h"

#include <cstdlib>
#include <filesystem>

namespace gatewise {

namespace {

std::filesystem::path named(const wchar_t* variable) {
    const wchar_t* value = _wgetenv(variable);
    return value != nullptr ? std::filesystem::path(value) : std::filesystem::path();
}

std::string textOrNothing(const std::filesystem::path& path) {
    return path.empty() ? std::string() : files::textOf(path);
}

} // namespace

UserFolders userFolders() {
    const std::filesystem::path home = named(L"USERPROFILE");
    return {textOrNothing(home), home.empty() ? std::string() : files::textOf(home / L"Documents"),
            textOrNothing(named(L"LOCALAPPDATA"))};
}

} // namespace gatewise

#endif
