#include "platform/AppFolder.h"

#include <cstdlib>

namespace gatewise {

namespace fs = std::filesystem;

fs::path programFolder() {
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error);
    return error ? fs::current_path(error) : program.parent_path();
}

fs::path userDataFolder() {
    if (const char* named = std::getenv("XDG_DATA_HOME"); named != nullptr && *named == '/') return named;
    const char* home = std::getenv("HOME");
    return fs::path(home != nullptr && *home != '\0' ? home : "/tmp") / ".local" / "share";
}

} // namespace gatewise
