#include "platform/Files.h"
#include "platform/UserFolders.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string_view>

namespace gatewise {

namespace fs = std::filesystem;

namespace {

std::optional<fs::path> named(const char* variable) {
    const char* value = std::getenv(variable);
    if (value == nullptr || *value != '/') return std::nullopt;
    return fs::path(value);
}

/// The desktop's list of the person's folders: XDG_DOCUMENTS_DIR="$HOME/Documents". Where it has none,
/// "Documents".
fs::path documentsFolder(const fs::path& home, const fs::path& settings) {
    constexpr std::string_view kKey = "XDG_DOCUMENTS_DIR=\"";
    constexpr std::string_view kHome = "$HOME/";
    std::ifstream list(settings / "user-dirs.dirs");
    for (std::string line; std::getline(list, line);) {
        const auto end = line.rfind('"');
        if (!line.starts_with(kKey) || end < kKey.size()) continue;
        const std::string value = line.substr(kKey.size(), end - kKey.size());
        if (value.starts_with(kHome)) return home / value.substr(kHome.size());
        if (value.starts_with('/')) return value;
    }
    return home / "Documents";
}

} // namespace

UserFolders userFolders() {
    const auto home = named("HOME");
    if (!home) return {};
    const fs::path settings = named("XDG_CONFIG_HOME").value_or(*home / ".config");
    return {files::textOf(*home), files::textOf(documentsFolder(*home, settings)), files::textOf(settings)};
}

} // namespace gatewise
